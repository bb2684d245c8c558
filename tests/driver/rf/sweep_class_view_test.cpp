// The class's view of the sweeps: one mode, one trigger source, three single-step switches and a scaling, each of them
// a translation of what the instrument holds. Both directions of both tables stand here whole.

#include <array>
#include <string>

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

constexpr ViAttr kSweepMode = 1250201;
constexpr ViAttr kTriggerSource = 1250202;
constexpr ViAttr kScaling = 1250243;
constexpr ViAttr kFrequencySingleStep = 1250245;
constexpr ViAttr kPowerSingleStep = 1250264;
constexpr ViAttr kListSingleStep = 1250282;
constexpr std::array kSingleSteps = {kFrequencySingleStep, kPowerSingleStep, kListSingleStep};

constexpr ViInt32 kUnset = 77;

ViInt32 ReadInt32(ViSession vi, ViAttr attribute) {
  ViInt32 value = kUnset;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViInt32(vi, nullptr, attribute, &value));
  return value;
}

ViStatus WriteInt32(ViSession vi, ViAttr attribute, ViInt32 value) {
  return KVTD481X2C_SetAttributeViInt32(vi, nullptr, attribute, value);
}

class ClassView : public DriverDialogue {
 protected:
  void Asks(const char* query, std::string word) {
    Sent(query);
    Answer(std::move(word) + '\n');
  }
  void StatusIs(const char* events) { Asks("*ESR?\n", events); }
  ViStatus SetBoolean(ViAttr attribute, ViBoolean value) {
    return KVTD481X2C_SetAttributeViBoolean(vi, nullptr, attribute, value);
  }
};

class SimulatedClassView : public SimulatedDriver {};

TEST_F(ClassView, TheAttributesHaveTheirPublishedIds) {
  EXPECT_EQ(kSweepMode, KVTD481X2C_ATTR_SWEEP_MODE);
  EXPECT_EQ(kTriggerSource, KVTD481X2C_ATTR_SWEEP_TRIGGER_SOURCE);
  EXPECT_EQ(kScaling, KVTD481X2C_ATTR_FREQUENCY_STEP_SCALING);
  EXPECT_EQ(kFrequencySingleStep, KVTD481X2C_ATTR_FREQUENCY_STEP_SINGLE_STEP_ENABLED);
  EXPECT_EQ(kPowerSingleStep, KVTD481X2C_ATTR_POWER_STEP_SINGLE_STEP_ENABLED);
  EXPECT_EQ(kListSingleStep, KVTD481X2C_ATTR_LIST_SINGLE_STEP_ENABLED);
}

TEST_F(ClassView, TheValuesHaveTheirPublishedNumbers) {
  EXPECT_EQ(0, KVTD481X2C_VAL_SWEEP_MODE_NONE);
  EXPECT_EQ(1, KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_SWEEP);
  EXPECT_EQ(2, KVTD481X2C_VAL_SWEEP_MODE_POWER_SWEEP);
  EXPECT_EQ(3, KVTD481X2C_VAL_SWEEP_MODE_FREQUENCY_STEP);
  EXPECT_EQ(4, KVTD481X2C_VAL_SWEEP_MODE_POWER_STEP);
  EXPECT_EQ(5, KVTD481X2C_VAL_SWEEP_MODE_LIST);
  EXPECT_EQ(0, KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_IMMEDIATE);
  EXPECT_EQ(1, KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_EXTERNAL);
  EXPECT_EQ(2, KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_SOFTWARE);
}

// Sweep mode, towards the instrument.

struct ModeCommands {
  ViInt32 mode;
  std::array<const char*, 3> commands;  // null where there are two
};

constexpr ModeCommands kModes[] = {
    {0, {":FREQ:MODE FIXed\n", ":POW:MODE FIXed\n"}},
    {1, {":FREQ:MODE SWEep\n", ":SWE1:GEN ANALog\n", ":POW:MODE FIXed\n"}},
    {3, {":FREQ:MODE SWEep\n", ":SWE1:GEN STEPped\n", ":POW:MODE FIXed\n"}},
    {4, {":FREQ:MODE FIXed\n", ":POW:MODE SWEep2\n"}},
    {5, {":FREQ:MODE LIST1\n", ":POW:MODE LIST1\n"}},
};

TEST_F(ClassView, EverySweepModeGoesOutAsItsModesInOrder) {
  for (const ModeCommands& mode : kModes) {
    for (const char* command : mode.commands) {
      if (command != nullptr) Sent(command);
    }
    EXPECT_STATUS(VI_SUCCESS, WriteInt32(vi, kSweepMode, mode.mode)) << mode.mode;
  }
}

TEST_F(ClassView, ASweepModeEndsAtTheFirstCommandThatIsRefused) {
  QueryInstrumentStatus(true);
  for (const ModeCommands& mode : kModes) {
    for (std::size_t refused = 0; refused < mode.commands.size() && mode.commands[refused] != nullptr; ++refused) {
      for (std::size_t i = 0; i <= refused; ++i) {
        Sent(mode.commands[i]);
        StatusIs(i == refused ? "16" : "0");
      }
      EXPECT_STATUS(kInstrumentError, WriteInt32(vi, kSweepMode, mode.mode)) << mode.mode << " at " << refused;
      EXPECT_EQ(kInstrumentErrorText, LastErrorText());
    }
  }
}

TEST_F(ClassView, ASweepModeThatTheInstrumentHasNotIsRefusedUnderItsName) {
  struct Refusal {
    ViInt32 mode;
    const char* name;
  };
  for (const auto& [mode, name] : {Refusal{2, "KVTD481X2C_VAL_SWEEP_MODE_POWER_SWEEP"}, Refusal{6, "6"},
                                   Refusal{99, "99"}, Refusal{-1, "-1"}, Refusal{-2147483647 - 1, "-2147483648"}}) {
    EXPECT_STATUS(kValueNotSupported, WriteInt32(vi, kSweepMode, mode));
    const std::string text = std::string("Does not support this class-compliant feature:  Enumeration value '") + name +
                             "' passed as the value for parameter 'AttributeValue' in function 'SWEEP_MODE'.";
    EXPECT_EQ((RecordedError{kValueNotSupported, text}), LastError());
  }
}

// Sweep mode, from the instrument.

constexpr std::array kFrequencyWords = {"FIX",   "SWE",   "LIST1", "LIST2", "LIST3", "LIST4",
                                        "LIST5", "LIST6", "LIST7", "LIST8", "LIST9", "LIST10"};
constexpr std::array kPowerWords = {"FIX",   "SWE2",  "LIST1", "LIST2", "LIST3", "LIST4",
                                    "LIST5", "LIST6", "LIST7", "LIST8", "LIST9", "LIST10"};

TEST_F(ClassView, EveryPairOfModesReadsAsTheSweepModeThatItIs) {
  const auto asks_modes = [&](std::string_view frequency, std::string_view power) {
    Asks(":FREQ:MODE?\n", std::string(frequency));
    Asks(":POW:MODE?\n", std::string(power));
  };
  for (const std::string_view frequency : kFrequencyWords) {
    for (const std::string_view power : kPowerWords) {
      SCOPED_TRACE(std::string(frequency) + " with " + std::string(power));
      if (frequency == "SWE" && power == "FIX") {
        asks_modes(frequency, power);
        Asks(":SWE1:GEN?\n", "ANAL");
        EXPECT_EQ(1, ReadInt32(vi, kSweepMode));
        asks_modes(frequency, power);
        Asks(":SWE1:GEN?\n", "STEP");
        EXPECT_EQ(3, ReadInt32(vi, kSweepMode));
        continue;
      }
      ViInt32 expected = 0;
      if (frequency == "FIX" && power == "SWE2") expected = 4;
      if (frequency == "LIST1" && power == "LIST1") expected = 5;
      asks_modes(frequency, power);
      EXPECT_EQ(expected, ReadInt32(vi, kSweepMode));
    }
  }
}

TEST_F(ClassView, ReadingTheSweepModeAsksForTheStatusBehindEachAnswer) {
  QueryInstrumentStatus(true);
  Asks(":FREQ:MODE?\n", "SWEEP1");
  StatusIs("0");
  Asks(":POW:MODE?\n", "CW");
  StatusIs("0");
  Asks(":SWE1:GEN?\n", "STEPPED");
  StatusIs("0");
  EXPECT_EQ(3, ReadInt32(vi, kSweepMode));
}

TEST_F(ClassView, AFailureOnTheWayToTheSweepModeLeavesTheVariableAlone) {
  struct Exchange {
    const char* query;
    const char* good;
  };
  constexpr std::array<Exchange, 3> kExchanges = {
      {{":FREQ:MODE?\n", "SWE"}, {":POW:MODE?\n", "FIX"}, {":SWE1:GEN?\n", "ANAL"}}};
  for (std::size_t bad = 0; bad < kExchanges.size(); ++bad) {
    for (std::size_t i = 0; i < bad; ++i) Asks(kExchanges[i].query, kExchanges[i].good);
    Asks(kExchanges[bad].query, "FOO");
    ViInt32 mode = kUnset;
    EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kSweepMode, &mode));
    EXPECT_EQ(kUnset, mode) << kExchanges[bad].query;
    EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (FOO) to a defined value.",
              LastErrorText());
  }
}

TEST_F(ClassView, ARefusedReadOnTheWayToTheSweepModeEndsIt) {
  QueryInstrumentStatus(true);
  Asks(":FREQ:MODE?\n", "SWE");
  StatusIs("0");
  Asks(":POW:MODE?\n", "FIX");
  StatusIs("8");
  ViInt32 mode = kUnset;
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kSweepMode, &mode));
  EXPECT_EQ(kUnset, mode);
}

TEST_F(ClassView, ALostConnectionOnTheWayToTheSweepModeIsVisas) {
  Asks(":FREQ:MODE?\n", "LIST1");
  Sent(":POW:MODE?\n");
  instrument.Close();
  ViInt32 mode = kUnset;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kSweepMode, &mode));
  EXPECT_EQ(kUnset, mode);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ClassView, AnAnalogGenerationTurnsTheSteppedSweepIntoTheContinuousOne) {
  Script(R"(
    > :FREQ:MODE SWEep
    > :SWE1:GEN STEPped
    > :POW:MODE FIXed
    > :FREQ:MODE?
    < SWE
    > :POW:MODE?
    < FIX
    > :SWE1:GEN?
    < STEP
    > :SWE1:GEN ANALog
    > :FREQ:MODE?
    < SWE
    > :POW:MODE?
    < FIX
    > :SWE1:GEN?
    < ANAL
  )");
  EXPECT_STATUS(VI_SUCCESS, WriteInt32(vi, kSweepMode, 3));
  EXPECT_EQ(3, ReadInt32(vi, kSweepMode));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencySweepGeneration(vi, KVTD481X2C_VAL_SWEEP_GENERATION_ANALOG));
  EXPECT_EQ(1, ReadInt32(vi, kSweepMode));
}

// Trigger source, both ways.

TEST_F(ClassView, EveryTriggerSourceGoesOutAsItsTriggerType) {
  Script(R"(
    > :TRIG:TYPE AUTO
    > :TRIG:TYPE EXTernal
    > :TRIG:TYPE SINGle
  )");
  for (const ViInt32 source : {0, 1, 2}) EXPECT_STATUS(VI_SUCCESS, WriteInt32(vi, kTriggerSource, source));
}

TEST_F(ClassView, ARefusedTriggerTypeComesBackFromTheTriggerSource) {
  QueryInstrumentStatus(true);
  Sent(":TRIG:TYPE AUTO\n");
  StatusIs("32");
  EXPECT_STATUS(kInstrumentError, WriteInt32(vi, kTriggerSource, 0));
}

TEST_F(ClassView, ATriggerSourceOutsideTheClassIsRefusedByItsNumber) {
  for (const ViInt32 source : {3, -1, 2147483647}) {
    EXPECT_STATUS(kValueNotSupported, WriteInt32(vi, kTriggerSource, source));
    EXPECT_EQ("Does not support this class-compliant feature:  Enumeration value '" + std::to_string(source) +
                  "' passed as the value for parameter 'AttributeValue' in function 'SWEEP_TRIGGER_SOURCE'.",
              LastErrorText());
  }
}

TEST_F(ClassView, EveryTriggerTypeReadsAsItsTriggerSource) {
  struct Reading {
    const char* word;
    ViInt32 source;
  };
  for (const auto& [word, source] : {Reading{"AUTO", 0}, Reading{"SING", 2}, Reading{"EXT", 1}}) {
    Asks(":TRIG:TYPE?\n", word);  // whether it is the single step
    Asks(":TRIG:TYPE?\n", word);
    EXPECT_EQ(source, ReadInt32(vi, kTriggerSource)) << word;
  }
  Asks(":TRIG:TYPE?\n", "MAN");
  EXPECT_EQ(2, ReadInt32(vi, kTriggerSource));
}

TEST_F(ClassView, AnInactiveTriggerHasNoTriggerSource) {
  Asks(":TRIG:TYPE?\n", "INAC");
  Asks(":TRIG:TYPE?\n", "INAC");
  ViInt32 source = kUnset;
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kTriggerSource, &source));
  EXPECT_EQ(kUnset, source);
  EXPECT_EQ((RecordedError{kUnexpectedResponse, "Unexpected response from instrument."}), LastError());
}

TEST_F(ClassView, ATriggerThatTurnsManualBetweenTheTwoReadingsHasNoTriggerSource) {
  Asks(":TRIG:TYPE?\n", "AUTO");
  Asks(":TRIG:TYPE?\n", "MAN");
  ViInt32 source = kUnset;
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kTriggerSource, &source));
  EXPECT_EQ(kUnset, source);
}

TEST_F(ClassView, AFailureOnTheWayToTheTriggerSourceLeavesTheVariableAlone) {
  ViInt32 source = kUnset;
  Asks(":TRIG:TYPE?\n", "FOO");
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kTriggerSource, &source));
  Asks(":TRIG:TYPE?\n", "EXT");
  Asks(":TRIG:TYPE?\n", "FOO");
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kTriggerSource, &source));
  EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (FOO) to a defined value.",
            LastErrorText());
  EXPECT_EQ(kUnset, source);
}

TEST_F(ClassView, ImmediateReadsBackAsImmediate) {
  Script(R"(
    > :TRIG:TYPE AUTO
    > :TRIG:TYPE?
    < AUTO
    > :TRIG:TYPE?
    < AUTO
  )");
  EXPECT_STATUS(VI_SUCCESS, WriteInt32(vi, kTriggerSource, KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_IMMEDIATE));
  EXPECT_EQ(KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_IMMEDIATE, ReadInt32(vi, kTriggerSource));
}

// The three single-step switches.

TEST_F(ClassView, EverySingleStepSwitchSetsTheSameTriggerType) {
  for (const ViAttr attribute : kSingleSteps) {
    Script(R"(
      > :TRIG:TYPE MANual
      > :TRIG:TYPE SINGle
    )");
    EXPECT_STATUS(VI_SUCCESS, SetBoolean(attribute, VI_TRUE));
    EXPECT_STATUS(VI_SUCCESS, SetBoolean(attribute, VI_FALSE));
  }
}

TEST_F(ClassView, AnyNonZeroValueSwitchesSingleSteppingOn) {
  for (const ViAttr attribute : kSingleSteps) {
    for (const ViBoolean value : {ViBoolean{2}, ViBoolean{0x8000}, ViBoolean{0xFFFF}}) {
      Script("> :TRIG:TYPE MANual");
      EXPECT_STATUS(VI_SUCCESS, SetBoolean(attribute, value));
    }
  }
}

TEST_F(ClassView, SingleSteppingReadsTrueForTheManualTriggerAlone) {
  for (const ViAttr attribute : kSingleSteps) {
    for (const std::string_view word : {"AUTO", "SING", "EXT", "MAN", "INAC"}) {
      Asks(":TRIG:TYPE?\n", std::string(word));
      ViBoolean on = kUnset;
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, attribute, &on));
      EXPECT_EQ(word == "MAN" ? VI_TRUE : VI_FALSE, on) << attribute << word;
    }
  }
}

TEST_F(ClassView, AFailedReadOfTheTriggerTypeLeavesTheSingleStepVariableAlone) {
  for (const ViAttr attribute : kSingleSteps) {
    Asks(":TRIG:TYPE?\n", "FOO");
    ViBoolean on = kUnset;
    EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, attribute, &on));
    EXPECT_EQ(kUnset, on);
  }
}

TEST_F(ClassView, ARefusedSingleStepIsAnInstrumentError) {
  QueryInstrumentStatus(true);
  for (const ViAttr attribute : kSingleSteps) {
    Sent(":TRIG:TYPE MANual\n");
    StatusIs("16");
    EXPECT_STATUS(kInstrumentError, SetBoolean(attribute, VI_TRUE));
  }
}

TEST_F(ClassView, SingleSteppingOffMakesTheTriggerSourceSoftware) {
  Script(R"(
    > :TRIG:TYPE SINGle
    > :TRIG:TYPE?
    < SING
    > :TRIG:TYPE?
    < SING
  )");
  EXPECT_STATUS(VI_SUCCESS, SetBoolean(kFrequencySingleStep, VI_FALSE));
  EXPECT_EQ(KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_SOFTWARE, ReadInt32(vi, kTriggerSource));
}

// Scaling.

TEST_F(ClassView, TheScalingIsTheSpacing) {
  Script(R"(
    > :SWE:SPAC LINear
    > :SWE:SPAC LOGarithmic
    > :SWE:SPAC?
    < LINEAR
    > :SWE:SPAC?
    < LOG
  )");
  EXPECT_STATUS(VI_SUCCESS, WriteInt32(vi, kScaling, 0));
  EXPECT_STATUS(VI_SUCCESS, WriteInt32(vi, kScaling, 1));
  EXPECT_EQ(0, ReadInt32(vi, kScaling));
  EXPECT_EQ(1, ReadInt32(vi, kScaling));
}

TEST_F(ClassView, AnUnknownScalingIsDroppedWithoutAWord) {
  QueryInstrumentStatus(true);
  for (const ViInt32 scaling : {7, 2, -1}) EXPECT_STATUS(VI_SUCCESS, WriteInt32(vi, kScaling, scaling));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ClassView, ASpacingThatNobodyKnowsLeavesTheScalingVariableAlone) {
  Asks(":SWE:SPAC?\n", "RAMP");
  ViInt32 scaling = kUnset;
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kScaling, &scaling));
  EXPECT_EQ(kUnset, scaling);
}

// The operation over both tables.

TEST_F(ClassView, ConfigureSweepSetsTheModeAndThenTheTriggerSource) {
  Script(R"(
    > :FREQ:MODE FIXed
    > :POW:MODE SWEep2
    > :TRIG:TYPE EXTernal
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureSweep(vi, KVTD481X2C_VAL_SWEEP_MODE_POWER_STEP,
                                                      KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_EXTERNAL));
}

TEST_F(ClassView, ConfigureSweepFailsAtThePowerSweepBeforeTheTriggerSource) {
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigureSweep(vi, KVTD481X2C_VAL_SWEEP_MODE_POWER_SWEEP,
                                                              KVTD481X2C_VAL_SWEEP_TRIGGER_SOURCE_EXTERNAL));
}

TEST_F(ClassView, ConfigureSweepWithABadTriggerSourceKeepsTheModeThatItSent) {
  Script(R"(
    > :FREQ:MODE FIXed
    > :POW:MODE FIXed
  )");
  EXPECT_STATUS(kValueNotSupported, KVTD481X2C_ConfigureSweep(vi, KVTD481X2C_VAL_SWEEP_MODE_NONE, 3));
}

// Pointers and handles.

TEST_F(ClassView, ANullPointerIsRefusedBeforeAnythingIsSent) {
  for (const ViAttr attribute : {kSweepMode, kTriggerSource, kScaling}) {
    EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViInt32(vi, nullptr, attribute, nullptr));
    EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetAttributeViInt32', parameter 'AttributeValue'.",
              LastErrorText());
  }
  for (const ViAttr attribute : kSingleSteps) {
    EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, attribute, nullptr));
  }
}

TEST_F(ClassView, AHandleThatIsNotOpenIsRefusedBare) {
  for (const ViSession bad : {ViSession{0}, vi + 1, ViSession{0xDEADBEEF}}) {
    ViInt32 value = kUnset;
    for (const ViAttr attribute : {kSweepMode, kTriggerSource, kScaling}) {
      EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViInt32(bad, nullptr, attribute, &value));
      EXPECT_STATUS(kInvalidHandle, WriteInt32(bad, attribute, 99));
    }
    ViBoolean on = kUnset;
    for (const ViAttr attribute : kSingleSteps) {
      EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViBoolean(bad, nullptr, attribute, &on));
      EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViBoolean(bad, nullptr, attribute, VI_TRUE));
    }
    EXPECT_EQ(kUnset, value);
    EXPECT_EQ(kUnset, on);
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

// In simulation the translations work on what the session has stored.

TEST_F(SimulatedClassView, EverySweepModeReadsBackAsItWasSet) {
  EXPECT_EQ(0, ReadInt32(vi, kSweepMode));
  for (const ViInt32 mode : {1, 3, 4, 5, 0}) {
    EXPECT_STATUS(VI_SUCCESS, WriteInt32(vi, kSweepMode, mode));
    EXPECT_EQ(mode, ReadInt32(vi, kSweepMode));
  }
  EXPECT_STATUS(kValueNotSupported, WriteInt32(vi, kSweepMode, 2));
  EXPECT_EQ(0, ReadInt32(vi, kSweepMode));
}

TEST_F(SimulatedClassView, EveryPairOfStoredModesReadsAsTheSweepModeThatItIs) {
  for (ViInt32 generation = -1; generation <= 2; ++generation) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencySweepGeneration(vi, generation));
    for (ViInt32 frequency = -1; frequency <= 12; ++frequency) {
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMode(vi, frequency));
      for (ViInt32 power = -1; power <= 12; ++power) {
        EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPowerMode(vi, power));
        ViInt32 expected = 0;
        if (frequency == 0 && power == 1) expected = 4;
        if (frequency == 1 && power == 0) expected = generation == 0 ? 1 : 3;
        if (frequency == 2 && power == 2) expected = 5;
        EXPECT_EQ(expected, ReadInt32(vi, kSweepMode)) << frequency << ' ' << power << ' ' << generation;
      }
    }
  }
}

TEST_F(SimulatedClassView, EveryStoredTriggerTypeReadsAsItsTriggerSource) {
  constexpr std::array<ViInt32, 4> kSources = {0, 2, 1, 2};  // of auto, single, external, manual
  for (ViInt32 type = 0; type < 4; ++type) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetTriggerType(vi, type));
    EXPECT_EQ(kSources[static_cast<std::size_t>(type)], ReadInt32(vi, kTriggerSource)) << type;
  }
  for (const ViInt32 type : {4, 5, -1}) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetTriggerType(vi, type));
    ViInt32 source = kUnset;
    EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kTriggerSource, &source));
    EXPECT_EQ(kUnset, source);
  }
}

TEST_F(SimulatedClassView, SettingOneSingleStepSwitchMovesTheOtherTwo) {
  for (const ViAttr set : kSingleSteps) {
    for (const ViBoolean value : {ViBoolean{VI_TRUE}, ViBoolean{VI_FALSE}}) {
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, set, value));
      for (const ViAttr read : kSingleSteps) EXPECT_EQ(value, BooleanAttribute(read));
      EXPECT_EQ(2, ReadInt32(vi, kTriggerSource));
    }
  }
}

TEST_F(SimulatedClassView, AStoredSpacingThatTheClassHasNotIsAnUnexpectedResponse) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencySweepSpacing(vi, 2));
  ViInt32 scaling = kUnset;
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetAttributeViInt32(vi, nullptr, kScaling, &scaling));
  EXPECT_EQ(kUnset, scaling);
  EXPECT_EQ("Unexpected response from instrument.", LastErrorText());
}

}  // namespace
}  // namespace kvtd::test
