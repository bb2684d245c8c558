#include "bench.h"

namespace siggen {
namespace {

using Frequency = Bench;

TEST_F(Frequency, IsRefusedOutsideTheModelsRangeAndStays) {
  Tell(":FREQ 2e9 HZ");
  ExpectRefused(":FREQ 20000000001", -222);
  ExpectRefused(":FREQ 8999", -222);
  ExpectRefused(":FREQ 9e+99 HZ", -222);
  EXPECT_EQ("2000000000", Ask(":FREQ?"));
}

TEST_F(Frequency, EachModelHasItsHighest) {
  for (const auto& [name, highest] :
       {std::pair{"TD48122C", "12750000000"}, {"TD48142C", "20000000000"}, {"TD48172C", "40000000000"}}) {
    model::Identity identity;
    identity.variant = *model::VariantNamed(name);
    model::Instrument other(identity);
    scpi::Session session(other);
    EXPECT_EQ(highest, Ask(session, ":FREQ? MAX"));
    EXPECT_EQ(highest, Ask(session, ":FREQ:STOP?"));
    EXPECT_EQ("9000", Ask(session, ":FREQ:STAR?"));
  }
  EXPECT_FALSE(model::VariantNamed("TD48152C"));
}

TEST_F(Frequency, KeepsFifteenDigits) {
  Tell(":FREQ 1234567890.12345 HZ");
  EXPECT_EQ("1234567890.12345", Ask(":FREQ?"));
}

TEST_F(Frequency, StepsUpAndDown) {
  Tell(":FREQ 1e9;:FREQ:STEP 250 KHZ");
  Tell(":FREQ UP");
  EXPECT_EQ("1000250000", Ask(":FREQ?"));
  Tell(":FREQ DOWN");
  Tell(":FREQ DOWN");
  EXPECT_EQ("999750000", Ask(":FREQ?"));
  Tell(":FREQ MAX");
  ExpectRefused(":FREQ UP", -222);
}

TEST_F(Frequency, TheMultiplierTakesAnHzForOldProgramsSake) {
  Tell(":FREQ:MULT 2.5 HZ");
  EXPECT_EQ("2.5", Ask(":FREQ:MULT?"));
  ExpectRefused(":FREQ:MULT 0", -222);
  ExpectRefused(":FREQ:MULT 2 S", -131);
}

TEST_F(Frequency, TenPresetsAreKeptAndRecalled) {
  for (int i = 0; i < 10; ++i) Tell(":FREQ:F" + std::to_string(i) + " " + std::to_string(i + 1) + "e9");
  EXPECT_EQ("1000000000;6000000000;10000000000", Ask(":FREQ:F0?;F5?;F9?"));
  Tell(":FREQ:SEL F3");
  EXPECT_EQ("F3;4000000000", Ask(":FREQ:SEL?;:FREQ?"));
  ExpectRefused(":FREQ:F10 1e9", -114);
  ExpectRefused(":FREQ:F3 99e9", -222);
  EXPECT_EQ("4000000000", Ask(":FREQ:F3?"));
}

TEST_F(Frequency, StartAndStopMoveCenterAndSpan) {
  Tell(":FREQ:STAR 1.5e9 HZ;STOP 2.5e9 HZ");
  EXPECT_EQ("2000000000;1000000000", Ask(":FREQ:CENT?;SPAN?"));
}

TEST_F(Frequency, CenterAndSpanMoveStartAndStop) {
  Tell(":FREQ:STAR 1e9;STOP 2e9");
  Tell(":FREQ:CENT 5e9");
  EXPECT_EQ("4500000000;5500000000", Ask(":FREQ:STAR?;STOP?"));
  Tell(":FREQ:SPAN 2e9");
  EXPECT_EQ("4000000000;6000000000;5000000000", Ask(":FREQ:STAR?;STOP?;CENT?"));
}

TEST_F(Frequency, ACenterNearTheEdgeNarrowsTheSpan) {
  Tell(":FREQ:STAR 1e9;STOP 11e9");
  Tell(":FREQ:CENT 19e9");
  EXPECT_EQ("18000000000;20000000000", Ask(":FREQ:STAR?;STOP?"));
}

TEST_F(Frequency, ASpanThatDoesNotFitAroundTheCenterIsRefused) {
  Tell(":FREQ:STAR 1e9;STOP 2e9");
  ExpectRefused(":FREQ:SPAN 4e9", -222);
  EXPECT_EQ("1000000000;2000000000", Ask(":FREQ:STAR?;STOP?"));
}

TEST_F(Frequency, FullSpanIsTheWholeRange) {
  Tell(":FREQ:STAR 1e9;STOP 2e9");
  Tell(":FREQ:SPAN:FULL");
  EXPECT_EQ("9000;20000000000", Ask(":FREQ:STAR?;STOP?"));
}

TEST_F(Frequency, DeltaIsKept) {
  Tell(":FREQ:DELT 5 MHZ");
  EXPECT_EQ("5000000", Ask(":FREQ:DELT?"));
}

}  // namespace
}  // namespace siggen
