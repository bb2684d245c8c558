// Triggering: four attributes, the commands that start and stop, and the two ways to quiet the instrument.

#include <vector>

#include "AttributeCases.h"

namespace kvtd::test {
namespace {

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem

const std::vector<AttributeCase> kTriggerAttributes = {
    {KVTD_ATTRIBUTE(INITIATE_CONTINUOUS_ENABLED), 1150175, BooleanExports{BOTH(InitiateContinuousEnabled)},
     ":INIT:CONT?\n", "on\n", 1, 0, ":INIT:CONT 0\n", Simulated::Stored, VI_TRUE},
    {KVTD_ATTRIBUTE(TRIGGER_TYPE), 1150177, Int32Exports{BOTH(TriggerType)}, ":TRIG:TYPE?\n", "INAC\n", 4, 3,
     ":TRIG:TYPE MANual\n"},
    {KVTD_ATTRIBUTE(TRIGGER_MODE), 1150182, Int32Exports{BOTH(TriggerMode)}, ":TRIG:MODE?\n", "POIN\n", 1, 1,
     ":TRIG:MODE POINt\n"},
    {KVTD_ATTRIBUTE(TRIGGER_SOURCE), 1150183, Int32Exports{BOTH(TriggerSource)}, ":TRIG:SOUR?\n", "BUS\n", 0, 2,
     ":TRIG:SOUR EXTernal\n"},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(Trigger, kTriggerAttributes);

namespace {

class TriggerDialogue : public DriverDialogue {
 protected:
  ViInt32 Timeout() {
    ViInt32 timeout = -1;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOTimeout(vi, &timeout));
    return timeout;
  }
};

class SimulatedTrigger : public SimulatedDriver {};

TEST_F(TriggerDialogue, TheSoftwareSourceIsTheBus) {
  Script(R"(
    > :TRIG:SOUR BUS
    > :TRIG:SOUR?
    < BUS
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetTriggerSource(vi, KVTD481X2C_VAL_TRIGGER_SOURCE_SOFTWARE));
  ViInt32 source = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetTriggerSource(vi, &source));
  EXPECT_EQ(KVTD481X2C_VAL_TRIGGER_SOURCE_SOFTWARE, source);
}

TEST_F(TriggerDialogue, TheTriggerModeSpeaksOfListsAndNotOfThePulseGenerator) {
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_SetTriggerMode(vi, 2));
  Script(R"(
    > :TRIG:MODE SWEep
    > :TRIG:MODE?
    < GATE
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetTriggerMode(vi, KVTD481X2C_VAL_LIST_TRIGGER_MODE_SWEEP));
  ViInt32 mode = 77;
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_GetTriggerMode(vi, &mode));
  EXPECT_EQ(-1, mode);
}

// Commands.

TEST_F(TriggerDialogue, TheCommandsHaveALeadingColon) {
  Script(R"(
    > :ABOR
    > :INIT
    > :TRIG
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Abort(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ArmTrigger(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SendSoftwareTrigger(vi));
}

TEST_F(TriggerDialogue, EachCommandIsFollowedByAStatusCheck) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :ABOR
    > *ESR?
    < 0
    > :INIT
    > *ESR?
    < 16
    > :TRIG
    > *ESR?
    < 8
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Abort(vi));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ArmTrigger(vi));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_SendSoftwareTrigger(vi));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(TriggerDialogue, ALostConnectionComesBackFromACommandsStatusCheck) {
  QueryInstrumentStatus(true);
  Sent(":ABOR\n");
  Sent("*ESR?\n");
  instrument.Close();
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_Abort(vi));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(TriggerDialogue, ASoftwareTriggerIsSentWhateverTheSourceIs) {
  Script(R"(
    > :TRIG:SOUR IMMediate
    > :TRIG
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetTriggerSource(vi, KVTD481X2C_VAL_TRIGGER_SOURCE_IMMEDIATE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SendSoftwareTrigger(vi));
}

// Going back to the first step.

using ResetStep = ViStatus(_VI_FUNC*)(ViSession);
constexpr ResetStep kResetSteps[] = {&KVTD481X2C_ResetFrequencyStep, &KVTD481X2C_ResetPowerStep};

TEST_F(TriggerDialogue, AStepThatRestartsByItselfIsOnlyAborted) {
  for (const ResetStep reset_step : kResetSteps) {
    Script(R"(
      > :INIT:CONT?
      < 1
      > ABOR
    )");
    EXPECT_STATUS(VI_SUCCESS, reset_step(vi));
  }
}

TEST_F(TriggerDialogue, AStepThatDoesNotRestartIsAbortedAndArmed) {
  for (const ResetStep reset_step : kResetSteps) {
    Script(R"(
      > :INIT:CONT?
      < OFF
      > ABOR;INIT
    )");
    EXPECT_STATUS(VI_SUCCESS, reset_step(vi));
  }
}

TEST_F(TriggerDialogue, ResettingAStepAsksForTheStatusTwice) {
  QueryInstrumentStatus(true);
  for (const ResetStep reset_step : kResetSteps) {
    Script(R"(
      > :INIT:CONT?
      < 0
      > *ESR?
      < 0
      > ABOR;INIT
      > *ESR?
      < 4
    )");
    EXPECT_STATUS(kInstrumentError, reset_step(vi));
  }
}

TEST_F(TriggerDialogue, AFailedReadOfTheContinuousInitiationSendsNeitherText) {
  for (const ResetStep reset_step : kResetSteps) {
    Script(R"(
      > :INIT:CONT?
      < PERHAPS
    )");
    EXPECT_STATUS(kUnexpectedResponse, reset_step(vi));
  }
  QueryInstrumentStatus(true);
  for (const ResetStep reset_step : kResetSteps) {
    Script(R"(
      > :INIT:CONT?
      < 1
      > *ESR?
      < 16
    )");
    EXPECT_STATUS(kInstrumentError, reset_step(vi));
  }
}

// Disable.

TEST_F(TriggerDialogue, DisableResetsAndWaitsForTheEnd) {
  QueryInstrumentStatus(true);
  Script(R"(
    > *RST
    > *OPC?
    < 1
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Disable(vi));
}

TEST_F(TriggerDialogue, DisableDoesNotLookAtTheAnswer) {
  Script(R"(
    > *RST
    > *OPC?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Disable(vi));
}

TEST_F(TriggerDialogue, DisableTellsTheInstrumentsError) {
  QueryInstrumentStatus(true);
  Script(R"(
    > *RST
    > *OPC?
    < 1
    > *ESR?
    < 8
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_Disable(vi));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_F(TriggerDialogue, DisableWaitsLongerThanTheSessionsTimeoutAndPutsItBack) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 100));
  Sent("*RST\n");
  Sent("*OPC?\n");
  instrument.Pause(Milliseconds(300));
  Answer("1\n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Disable(vi));
  EXPECT_EQ(100, Timeout());
}

TEST_F(TriggerDialogue, DisablePutsTheTimeoutBackWhenTheAnswerNeverComes) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 4321));
  Script(R"(
    > *RST
    > *OPC?
    ! close
  )");
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_Disable(vi));
  EXPECT_EQ(4321, Timeout());
}

TEST_F(TriggerDialogue, DisablePutsTheTimeoutBackWhenTheConnectionWasLostBefore) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 4321));
  Script(R"(
    > :TRIG:TYPE?
    ! close
  )");
  ViInt32 type = 77;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_GetTriggerType(vi, &type));
  EXPECT_LT(KVTD481X2C_Disable(vi), 0);
  EXPECT_EQ(4321, Timeout());
}

TEST_F(TriggerDialogue, DisableKeepsWhatTheSessionHasStored) {
  Script(R"(
    > :TRIG:TYPE SINGle
    > *RST
    > *OPC?
    < 1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetTriggerType(vi, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Disable(vi));
  SwitchToSimulation(true);
  ViInt32 type = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetTriggerType(vi, &type));
  EXPECT_EQ(1, type);
  SwitchToSimulation(false);
}

// Modulation off.

TEST_F(TriggerDialogue, DisableAllModulationSwitchesTheFourOffInOrder) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :AM:STAT 0
    > *ESR?
    < 0
    > :FM:STAT 0
    > *ESR?
    < 0
    > :PM:STAT 0
    > *ESR?
    < 0
    > :PULM:STAT 0
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_DisableAllModulation(vi));
}

TEST_F(TriggerDialogue, DisableAllModulationEndsAtTheFirstThatIsRefused) {
  QueryInstrumentStatus(true);
  constexpr const char* kCommands[] = {":AM:STAT 0\n", ":FM:STAT 0\n", ":PM:STAT 0\n", ":PULM:STAT 0\n"};
  for (std::size_t refused = 0; refused < std::size(kCommands); ++refused) {
    for (std::size_t i = 0; i <= refused; ++i) {
      Sent(kCommands[i]);
      Sent("*ESR?\n");
      Answer(i == refused ? "16\n" : "0\n");
    }
    EXPECT_STATUS(kInstrumentError, KVTD481X2C_DisableAllModulation(vi)) << kCommands[refused];
  }
}

// Handles and simulation.

constexpr ViStatus(_VI_FUNC* kSilentWhenSimulated[])(ViSession) = {
    &KVTD481X2C_Abort,          &KVTD481X2C_ArmTrigger, &KVTD481X2C_SendSoftwareTrigger, &KVTD481X2C_ResetFrequencyStep,
    &KVTD481X2C_ResetPowerStep, &KVTD481X2C_Disable};

TEST_F(TriggerDialogue, AHandleThatIsNotOpenIsRefusedBare) {
  for (const ViSession bad : {ViSession{0}, vi + 1, ViSession{0xDEADBEEF}}) {
    for (const auto operation : kSilentWhenSimulated) EXPECT_STATUS(kInvalidHandle, operation(bad));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_DisableAllModulation(bad));
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedTrigger, TheActionsSendNothing) {
  for (const auto operation : kSilentWhenSimulated) EXPECT_STATUS(VI_SUCCESS, operation(vi));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedTrigger, DisableAllModulationFailsAtTheVisaSessionThatIsNotThere) {
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_DisableAllModulation(vi));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedTrigger, DisableKeepsWhatWasSetAndAResetForgetsIt) {
  ViInt32 type = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetTriggerType(vi, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Disable(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetTriggerType(vi, &type));
  EXPECT_EQ(1, type);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetTriggerType(vi, &type));
  EXPECT_EQ(0, type);
}

}  // namespace
}  // namespace kvtd::test
