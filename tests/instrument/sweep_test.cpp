#include "bench.h"

namespace siggen {
namespace {

using namespace std::chrono_literals;

class Sweep : public Bench {
 protected:
  double Frequency() { return std::stod(Ask(":MEAS:FREQ?")); }
  double Power() { return std::stod(Ask(":MEAS:POW?")); }
};

TEST_F(Sweep, SettingsAreTakenAsTheirUsersWriteThem) {
  Tell(":SWE:SPAC LOGarithmic");
  Tell(":SWE1:GEN STEPped");
  Tell(":SWE1:DIR DOWN");
  Tell(":SWE1:POIN 11");
  Tell(":SWE1:DWEL 0.1 ");
  Tell(":SWE1:TIME:LLIM 0.5 ");
  EXPECT_EQ("LOG;STEP;DOWN;11;0.1;0.5", Ask(":SWE:SPAC?;GEN?;DIR?;POIN?;DWEL?;TIME:LLIM?"));
  Tell(":SWE2:POIN 5;DIR DOWN;DWEL 0.2;TIME:LLIM 0.1");
  EXPECT_EQ("5;DOWN;0.2;0.1", Ask(":SWE2:POIN?;DIR?;DWEL?;TIME:LLIM?"));
  ExpectNoError();
}

TEST_F(Sweep, TheTwoSweepsAreSeparate) {
  Tell(":SWE1:POIN 11;:SWE2:POIN 21");
  EXPECT_EQ("11;21;11", Ask(":SWE1:POIN?;:SWE2:POIN?;:SWE:POIN?"));
  ExpectRefused(":SWE2:GEN STEP", -113);
  ExpectRefused(":SWE3:POIN 5", -114);
}

TEST_F(Sweep, StepAndPointsAreTwoViewsOfOneThing) {
  Tell(":FREQ:STAR 1e9;STOP 2e9;:SWE:STEP 1e8 HZ");
  EXPECT_EQ("100000000;11", Ask(":SWE:STEP?;POIN?"));
  Tell(":SWE:POIN 5");
  EXPECT_EQ("250000000", Ask(":SWE:STEP?"));
  Tell(":POW:STAR -10;STOP 0;:SWE2:POW:STEP 2");
  EXPECT_EQ("2;6", Ask(":SWE2:POW:STEP?;:SWE2:POIN?"));
}

TEST_F(Sweep, TimeAndDwellFollowEachOther) {
  Tell(":SWE1:GEN STEP;POIN 11;DWEL 0.1");
  EXPECT_EQ("1.1;1;0", Ask(":SWE1:TIME?;TIME:AUTO?;:SWE1:DWEL:AUTO?"));
  Tell(":SWE1:TIME 2.2");
  EXPECT_EQ("0.2;2.2;0;1", Ask(":SWE1:DWEL?;TIME?;TIME:AUTO?;:SWE1:DWEL:AUTO?"));
  Tell(":SWE1:DWEL:AUTO OFF");
  EXPECT_EQ("0.2;0", Ask(":SWE1:DWEL?;DWEL:AUTO?"));
  Tell(":SWE1:TIME:LLIM 5");
  ExpectRefused(":SWE1:TIME 4", -222);
}

TEST_F(Sweep, RangesComeFromThePresets) {
  Tell(":FREQ:F1 1e9;F2 2e9;F5 5e9;DELT 1e8");
  Tell(":SWE1:RANG F1F2");
  EXPECT_EQ("1000000000;2000000000", Ask(":FREQ:STAR?;STOP?"));
  Tell(":SWE1:RANG F5DF");
  EXPECT_EQ("4950000000;5050000000", Ask(":FREQ:STAR?;STOP?"));
  Tell(":FREQ:F6 10 KHZ");
  ExpectRefused(":SWE1:RANG F6DF", -221);
  EXPECT_EQ("4950000000", Ask(":FREQ:STAR?"));
  Tell(":POW:L9 -9;L0 -1;:SWE2:RANG L9L0");
  EXPECT_EQ("-9;-1", Ask(":POW:STAR?;STOP?"));
  ExpectRefused(":SWE1:RANG?", -113);
}

TEST_F(Sweep, ASteppedSweepStaysOnEachPointForItsDwell) {
  Tell(":FREQ:STAR 1e9;STOP 2e9;:SWE1:GEN STEP;POIN 11;DWEL 0.1");
  Tell(":INIT:CONT OFF;:FREQ:MODE SWE");
  EXPECT_EQ(1e9, Frequency());
  Tell(":INIT");
  Pass(99ms);
  EXPECT_EQ(1e9, Frequency());
  Pass(2ms);
  EXPECT_EQ(1.1e9, Frequency());
  Pass(300ms);
  EXPECT_EQ(1.4e9, Frequency());
  EXPECT_EQ("8", Ask(":STAT:OPER:COND?"));
  Pass(10s);
  EXPECT_EQ(2e9, Frequency());
  EXPECT_EQ("0", Ask(":STAT:OPER:COND?"));
}

TEST_F(Sweep, AStepThatDoesNotDivideTheSpanStopsShortOfTheEnd) {
  Tell(":FREQ:STAR 1e9;STOP 2e9;:SWE1:GEN STEP;:SWE:STEP 3e8;:SWE1:DWEL 0.1");
  Tell(":INIT:CONT OFF;:FREQ:MODE SWE;:INIT");
  Pass(150ms);
  EXPECT_EQ(1.3e9, Frequency());
  Pass(10s);
  EXPECT_EQ(1.9e9, Frequency());
}

TEST_F(Sweep, LogarithmicSpacingKeepsTheRatio) {
  Tell(":FREQ:STAR 1e6;STOP 1e9;:SWE:SPAC LOG;:SWE1:GEN STEP;POIN 4;DWEL 1");
  Tell(":INIT:CONT OFF;:FREQ:MODE SWE;:INIT");
  Pass(1500ms);
  EXPECT_NEAR(1e7, Frequency(), 1.0);
  Pass(1s);
  EXPECT_NEAR(1e8, Frequency(), 1.0);
}

TEST_F(Sweep, DownBeginsAtTheStop) {
  Tell(":POW:STAR -20;STOP -10;:SWE2:POIN 11;DWEL 0.1;DIR DOWN");
  Tell(":INIT:CONT OFF;:POW:MODE SWE2;:INIT");
  EXPECT_EQ(-10, Power());
  Pass(250ms);
  EXPECT_EQ(-12, Power());
}

TEST_F(Sweep, AnAnalogSweepMovesAllTheTime) {
  Tell(":FREQ:STAR 1e9;STOP 2e9;:SWE1:GEN ANAL;TIME 10");
  Tell(":INIT:CONT OFF;:FREQ:MODE SWE;:INIT");
  Pass(2500ms);
  EXPECT_NEAR(1.25e9, Frequency(), 1.0);
  Pass(1ms);
  EXPECT_NEAR(1.2501e9, Frequency(), 1.0);
}

TEST_F(Sweep, PowerAndFrequencySweepTogether) {
  Tell(":FREQ:STAR 1e9;STOP 2e9;:SWE1:GEN STEP;POIN 11;DWEL 0.1;:POW:STAR -20;STOP 0");
  Tell(":INIT:CONT OFF;:FREQ:MODE SWE;:POW:MODE SWE2;:INIT");
  Pass(550ms);
  EXPECT_EQ(1.5e9, Frequency());
  EXPECT_EQ(-10, Power());
}

TEST_F(Sweep, AutoAndImmediateRunRoundAndRound) {
  Tell(":FREQ:STAR 1e9;STOP 2e9;:SWE1:GEN STEP;POIN 11;DWEL 0.1;:FREQ:MODE SWE");
  Pass(250ms);
  EXPECT_EQ(1.2e9, Frequency());
  Pass(1100ms * 1000);
  EXPECT_EQ(1.2e9, Frequency());
  EXPECT_EQ("1", Ask("*OPC?")) << "a run without end keeps nobody waiting";
  Tell(":INIT:CONT OFF");
  Pass(2s);
  EXPECT_EQ(2e9, Frequency()) << "the run under way goes to its end";
  Pass(5s);
  EXPECT_EQ(2e9, Frequency());
}

TEST_F(Sweep, TheCarrierKeepsToThePowerLimit) {
  Tell(":POW:STAR -20;STOP 20;:SWE2:POIN 11;DIR DOWN;:POW:MODE SWE2;:TRIG:TYPE INAC;:POW:LIM 3;LIM:STAT 1");
  EXPECT_EQ(3, Power());
}

}  // namespace
}  // namespace siggen
