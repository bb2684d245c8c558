#include "bench.h"

namespace siggen {
namespace {

using Power = Bench;

TEST_F(Power, IsRefusedOutsideItsRangeAndStays) {
  Tell(":POW 20");
  ExpectRefused(":POW 20.5", -222);
  ExpectRefused(":POW -120.01", -222);
  EXPECT_EQ("20", Ask(":POW?"));
  EXPECT_EQ("-120;20", Ask(":POW? MIN;:POW? MAX"));
}

TEST_F(Power, IsTakenAndAnsweredInTheUnitInForce) {
  Tell(":UNIT:POW DBUV;:POW 107");
  EXPECT_EQ("107", Ask(":POW?"));
  Tell(":UNIT:POW DBM");
  EXPECT_NEAR(0.0103, std::stod(Ask(":POW?")), 1e-4);
  Tell(":POW 223.60679774997896 MV");
  EXPECT_NEAR(0.0, std::stod(Ask(":POW?")), 1e-9);
  Tell(":UNIT:POW V");
  EXPECT_NEAR(0.2236068, std::stod(Ask(":POW?")), 1e-7);
  ExpectRefused(":POW 0", -222);
  ExpectRefused(":POW 5 W", -131);
}

TEST_F(Power, StepsUpAndDown) {
  Tell(":POW -10;:POW:STEP 2.5");
  Tell(":POW UP");
  EXPECT_EQ("-7.5", Ask(":POW?"));
  Tell(":POW DOWN");
  EXPECT_EQ("-10", Ask(":POW?"));
}

TEST_F(Power, ModeKnowsTheSecondSweepOnly) {
  Tell(":POW:MODE SWEep2");
  EXPECT_EQ("SWE2", Ask(":POW:MODE?"));
  ExpectRefused(":POW:MODE SWEep1", -224);
  Tell(":POW:MODE LIST10");
  EXPECT_EQ("LIST10", Ask(":POW:MODE?"));
  Tell(":POW:MODE FIXed");
  EXPECT_EQ("FIX", Ask(":POW:MODE?"));
}

TEST_F(Power, TenPresetsAreKeptAndRecalled) {
  Tell(":POW:L0 -1;L7 -8.5");
  EXPECT_EQ("-1;-8.5", Ask(":POW:L0?;L7?"));
  Tell(":POW:SEL L7");
  EXPECT_EQ("L7;-8.5", Ask(":POW:SEL?;:POW?"));
}

TEST_F(Power, TheDisplayOffsetShiftsWhatIsShownAndNotWhatComesOut) {
  Tell(":POW -10;:POW:DISP:OFFS 30");
  EXPECT_EQ("-10", Ask(":POW?"));
  Tell(":POW:DISP:OFFS:STAT 1");
  EXPECT_EQ("20;50", Ask(":POW?;:POW? MAX"));
  Tell(":POW 25");
  Tell(":POW:DISP:OFFS:STAT 0");
  EXPECT_EQ("-5", Ask(":POW?"));
}

TEST_F(Power, TheLimitHoldsTheLevelDown) {
  Tell(":POW 10;:POW:LIM 5");
  EXPECT_EQ("10;0", Ask(":POW?;:POW:LIM:STAT?"));
  Tell(":POW:LIM:STAT ON");
  EXPECT_EQ("5;5", Ask(":POW?;:POW? MAX"));
  ExpectRefused(":POW 6", -222);
  Tell(":POW:LIM -30");
  EXPECT_EQ("-30", Ask(":POW?"));
}

TEST_F(Power, TheAttenuatorFollowsTheLevelUntilItIsSetByHand) {
  Tell(":POW -35");
  EXPECT_EQ("1;40", Ask(":POW:ATT:AUTO?;:POW:ATT?"));
  Tell(":POW:ATT 15.5");
  EXPECT_EQ("0;15.5", Ask(":POW:ATT:AUTO?;:POW:ATT?"));
  Tell(":POW:ATT:AUTO ON");
  EXPECT_EQ("40", Ask(":POW:ATT?"));
  Tell(":POW:ATT:AUTO OFF");
  Tell(":POW 0");
  EXPECT_EQ("40", Ask(":POW:ATT?"));
}

TEST_F(Power, LevelingSourcesAreAnsweredShortAndWithoutTheirNumber) {
  for (const auto& [sent, answered] :
       {std::pair{"INTernal", "INT"}, {"FIXed", "FIX"}, {"DIODe", "DIOD"}, {"DIOD1", "DIOD"}, {"PMETer1", "PMET"}}) {
    Tell(std::string(":POW:ALC:SOUR ") + sent);
    EXPECT_EQ(answered, Ask(":POW:ALC:SOUR?"));
  }
}

TEST_F(Power, RangeAndDacAreKept) {
  Tell(":POW:RANG LOW;DAC 1234");
  EXPECT_EQ("LOW;1234", Ask(":POW:RANG?;DAC?"));
  ExpectRefused(":POW:DAC 4096", -222);
}

TEST_F(Power, TheLowNoiseSearchSetsTheAttenuatorByHand) {
  Tell(":POW -10;:POW:ALC:SEAR:LNO");
  EXPECT_EQ("0;30", Ask(":POW:ATT:AUTO?;:POW:ATT?"));
}

TEST_F(Power, SweepRangeIsStartAndStopOrCenterAndSpan) {
  Tell(":POW:STAR -30;STOP -10");
  EXPECT_EQ("-20;20", Ask(":POW:CENT?;SPAN?"));
  Tell(":POW:CENT 0;SPAN 10");
  EXPECT_EQ("-5;5", Ask(":POW:STAR?;STOP?"));
  Tell(":POW:SPAN:FULL");
  EXPECT_EQ("-120;20", Ask(":POW:STAR?;STOP?"));
}

TEST_F(Power, ATrippedProtectionSwitchesOffUntilItIsCleared) {
  Tell(":OUTP ON");
  EXPECT_EQ("0", Ask(":POW:PROT:TRIP?"));
  instrument_.generator().TripProtection();
  EXPECT_EQ("1;0", Ask(":POW:PROT:TRIP?;:OUTP?"));
  ExpectRefused(":OUTP ON", -221);
  Tell(":POW:PROT:CLE");
  Tell(":OUTP ON");
  EXPECT_EQ("0;1", Ask(":POW:PROT:TRIP?;:OUTP?"));
}

}  // namespace
}  // namespace siggen
