#include "bench.h"

namespace siggen {
namespace {

using Modulation = Bench;

TEST_F(Modulation, SettingsOfAmAreKept) {
  Tell(":AM:STAT 1;:AM:DEPT 55;SENS 20;LOGD 6;LOGS 4;TYPE LOGarithmic;SOUR EXTernal;WAVE GAUSsian");
  Tell(":AM:FREQ 2.5e3 HZ");
  EXPECT_EQ("1;55;20;6;4;LOG;EXT;GAUS;2500", Ask(":AM:STAT?;:AM:DEPT?;SENS?;LOGD?;LOGS?;TYPE?;SOUR?;WAVE?;FREQ?"));
  ExpectRefused(":AM:DEPT 101", -222);
  ExpectRefused(":AM:WAVE SAW", -224);
  EXPECT_EQ("55;GAUS", Ask(":AM:DEPT?;WAVE?"));
}

TEST_F(Modulation, SettingsOfFmAreKept) {
  Tell(":FM:STAT ON;:FM:DEV 25 KHZ;SENS 5e3;FREQ 400;MODE UNLocked;HFIL HP63;SOUR INT;WAVE RUP");
  EXPECT_EQ("1;25000;5000;400;UNL;HP63;INT;RUP", Ask(":FM:STAT?;DEV?;SENS?;FREQ?;MODE?;HFIL?;SOUR?;WAVE?"));
  ExpectRefused(":FM:DEV 11e6", -222);
}

TEST_F(Modulation, SettingsOfPmAreKept) {
  Tell(":PM:STAT 1;:PM:DEV 2.5;SENS 0.5;FREQ 50;BWID MAXimum;WAVE UNIForm");
  EXPECT_EQ("1;2.5;0.5;50;MAX;UNIF", Ask(":PM:STAT?;DEV?;SENS?;FREQ?;BWID?;WAVE?"));
  Tell(":PM:BWID MINimum;DEV 180 DEG");
  EXPECT_EQ("MIN;3.14159265358979", Ask(":PM:BWID?;DEV?"));
}

TEST_F(Modulation, EveryWaveformHasItsShortWord) {
  for (const auto& [sent, answered] : {std::pair{"SINE", "SINE"},
                                       {"GAUSsian", "GAUS"},
                                       {"RDOWn", "RDOW"},
                                       {"RUP", "RUP"},
                                       {"SQUare", "SQU"},
                                       {"TRIangle", "TRI"},
                                       {"UNIForm", "UNIF"}}) {
    Tell(std::string(":FM:WAVE ") + sent);
    EXPECT_EQ(answered, Ask(":FM:WAVE?"));
  }
}

TEST_F(Modulation, MeasuredIsWhatIsAppliedAndNotWhatIsSet) {
  Tell(":AM:DEPT 40;:FM:DEV 5e3;:PM:DEV 2");
  EXPECT_EQ("0;0;0", Ask(":MEAS:AM:DEPT?;:MEAS:FM:DEV?;:MEAS:PM:DEV?"));
  Tell(":AM:STAT 1;:FM:STAT 1;:PM:STAT 1");
  EXPECT_EQ("40;5000;2", Ask(":MEAS:AM:DEPT?;:MEAS:FM:DEV?;:MEAS:PM:DEV?"));
  Tell(":AM:TYPE LOG;LOGD 20");
  EXPECT_EQ("90", Ask(":MEAS:AM:DEPT?"));
  Tell(":AM:SOUR EXT");
  EXPECT_EQ("0", Ask(":MEAS:AM:DEPT?")) << "nothing is connected to the external input";
}

TEST_F(Modulation, WhatCannotBeMetShowsAsErrorAndAsQuestionable) {
  EXPECT_EQ("0;0;0", Ask(":AM:ERR?;:FM:ERR?;:PM:ERR?"));
  Tell(":POW 18;:AM:DEPT 80;STAT 1");
  EXPECT_EQ("1;128", Ask(":AM:ERR?;:STAT:QUES:COND?"));
  Tell(":POW 0");
  EXPECT_EQ("0;0", Ask(":AM:ERR?;:STAT:QUES:COND?"));
  Tell(":FM:STAT 1;:PM:STAT 1");
  EXPECT_EQ("1;1", Ask(":FM:ERR?;:PM:ERR?"));
}

TEST_F(Modulation, PulseSettingsAreKept) {
  Tell(":PULM:STAT 1;SOUR EXT;POL INVerted");
  EXPECT_EQ("1;EXT;INV", Ask(":PULM:STAT?;SOUR?;POL?"));
  Tell(":PULS:COUN 3;WIDT1 1e-6;WIDT2 2 US;WIDT3 3e-6;WIDT4 4e-6;DEL1 5e-6;DEL2 6e-6;DEL3 7e-6;DEL4 8e-6");
  EXPECT_EQ("3;1e-06;2e-06;3e-06;4e-06;5e-06;6e-06;7e-06;8e-06",
            Ask(":PULS:COUN?;WIDT1?;WIDT2?;WIDT3?;WIDT4?;DEL1?;DEL2?;DEL3?;DEL4?"));
  ExpectRefused(":PULS:COUN 5", -222);
  ExpectRefused(":PULS:WIDT5 1e-6", -114);
}

TEST_F(Modulation, PulseFrequencyAndPeriodAreOneSetting) {
  Tell(":PULM:FREQ 2000");
  EXPECT_EQ("0.0005", Ask(":PULS:PER?"));
  Tell(":PULS:PER 0.01");
  EXPECT_EQ("100", Ask(":PULM:FREQ?"));
}

TEST_F(Modulation, ATrainThatDoesNotFitItsPeriodIsAnError) {
  Tell(":PULM:STAT 1;:PULS:PER 1e-3;WIDT1 0.9e-3");
  EXPECT_EQ("0", Ask(":PULM:ERR?"));
  Tell(":PULS:COUN 2");
  EXPECT_EQ("0", Ask(":PULM:ERR?"));
  Tell(":PULS:WIDT2 0.2e-3");
  EXPECT_EQ("1", Ask(":PULM:ERR?"));
}

TEST_F(Modulation, PulseTriggerHasItsOwnSequence) {
  for (const auto& [sent, answered] : {std::pair{"FREerun", "FRE"},
                                       {"GATed", "GAT"},
                                       {"DELayed", "DEL"},
                                       {"TRIGgered", "TRIG"},
                                       {"TRGDelay", "TRGD"},
                                       {"COMPosite", "COMP"}}) {
    Tell(std::string(":TRIG:SEQ3:TYPE ") + sent);
    EXPECT_EQ(answered, Ask(":TRIG:SEQ3:TYPE?"));
  }
  EXPECT_EQ("AUTO", Ask(":TRIG:TYPE?"));
  Tell(":TRIG:SEQ3:SLOP NEGative");
  EXPECT_EQ("NEG", Ask(":TRIG:SEQ3:SLOP?"));
  ExpectRefused(":TRIG:SEQ2:SLOP NEG", -114);
}

TEST_F(Modulation, TimesAreTakenAndAnsweredInTheUnitInForce) {
  Tell(":UNIT:TIME US;:PULS:WIDT1 25");
  EXPECT_EQ("25", Ask(":PULS:WIDT1?"));
  Tell(":UNIT:TIME S");
  EXPECT_EQ("2.5e-05", Ask(":PULS:WIDT1?"));
}

}  // namespace
}  // namespace siggen
