// Which answer belongs to which question: late ones, interrupted ones.
#include "hislip_peer.h"

namespace tvr::visa::hislip {
namespace {

class HislipAnswer : public HislipLink {};

TEST_F(HislipAnswer, ALateAnswerIsNotTheAnswerToTheNextQuestion) {
  Write("A?");
  EXPECT_EQ("", Read(20));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000004", "late"));
  Write("B?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipAnswer, ALateAnswerIsTakenWhileItsQuestionIsTheLast) {
  Write("A?");
  EXPECT_EQ("", Read(20));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000004", "late"));
  EXPECT_EQ("late", Read());
}

TEST_F(HislipAnswer, TheRestOfACutAnswerIsDropped) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000008", "1234"));
  EXPECT_EQ("1234", Read(20));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  Write("B?");
  peer_.Says(kSync, "5678" + Frame("HS 07 00 FFFFFF02 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipAnswer, AHeaderMayBeCutAnywhere) {
  const std::string answer = Frame("HS 07 00 FFFFFF00 0000000000000002", "ok");
  Write("A?");
  for (std::size_t i = 0; i + 1 < answer.size(); ++i) {
    peer_.Says(kSync, answer.substr(i, 1));
    Read(0, 1);
  }
  peer_.Says(kSync, "k");
  EXPECT_EQ("k", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipAnswer, PartsWithoutAnIdAreJudgedByTheirEnd) {
  Write("A?");
  Write("B?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000000000005", "wrong"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000005", "wrong"));
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000000000001", "o"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000001", "k"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipAnswer, AfterATimeoutNothingIsHandedOverWithoutProof) {
  Write("A?");
  Read(20);
  Write("B?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000000000005", "wrong"));
  EXPECT_EQ("", Read(20, 2)) << "five bytes are there, but whose?";
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000005", "wrong"));
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000000000002", "ri"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000003", "ght"));
  EXPECT_EQ("rig", Read(2000, 3));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
  EXPECT_EQ("ht", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipAnswer, HeldPartsKnowTheTermchar) {
  Write("A?");
  Read(20);
  Write("B?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000000000005", "1\n2\n3"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000001", "\n"));
  EXPECT_EQ("1\n", Read(2000, 10, ViByte{'\n'}));
  EXPECT_EQ("2\n", Read(2000, 10, ViByte{'\n'}));
  EXPECT_EQ(VI_SUCCESS_TERM_CHAR, status_);
  EXPECT_EQ("3\n", Read(2000, 10, ViByte{'\n'}));
  EXPECT_EQ(VI_SUCCESS, status_);
}

TEST_F(HislipAnswer, AFalseBeginningThatWasHandedOverIsConfessed) {
  Write("A?");
  Write("B?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000000000005", "wrong"));
  EXPECT_EQ("wr", Read(2000, 2));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000001", "x"));
  EXPECT_EQ("", Read());
  EXPECT_EQ(VI_ERROR_OUTP_PROT_VIOL, status_);
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipAnswer, NeverIsAWrongValueReadThroughTenThousandTimeouts) {
  std::string owed;  // answers that the device has not got round to yet
  unsigned id = 0xFFFFFF00;
  char head[64];
  for (int i = 0; i < 5000; ++i, id += 4) {
    const std::string late = std::to_string(10000 + i);
    ASSERT_EQ(VI_SUCCESS, Write("SLOW?"));
    EXPECT_EQ("", Read(0));
    ASSERT_EQ(VI_ERROR_TMO, status_);
    // By turns whole, in unmarked parts, and cut by the timeout of the next question.
    if (i % 3 == 0) {
      std::snprintf(head, sizeof head, "HS 07 00 %08X 0000000000000005", id);
      owed += Frame(head, late);
    } else {
      owed += Frame("HS 06 00 FFFFFFFF 0000000000000003", late.substr(0, 3));
      std::snprintf(head, sizeof head, "HS 07 00 %08X 0000000000000002", id);
      owed += Frame(head, late.substr(3));
    }
    const std::string value = std::to_string(5000 + i);
    ASSERT_EQ(VI_SUCCESS, Write("QUICK?"));
    const std::size_t cut = static_cast<std::size_t>(i) % owed.size();
    peer_.Says(kSync, owed.substr(0, cut));
    EXPECT_EQ("", Read(0)) << i;
    peer_.Says(kSync, owed.substr(cut));
    owed.clear();
    std::snprintf(head, sizeof head, "HS 07 00 %08X 0000000000000004", id + 2);
    peer_.Says(kSync, Frame(head, value));
    ASSERT_EQ(value, Read()) << i;
    ASSERT_EQ(VI_SUCCESS, status_);
  }
}

TEST_F(HislipAnswer, InterruptedTakesBackWhatHasCome) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFF00 0000000000000004", "gone"));
  peer_.Says(kSync, Frame("HS 0D 00 FFFFFF00 0000000000000000"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipAnswer, AfterInterruptedNothingIsSentBeforeTheOtherChannelSaysSo) {
  Write("A?");
  peer_.Next(kSync, 18);
  peer_.Says(kSync, Frame("HS 0D 00 FFFFFF00 0000000000000000"));
  EXPECT_EQ("", Read(20));
  EXPECT_EQ(VI_ERROR_TMO, Write("B?", 50));
  peer_.HearsNothingMore(kSync);
  peer_.Says(kAsync, Frame("HS 0E 00 FFFFFF00 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, Write("B?"));
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF02 0000000000000002", "B?"));
}

TEST_F(HislipAnswer, BetweenAsyncInterruptedAndInterruptedDataIsDropped) {
  Write("A?");
  peer_.Says(kAsync, Frame("HS 0E 00 FFFFFF00 0000000000000000"));
  peer_.Says(kAsync, Frame("HS 16 44 00000000 0000000000000000"));
  EXPECT_EQ(0x44, StatusByte());
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000003", "old"));
  peer_.Says(kSync, Frame("HS 0D 00 FFFFFF00 0000000000000000"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000003", "new"));
  EXPECT_EQ("new", Read());
  EXPECT_EQ(VI_SUCCESS, Write("B?", 50)) << "both channels have spoken";
}

}  // namespace
}  // namespace tvr::visa::hislip
