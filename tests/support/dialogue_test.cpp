// The script's own rules, without any link.

#include "Dialogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bytes.h"

namespace kvtd::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string Answers(const std::vector<Reaction>& reactions) {
  std::string bytes;
  for (const Reaction& reaction : reactions) bytes += reaction.bytes;
  return bytes;
}

TEST(Dialogue, AnswersTheExpectedLineWithItsTextAndALineFeed) {
  Dialogue dialogue;
  dialogue.Script(R"(
    > :FREQ:MODE?
    < FIX
  )");
  EXPECT_EQ("FIX\n", Answers(dialogue.Receive(":FREQ:MODE?\n")));
  EXPECT_THAT(dialogue.Received(), ElementsAre(":FREQ:MODE?\n"));
  EXPECT_EQ("", dialogue.Difference());
}

TEST(Dialogue, WaitsForTheRestOfALineThatArrivesInParts) {
  Dialogue dialogue;
  dialogue.Script(R"(
    > :FREQ?
    < 1e9
  )");
  EXPECT_THAT(dialogue.Receive(":FR"), IsEmpty());
  EXPECT_EQ("1e9\n", Answers(dialogue.Receive("EQ?\n")));
}

TEST(Dialogue, TakesSeveralLinesOutOfOnePiece) {
  Dialogue dialogue;
  dialogue.Script(R"(
    > :FREQ 1 HZ
    > *ESR?
    < 0
  )");
  EXPECT_EQ("0\n", Answers(dialogue.Receive(":FREQ 1 HZ\n*ESR?\n")));
  EXPECT_EQ("", dialogue.Difference());
}

TEST(Dialogue, ABlankBeforeTheLineFeedMustArriveWhenItIsExpected) {
  Dialogue dialogue;
  dialogue.Sent(":SWE1:DWEL 0.1 \n");
  dialogue.Receive(":SWE1:DWEL 0.1\n");
  EXPECT_THAT(dialogue.Difference(), HasSubstr("  - > :SWE1:DWEL 0.1 \\n\n  + > :SWE1:DWEL 0.1\\n\n"));
}

TEST(Dialogue, ABlankBeforeTheLineFeedIsASurpriseWhenItIsNotExpected) {
  Dialogue dialogue;
  dialogue.Script("> :FREQ:F0 1");
  dialogue.Receive(":FREQ:F0 1 \n");
  EXPECT_THAT(dialogue.Difference(), HasSubstr("  + > :FREQ:F0 1 \\n\n"));
}

TEST(Dialogue, ASurpriseEndsTheConnectionAndNothingIsAnsweredAfterIt) {
  Dialogue dialogue;
  dialogue.Script(R"(
    > :POW?
    < -10
  )");
  const std::vector<Reaction> reactions = dialogue.Receive(":FREQ?\n:POW?\n");
  EXPECT_EQ("", Answers(reactions));
  ASSERT_FALSE(reactions.empty());
  EXPECT_EQ(Reaction::Kind::Close, reactions.front().kind);
}

TEST(Dialogue, ALineThatNeverArrivedIsTold) {
  Dialogue dialogue;
  dialogue.Script("> :POW?\n< 1");
  EXPECT_THAT(dialogue.Difference(), HasSubstr("  - > :POW?\\n\n"));
}

TEST(Dialogue, BytesWithoutALineFeedAreToldAsWell) {
  Dialogue dialogue;
  dialogue.Receive(":POW");
  EXPECT_THAT(dialogue.Difference(), HasSubstr("  + > :POW\n"));
}

TEST(Dialogue, ALongBlockIsToldByItsBeginningAndItsSize) {
  Dialogue dialogue;
  dialogue.Receive(std::string(5000, 'x') + "\n");
  EXPECT_THAT(dialogue.Difference(), HasSubstr("xxx... (5001 bytes)\n"));
}

TEST(Dialogue, AnyLineBehindAnEmptyScriptIsASurprise) {
  Dialogue dialogue;
  dialogue.Receive("*CLS\n");
  EXPECT_THAT(dialogue.Difference(), HasSubstr("  + > *CLS\\n\n"));
}

TEST(Dialogue, ADefaultAnswerServesEveryLineThatTheScriptDoesNotExpect) {
  Dialogue dialogue;
  dialogue.AnswerAlways("*ESR?", "0");
  dialogue.Script(R"(
    > :FREQ 1 HZ
    > *ESR?
    < 16
  )");
  EXPECT_EQ("0\n", Answers(dialogue.Receive("*ESR?\n")));
  EXPECT_EQ("16\n", Answers(dialogue.Receive(":FREQ 1 HZ\n*ESR?\n")));
  EXPECT_EQ("0\n", Answers(dialogue.Receive("*ESR?\n")));
  EXPECT_EQ("", dialogue.Difference());
}

TEST(Dialogue, ALineThatGetsNoAnswerIsNoSurprise) {
  Dialogue dialogue;
  dialogue.AnswerNothing("*CLS");
  EXPECT_THAT(dialogue.Receive("*CLS\n*CLS\n"), IsEmpty());
  EXPECT_EQ("", dialogue.Difference());
}

TEST(Dialogue, RawBytesAreExpectedAndAnsweredAsTheyAre) {
  Dialogue dialogue;
  dialogue.Sent(Literal("#13\n\0\n\n"));
  dialogue.Answer(Literal("\0\r\n"));
  EXPECT_EQ(Literal("\0\r\n"), Answers(dialogue.Receive(Literal("#13\n\0\n\n"))));
  EXPECT_EQ("", dialogue.Difference());
}

TEST(Dialogue, DirectivesHappenInTheirOrder) {
  Dialogue dialogue;
  dialogue.Script(R"(
    > A
    < 1
    ! pause 7
    < 2
    ! half-close
  )");
  const std::vector<Reaction> reactions = dialogue.Receive("A\n");
  ASSERT_EQ(4U, reactions.size());
  EXPECT_EQ("1\n", reactions[0].bytes);
  EXPECT_EQ(Milliseconds(7), reactions[1].duration);
  EXPECT_EQ("2\n", reactions[2].bytes);
  EXPECT_EQ(Reaction::Kind::HalfClose, reactions[3].kind);
}

TEST(Dialogue, AScriptThatDoesNotFollowTheFormIsRefused) {
  Dialogue dialogue;
  EXPECT_THROW(dialogue.Script("< answer to nothing"), std::invalid_argument);
  EXPECT_THROW(dialogue.Script(":FREQ?"), std::invalid_argument);
  EXPECT_THROW(dialogue.Script(">:FREQ?"), std::invalid_argument);
  EXPECT_THROW(dialogue.Script("> :FREQ? "), std::invalid_argument);
  EXPECT_THROW(dialogue.Script("> A\n! explode"), std::invalid_argument);
  EXPECT_THROW(dialogue.Script("> A\n! pause soon"), std::invalid_argument);
}

TEST(Visible, ShowsTheBytesThatAnEyeWouldMiss) {
  EXPECT_EQ("a \\r\\n\\t\\x00\\\\\\xFF", Visible(Literal("a \r\n\t\0\\\xFF")));
}

}  // namespace
}  // namespace kvtd::test
