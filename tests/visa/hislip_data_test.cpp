// Questions and answers, as long as both sides keep to the rules.
#include "hislip_peer.h"

namespace tvr::visa::hislip {
namespace {

class HislipData : public HislipLink {};

TEST_F(HislipData, AQueryIsOneMessageEachWay) {
  ASSERT_EQ(VI_SUCCESS, Write("*IDN?\n"));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF00 0000000000000006", "*IDN?\n"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000004", "Kel\n"));
  EXPECT_EQ("Kel\n", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipData, IdsGoUpByTwoAndTheDeliveredAnswerIsToldOnce) {
  Write("A?");
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "A?"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000001", "1"));
  EXPECT_EQ("1", Read());
  Write("B");
  Write("C");
  peer_.Hears(kSync, Frame("HS 07 01 FFFFFF02 0000000000000001", "B"));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF04 0000000000000001", "C"));
}

TEST_F(HislipData, IdsWrapAround) {
  for (unsigned id = 0xFFFFFF00; id != 0; id += 2) Write("x");
  peer_.Next(kSync, 128 * 17);
  Write("A?");
  peer_.Hears(kSync, Frame("HS 07 00 00000000 0000000000000002", "A?"));
  peer_.Says(kSync, Frame("HS 07 00 00000000 0000000000000001", "1"));
  EXPECT_EQ("1", Read());
}

TEST_F(HislipData, WithoutEndItIsData) {
  Write(":POW ", 2000, false);
  Write("-3\n");
  peer_.Hears(kSync, Frame("HS 06 00 FFFFFF00 0000000000000005", ":POW "));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF02 0000000000000003", "-3\n"));
}

TEST_F(HislipData, AnAnswerMayComeInParts) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFF00 0000000000000003", "abc"));
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000000000003", "def"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "g\n"));
  EXPECT_EQ("abcdefg\n", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipData, TheEndMayComeAlone) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000000000003", "abc"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000000"));
  EXPECT_EQ("abc", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipData, WhatDoesNotFitStaysForTheNextRead) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000006", "abcdef"));
  EXPECT_EQ("abcd", Read(2000, 4));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
  EXPECT_EQ("ef", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipData, AnAnswerThatFitsToTheByteEndsWithEnd) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000004", "abcd"));
  EXPECT_EQ("abcd", Read(2000, 4));
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipData, TheTermcharCutsAndTheRestStays) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000008", "one\ntwo\n"));
  EXPECT_EQ("one\n", Read(2000, 100, ViByte{'\n'}));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status_);
  EXPECT_EQ("two\n", Read(2000, 100, ViByte{'\n'}));
  EXPECT_EQ(VI_SUCCESS, status_) << "END goes before the termchar";
}

TEST_F(HislipData, SuppressedEndDoesNotEndARead) {
  EXPECT_EQ(VI_SUCCESS, link_->SetAttribute(VI_ATTR_SUPPRESS_END_EN, VI_TRUE, 2000));
  Write("A?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000004", "abcd"));
  EXPECT_EQ("abcd", Read(2000, 4));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
}

TEST_F(HislipData, ALongAnswerComesWhole) {
  std::string long_answer(3'000'000, '\0');
  for (std::size_t i = 0; i < long_answer.size(); ++i) long_answer[i] = static_cast<char>(i * 7 + i / 251);
  std::thread device([&] {
    const std::string_view all(long_answer);
    peer_.Says(kSync, Frame("HS 06 00 FFFFFF00 00000000000F4240", all.substr(0, 1'000'000)));
    peer_.Says(kSync, Frame("HS 06 00 FFFFFF00 00000000000F4240", all.substr(1'000'000, 1'000'000)));
    peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 00000000000F4240", all.substr(2'000'000)));
  });
  Write("A?");
  EXPECT_TRUE(long_answer == Read(5000, long_answer.size()));
  EXPECT_EQ(VI_SUCCESS, status_);
  device.join();
}

class HislipSmallMessages : public HislipLink {
 protected:
  void SetUp() override { Open("00", "0000000000000100"); }  // 256 bytes with the header
};

TEST_F(HislipSmallMessages, ALongMessageIsCutToWhatTheDeviceTakes) {
  const std::string text = std::string(240, 'a') + std::string(240, 'b') + std::string(20, 'c');
  EXPECT_EQ(VI_SUCCESS, Write(text));
  peer_.Hears(kSync, Frame("HS 06 00 FFFFFF00 00000000000000F0", std::string(240, 'a')));
  peer_.Hears(kSync, Frame("HS 06 00 FFFFFF02 00000000000000F0", std::string(240, 'b')));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF04 0000000000000014", std::string(20, 'c')));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF04 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipSmallMessages, PiecesAreJoinedAcrossTheCuts) {
  std::string first(200, 'a');
  std::string second(100, 'b');
  iovec pieces[] = {{first.data(), first.size()}, {nullptr, 0}, {second.data(), second.size()}};
  Deadline deadline(2000);
  std::size_t sent = 0;
  EXPECT_EQ(VI_SUCCESS, link_->Write(pieces, true, deadline, sent));
  EXPECT_EQ(300u, sent);
  peer_.Hears(kSync, Frame("HS 06 00 FFFFFF00 00000000000000F0", first + std::string(40, 'b')));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF02 000000000000003C", std::string(60, 'b')));
}

class HislipOverlap : public HislipLink {
 protected:
  void SetUp() override { Open("01"); }
};

TEST_F(HislipOverlap, AnswersAreTakenInTheirOrderWhateverTheirId) {
  Write("A?");
  Write("B?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000001", "a"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000001", "b"));
  EXPECT_EQ("a", Read());
  EXPECT_EQ("b", Read());
}

TEST_F(HislipOverlap, AStatusQueryTellsTheLastMessageDelivered) {
  peer_.Says(kAsync, Frame("HS 16 00 00000000 0000000000000000"));
  StatusByte();
  peer_.Hears(kAsync, Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF06 0000000000000001", "a"));
  EXPECT_EQ("a", Read());
  peer_.Says(kAsync, Frame("HS 16 00 00000000 0000000000000000"));
  StatusByte();
  peer_.Hears(kAsync, Frame("HS 15 01 FFFFFF06 0000000000000000"));
}

TEST_F(HislipOverlap, EachMessageOfAnAnswerIsDeliveredByItself) {
  peer_.Says(kSync, Frame("HS 06 00 FFFFFF00 0000000000000003", "abc"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000003", "def"));
  peer_.Says(kAsync, Frame("HS 16 00 00000000 0000000000000000") + Frame("HS 16 00 00000000 0000000000000000") +
                         Frame("HS 16 00 00000000 0000000000000000"));
  EXPECT_EQ("abc", Read(2000, 3));
  StatusByte();
  peer_.Hears(kAsync, Frame("HS 15 00 FFFFFF00 0000000000000000"));
  EXPECT_EQ("de", Read(2000, 2));
  StatusByte();
  peer_.Hears(kAsync, Frame("HS 15 00 FFFFFF00 0000000000000000"));  // the second is not whole yet
  EXPECT_EQ("f", Read());
  StatusByte();
  peer_.Hears(kAsync, Frame("HS 15 01 FFFFFF02 0000000000000000"));
}

TEST_F(HislipOverlap, AnAnswerThatIsLateMayStillBeReadBeforeAnotherMessage) {
  Write("A?");
  EXPECT_EQ("", Read(20));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000001", "a"));
  EXPECT_EQ("a", Read());
  peer_.Next(kSync, 18);
  Write("B?");
  peer_.Hears(kSync, Frame("HS 07 01 FFFFFF02 0000000000000002", "B?"));
}

// The device counts its own messages: no number says what is an answer to what.
TEST_F(HislipOverlap, AMessageBehindAReadThatFailedHasTheDeviceForgetTheLateAnswer) {
  Write("A?");
  peer_.Next(kSync, 18);
  EXPECT_EQ("", Read(20));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Says(kAsync, Frame("HS 17 01 00000000 0000000000000000"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000001", "a"));
  peer_.Says(kSync, Frame("HS 09 01 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, Write("B?"));
  peer_.Hears(kAsync, Frame("HS 13 00 00000000 0000000000000000"));
  peer_.Hears(kSync, Frame("HS 08 01 00000000 0000000000000000"));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "B?"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000001", "b"));
  EXPECT_EQ("b", Read());
}

}  // namespace
}  // namespace tvr::visa::hislip
