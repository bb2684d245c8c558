// The output level and what levels it: every attribute both ways, and the class's view of leveling.

#include <vector>

#include "AttributeCases.h"

namespace kvtd::test {
namespace {

constexpr auto kStored = Simulated::Stored;
constexpr auto kFixed = Simulated::Fixed;
constexpr auto kVisa = Simulated::VisaCall;

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem
#define READ(stem) &KVTD481X2C_Get##stem, nullptr

const std::vector<AttributeCase> kPowerAttributes = {
    {KVTD_ATTRIBUTE(POWER_LEVEL), 1250002, RealExports{}, ":POW?\n", "-1.35E+01\n", -13.5, -20.25, ":POW -20.25\n",
     kVisa},
    {KVTD_ATTRIBUTE(OUTPUT_ENABLED), 1250004, BooleanExports{}, ":OUTP?\n", "ON\n", 1, 1, ":OUTP 1\n", kVisa},
    {KVTD_ATTRIBUTE(POWER_MODE), 1150106, Int32Exports{BOTH(PowerMode)}, ":POW:MODE?\n", "LIST10\n", 11, 1,
     ":POW:MODE SWEep2\n"},
    {KVTD_ATTRIBUTE(POWER_STEP), 1150108, RealExports{BOTH(PowerStep)}, ":POW:STEP?\n", "0.5\n", 0.5, 0.25,
     ":POW:STEP 0.25\n"},
    {KVTD_ATTRIBUTE(SELECTED_POWER_PRESET_LEVEL), 1150107, Int32Exports{BOTH(SelectedPowerPresetLevel)}, ":POW:SEL?\n",
     "L8\n", 8, 6, ":POW:SEL L6\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L0), 1150114, RealExports{BOTH(PowerPresetL0)}, ":POW:L0?\n", "-10\n", -10, -1.0,
     ":POW:L0 -1\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L1), 1150115, RealExports{BOTH(PowerPresetL1)}, ":POW:L1?\n", "-11\n", -11, -1.1,
     ":POW:L1 -1.1\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L2), 1150116, RealExports{BOTH(PowerPresetL2)}, ":POW:L2?\n", "-12\n", -12, -1.2,
     ":POW:L2 -1.2\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L3), 1150117, RealExports{BOTH(PowerPresetL3)}, ":POW:L3?\n", "-13\n", -13, -1.3,
     ":POW:L3 -1.3\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L4), 1150118, RealExports{BOTH(PowerPresetL4)}, ":POW:L4?\n", "-14\n", -14, -1.4,
     ":POW:L4 -1.4\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L5), 1150119, RealExports{BOTH(PowerPresetL5)}, ":POW:L5?\n", "-15\n", -15, -1.5,
     ":POW:L5 -1.5\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L6), 1150120, RealExports{BOTH(PowerPresetL6)}, ":POW:L6?\n", "-16\n", -16, -1.6,
     ":POW:L6 -1.6\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L7), 1150121, RealExports{BOTH(PowerPresetL7)}, ":POW:L7?\n", "-17\n", -17, -1.7,
     ":POW:L7 -1.7\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L8), 1150122, RealExports{BOTH(PowerPresetL8)}, ":POW:L8?\n", "-18\n", -18, -1.8,
     ":POW:L8 -1.8\n"},
    {KVTD_ATTRIBUTE(POWER_PRESET_L9), 1150123, RealExports{BOTH(PowerPresetL9)}, ":POW:L9?\n", "-19\n", -19, -1.9,
     ":POW:L9 -1.9\n"},
    {KVTD_ATTRIBUTE(ALC_SOURCE_EX), 1150112, Int32Exports{BOTH(ALCSourceEx)}, ":POW:ALC:SOUR?\n", "DIOD1\n", 2, 3,
     ":POW:ALC:SOUR PMETer\n"},
    {KVTD_ATTRIBUTE(POWER_MANUAL_RANGE), 1150111, Int32Exports{BOTH(PowerManualRange)}, ":POW:RANG?\n", "LOW\n", 1, 1,
     ":POW:RANG LOW\n"},
    {KVTD_ATTRIBUTE(POWER_DAC_LEVEL), 1150101, Int32Exports{BOTH(PowerDACLevel)}, ":POW:DAC?\n", "4095\n", 4095, -7,
     ":POW:DAC -7\n"},
    {KVTD_ATTRIBUTE(POWER_ATTENUATION), 1150110, RealExports{BOTH(PowerAttenuation)}, ":POW:ATT?\n", "40\n", 40, 20.0,
     ":POW:ATT 20\n"},
    {KVTD_ATTRIBUTE(POWER_STEP_ATTENUATOR_ENABLED), 1150113, BooleanExports{BOTH(PowerStepAttenuatorEnabled)},
     ":POW:ATT:AUTO?\n", "0\n", 0, 0, ":POW:ATT:AUTO 0\n", kStored, VI_TRUE},
    {KVTD_ATTRIBUTE(POWER_DISPLAY_OFFSET), 1150102, RealExports{BOTH(PowerDisplayOffset)}, ":POW:DISP:OFFS?\n", "3\n",
     3, -3.5, ":POW:DISP:OFFS -3.5\n"},
    {KVTD_ATTRIBUTE(POWER_DISPLAY_OFFSET_ENABLED), 1150103, BooleanExports{BOTH(PowerDisplayOffsetEnabled)},
     ":POW:DISP:OFFS:STAT?\n", "OFF\n", 0, 0, ":POW:DISP:OFFS:STAT 0\n", kStored, VI_TRUE},
    {KVTD_ATTRIBUTE(POWER_LIMIT), 1150178, RealExports{BOTH(PowerLimit)}, ":POW:LIM?\n", "20\n", 20, 15.0,
     ":POW:LIM 15\n"},
    {KVTD_ATTRIBUTE(POWER_LIMIT_ENABLED), 1150105, BooleanExports{BOTH(PowerLimitEnabled)}, ":POW:LIM:STAT?\n", "1\n",
     1, 0, ":POW:LIM:STAT 0\n", kStored, VI_TRUE},
    {KVTD_ATTRIBUTE(POWER_PROTECTION_TRIPPED), 1150109, BooleanExports{READ(PowerProtectionTripped)},
     ":POW:PROT:TRIP?\n", "1\n", 1, 0, "", kFixed, VI_FALSE},
    {KVTD_ATTRIBUTE(RF_OUTPUT_BLANKING_ENABLED), 1150141, BooleanExports{BOTH(RfOutputBlankingEnabled)},
     ":OUTP:PROT?\n", "0\n", 0, 0, ":OUTP:PROT 0\n", kStored, VI_TRUE},
    {KVTD_ATTRIBUTE(RF_OUTPUT_IMPEDANCE), 1150143, RealExports{READ(RfOutputImpedance)}, ":OUTP:IMP?\n", "75\n", 75, 0,
     "", kFixed, 50.0},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(Power, kPowerAttributes);

namespace {

class PowerDialogue : public DriverDialogue {
 protected:
  // Scripts one reading of the leveling source.
  void SourceIs(const char* word) {
    Sent(":POW:ALC:SOUR?\n");
    Answer(std::string(word) + '\n');
  }
  ViStatus SetAlcEnabled(ViBoolean on) {
    return KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_ALC_ENABLED, on);
  }
  ViStatus SetAlcSource(ViInt32 source) {
    return KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_ALC_SOURCE, source);
  }
  ViStatus GetAlcSource(ViInt32* source) {
    return KVTD481X2C_GetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_ALC_SOURCE, source);
  }
};

class SimulatedPower : public SimulatedDriver {};

TEST_F(PowerDialogue, TheClassAttributesHaveTheirPublishedIds) {
  EXPECT_EQ(1250003U, KVTD481X2C_ATTR_ALC_ENABLED);
  EXPECT_EQ(1250301U, KVTD481X2C_ATTR_ALC_SOURCE);
  EXPECT_EQ(1250302U, KVTD481X2C_ATTR_ALC_BANDWIDTH);
}

TEST_F(PowerDialogue, TheOutputSwitchesOnAndOff) {
  Script(R"(
    > :OUTP 1
    > :OUTP 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureOutputEnabled(vi, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureOutputEnabled(vi, VI_FALSE));
}

TEST_F(PowerDialogue, ABooleanThatIsNeitherTrueNorFalseSendsNothing) {
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_ConfigureOutputEnabled(vi, 2));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '2' to an instrument command.", LastErrorText());
}

TEST_F(PowerDialogue, ABooleanWordThatNobodyKnowsLeavesMinusOneAsItFits) {
  Script(R"(
    > :OUTP?
    < MAYBE
  )");
  ViBoolean on = 77;
  EXPECT_STATUS(kUnexpectedResponse,
                KVTD481X2C_GetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_OUTPUT_ENABLED, &on));
  EXPECT_EQ(0xFFFF, on);
  EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (MAYBE) to a defined value.",
            LastErrorText());
}

TEST_F(PowerDialogue, LevelingIsOffWhenTheSourceIsFixedAndOnForEveryOther) {
  struct Reading {
    const char* word;
    ViBoolean on;
  };
  for (const auto& [word, on] :
       {Reading{"INT", VI_TRUE}, Reading{"FIX", VI_FALSE}, Reading{"DIOD", VI_TRUE}, Reading{"PMET", VI_TRUE}}) {
    SourceIs(word);
    ViBoolean value = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_ALC_ENABLED, &value));
    EXPECT_EQ(on, value) << word;
  }
}

TEST_F(PowerDialogue, LevelingOffMakesTheSourceFixedWithoutReadingIt) {
  Script("> :POW:ALC:SOUR FIXed");
  EXPECT_STATUS(VI_SUCCESS, SetAlcEnabled(VI_FALSE));
}

TEST_F(PowerDialogue, LevelingOnWithTheSourceFixedMakesItInternal) {
  SourceIs("FIX");
  Script("> :POW:ALC:SOUR INTernal");
  EXPECT_STATUS(VI_SUCCESS, SetAlcEnabled(VI_TRUE));
}

TEST_F(PowerDialogue, LevelingOnLeavesASourceThatLevelsAlready) {
  for (const char* word : {"INT", "DIOD", "PMET"}) {
    SourceIs(word);
    EXPECT_STATUS(VI_SUCCESS, SetAlcEnabled(VI_TRUE));
  }
}

TEST_F(PowerDialogue, LevelingOnTwiceWritesOnce) {
  SourceIs("FIX");
  Script("> :POW:ALC:SOUR INTernal");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureALCEnabled(vi, VI_TRUE));
  SourceIs("INT");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureALCEnabled(vi, VI_TRUE));
}

TEST_F(PowerDialogue, LevelingOnStopsWhenTheSourceCannotBeRead) {
  SourceIs("SUN");
  EXPECT_STATUS(kUnexpectedResponse, SetAlcEnabled(VI_TRUE));
}

TEST_F(PowerDialogue, LevelingOnAsksForTheStatusBehindTheReadAndBehindTheWrite) {
  QueryInstrumentStatus(true);
  SourceIs("FIX");
  Script(R"(
    > *ESR?
    < 0
    > :POW:ALC:SOUR INTernal
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, SetAlcEnabled(VI_TRUE));
}

TEST_F(PowerDialogue, ARefusedReadOfTheSourceStopsBeforeTheWrite) {
  QueryInstrumentStatus(true);
  SourceIs("FIX");
  Script(R"(
    > *ESR?
    < 32
  )");
  EXPECT_STATUS(kInstrumentError, SetAlcEnabled(VI_TRUE));
}

TEST_F(PowerDialogue, TheClassSourceExternalIsTheInstrumentsDetector) {
  Script(R"(
    > :POW:ALC:SOUR INTernal
    > :POW:ALC:SOUR DIODe
  )");
  EXPECT_STATUS(VI_SUCCESS, SetAlcSource(0));
  EXPECT_STATUS(VI_SUCCESS, SetAlcSource(1));
  ViInt32 source = 77;
  SourceIs("DIODe1");
  EXPECT_STATUS(VI_SUCCESS, GetAlcSource(&source));
  EXPECT_EQ(1, source);
  SourceIs("INT");
  EXPECT_STATUS(VI_SUCCESS, GetAlcSource(&source));
  EXPECT_EQ(0, source);
}

TEST_F(PowerDialogue, AnotherClassSourceIsRefusedByItsName) {
  EXPECT_STATUS(kValueNotSupported, SetAlcSource(2));
  EXPECT_EQ(
      "Does not support this class-compliant feature:  Enumeration value '2' passed as the value for parameter "
      "'AttributeValue' in function 'ALC_SOURCE'.",
      LastErrorText());
  EXPECT_STATUS(kValueNotSupported, SetAlcSource(-1));
  EXPECT_EQ(
      "Does not support this class-compliant feature:  Enumeration value '-1' passed as the value for parameter "
      "'AttributeValue' in function 'ALC_SOURCE'.",
      LastErrorText());
}

TEST_F(PowerDialogue, ASourceWithoutAClassValueLeavesTheVariableAlone) {
  for (const char* word : {"FIX", "PMET"}) {
    SourceIs(word);
    ViInt32 source = 77;
    EXPECT_STATUS(kUnexpectedResponse, GetAlcSource(&source));
    EXPECT_EQ(77, source);
    EXPECT_EQ((RecordedError{kUnexpectedResponse, "Unexpected response from instrument."}), LastError());
  }
}

TEST_F(PowerDialogue, TheBandwidthIsNotSupportedInEitherDirection) {
  const RecordedError refused{kAttributeNotSupported,
                              "Does not support this class-compliant feature: attribute 'ALC_BANDWIDTH'."};
  ViReal64 bandwidth = 77;
  EXPECT_STATUS(kAttributeNotSupported,
                KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_ALC_BANDWIDTH, &bandwidth));
  EXPECT_EQ(refused, LastError());
  EXPECT_EQ(77, bandwidth);
  EXPECT_STATUS(kAttributeNotSupported,
                KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_ALC_BANDWIDTH, 1e3));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_ALC_BANDWIDTH, nullptr));
}

TEST_F(PowerDialogue, ConfigureAlcSetsTheSourceAndThenFailsAtTheBandwidth) {
  Script("> :POW:ALC:SOUR INTernal");
  EXPECT_STATUS(kAttributeNotSupported, KVTD481X2C_ConfigureALC(vi, 0, 1e3));
}

TEST_F(PowerDialogue, ConfigureAlcWithABadSourceDoesNotReachTheBandwidth) {
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigureALC(vi, 5, 1e3));
  EXPECT_EQ(
      "Does not support this class-compliant feature:  Enumeration value '5' passed as the value for parameter "
      "'AttributeValue' in function 'ALC_SOURCE'.",
      LastErrorText());
}

TEST_F(PowerDialogue, SimpleActionsSendTheirCommand) {
  Script(R"(
    > :POW:PROT:CLE
    > :POW:ALC:SEAR:LNO
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ClearPowerProtection(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SearchLowNoiseFloor(vi));
}

TEST_F(PowerDialogue, SimpleActionsTellTheInstrumentsRefusal) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :POW:PROT:CLE
    > *ESR?
    < 0
    > :POW:ALC:SEAR:LNO
    > *ESR?
    < 8
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ClearPowerProtection(vi));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SearchLowNoiseFloor(vi));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(PowerDialogue, OperationsRefuseAHandleThatIsNotOpen) {
  for (const ViSession handle : {ViSession{0}, ViSession{0xDEADBEEF}}) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureOutputEnabled(handle, VI_TRUE));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureALCEnabled(handle, VI_TRUE));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureALC(handle, 0, 0));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ClearPowerProtection(handle));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SearchLowNoiseFloor(handle));
  }
}

TEST_F(SimulatedPower, LevelingFollowsTheStoredSource) {
  ViBoolean on = 77;
  ViInt32 source = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_ALC_ENABLED, &on));
  EXPECT_EQ(VI_TRUE, on);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureALCEnabled(vi, VI_FALSE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetALCSourceEx(vi, &source));
  EXPECT_EQ(KVTD481X2C_VAL_ALC_SOURCE_FIXED, source);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_ALC_ENABLED, &on));
  EXPECT_EQ(VI_FALSE, on);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_ALC_SOURCE, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetALCSourceEx(vi, &source));
  EXPECT_EQ(KVTD481X2C_VAL_ALC_SOURCE_DETECTOR, source);
}

TEST_F(SimulatedPower, TheBandwidthIsRefusedAsInARealSession) {
  EXPECT_STATUS(kAttributeNotSupported, KVTD481X2C_ConfigureALC(vi, 0, 1e3));
}

TEST_F(SimulatedPower, SimpleActionsSucceedWithoutSending) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ClearPowerProtection(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SearchLowNoiseFloor(vi));
}

TEST_F(SimulatedPower, TheOutputSwitchFailsAtTheVisaSessionThatIsNotThere) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureOutputEnabled(vi, VI_TRUE));
}

}  // namespace
}  // namespace kvtd::test
