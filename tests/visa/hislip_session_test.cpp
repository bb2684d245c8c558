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
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "*IDN?\n"));
  peer_.Next(kSync, 16 + 6);
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000006", "Kel,5\n"));
  char text[8] = "";
  ASSERT_EQ(VI_SUCCESS, viScanf(vi_, "%4c", text));
  ASSERT_STREQ("Kel,", text);
  ASSERT_EQ(VI_SUCCESS, viBufWrite(vi_, reinterpret_cast<ViConstBuf>(":POW "), 5, nullptr));
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
  ASSERT_EQ(VI_SUCCESS, viPrintf(vi_, "*IDN?\n"));
  peer_.Next(kSync, 16 + 6);
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000006", "Kel,5\n"));
  char text[8] = "";
  ASSERT_EQ(VI_SUCCESS, viScanf(vi_, "%4c", text));
  ASSERT_EQ(VI_SUCCESS, viBufWrite(vi_, reinterpret_cast<ViConstBuf>(":POW "), 5, nullptr));
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
