// The carrier frequency: every attribute both ways, and the operation that sets frequency and power together.

#include <vector>

#include "AttributeCases.h"
#include "DecimalComma.h"

namespace kvtd::test {
namespace {

constexpr auto kVisa = Simulated::VisaCall;

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem

const std::vector<AttributeCase> kFrequencyAttributes = {
    {KVTD_ATTRIBUTE(FREQUENCY), 1250001, RealExports{}, ":FREQ?\n", "+1.5E+09\n", 1.5e9, 1.0e9, ":FREQ 1000000000 HZ\n",
     kVisa},
    {KVTD_ATTRIBUTE(FREQUENCY_MODE), 1150019, Int32Exports{BOTH(FrequencyMode)}, ":FREQ:MODE?\n", "LIST3\n", 4, 1,
     ":FREQ:MODE SWEep\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_MULTIPLIER), 1150020, RealExports{BOTH(FrequencyMultiplier)}, ":FREQ:MULT?\n", "3\n", 3,
     2.5, ":FREQ:MULT 2.5 HZ\n"},
    {KVTD_ATTRIBUTE(CW_FREQUENCY_STEP), 1150022, RealExports{BOTH(CWFrequencyStep)}, ":FREQ:STEP?\n", "1e5\n", 1e5,
     0.001, ":FREQ:STEP 0.001 HZ\n"},
    {KVTD_ATTRIBUTE(SELECTED_PRESET_FREQUENCY), 1150023, Int32Exports{BOTH(SelectedPresetFrequency)}, ":FREQ:SEL?\n",
     "F9\n", 9, 7, ":FREQ:SEL F7\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F0), 1150024, RealExports{BOTH(FrequencyPresetF0)}, ":FREQ:F0?\n", "10\n", 10, 1e9,
     ":FREQ:F0 1000000000\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F1), 1150025, RealExports{BOTH(FrequencyPresetF1)}, ":FREQ:F1?\n", "11\n", 11, 1.1,
     ":FREQ:F1 1.1\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F2), 1150026, RealExports{BOTH(FrequencyPresetF2)}, ":FREQ:F2?\n", "12\n", 12, 1.2,
     ":FREQ:F2 1.2\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F3), 1150027, RealExports{BOTH(FrequencyPresetF3)}, ":FREQ:F3?\n", "13\n", 13, 1.3,
     ":FREQ:F3 1.3\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F4), 1150028, RealExports{BOTH(FrequencyPresetF4)}, ":FREQ:F4?\n", "14\n", 14, 1.4,
     ":FREQ:F4 1.4\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F5), 1150029, RealExports{BOTH(FrequencyPresetF5)}, ":FREQ:F5?\n", "15\n", 15, 1.5,
     ":FREQ:F5 1.5\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F6), 1150030, RealExports{BOTH(FrequencyPresetF6)}, ":FREQ:F6?\n", "16\n", 16, 1.6,
     ":FREQ:F6 1.6\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F7), 1150031, RealExports{BOTH(FrequencyPresetF7)}, ":FREQ:F7?\n", "17\n", 17, 1.7,
     ":FREQ:F7 1.7\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F8), 1150032, RealExports{BOTH(FrequencyPresetF8)}, ":FREQ:F8?\n", "18\n", 18, 1.8,
     ":FREQ:F8 1.8\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_PRESET_F9), 1150033, RealExports{BOTH(FrequencyPresetF9)}, ":FREQ:F9?\n", "19\n", 19, 1.9,
     ":FREQ:F9 1.9\n"},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(Frequency, kFrequencyAttributes);

namespace {

class FrequencyDialogue : public DriverDialogue {};
class SimulatedFrequency : public SimulatedDriver {};

TEST_F(FrequencyDialogue, ConfigureRfSendsTheFrequencyAndThenThePower) {
  Script(R"(
    > :FREQ 2400000000 HZ
    > :POW -10.5
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi, 2.4e9, -10.5));
}

TEST_F(FrequencyDialogue, ConfigureRfAsksForTheStatusBehindEachOfItsCommands) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ 2400000000 HZ
    > *ESR?
    < 0
    > :POW -10
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi, 2.4e9, -10.0));
}

TEST_F(FrequencyDialogue, RefusedFrequencyStopsBeforeThePowerIsSent) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ 9e+99 HZ
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureRF(vi, 9e99, -10.0));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(FrequencyDialogue, RefusedPowerLeavesTheNewFrequencyAsItIs) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ 1000000000 HZ
    > *ESR?
    < 0
    > :POW 999
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureRF(vi, 1e9, 999.0));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(FrequencyDialogue, ConfigureRfRefusesAHandleThatIsNotOpen) {
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureRF(0, 1e9, 0.0));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureRF(0xDEADBEEF, 1e9, 0.0));
}

TEST_F(FrequencyDialogue, NumbersCarryFifteenSignificantDigits) {
  Script(R"(
    > :FREQ 1234567890.12346 HZ
    > :FREQ 1.5e+15 HZ
    > :FREQ 0 HZ
    > :FREQ -0 HZ
    > :FREQ 1e-05 HZ
    > :FREQ 0.0001 HZ
    > :FREQ 123456789012345 HZ
    > :FREQ 1.23456789012346e+15 HZ
    > :FREQ 0.1 HZ
    > :FREQ 1e+99 HZ
  )");
  for (const ViReal64 value :
       {1234567890.123456, 1.5e15, 0.0, -0.0, 1e-5, 1e-4, 123456789012345.0, 1234567890123456.0, 0.1, 1e99}) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, value));
  }
}

TEST_F(FrequencyDialogue, TheProcessLocaleChangesNoByte) {
  const DecimalComma comma;
  ASSERT_TRUE(comma.InForce());
  Script(R"(
    > :FREQ 2400000000.5 HZ
    > :POW -10.5
    > :FREQ:MULT 1e-05 HZ
    > :FREQ:MULT?
    < 2.5
    > :FREQ?
    < +1.000000000000000123E+03
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi, 2.4000000005e9, -10.5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 1e-5));
  ViReal64 value = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(2.5, value);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &value));
  EXPECT_EQ(1000.000000000000123, value);
}

TEST_F(FrequencyDialogue, TheRangeCheckOptionHoldsNothingBack) {
  for (const ViBoolean on : {ViBoolean{VI_TRUE}, ViBoolean{VI_FALSE}}) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_RANGE_CHECK, on));
    Script("> :FREQ 1e+99 HZ");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, 1e99));
  }
}

TEST_F(FrequencyDialogue, EveryNumericFormOfAnAnswerIsUnderstood) {
  struct Form {
    const char* answer;
    ViReal64 value;
  };
  for (const auto& [answer, value] : {Form{"1000000000\n", 1e9}, Form{"1E9\n", 1e9}, Form{"+1.000000000E+09\n", 1e9},
                                      Form{"-.5\n", -0.5}, Form{" 7\n", 7.0}, Form{"7\r\n", 7.0}, Form{"7.\n", 7.0}}) {
    Sent(":FREQ?\n");
    Answer(answer);
    ViReal64 read = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &read));
    EXPECT_EQ(value, read) << Visible(answer);
  }
}

TEST_F(FrequencyDialogue, ARepeatedCapabilityIsNotLookedAt) {
  Script(R"(
    > :FREQ 5 HZ
    > :FREQ?
    < 5
  )");
  ViReal64 value = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, "no such thing", KVTD481X2C_ATTR_FREQUENCY, 5.0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, "", KVTD481X2C_ATTR_FREQUENCY, &value));
  EXPECT_EQ(5.0, value);
}

TEST_F(FrequencyDialogue, TheModeGoesOutInItsMixedCaseWord) {
  Script(R"(
    > :FREQ:MODE FIXed
    > :FREQ:MODE LIST3
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMode(vi, KVTD481X2C_VAL_FREQUENCY_MODE_FIXED));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMode(vi, KVTD481X2C_VAL_FREQUENCY_MODE_LIST3));
}

TEST_F(FrequencyDialogue, AModeOutsideItsValuesSendsNothing) {
  QueryInstrumentStatus(true);
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_SetFrequencyMode(vi, 12));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '12' to an instrument command.", LastErrorText());
}

TEST_F(FrequencyDialogue, AModeThatNobodyKnowsIsAnUnexpectedResponseAndSkipsTheStatus) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:MODE?
    < FIXE
  )");
  ViInt32 mode = 77;
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetFrequencyMode(vi, &mode));
  EXPECT_EQ(-1, mode);
  EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (FIXE) to a defined value.",
            LastErrorText());
}

TEST_F(SimulatedFrequency, ConfigureRfFailsAtTheVisaSessionThatIsNotThere) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureRF(vi, 1e9, 0.0));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedFrequency, ABadModeStandsUnnoticed) {
  ViInt32 mode = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMode(vi, 12));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMode(vi, &mode));
  EXPECT_EQ(12, mode);
}

}  // namespace
}  // namespace kvtd::test
