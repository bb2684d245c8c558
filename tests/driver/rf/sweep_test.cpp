// Sweeps: every attribute of the instrument's two sweeps both ways, and the operations that set several in order.

#include <vector>

#include "AttributeCases.h"

namespace kvtd::test {
namespace {

constexpr auto kStored = Simulated::Stored;
constexpr auto kFixed = Simulated::Fixed;
constexpr auto kVisa = Simulated::VisaCall;

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem
#define READ(stem) &KVTD481X2C_Get##stem, nullptr
#define WRITE(stem) nullptr, &KVTD481X2C_Set##stem

const std::vector<AttributeCase> kFrequencySweepAttributes = {
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_START), 1250211, RealExports{}, ":FREQ:STAR?\n", "1E9\n", 1e9, 1.5e9,
     ":FREQ:STAR 1500000000 HZ\n", kVisa},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_STOP), 1250212, RealExports{}, ":FREQ:STOP?\n", "2E9\n", 2e9, 2.5e9,
     ":FREQ:STOP 2500000000 HZ\n", kVisa},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_CENTER_FREQUENCY), 1150034, RealExports{BOTH(FrequencySweepCenterFrequency)},
     ":FREQ:CENT?\n", "1.5E9\n", 1.5e9, 2e9, ":FREQ:CENT 2000000000 HZ\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_SPAN), 1150043, RealExports{BOTH(FrequencySweepSpan)}, ":FREQ:SPAN?\n", "+1e8\n",
     1e8, 0.001, ":FREQ:SPAN 0.001 HZ\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_DELTA), 1150035, RealExports{BOTH(FrequencySweepDelta)}, ":FREQ:DELT?\n", "-5\n",
     -5, 1e99, ":FREQ:DELT 1e+99 HZ\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_TIME), 1250213, RealExports{}, ":SWE1:TIME?\n", "0.25\n", 0.25, 0.5,
     ":SWE1:TIME 0.5\n", kVisa},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_TIME_AUTO), 1150048, BooleanExports{READ(FrequencySweepTimeAuto)},
     ":SWE1:TIME:AUTO?\n", "ON\n", 1, 0, "", kFixed, VI_FALSE},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_TIME_LOWER_LIMIT), 1150049, RealExports{BOTH(FrequencySweepTimeLowerLimit)},
     ":SWE1:TIME:LLIM?\n", "0.01\n", 0.01, 0.1, ":SWE1:TIME:LLIM 0.1 \n"},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_DWELL_AUTO), 1150038, BooleanExports{READ(FrequencySweepDwellAuto)},
     ":SWE1:DWEL:AUTO?\n", "1\n", 1, 0, "", kFixed, VI_FALSE},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_POINTS), 1150040, Int32Exports{BOTH(FrequencySweepPoints)}, ":SWE1:POIN?\n",
     "401\n", 401, -2147483648.0, ":SWE1:POIN -2147483648\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_SPACING), 1150042, Int32Exports{BOTH(FrequencySweepSpacing)}, ":SWE:SPAC?\n",
     "log\n", 1, 1, ":SWE:SPAC LOGarithmic\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_DIRECTION), 1150036, Int32Exports{BOTH(FrequencySweepDirection)}, ":SWE1:DIR?\n",
     "UP\n", 0, 1, ":SWE1:DIR DOWN\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_GENERATION), 1150039, Int32Exports{BOTH(FrequencySweepGeneration)}, ":SWE1:GEN?\n",
     "ANAL\n", 0, 1, ":SWE1:GEN STEPped\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_SWEEP_RANGE), 1150041, Int32Exports{WRITE(FrequencySweepRange)}, "", "", 0, 2,
     ":SWE1:RANG F5DF\n"},
    {KVTD_ATTRIBUTE(FREQUENCY_STEP_START), 1250241, RealExports{}, ":FREQ:STAR?\n", "3E9\n", 3e9, 1e9,
     ":FREQ:STAR 1000000000 HZ\n", kVisa},
    {KVTD_ATTRIBUTE(FREQUENCY_STEP_STOP), 1250242, RealExports{}, ":FREQ:STOP?\n", "4E9\n", 4e9, 2e9,
     ":FREQ:STOP 2000000000 HZ\n", kVisa},
    {KVTD_ATTRIBUTE(FREQUENCY_STEP_SIZE), 1250244, RealExports{}, ":SWE:STEP?\n", "1000\n", 1000, 1e6,
     ":SWE:STEP 1000000 HZ\n", kVisa},
    {KVTD_ATTRIBUTE(FREQUENCY_STEP_DWELL), 1250246, RealExports{}, ":SWE1:DWEL?\n", "0.002\n", 0.002, 0.1,
     ":SWE1:DWEL 0.1 \n", kVisa},
};

const std::vector<AttributeCase> kPowerSweepAttributes = {
    {KVTD_ATTRIBUTE(POWER_SWEEP_CENTER_POWER), 1150124, RealExports{BOTH(PowerSweepCenterPower)}, ":POW:CENT?\n",
     "-3.5\n", -3.5, -10, ":POW:CENT -10\n"},
    {KVTD_ATTRIBUTE(POWER_SWEEP_SPAN), 1150131, RealExports{BOTH(PowerSweepSpan)}, ":POW:SPAN?\n", "20\n", 20, 12.5,
     ":POW:SPAN 12.5\n"},
    {KVTD_ATTRIBUTE(POWER_SWEEP_TIME_AUTO), 1150135, BooleanExports{READ(PowerSweepTimeAuto)}, ":SWE2:TIME:AUTO?\n",
     "0\n", 0, 0, "", kFixed, VI_TRUE},
    {KVTD_ATTRIBUTE(POWER_SWEEP_TIME_LOWER_LIMIT), 1150136, RealExports{BOTH(PowerSweepTimeLowerLimit)},
     ":SWE2:TIME:LLIM?\n", "0.02\n", 0.02, 0.2, ":SWE2:TIME:LLIM 0.2\n"},
    {KVTD_ATTRIBUTE(POWER_SWEEP_DWELL_AUTO), 1150127, BooleanExports{READ(PowerSweepDwellAuto)}, ":SWE2:DWEL:AUTO?\n",
     "OFF\n", 0, 0, "", kFixed, VI_TRUE},
    {KVTD_ATTRIBUTE(POWER_SWEEP_POINTS), 1150129, Int32Exports{BOTH(PowerSweepPoints)}, ":SWE2:POIN?\n", "+11\n", 11,
     2147483647, ":SWE2:POIN 2147483647\n"},
    {KVTD_ATTRIBUTE(POWER_SWEEP_DIRECTION), 1150125, Int32Exports{BOTH(PowerSweepDirection)}, ":SWE2:DIR?\n", "DOWN\n",
     1, 0, ":SWE2:DIR UP\n", kStored},
    {KVTD_ATTRIBUTE(POWER_SWEEP_RANGE), 1150130, Int32Exports{WRITE(PowerSweepRange)}, "", "", 0, 4,
     ":SWE2:RANG L9L0\n"},
    {KVTD_ATTRIBUTE(POWER_STEP_START), 1250261, RealExports{}, ":POW:STAR?\n", "-20\n", -20, -15.5, ":POW:STAR -15.5\n",
     kVisa},
    {KVTD_ATTRIBUTE(POWER_STEP_STOP), 1250262, RealExports{}, ":POW:STOP?\n", "5\n", 5, 10, ":POW:STOP 10\n", kVisa},
    {KVTD_ATTRIBUTE(POWER_STEP_SIZE), 1250263, RealExports{}, ":SWE2:POW:STEP?\n", "0.5\n", 0.5, 0.25,
     ":SWE2:POW:STEP 0.25\n", kVisa},
    {KVTD_ATTRIBUTE(POWER_STEP_DWELL), 1250265, RealExports{}, ":SWE2:DWEL?\n", "0.003\n", 0.003, 0.1,
     ":SWE2:DWEL 0.1\n", kVisa},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(FrequencySweep, kFrequencySweepAttributes);
KVTD_INSTANTIATE_ATTRIBUTES(PowerSweep, kPowerSweepAttributes);

namespace {

class SweepDialogue : public DriverDialogue {};
class SimulatedSweep : public SimulatedDriver {};

TEST_F(SweepDialogue, ConfigureFrequencySweepStartStopSendsTheStartAndThenTheStop) {
  Script(R"(
    > :FREQ:STAR 1000000000 HZ
    > :FREQ:STOP 2000000000 HZ
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureFrequencySweepStartStop(vi, 1e9, 2e9));
}

TEST_F(SweepDialogue, ARefusedStartStopsBeforeTheStopIsSent) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:STAR 1e+99 HZ
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureFrequencySweepStartStop(vi, 1e99, 2e9));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(SweepDialogue, CenterAndSpanGoOutAsStartAndStop) {
  Script(R"(
    > :FREQ:STAR 1500000000 HZ
    > :FREQ:STOP 2500000000 HZ
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureFrequencySweepCenterSpan(vi, 2e9, 1e9));
}

TEST_F(SweepDialogue, ASpanThatReachesBelowZeroIsLeftToTheInstrument) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:STAR -1000 HZ
    > *ESR?
    < 0
    > :FREQ:STOP 3000 HZ
    > *ESR?
    < 32
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureFrequencySweepCenterSpan(vi, 1000, 4000));
}

TEST_F(SweepDialogue, ARefusedStartOfACenterAndSpanHoldsTheStopBack) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:STAR 0 HZ
    > *ESR?
    < 8
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureFrequencySweepCenterSpan(vi, 1000, 2000));
}

TEST_F(SweepDialogue, ConfigureFrequencySweepTimeSendsTheTime) {
  Script("> :SWE1:TIME 0.125");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureFrequencySweepTime(vi, 0.125));
}

TEST_F(SweepDialogue, ConfigureFrequencyStepStartStopSendsLimitsScalingAndStep) {
  Script(R"(
    > :FREQ:STAR 1000000 HZ
    > :FREQ:STOP 2000000 HZ
    > :SWE:SPAC LOGarithmic
    > :SWE:STEP 1000 HZ
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureFrequencyStepStartStop(vi, 1e6, 2e6, 1, 1e3));
}

TEST_F(SweepDialogue, AnUnknownScalingLeavesTheOtherThreeToBeSent) {
  Script(R"(
    > :FREQ:STAR 1000000 HZ
    > :FREQ:STOP 2000000 HZ
    > :SWE:STEP 1000 HZ
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureFrequencyStepStartStop(vi, 1e6, 2e6, 7, 1e3));
}

TEST_F(SweepDialogue, ARefusedScalingStopsBeforeTheStepIsSent) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:STAR 1000000 HZ
    > *ESR?
    < 0
    > :FREQ:STOP 2000000 HZ
    > *ESR?
    < 0
    > :SWE:SPAC LINear
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigureFrequencyStepStartStop(vi, 1e6, 2e6, 0, 1e3));
}

TEST_F(SweepDialogue, ConfigureFrequencyStepDwellSendsTheTriggerTypeAndThenTheDwell) {
  Script("> :TRIG:TYPE MANual");
  Sent(":SWE1:DWEL 0.1 \n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureFrequencyStepDwell(vi, VI_TRUE, 0.1));
}

TEST_F(SweepDialogue, ConfigurePowerStepStartStopSendsStartStopAndStep) {
  Script(R"(
    > :POW:STAR -20
    > :POW:STOP 5.5
    > :SWE2:POW:STEP 0.1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePowerStepStartStop(vi, -20, 5.5, 0.1));
}

TEST_F(SweepDialogue, ARefusedPowerStopHoldsTheStepBack) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :POW:STAR -20
    > *ESR?
    < 0
    > :POW:STOP 999
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigurePowerStepStartStop(vi, -20, 999, 0.1));
}

TEST_F(SweepDialogue, ConfigurePowerStepDwellSendsTheTriggerTypeAndThenTheDwell) {
  Script(R"(
    > :TRIG:TYPE SINGle
    > :SWE2:DWEL 0.1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigurePowerStepDwell(vi, VI_FALSE, 0.1));
}

TEST_F(SweepDialogue, ARefusedTriggerTypeHoldsTheDwellBack) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :TRIG:TYPE SINGle
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ConfigurePowerStepDwell(vi, VI_FALSE, 0.1));
}

TEST_F(SweepDialogue, TheSpansGoToTheirMaximumByACommandEach) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:SPAN:FULL
    > *ESR?
    < 0
    > :POW:SPAN:FULL
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencySweepSpanToMaximum(vi));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SetPowerSweepSpanToMaximum(vi));
}

TEST_F(SweepDialogue, ARangeOutsideItsValuesSendsNothing) {
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_SetFrequencySweepRange(vi, 4));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '4' to an instrument command.", LastErrorText());
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_SetPowerSweepRange(vi, 5));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '5' to an instrument command.", LastErrorText());
}

TEST_F(SweepDialogue, TheSwitchWithoutACacheForgetsItsRealReadingsInSimulation) {
  Script(R"(
    > :SWE1:TIME:AUTO?
    < 1
  )");
  ViBoolean automatic = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencySweepTimeAuto(vi, &automatic));
  EXPECT_EQ(VI_TRUE, automatic);
  SwitchToSimulation(true);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencySweepTimeAuto(vi, &automatic));
  EXPECT_EQ(VI_FALSE, automatic);
  SwitchToSimulation(false);
}

TEST_F(SweepDialogue, EveryOperationRefusesAHandleThatIsNotOpen) {
  for (const ViSession bad : {ViSession{0}, vi + 1, ViSession{0xDEADBEEF}}) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureSweep(bad, 0, 0));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureFrequencySweepStartStop(bad, 1, 2));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureFrequencySweepCenterSpan(bad, 1, 2));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureFrequencySweepTime(bad, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureFrequencyStepStartStop(bad, 1, 2, 0, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigureFrequencyStepDwell(bad, VI_TRUE, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePowerStepStartStop(bad, 1, 2, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ConfigurePowerStepDwell(bad, VI_TRUE, 1));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetFrequencySweepSpanToMaximum(bad));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetPowerSweepSpanToMaximum(bad));
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedSweep, TheSpansGoToTheirMaximumInSilence) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencySweepSpanToMaximum(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPowerSweepSpanToMaximum(vi));
}

TEST_F(SimulatedSweep, OperationsOnPlainAttributesFailAtTheVisaSessionThatIsNotThere) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureFrequencySweepStartStop(vi, 1, 2));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureFrequencySweepCenterSpan(vi, 1, 2));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureFrequencySweepTime(vi, 1));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureFrequencyStepStartStop(vi, 1, 2, 0, 1));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigurePowerStepStartStop(vi, 1, 2, 1));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedSweep, TheDwellOperationsStoreTheTriggerTypeBeforeTheDwellFails) {
  ViInt32 type = 77;
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigureFrequencyStepDwell(vi, VI_TRUE, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetTriggerType(vi, &type));
  EXPECT_EQ(KVTD481X2C_VAL_TRIGGER_TYPE_MANUAL, type);
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_ConfigurePowerStepDwell(vi, VI_FALSE, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetTriggerType(vi, &type));
  EXPECT_EQ(KVTD481X2C_VAL_TRIGGER_TYPE_SINGLE, type);
}

TEST_F(SimulatedSweep, ARangeIsTakenWhateverItIsAndStoresNothing) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencySweepRange(vi, 99));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPowerSweepRange(vi, -1));
}

}  // namespace
}  // namespace kvtd::test
