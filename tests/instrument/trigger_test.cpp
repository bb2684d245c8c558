#include "bench.h"

namespace siggen {
namespace {

using namespace std::chrono_literals;

// A stepped sweep of 11 points, 0.1 s each, armed by hand.
class Trigger : public Bench {
 protected:
  void SetUp() override {
    Tell(":FREQ:STAR 1e9;STOP 2e9;:SWE1:GEN STEP;POIN 11;DWEL 0.1;:INIT:CONT OFF;:FREQ:MODE SWE");
  }
  std::string Frequency() { return Ask(":MEAS:FREQ?"); }
  std::string Condition() { return Ask(":STAT:OPER:COND?"); }
};

constexpr const char* kIdle = "0";
constexpr const char* kSweeping = "8";
constexpr const char* kWaiting = "32";

TEST_F(Trigger, SettingsAreAnsweredShort) {
  Tell("*RST");
  EXPECT_EQ("AUTO;SWE;IMM;1", Ask(":TRIG:TYPE?;MODE?;SOUR?;:INIT:CONT?"));
  for (const auto& [sent, answered] :
       {std::pair{"SINGle", "SING"}, {"EXTernal", "EXT"}, {"MANual", "MAN"}, {"INACtive", "INAC"}, {"AUTO", "AUTO"}}) {
    Tell(std::string(":TRIG:TYPE ") + sent);
    EXPECT_EQ(answered, Ask(":TRIG:TYPE?"));
  }
  Tell(":TRIG:MODE POINt;SOUR BUS;:INIT:CONT 0");
  EXPECT_EQ("POIN;BUS;0", Ask(":TRIG:MODE?;SOUR?;:INIT:CONT?"));
}

TEST_F(Trigger, InitiateStartsAtOnceWhenTheSourceIsImmediate) {
  EXPECT_EQ(kIdle, Condition());
  Tell(":INIT");
  EXPECT_EQ(kSweeping, Condition());
}

TEST_F(Trigger, InitiateTwiceIsIgnoredWithAnError) {
  Tell(":INIT");
  ExpectRefused(":INIT", -213);
  Tell("ABOR;INIT");
  ExpectNoError();
}

TEST_F(Trigger, AbortGoesBackToTheStart) {
  Tell(":INIT");
  Pass(500ms);
  Tell(":ABOR");
  EXPECT_EQ(kIdle, Condition());
  Tell("ABOR;INIT");
  EXPECT_EQ("1000000000", Frequency());
}

TEST_F(Trigger, BusWaitsForTheCommonTrigger) {
  Tell(":TRIG:SOUR BUS;:INIT");
  EXPECT_EQ(kWaiting, Condition());
  Tell("*TRG");
  EXPECT_EQ(kSweeping, Condition());
  ExpectRefused("*TRG", -211);
}

TEST_F(Trigger, ExternalWaitsForItsInput) {
  Tell(":TRIG:TYPE EXTernal;:INIT");
  ExpectRefused("*TRG", -211);
  EXPECT_EQ(kWaiting, Condition());
  instrument_.generator().sweep.ExternalTrigger();
  EXPECT_EQ(kSweeping, Condition());
}

TEST_F(Trigger, ExternalPulsesMeanNothingToOtherTypes) {
  Tell(":TRIG:TYPE SINGle;:INIT");
  instrument_.generator().sweep.ExternalTrigger();
  EXPECT_EQ(kWaiting, Condition());
}

TEST_F(Trigger, TheTriggerCommandDoesNotAskForTheSource) {
  Tell(":TRIG:TYPE EXTernal;:INIT;:TRIG");
  EXPECT_EQ(kSweeping, Condition());
}

TEST_F(Trigger, TheTriggerCommandWhileNothingWaitsDoesNothing) {
  Tell(":TRIG");
  EXPECT_EQ(kIdle, Condition());
  ExpectNoError();
}

TEST_F(Trigger, PointModeGoesOnByOnePointForEachTrigger) {
  Tell(":TRIG:SOUR BUS;MODE POIN;:INIT");
  Tell("*TRG");
  Tell("*TRG");
  Pass(10s);
  EXPECT_EQ("1200000000", Frequency());
  EXPECT_EQ(kWaiting, Condition());
}

TEST_F(Trigger, ContinuousArmsAgainAfterEachRun) {
  Tell(":TRIG:TYPE SINGle;:INIT:CONT ON");
  EXPECT_EQ(kWaiting, Condition());
  ExpectRefused(":INIT", -213);
  for (int run = 0; run < 3; ++run) {
    Tell(":TRIG");
    EXPECT_EQ(kSweeping, Condition());
    Pass(1100ms);
    EXPECT_EQ(kWaiting, Condition());
  }
  Tell(":INIT:CONT OFF");
  EXPECT_EQ(kIdle, Condition());
}

TEST_F(Trigger, InactiveStopsEverything) {
  Tell(":INIT:CONT ON");
  Pass(250ms);
  Tell(":TRIG:TYPE INAC");
  Pass(10s);
  EXPECT_EQ("1200000000", Frequency());
}

TEST_F(Trigger, OperationCompleteComesWithTheEndOfTheRun) {
  Ask("*ESR?");
  Tell(":INIT;*OPC");
  EXPECT_EQ("0", Ask("*ESR?"));
  Pass(1099ms);
  EXPECT_EQ("0", Ask("*ESR?"));
  Pass(1ms);
  EXPECT_EQ("1", Ask("*ESR?"));
}

TEST_F(Trigger, TheQuestionForOperationCompleteWaits) {
  EXPECT_EQ("", Ask(":INIT;*OPC?"));
  EXPECT_TRUE(session_.waiting());
  EXPECT_EQ(now_ + 1100ms, instrument_.next_event());
  Pass(500ms);
  session_.Run();
  EXPECT_FALSE(session_.answer_ready());
  Pass(600ms);
  session_.Run();
  EXPECT_EQ("1", Answered(session_));
}

TEST_F(Trigger, WaitToContinueHoldsBackWhatFollows) {
  Tell(":INIT;*WAI;:POW -5");
  scpi::Session other(instrument_);
  EXPECT_EQ("-20", Ask(other, ":POW?"));
  Pass(1100ms);
  session_.Run();
  EXPECT_EQ("-5", Ask(other, ":POW?"));
}

TEST_F(Trigger, AnotherClientsAbortEndsTheWait) {
  EXPECT_EQ("", Ask(":TRIG:TYPE SINGle;:INIT;*OPC?"));
  scpi::Session other(instrument_);
  Ask(other, ":ABOR");
  session_.Run();
  EXPECT_EQ("1", Answered(session_));
}

TEST_F(Trigger, AResetEndsTheRun) {
  Tell(":INIT;*RST");
  EXPECT_EQ("1", Ask("*OPC?"));
  EXPECT_EQ(kIdle, Condition());
}

TEST_F(Trigger, ClearForgetsTheOperationCompleteAskedFor) {
  Tell(":INIT;*OPC;*CLS");
  Pass(10s);
  EXPECT_EQ("0", Ask("*ESR?"));
}

TEST_F(Trigger, EventsTellOfARunThatIsOver) {
  Tell(":STAT:OPER:PTR 0;NTR 8;ENAB 8");
  Tell(":INIT");
  EXPECT_EQ("0", Ask("*STB?"));
  Pass(5s);
  EXPECT_EQ("128", Ask("*STB?"));
  EXPECT_EQ("8", Ask(":STAT:OPER?"));
  EXPECT_EQ("0", Ask("*STB?"));
}

}  // namespace
}  // namespace siggen
