// Pulse modulation and the pulse generator: the instrument's own attributes both ways, and the class's single pulse,
// double pulse, gating and trigger, which are mapped onto the first two slots of the train and the trigger type.

#include <initializer_list>
#include <limits>
#include <vector>

#include "AttributeCases.h"
#include "ClassAccess.h"

namespace kvtd::test {
namespace {

constexpr auto kStored = Simulated::Stored;
constexpr auto kFixed = Simulated::Fixed;
constexpr auto kVisa = Simulated::VisaCall;

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem
#define READ(stem) &KVTD481X2C_Get##stem, nullptr

const std::vector<AttributeCase> kPulseAttributes = {
    {KVTD_ATTRIBUTE(PULSE_COUNT), 1150084, Int32Exports{BOTH(PulseCount)}, ":PULS:COUN?\n", "4\n", 4, 3,
     ":PULS:COUN 3\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_ERROR), 1150086, Int32Exports{READ(PulseError)}, ":PULM:ERR?\n", "0\n", 0, 0, "", kFixed, 1},
    {KVTD_ATTRIBUTE(PULSE_INTERNAL_FREQUENCY), 1150087, RealExports{BOTH(PulseInternalFrequency)}, ":PULM:FREQ?\n",
     "1.0E+04\n", 1e4, 2500.0, ":PULM:FREQ 2500\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_INTERNAL_PERIOD), 1150088, RealExports{BOTH(PulseInternalPeriod)}, ":PULS:PER?\n", "0.5\n",
     0.5, 1e-5, ":PULS:PER 1e-05\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_MODULATION_TRIGGER_MODE), 1150090, Int32Exports{BOTH(PulseModulationTriggerMode)},
     ":TRIG:SEQ3:TYPE?\n", "TRGD\n", 4, 5, ":TRIG:SEQ3:TYPE COMPosite\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_MODULATION_SOURCE_EX), 1150092, Int32Exports{BOTH(PulseModulationSourceEx)}, ":PULM:SOUR?\n",
     "EXT\n", 1, 0, ":PULM:SOUR INTernal\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_DELAY1), 1150093, RealExports{BOTH(PulseDelay1)}, ":PULS:DEL1?\n", "0.125\n", 0.125, 1.5,
     ":PULS:DEL1 1.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_DELAY2), 1150094, RealExports{BOTH(PulseDelay2)}, ":PULS:DEL2?\n", "0.25\n", 0.25, 2.5,
     ":PULS:DEL2 2.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_DELAY3), 1150095, RealExports{BOTH(PulseDelay3)}, ":PULS:DEL3?\n", "0.375\n", 0.375, 3.5,
     ":PULS:DEL3 3.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_DELAY4), 1150096, RealExports{BOTH(PulseDelay4)}, ":PULS:DEL4?\n", "0.5\n", 0.5, 4.5,
     ":PULS:DEL4 4.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_WIDTH1), 1150097, RealExports{BOTH(PulseWidth1)}, ":PULS:WIDT1?\n", "1\n", 1, 5.5,
     ":PULS:WIDT1 5.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_WIDTH2), 1150098, RealExports{BOTH(PulseWidth2)}, ":PULS:WIDT2?\n", "2\n", 2, 6.5,
     ":PULS:WIDT2 6.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_WIDTH3), 1150099, RealExports{BOTH(PulseWidth3)}, ":PULS:WIDT3?\n", "3\n", 3, 7.5,
     ":PULS:WIDT3 7.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_WIDTH4), 1150100, RealExports{BOTH(PulseWidth4)}, ":PULS:WIDT4?\n", "4\n", 4, 8.5,
     ":PULS:WIDT4 8.5\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_MODULATION_ENABLED), 1250051, BooleanExports{}, ":PULM:STAT?\n", "on\n", 1, 1,
     ":PULM:STAT 1\n", kVisa},
    {KVTD_ATTRIBUTE(PULSE_MODULATION_EXTERNAL_POLARITY), 1250053, Int32Exports{}, ":PULM:POL?\n", "INV\n", 1, 0,
     ":PULM:POL NORMal\n", kVisa},
    {KVTD_ATTRIBUTE(PULSE_EXTERNAL_TRIGGER_SLOPE), 1250125, Int32Exports{}, ":TRIG:SEQ3:SLOP?\n", "NEG\n", 1, 0,
     ":TRIG:SEQ3:SLOP POSitive\n", kVisa},
    {KVTD_ATTRIBUTE(PULSE_OUTPUT_POLARITY), 1250141, Int32Exports{}, ":PULM:POL?\n", "NORM\n", 0, 1,
     ":PULM:POL INVerted\n", kVisa},
    // Two names for one setting: what passes through unchanged reads like the attribute behind it.
    {KVTD_ATTRIBUTE(PULSE_INTERNAL_TRIGGER_PERIOD), 1250121, RealExports{}, ":PULS:PER?\n", "0.75\n", 0.75, 2.0,
     ":PULS:PER 2\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_WIDTH), 1250122, RealExports{}, ":PULS:WIDT1?\n", "0.75\n", 0.75, 2.0, ":PULS:WIDT1 2\n",
     kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_EXTERNAL_TRIGGER_DELAY), 1250126, RealExports{}, ":PULS:DEL1?\n", "0.75\n", 0.75, 2.0,
     ":PULS:DEL1 2\n", kStored, 0},
    {KVTD_ATTRIBUTE(PULSE_DOUBLE_DELAY), 1250132, RealExports{}, ":PULS:WIDT2?\n", "0.75\n", 0.75, 2.0,
     ":PULS:WIDT2 2\n", kStored, 0},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(Pulse, kPulseAttributes);

namespace {

class PulseDialogue : public ClassAccess<DriverDialogue> {
 protected:
  ViBoolean DoublePulse() { return BooleanAttribute(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED); }

  void SwitchDoublePulseOn() {
    Script(R"(
      > :PULS:COUN 2
      > :PULS:WIDT1?
      < 1e-6
      > :PULS:WIDT2 1e-06
    )");
    EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, VI_TRUE));
  }
};
using SimulatedPulse = ClassAccess<SimulatedDriver>;

TEST_F(PulseDialogue, TheClassAttributesHaveTheirPublishedIds) {
  EXPECT_EQ(1250052U, KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE);
  EXPECT_EQ(1250123U, KVTD481X2C_ATTR_PULSE_GATING_ENABLED);
  EXPECT_EQ(1250124U, KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE);
  EXPECT_EQ(1250131U, KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED);
  EXPECT_EQ(1250142U, KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED);
}

TEST_F(PulseDialogue, TheDoublePulseBeginsSwitchedOff) { EXPECT_EQ(VI_FALSE, DoublePulse()); }

TEST_F(PulseDialogue, SwitchingTheDoublePulseOnCopiesTheFirstWidthToTheSecond) {
  SwitchDoublePulseOn();
  EXPECT_EQ(VI_TRUE, DoublePulse());
}

TEST_F(PulseDialogue, SwitchingTheDoublePulseOffSetsTheCountAndNothingElse) {
  SwitchDoublePulseOn();
  Script("> :PULS:COUN 1");
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, VI_FALSE));
  EXPECT_EQ(VI_FALSE, DoublePulse());
}

TEST_F(PulseDialogue, AnyValueButZeroSwitchesTheDoublePulseOn) {
  Script(R"(
    > :PULS:COUN 2
    > :PULS:WIDT1?
    < 3
    > :PULS:WIDT2 3
  )");
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, 0x8000));
  EXPECT_EQ(VI_TRUE, DoublePulse());
}

TEST_F(PulseDialogue, TheDoublePulseStaysOnWhenTheInstrumentRefusesTheCount) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :PULS:COUN 2
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, SetBoolean(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, VI_TRUE));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
  EXPECT_EQ(VI_TRUE, DoublePulse());
}

TEST_F(PulseDialogue, TheDoublePulseStaysOffWhenTheInstrumentRefusesTheCount) {
  SwitchDoublePulseOn();
  QueryInstrumentStatus(true);
  Script(R"(
    > :PULS:COUN 1
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, SetBoolean(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, VI_FALSE));
  EXPECT_EQ(VI_FALSE, DoublePulse());
}

TEST_F(PulseDialogue, AFirstWidthThatCannotBeReadIsNotCopied) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :PULS:COUN 2
    > *ESR?
    < 0
    > :PULS:WIDT1?
    < 3
    > *ESR?
    < 8
  )");
  EXPECT_STATUS(kInstrumentError, SetBoolean(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, VI_TRUE));
}

TEST_F(PulseDialogue, TheCountDoesNotChangeTheDoublePulse) {
  SwitchDoublePulseOn();
  Script(R"(
    > :PULS:COUN 1
    > *RST
    > *OPC?
    < 1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseCount(vi, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_EQ(VI_TRUE, DoublePulse());
}

TEST_F(PulseDialogue, WithTheDoublePulseOnTheFirstWidthGoesToTheSecondDelay) {
  SwitchDoublePulseOn();
  Script(R"(
    > :PULS:WIDT1 0.002
    > :PULS:DEL2 0.002
    > :PULS:WIDT1 0.003
    > :PULS:DEL2 0.003
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseWidth1(vi, 0.002));
  EXPECT_STATUS(VI_SUCCESS, SetReal(KVTD481X2C_ATTR_PULSE_WIDTH, 0.003));
}

TEST_F(PulseDialogue, ARefusedFirstWidthLeavesTheSecondDelayAlone) {
  SwitchDoublePulseOn();
  QueryInstrumentStatus(true);
  Script(R"(
    > :PULS:WIDT1 0.002
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetPulseWidth1(vi, 0.002));
}

TEST_F(PulseDialogue, ARefusedSecondDelayIsTheStatusOfTheFirstWidth) {
  SwitchDoublePulseOn();
  QueryInstrumentStatus(true);
  Script(R"(
    > :PULS:WIDT1 0.002
    > *ESR?
    < 0
    > :PULS:DEL2 0.002
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetPulseWidth1(vi, 0.002));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(PulseDialogue, ConfiguringTheDoublePulseOverwritesTheCopiedWidthByTheDelay) {
  Script(R"(
    > :PULS:COUN 2
    > :PULS:WIDT1?
    < 1e-6
    > :PULS:WIDT2 1e-06
    > :PULS:WIDT2 0.25
    > :PULS:COUN 1
    > :PULS:WIDT2 0.5
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseDouble(vi, VI_TRUE, 0.25));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseDouble(vi, VI_FALSE, 0.5));
}

TEST_F(PulseDialogue, ARefusedCountStopsTheDoublePulseBeforeItsDelay) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :PULS:COUN 1
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigurePulseDouble(vi, VI_FALSE, 0.5));
}

TEST_F(PulseDialogue, GatingIsOnWhenTheTriggerTypeIsGated) {
  struct Reading {
    const char* word;
    ViBoolean on;
  };
  for (const auto& [word, on] : {Reading{"FRE", VI_FALSE}, Reading{"GAT", VI_TRUE}, Reading{"DEL", VI_FALSE},
                                 Reading{"TRIG", VI_FALSE}, Reading{"TRGD", VI_FALSE}, Reading{"COMP", VI_FALSE}}) {
    Asked(":TRIG:SEQ3:TYPE?", word);
    EXPECT_EQ(on, BooleanAttribute(KVTD481X2C_ATTR_PULSE_GATING_ENABLED)) << word;
  }
}

TEST_F(PulseDialogue, GatingOnSetsTheTriggerTypeWhateverItWas) {
  Script(R"(
    > :TRIG:SEQ3:TYPE GATed
    > :TRIG:SEQ3:TYPE GATed
  )");
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_GATING_ENABLED, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_GATING_ENABLED, 2));
}

TEST_F(PulseDialogue, GatingOffLeavesEveryOtherTriggerTypeAlone) {
  for (const char* word : {"FRE", "DEL", "TRIG", "TRGD", "COMP"}) {
    Asked(":TRIG:SEQ3:TYPE?", word);
    EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_GATING_ENABLED, VI_FALSE)) << word;
  }
}

TEST_F(PulseDialogue, GatingOffWithoutADelayGoesBackToTriggered) {
  for (const char* delay : {"0.0", "-0.0", "-1e-6"}) {
    Asked(":TRIG:SEQ3:TYPE?", "GAT");
    Asked(":PULS:DEL1?", delay);
    Sent(":TRIG:SEQ3:TYPE TRIGgered\n");
    EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_GATING_ENABLED, VI_FALSE)) << delay;
  }
}

TEST_F(PulseDialogue, GatingOffWithADelayGoesBackToTriggerDelayed) {
  Asked(":TRIG:SEQ3:TYPE?", "GATed");
  Asked(":PULS:DEL1?", "1e-6");
  Sent(":TRIG:SEQ3:TYPE TRGDelay\n");
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_GATING_ENABLED, VI_FALSE));
}

TEST_F(PulseDialogue, GatingOffStopsAtTheFirstReadThatFails) {
  Asked(":TRIG:SEQ3:TYPE?", "MOON");
  EXPECT_STATUS(kUnexpectedResponse, SetBoolean(KVTD481X2C_ATTR_PULSE_GATING_ENABLED, VI_FALSE));
  QueryInstrumentStatus(true);
  Script(R"(
    > :TRIG:SEQ3:TYPE?
    < GAT
    > *ESR?
    < 0
    > :PULS:DEL1?
    < 0
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(kInstrumentError, SetBoolean(KVTD481X2C_ATTR_PULSE_GATING_ENABLED, VI_FALSE));
}

TEST_F(PulseDialogue, TheClassSourceIsTheInstrumentsAndIsSetWithoutAReadFirst) {
  Asked(":PULM:SOUR?", "INT");
  EXPECT_EQ(0, Int32(KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE));
  Asked(":PULM:SOUR?", "EXT");
  EXPECT_EQ(1, Int32(KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE));
  Script(R"(
    > :PULM:SOUR INTernal
    > :PULM:SOUR EXTernal
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseModulationSource(vi, 0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseModulationSource(vi, 1));
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigurePulseModulationSource(vi, 2));
  EXPECT_EQ((RecordedError{kValueNotSupported, ValueRefused("2", "PULSE_MODULATION_SOURCE")}), LastError());
}

TEST_F(PulseDialogue, TheTriggerSourceIsAlwaysExternalAndNeverSent) {
  EXPECT_EQ(1, Int32(KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE));
  EXPECT_STATUS(VI_SUCCESS, SetInt32(KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE, 1));
  EXPECT_STATUS(kValueNotSupported, SetInt32(KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE, 0));
  EXPECT_EQ(ValueRefused("KVTD481X2C_VAL_PULSE_TRIGGER_SOURCE_INTERNAL", "PULSE_TRIGGER_SOURCE"), LastErrorText());
  EXPECT_STATUS(kValueNotSupported, SetInt32(KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE, 3));
  EXPECT_EQ(ValueRefused("3", "PULSE_TRIGGER_SOURCE"), LastErrorText());
}

TEST_F(PulseDialogue, TheOutputIsAlwaysOnAndNothingElseIsAccepted) {
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED));
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED, VI_TRUE));
  for (const int off : {0, 2, 0xFFFF}) {
    EXPECT_STATUS(kValueNotSupported, SetBoolean(KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED, static_cast<ViBoolean>(off)));
    EXPECT_EQ((RecordedError{kValueNotSupported, ValueRefused("VI_FALSE", "PULSE_OUTPUT_ENABLED")}), LastError());
  }
}

TEST_F(PulseDialogue, ConfiguringThePulseSendsWidthAndGating) {
  Script(R"(
    > :PULS:WIDT1 0.001
    > :TRIG:SEQ3:TYPE GATed
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulse(vi, 1, 0.001, VI_TRUE));
}

TEST_F(PulseDialogue, ConfiguringThePulseWithAnInternalTriggerSendsNothing) {
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigurePulse(vi, 0, 0.001, VI_TRUE));
  EXPECT_EQ(ValueRefused("KVTD481X2C_VAL_PULSE_TRIGGER_SOURCE_INTERNAL", "PULSE_TRIGGER_SOURCE"), LastErrorText());
}

TEST_F(PulseDialogue, ARefusedWidthStopsThePulseBeforeItsGating) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :PULS:WIDT1 -1
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigurePulse(vi, 1, -1, VI_TRUE));
}

TEST_F(PulseDialogue, ConfiguringTheOutputSendsThePolarityBeforeItRefusesToSwitchOff) {
  Script(R"(
    > :PULM:POL INVerted
    > :PULM:POL NORMal
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseOutput(vi, 1, VI_TRUE));
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigurePulseOutput(vi, 0, VI_FALSE));
  EXPECT_EQ(ValueRefused("VI_FALSE", "PULSE_OUTPUT_ENABLED"), LastErrorText());
}

TEST_F(PulseDialogue, ABadPolarityIsToldBeforeTheOutput) {
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_ConfigurePulseOutput(vi, 2, VI_FALSE));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '2' to an instrument command.", LastErrorText());
}

TEST_F(PulseDialogue, TheOtherOperationsSendTheirSettingsInOrder) {
  Script(R"(
    > :TRIG:SEQ3:SLOP NEGative
    > :PULS:DEL1 2.5e-07
    > :PULS:PER 0.01
    > :PULM:STAT 1
    > :PULM:STAT 0
    > :PULM:POL INVerted
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseExternalTrigger(vi, 1, 2.5e-7));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseInternalTrigger(vi, 0.01));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseModulationEnabled(vi, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseModulationEnabled(vi, VI_FALSE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseModulationExternalPolarity(vi, 1));
}

TEST_F(PulseDialogue, ARefusedSlopeStopsTheTriggerBeforeItsDelay) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :TRIG:SEQ3:SLOP POSitive
    > *ESR?
    < 32
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigurePulseExternalTrigger(vi, 0, 1));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(PulseDialogue, ReadsIntoNothingAreRefusedBeforeAnythingIsAsked) {
  for (const ViAttr id :
       std::initializer_list<ViAttr>{KVTD481X2C_ATTR_PULSE_GATING_ENABLED, KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED,
                                     KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED}) {
    EXPECT_STATUS(kNullPointer, GetBoolean(id, nullptr));
    EXPECT_EQ(NullPointerError("KVTD481X2C_GetAttributeViBoolean", "AttributeValue"), LastError());
  }
  for (const ViAttr id :
       std::initializer_list<ViAttr>{KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE, KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE}) {
    EXPECT_STATUS(kNullPointer, GetInt32(id, nullptr));
    EXPECT_EQ(NullPointerError("KVTD481X2C_GetAttributeViInt32", "AttributeValue"), LastError());
  }
}

TEST_F(PulseDialogue, OperationsRefuseAHandleThatIsNotOpen) {
  ViBoolean on = 77;
  ViInt32 number = 77;
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePulse(handle, 1, 1, VI_TRUE));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePulseDouble(handle, VI_TRUE, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePulseExternalTrigger(handle, 0, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePulseInternalTrigger(handle, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePulseModulationEnabled(handle, VI_TRUE));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePulseModulationExternalPolarity(handle, 0));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePulseModulationSource(handle, 0));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePulseOutput(handle, 0, VI_TRUE));
    for (const ViAttr id :
         std::initializer_list<ViAttr>{KVTD481X2C_ATTR_PULSE_GATING_ENABLED, KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED,
                                       KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED}) {
      EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViBoolean(handle, nullptr, id, &on));
      EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViBoolean(handle, nullptr, id, VI_TRUE));
    }
    for (const ViAttr id :
         std::initializer_list<ViAttr>{KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE, KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE}) {
      EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViInt32(handle, nullptr, id, &number));
      EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViInt32(handle, nullptr, id, 1));
    }
  }
  EXPECT_EQ(77, on);
  EXPECT_EQ(77, number);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedPulse, TheDoublePulseStoresCountAndSecondWidth) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseWidth2(vi, 9));
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, VI_TRUE));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED));
  EXPECT_EQ(2, Int32(KVTD481X2C_ATTR_PULSE_COUNT));
  EXPECT_EQ(0.0, Real(KVTD481X2C_ATTR_PULSE_WIDTH2));
  EXPECT_EQ(0.0, Real(KVTD481X2C_ATTR_PULSE_DOUBLE_DELAY));
}

TEST_F(SimulatedPulse, TheFirstWidthIsNotCopiedToTheSecondDelay) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulseDouble(vi, VI_TRUE, 5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseWidth1(vi, 3));
  EXPECT_EQ(3, Real(KVTD481X2C_ATTR_PULSE_WIDTH));
  EXPECT_EQ(0.0, Real(KVTD481X2C_ATTR_PULSE_DELAY2));
  EXPECT_EQ(5, Real(KVTD481X2C_ATTR_PULSE_WIDTH2));
}

TEST_F(SimulatedPulse, AResetLeavesTheDoublePulse) {
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_PULSE_DOUBLE_ENABLED));
  EXPECT_EQ(0, Int32(KVTD481X2C_ATTR_PULSE_COUNT));
}

TEST_F(SimulatedPulse, EndedGatingGoesByTheStoredDelay) {
  struct Delay {
    ViReal64 value;
    ViInt32 mode;
  };
  const ViReal64 not_a_number = std::numeric_limits<ViReal64>::quiet_NaN();
  for (const auto& [value, mode] : {Delay{0.0, 3}, Delay{1e-6, 4}, Delay{-1, 3}, Delay{not_a_number, 3}}) {
    EXPECT_STATUS(VI_SUCCESS, SetReal(KVTD481X2C_ATTR_PULSE_EXTERNAL_TRIGGER_DELAY, value));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulse(vi, 1, 1, VI_TRUE));
    EXPECT_EQ(1, Int32(KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE));
    EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_PULSE_GATING_ENABLED));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePulse(vi, 1, 1, VI_FALSE));
    EXPECT_EQ(mode, Int32(KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE)) << value;
    EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_PULSE_GATING_ENABLED));
  }
}

TEST_F(SimulatedPulse, EndingAGatingThatIsNotThereLeavesFreeRunAlone) {
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(KVTD481X2C_ATTR_PULSE_GATING_ENABLED, VI_FALSE));
  EXPECT_EQ(0, Int32(KVTD481X2C_ATTR_PULSE_MODULATION_TRIGGER_MODE));
}

TEST_F(SimulatedPulse, ASourceWithoutAClassValueLeavesTheVariableAlone) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseModulationSourceEx(vi, 2));
  ViInt32 source = 77;
  EXPECT_STATUS(kUnexpectedResponse, GetInt32(KVTD481X2C_ATTR_PULSE_MODULATION_SOURCE, &source));
  EXPECT_EQ(77, source);
  EXPECT_EQ(kNoClassValue, LastError());
}

TEST_F(SimulatedPulse, TheConstantsReadAsInARealSession) {
  EXPECT_EQ(1, Int32(KVTD481X2C_ATTR_PULSE_TRIGGER_SOURCE));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED));
  EXPECT_STATUS(kValueNotSupported, SetBoolean(KVTD481X2C_ATTR_PULSE_OUTPUT_ENABLED, VI_FALSE));
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigurePulse(vi, 0, 1, VI_TRUE));
}

TEST_F(SimulatedPulse, WhatIsSentWithoutSimulationFailsAtTheVisaSessionThatIsNotThere) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigurePulseModulationEnabled(vi, VI_TRUE));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigurePulseModulationExternalPolarity(vi, 0));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigurePulseExternalTrigger(vi, 0, 1));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigurePulseOutput(vi, 0, VI_FALSE));
  EXPECT_EQ(kNothingRecorded, LastError());
}

}  // namespace
}  // namespace kvtd::test
