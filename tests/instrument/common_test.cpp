#include "bench.h"

namespace siggen {
namespace {

using Common = Bench;

TEST_F(Common, IdentityHasFourFields) { EXPECT_EQ("Kelvora,TD48142C,481000001,1.4.2", Ask("*IDN?")); }

TEST_F(Common, ResetPutsTheSettingsBackAndLeavesStatusAlone) {
  Tell(":FREQ 2e9;:POW 3;:OUTP ON;:FREQ:MODE LIST2;:UNIT:POW V;*ESE 60");
  Tell(":FOO");
  Tell("*RST");
  EXPECT_EQ("1000000000;-20;0;FIX;DBM;60", Ask(":FREQ?;:POW?;:OUTP?;:FREQ:MODE?;:UNIT:POW?;*ESE?"));
  EXPECT_EQ("-113,\"Undefined header;:FOO\"", Ask(":SYST:ERR?"));
}

TEST_F(Common, SystemPresetPutsTheSettingsBack) {
  Tell(":FREQ 2e9");
  Tell(":SYST:PRES");
  EXPECT_EQ("1000000000", Ask(":FREQ?"));
}

TEST_F(Common, OperationCompleteIsAnsweredAndNoted) {
  Ask("*ESR?");
  EXPECT_EQ("1", Ask("*OPC?"));
  Tell("*OPC");
  EXPECT_EQ("1", Ask("*ESR?"));
  Tell("*WAI");
  ExpectNoError();
}

TEST_F(Common, SavedSettingsComeBack) {
  Tell(":FREQ 2e9;:POW -3;*SAV 4");
  Tell(":FREQ 5e9;:POW 0");
  Tell("*RCL 4");
  EXPECT_EQ("2000000000;-3", Ask(":FREQ?;:POW?"));
}

TEST_F(Common, RecallingWhatWasNeverSavedChangesNothing) {
  Tell(":FREQ 2e9");
  ExpectRefused("*RCL 3", -314);
  ExpectRefused("*SAV 10", -222);
  EXPECT_EQ("2000000000", Ask(":FREQ?"));
}

TEST_F(Common, SelfTestPasses) { EXPECT_EQ("0", Ask("*TST?")); }

TEST_F(Common, OptionsAndVersionAreTold) {
  EXPECT_EQ("FM,PULSE,GPS", Ask("*OPT?"));
  EXPECT_EQ("1999.0", Ask(":SYST:VERS?"));
}

}  // namespace
}  // namespace siggen
