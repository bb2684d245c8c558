// What a session makes of a link that marks the end of its messages.
#include "hislip_session.h"

namespace tvr::visa::hislip {
namespace {

class HislipReading : public HislipSession {
 protected:
  std::string Read(ViUInt32 room = 100) {
    std::string into(room, '?');
    ViUInt32 count = 0;
    status_ = viRead(vi_, reinterpret_cast<ViPBuf>(into.data()), room, &count);
    into.resize(count);
    return into;
  }
  // "5\n" of an answer is unread, and ":POW " of a message unsent.
  void LeaveHalves() {
    ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "*IDN?\n"));
    peer_.Next(kSync, 16 + 6);
    peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000006", "Kel,5\n"));
    char text[8] = "";
    ASSERT_EQ(VI_SUCCESS, viScanf(vi_, "%4c", text));
    ASSERT_STREQ("Kel,", text);
    ASSERT_EQ(VI_SUCCESS, viBufWrite(vi_, reinterpret_cast<ViConstBuf>(":POW "), 5, nullptr));
  }

  ViStatus status_ = VI_SUCCESS;
};

TEST_F(HislipReading, ATerminationCharacterCountsOnlyWhenItIsEnabled) {
  const std::string two_lines = Frame("HS 07 00 FFFFFEFE 0000000000000004", "1\n2\n");
  peer_.Says(kSync, two_lines);
  EXPECT_EQ("1\n2\n", Read());
  EXPECT_EQ(VI_SUCCESS, status_);

  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TERMCHAR_EN, VI_TRUE));
  peer_.Says(kSync, two_lines);
  EXPECT_EQ("1\n", Read());
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status_);
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TERMCHAR_EN, VI_FALSE));
  EXPECT_EQ("2\n", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipReading, AFormattedReadTakesLineFeedsForBytesToo) {
  peer_.Says(kSync, Frame("HS 07 00 FFFFFEFE 0000000000000004", "1\n2\n"));
  char text[16] = "";
  EXPECT_EQ(VI_SUCCESS, viScanf(vi_, "%t", text));
  EXPECT_STREQ("1\n2\n", text);
}

// An answer longer than the buffer does not match; the device drops the rest of it when the next message comes.
TEST_F(HislipReading, AQueryDoesNotWaitForTheRestOfAnAnswerThatAMessageHasEnded) {
  ASSERT_EQ(VI_SUCCESS, viSetBuf(vi_, VI_READ_BUF, 8));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, 200));
  peer_.Says(kSync, Frame("HS 06 00 FFFFFF00 0000000000000008", "nonsense"));
  ViInt32 value = 0;
  EXPECT_EQ(VI_ERROR_INV_FMT, viQueryf(vi_, "A?\n", "%ld%*t", &value));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi_, "B\n"));
  peer_.Says(kSync, Frame("HS 0D 00 FFFFFF02 0000000000000000"));
  peer_.Says(kAsync, Frame("HS 0E 00 FFFFFF02 0000000000000000"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF04 0000000000000002", "3\n"));
  EXPECT_EQ(VI_SUCCESS, viQueryf(vi_, "C?\n", "%ld%*t", &value));
  EXPECT_EQ(3, value);
}

// Switching overlap mode clears the device.
TEST_F(HislipReading, ADeviceClearOfAnAttributeTakesWhatIsFormattedWithIt) {
  ASSERT_NO_FATAL_FAILURE(LeaveHalves());
  peer_.Says(kAsync, Frame("HS 17 01 00000000 0000000000000000"));
  peer_.Says(kSync, Frame("HS 09 01 00000000 0000000000000000"));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, VI_TRUE));
  peer_.Hears(kSync, Frame("HS 08 01 00000000 0000000000000000"));

  ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "*OPC?\n"));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF00 0000000000000006", "*OPC?\n"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"));
  ViInt32 value = 0;
  EXPECT_EQ(VI_SUCCESS, viScanf(vi_, "%ld", &value));
  EXPECT_EQ(1, value);
}

TEST_F(HislipReading, AnAttributeThatClearsNothingLeavesWhatIsFormattedAlone) {
  ASSERT_NO_FATAL_FAILURE(LeaveHalves());
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, VI_FALSE)) << "as it is";
  ASSERT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi_, VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, 2));
  ViInt32 value = 0;
  EXPECT_EQ(VI_SUCCESS, viScanf(vi_, "%ld", &value));
  EXPECT_EQ(5, value);
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi_, "-3\n"));
  peer_.Hears(kSync, Frame("HS 07 01 FFFFFF02 0000000000000008", ":POW -3\n"));
}

TEST_F(HislipReading, NoTerminationCharacterIsAddedToWhatIsWritten) {
  EXPECT_EQ(VI_SUCCESS, viWrite(vi_, reinterpret_cast<ViConstBuf>("*CLS"), 4, nullptr));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF00 0000000000000004", "*CLS"));
  peer_.HearsNothingMore(kSync);
}

TEST_F(HislipReading, AWaitForTheStatusByteIsEndedAndItsLateAnswerIsNotTheNextOne) {
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, VI_TMO_INFINITE));
  ViUInt16 status = 0;
  auto asking = std::async(std::launch::async, [&] { return viReadSTB(vi_, &status); });
  peer_.Hears(kAsync, Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, viTerminate(vi_, VI_NULL, VI_NULL));
  EXPECT_EQ(VI_ERROR_ABORT, asking.get());
  AnswersStatusQuery("11");
  AnswersStatusQuery("22");
  EXPECT_EQ(VI_SUCCESS, viReadSTB(vi_, &status));
  EXPECT_EQ(0x22, status);
}

TEST_F(HislipReading, AWriteThatTheDeviceDoesNotTakeIsEndedAndTheNextOneTakesItBack) {
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, VI_TMO_INFINITE));
  constexpr ViUInt32 kMoreThanTheKernelKeeps = 32 << 20;
  constexpr std::size_t kPayload = 0x100000 - 16;
  const std::string text(kMoreThanTheKernelKeeps, 'x');
  ViUInt32 written = 0;
  auto writing = std::async(std::launch::async, [&] {
    return viWrite(vi_, reinterpret_cast<ViConstBuf>(text.data()), kMoreThanTheKernelKeeps, &written);
  });
  peer_.Hears(kSync, Frame("HS 06 00 FFFFFF00 00000000000FFFF0"));
  EXPECT_EQ(std::future_status::timeout, writing.wait_for(std::chrono::milliseconds(100)));
  EXPECT_EQ(VI_SUCCESS, viTerminate(vi_, VI_NULL, VI_NULL));
  EXPECT_EQ(VI_ERROR_ABORT, writing.get());
  EXPECT_GT(written, 0u);
  EXPECT_LT(written, kMoreThanTheKernelKeeps);

  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kAsync, Frame("HS 13 00 00000000 0000000000000000"));
    peer_.Says(kAsync, Frame("HS 17 00 00000000 0000000000000000"));
    std::string header;
    do {  // the rest of each message, and what follows it
      peer_.Next(kSync, kPayload);
      header = peer_.Next(kSync, 16);
    } while (header.substr(0, 3) == "HS\x06");
    EXPECT_EQ(Frame("HS 08 00 00000000 0000000000000000"), header);
    peer_.Says(kSync, Frame("HS 09 00 00000000 0000000000000000"));
    peer_.Hears(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "A?"));
  });
  EXPECT_EQ(VI_SUCCESS, viWrite(vi_, reinterpret_cast<ViConstBuf>("A?"), 2, nullptr));
  device.get();
}

TEST_F(HislipReading, EveryPublishedProtocolCanBeSet) {
  ViUInt16 protocol = 0;
  EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi_, VI_ATTR_IO_PROT, &protocol));
  EXPECT_EQ(1, protocol);
  for (const ViUInt16 published : std::initializer_list<ViUInt16>{2, 3, 4, 5, 1}) {
    EXPECT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_IO_PROT, published));
    EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi_, VI_ATTR_IO_PROT, &protocol));
    EXPECT_EQ(published, protocol);
  }
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi_, VI_ATTR_IO_PROT, 0));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi_, VI_ATTR_IO_PROT, 6));
}

}  // namespace
}  // namespace tvr::visa::hislip
