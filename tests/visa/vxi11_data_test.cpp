#include <future>

#include "vxi11_peer.h"

namespace tvr::visa::vxi11 {
namespace {

class Vxi11Writing : public Vxi11Link {};
class Vxi11Reading : public Vxi11Link {};

TEST_F(Vxi11Writing, AMessageIsOneCallWithEndAndPadding) {
  peer_.Says(kCore, Reply(2, "00000000 00000006"));
  EXPECT_EQ(VI_SUCCESS, Write("*IDN?\n"));
  peer_.Hears(kCore, Bytes("80000044 00000002 00000000 00000002 000607AF 00000001 0000000B"
                           "00000000 00000000 00000000 00000000"
                           "00000007 000007D0 00000000 00000008 00000006 '*IDN?' 0A 0000"));
  peer_.HearsNothingMore(kCore);
}

TEST_F(Vxi11Writing, WithoutEndTheFlagIsMissing) {
  peer_.Says(kCore, Reply(2, "00000000 00000004"));
  EXPECT_EQ(VI_SUCCESS, Write("ABCD", 100, false));
  peer_.Hears(kCore, Call(2, 11, "00000007 00000064 00000000 00000000 00000004 'ABCD'"));
}

TEST_F(Vxi11Writing, TheTimesOfACallAreThoseOfTheSession) {
  peer_.Says(kCore, Reply(2, "00000000 00000001") + Reply(3, "00000000 00000001"));
  EXPECT_EQ(VI_SUCCESS, Write("A", VI_TMO_INFINITE));
  EXPECT_EQ(VI_SUCCESS, Write("B", VI_TMO_IMMEDIATE));
  peer_.Hears(kCore, Call(2, 11, "00000007 FFFFFFFF 00000000 00000008 00000001 'A' 000000"));
  peer_.Hears(kCore, Call(3, 11, "00000007 00000000 00000000 00000008 00000001 'B' 000000"));
}

TEST_F(Vxi11Writing, NothingIsNoCall) {
  EXPECT_EQ(VI_SUCCESS, Write(""));
  peer_.HearsNothingMore(kCore);
}

TEST_F(Vxi11Writing, WhatTheDeviceLeavesIsSentAgainWithTheEnd) {
  peer_.Says(kCore, Reply(2, "00000000 00000002") + Reply(3, "00000000 00000003"));
  EXPECT_EQ(VI_SUCCESS, Write("ABCDE", VI_TMO_INFINITE));
  peer_.Hears(kCore, Call(2, 11, "00000007 FFFFFFFF 00000000 00000008 00000005 'ABCDE' 000000"));
  peer_.Hears(kCore, Call(3, 11, "00000007 FFFFFFFF 00000000 00000008 00000003 'CDE' 00"));
}

TEST_F(Vxi11Writing, PiecesOfTheCallerBecomeOneMessage) {
  peer_.Says(kCore, Reply(2, "00000000 00000003") + Reply(3, "00000000 00000004"));
  std::string one = "AB";
  std::string two = "CDE";
  std::string three = "FG";
  iovec pieces[] = {{one.data(), 2}, {nullptr, 0}, {two.data(), 3}, {three.data(), 2}};
  Deadline deadline(VI_TMO_INFINITE);
  EXPECT_EQ(VI_SUCCESS, link_->Write(pieces, true, deadline, sent_));
  EXPECT_EQ(7u, sent_);
  peer_.Hears(kCore, Call(2, 11, "00000007 FFFFFFFF 00000000 00000008 00000007 'ABCDEFG' 00"));
  peer_.Hears(kCore, Call(3, 11, "00000007 FFFFFFFF 00000000 00000008 00000004 'DEFG'"));
}

TEST_F(Vxi11Writing, AnErrorTellsHowMuchWasTaken) {
  peer_.Says(kCore, Reply(2, "00000011 00000003"));
  EXPECT_EQ(VI_ERROR_IO, Write("ABCDE"));
  EXPECT_EQ(3u, sent_);
}

TEST_F(Vxi11Writing, ADeviceThatTakesNothingAndSaysNothingIsAnError) {
  peer_.Says(kCore, Reply(2, "00000000 00000000"));
  EXPECT_EQ(VI_ERROR_IO, Write("ABCDE"));
  EXPECT_EQ(0u, sent_);
}

TEST_F(Vxi11Writing, ADeviceThatTakesMoreThanItGotIsNoDevice) {
  peer_.Says(kCore, Reply(2, "00000000 00000006"));
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("ABCDE"));
  EXPECT_EQ(0u, sent_);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("ABCDE"));
}

class Vxi11Splitting : public Vxi11Link {
 protected:
  void SetUp() override {}
};

TEST_F(Vxi11Splitting, NoCallIsLongerThanTheDeviceTakesAndOnlyTheLastEnds) {
  Open("00000400");
  const std::string text = std::string(1024, 'a') + std::string(1024, 'b') + "c";
  peer_.Says(kCore, Reply(2, "00000000 00000400") + Reply(3, "00000000 00000400") + Reply(4, "00000000 00000001"));
  EXPECT_EQ(VI_SUCCESS, Write(text, VI_TMO_INFINITE));
  peer_.Hears(kCore, Call(2, 11, "00000007 FFFFFFFF 00000000 00000000 00000400 '" + std::string(1024, 'a') + "'"));
  peer_.Hears(kCore, Call(3, 11, "00000007 FFFFFFFF 00000000 00000000 00000400 '" + std::string(1024, 'b') + "'"));
  peer_.Hears(kCore, Call(4, 11, "00000007 FFFFFFFF 00000000 00000008 00000001 'c' 000000"));
}

TEST_F(Vxi11Splitting, ADeviceWithoutALimitHasTheLeastThatTheProtocolAllows) {
  Open("00000000");
  peer_.Says(kCore, Reply(2, "00000000 00000400") + Reply(3, "00000000 00000001"));
  EXPECT_EQ(VI_SUCCESS, Write(std::string(1025, 'a'), VI_TMO_INFINITE));
  peer_.Hears(kCore, Call(2, 11, "00000007 FFFFFFFF 00000000 00000000 00000400 '" + std::string(1024, 'a') + "'"));
  peer_.Hears(kCore, Call(3, 11, "00000007 FFFFFFFF 00000000 00000008 00000001 'a' 000000"));
}

TEST_F(Vxi11Splitting, ManyMegabytesGoInOneCallWhenTheDeviceTakesThem) {
  Open("FFFFFFFF");
  const std::string text(8 << 20, 'x');
  auto device = std::async(std::launch::async, [&] {
    std::string heard = peer_.Next(kCore, 64 + text.size());
    peer_.Says(kCore, Reply(2, "00000000 00800000"));
    return heard;
  });
  EXPECT_EQ(VI_SUCCESS, Write(text, VI_TMO_INFINITE));
  EXPECT_TRUE(Call(2, 11, "00000007 FFFFFFFF 00000000 00000008 00800000 '" + text + "'") == device.get());
}

TEST_F(Vxi11Reading, AsksForTheRoomAndEndsWithEnd) {
  peer_.Says(kCore, Bytes("80000028 00000002 00000001 00000000 00000000 00000000 00000000"
                          "00000000 00000004 00000003 '1.5' 00"));
  EXPECT_EQ("1.5", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
  peer_.Hears(kCore, Bytes("80000040 00000002 00000000 00000002 000607AF 00000001 0000000C"
                           "00000000 00000000 00000000 00000000"
                           "00000007 00001000 000007D0 00000000 00000000 00000000"));
}

TEST_F(Vxi11Reading, TheTerminationCharacterIsGivenToTheDevice) {
  peer_.Says(kCore, Reply(2, "00000000 00000002 00000002 'A;' 0000"));
  EXPECT_EQ("A;", Read(VI_TMO_INFINITE, 256, ViByte{';'}));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status_);
  peer_.Hears(kCore, Call(2, 12, "00000007 00000100 FFFFFFFF 00000000 00000080 0000003B"));
}

TEST_F(Vxi11Reading, EndWinsOverTheTerminationCharacterAndBothOverTheCount) {
  peer_.Says(kCore, Reply(2, "00000000 00000007 00000002 '1' 0A 0000"));
  EXPECT_EQ("1\n", Read(2000, 2, ViByte{'\n'}));
  EXPECT_EQ(VI_SUCCESS, status_);
  peer_.Says(kCore, Reply(3, "00000000 00000003 00000002 '2' 0A 0000"));
  EXPECT_EQ("2\n", Read(2000, 2, ViByte{'\n'}));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status_);
  peer_.Says(kCore, Reply(4, "00000000 00000001 00000002 '3' 0A 0000"));
  EXPECT_EQ("3\n", Read(2000, 2, ViByte{'\n'})) << "a device need not look at the last byte of the count";
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status_);
  peer_.Says(kCore, Reply(5, "00000000 00000001 00000002 '4' 0A 0000"));
  EXPECT_EQ("4\n", Read(2000, 2));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
}

TEST_F(Vxi11Reading, WithoutAReasonItGoesOnForWhatIsLeftOfTheRoom) {
  peer_.Says(kCore, Reply(2, "00000000 00000000 00000004 'ABCD'") + Reply(3, "00000000 00000004 00000002 'EF' 0000"));
  EXPECT_EQ("ABCDEF", Read(VI_TMO_INFINITE, 16));
  EXPECT_EQ(VI_SUCCESS, status_);
  peer_.Hears(kCore, Call(2, 12, "00000007 00000010 FFFFFFFF 00000000 00000000 00000000"));
  peer_.Hears(kCore, Call(3, 12, "00000007 0000000C FFFFFFFF 00000000 00000000 00000000"));
}

TEST_F(Vxi11Reading, WhatIsEnoughForTheCallerEndsWithoutAReason) {
  peer_.Says(kCore, Reply(2, "00000000 00000000 00000004 'ABCD'"));
  EXPECT_EQ("ABCD", Read(2000, 16, {}, 1));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
}

TEST_F(Vxi11Reading, AReasonEndsItBeforeTheRoomIsFull) {
  peer_.Says(kCore, Reply(2, "00000000 00000001 00000003 'ABC' 00"));
  EXPECT_EQ("ABC", Read());
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
  peer_.Says(kCore, Reply(3, "00000000 00000002 00000003 'AB;' 00"));
  EXPECT_EQ("AB;", Read(2000, 4096, ViByte{';'}));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status_);
  peer_.Says(kCore, Reply(4, "00000000 00000002 00000002 'AB' 0000"));
  EXPECT_EQ("AB", Read(2000, 4096, ViByte{';'}));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_) << "what is not among the data has not been read";
  peer_.Says(kCore, Reply(5, "00000000 00000005 00000003 'ABC' 00"));
  EXPECT_EQ("ABC", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(Vxi11Reading, AMatchOfACharacterThatNobodyAskedForEndsNothing) {
  peer_.Says(kCore,
             Reply(2, "00000000 00000002 00000002 'A' 0A 0000") + Reply(3, "00000000 00000004 00000001 'B' 000000"));
  EXPECT_EQ("A\nB", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(Vxi11Reading, AReasonWithoutAnyDataEndsNothing) {
  peer_.Says(kCore, Reply(2, "00000000 00000001 00000000") + Reply(3, "00000000 00000004 00000001 'B' 000000"));
  EXPECT_EQ("B", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(Vxi11Reading, LargeRoomIsAskedForInParts) {
  std::string data(0x100000 + 5, 'x');
  for (std::size_t i = 0; i < data.size(); ++i) data[i] = static_cast<char>(i * 31 + i / 509);
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kCore, Call(2, 12, "00000007 00100000 FFFFFFFF 00000000 00000000 00000000"));
    const std::string head = Bytes(
        "80100024 00000002 00000001 00000000 00000000 00000000 00000000"
        "00000000 00000001 00100000");
    peer_.Says(kCore, head + data.substr(0, 0x100000));
    peer_.Hears(kCore, Call(3, 12, "00000007 00000005 FFFFFFFF 00000000 00000000 00000000"));
    peer_.Says(kCore, Bytes("8000002C 00000003 00000001 00000000 00000000 00000000 00000000"
                            "00000000 00000005 00000005") +
                          data.substr(0x100000) + std::string(3, '\0'));
  });
  EXPECT_TRUE(data == Read(VI_TMO_INFINITE, data.size()));
  EXPECT_EQ(VI_SUCCESS, status_);
  device.get();
}

TEST_F(Vxi11Reading, AFilledPartOfALargeRoomEndsNothingAndAShortOneDoes) {
  auto device = std::async(std::launch::async, [&] {
    peer_.Next(kCore, 68);
    const std::string head = Bytes(
        "80100024 00000002 00000001 00000000 00000000 00000000 00000000"
        "00000000 00000001 00100000");
    peer_.Says(kCore, head + std::string(0x100000, 'x'));
    peer_.Hears(kCore, Call(3, 12, "00000007 00000064 FFFFFFFF 00000000 00000000 00000000"));
    peer_.Says(kCore, Reply(3, "00000000 00000001 00000003 'ABC' 00"));
  });
  EXPECT_EQ(0x100003u, Read(VI_TMO_INFINITE, 0x100064).size());
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
  device.get();
}

TEST_F(Vxi11Reading, EndIsPassedOverWhenItIsSuppressed) {
  ASSERT_EQ(VI_SUCCESS, link_->SetAttribute(VI_ATTR_SUPPRESS_END_EN, VI_TRUE, 2000));
  peer_.Says(kCore, Reply(2, "00000000 00000004 00000004 'ABCD'") + Reply(3, "00000000 00000005 00000004 'EFGH'"));
  EXPECT_EQ("ABCDEFGH", Read(2000, 8));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
}

TEST_F(Vxi11Reading, WhatComesWithATimeoutIsDelivered) {
  peer_.Says(kCore, Reply(2, "0000000F 00000000 00000003 'ABC' 00"));
  EXPECT_EQ("ABC", Read());
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.HearsNothingMore(kAbort);
}

TEST_F(Vxi11Reading, AReplyInManyFragmentsIsOneReply) {
  peer_.Says(kCore, Bytes("00000002 0000"
                          "00000000"
                          "00000017 0002 00000001 00000000 00000000 00000000 00000000 00"
                          "00000007 000000 00000004"
                          "00000006 00000007 'AB'"
                          "80000006 'CDEFG' 00"));
  EXPECT_EQ("ABCDEFG", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
  peer_.Says(kCore, Reply(3, "00000000 00000004 00000002 'OK' 0000"));
  EXPECT_EQ("OK", Read());
}

TEST_F(Vxi11Reading, AReplyWithAVerifierIsAReply) {
  peer_.Says(kCore, Record("00000002 00000001 00000000 00000001 00000005 'proof' 000000 00000000"
                           "00000000 00000004 00000002 'OK' 0000"));
  EXPECT_EQ("OK", Read());
}

}  // namespace
}  // namespace tvr::visa::vxi11
