// Resets, presets, self tests and the status registers.

#include <vector>

#include "AttributeCases.h"
#include "ServiceDialogue.h"

namespace kvtd::test {
namespace {

constexpr auto kStored = Simulated::Stored;
constexpr auto kFixed = Simulated::Fixed;

#define BOTH(stem) &KVTD481X2C_Get##stem, &KVTD481X2C_Set##stem
#define READ(stem) &KVTD481X2C_Get##stem, nullptr

const std::vector<AttributeCase> kRegisters = {
    {KVTD_ATTRIBUTE(OPERATION_CONDITION_REGISTER), 1150003, Int32Exports{READ(OperationConditionRegister)},
     "STAT:OPER:COND?\n", "16\n", 16, 0, "", kFixed, 0},
    {KVTD_ATTRIBUTE(OPERATION_ENABLE_REGISTER), 1150004, Int32Exports{BOTH(OperationEnableRegister)},
     ":STAT:OPER:ENAB?\n", "+32\n", 32, 255, ":STAT:OPER:ENAB 255\n", kStored, 0},
    {KVTD_ATTRIBUTE(OPERATION_EVENT_REGISTER), 1150005, Int32Exports{READ(OperationEventRegister)}, "STAT:OPER:EVEN?\n",
     "1\n", 1, 0, "", kFixed, 0},
    {KVTD_ATTRIBUTE(OPERATION_NEGATIVE_TRANSITION_REGISTER), 1150006,
     Int32Exports{BOTH(OperationNegativeTransitionRegister)}, ":STAT:OPER:NTR?\n", "2\n", 2, 7, ":STAT:OPER:NTR 7\n",
     kStored, 0},
    {KVTD_ATTRIBUTE(OPERATION_POSITIVE_TRANSITION_REGISTER), 1150007,
     Int32Exports{BOTH(OperationPositiveTransitionRegister)}, ":STAT:OPER:PTR?\n", "32767\n", 32767, 32767,
     ":STAT:OPER:PTR 32767\n", kStored, 0},
    {KVTD_ATTRIBUTE(QUESTIONABLE_CONDITION_REGISTER), 1150008, Int32Exports{READ(QuestionableConditionRegister)},
     "STAT:QUES:COND?\n", "0\n", 0, 0, "", kFixed, 8},
    {KVTD_ATTRIBUTE(QUESTIONABLE_ENABLE_REGISTER), 1150009, Int32Exports{BOTH(QuestionableEnableRegister)},
     "STAT:QUES:ENAB?\n", "8\n", 8, 9, "STAT:QUES:ENAB 9\n", kStored, 0},
    {KVTD_ATTRIBUTE(QUESTIONABLE_EVENT_REGISTER), 1150010, Int32Exports{READ(QuestionableEventRegister)},
     "STAT:QUES:EVEN?\n", "4\n", 4, 0, "", kFixed, 0},
    {KVTD_ATTRIBUTE(QUESTIONABLE_NEGATIVE_TRANSITION_REGISTER), 1150011,
     Int32Exports{BOTH(QuestionableNegativeTransitionRegister)}, ":STAT:QUES:NTR?\n", "3\n", 3, 5, ":STAT:QUES:NTR 5\n",
     kStored, 0},
    {KVTD_ATTRIBUTE(QUESTIONABLE_POSITIVE_TRANSITION_REGISTER), 1150012,
     Int32Exports{BOTH(QuestionablePositiveTransitionRegister)}, ":STAT:QUES:PTR?\n", "6\n", 6, -1,
     ":STAT:QUES:PTR -1\n", kStored, 0},
    {KVTD_ATTRIBUTE(STANDARD_EVENT_ENABLE_REGISTER), 1150013, Int32Exports{BOTH(StandardEventEnableRegister)},
     "*ESE?\n", "60\n", 60, 36, "*ESE 36\n", kStored, 0},
    {KVTD_ATTRIBUTE(STANDARD_EVENT_EVENT_REGISTER), 1150014, Int32Exports{READ(StandardEventEventRegister)}, "*ESR?\n",
     "128\n", 128, 0, "", kFixed, 0},
    {KVTD_ATTRIBUTE(STATUS_BYTE_ENABLE_REGISTER), 1150015, Int32Exports{BOTH(StatusByteEnableRegister)}, "*SRE?\n",
     "191\n", 191, 48, "*SRE 48\n", kStored, 0},
    {KVTD_ATTRIBUTE(STATUS_BYTE_EVENT_REGISTER), 1150016, Int32Exports{READ(StatusByteEventRegister)}, "*STB?\n",
     "68\n", 68, 0, "", kFixed, 0},
};

}  // namespace

KVTD_INSTANTIATE_ATTRIBUTES(Registers, kRegisters);

namespace {

class ResetDialogue : public ServiceDialogue {
 protected:
  // What the session remembers shows when it is switched to simulation.
  void RememberAPeriod() {
    Sent(":PULS:PER 5\n");
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseInternalPeriod(vi, 5));
  }
  ViReal64 RememberedPeriod() {
    SwitchToSimulation(true);
    ViReal64 period = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPulseInternalPeriod(vi, &period));
    SwitchToSimulation(false);
    return period;
  }
};
using SimulatedReset = SimulatedService;

constexpr ViInt32 kDefaultTimeout = 2000;

TEST_F(ResetDialogue, AResetWaitsUntilItIsDoneAndForgetsTheAttributes) {
  RememberAPeriod();
  Script(R"(
    > *RST
    > *OPC?
    < 1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_EQ(0.0, RememberedPeriod());
}

TEST_F(ResetDialogue, AResetDoesNotLookAtTheValueOfItsCompletion) {
  Script(R"(
    > *RST
    > *OPC?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
}

TEST_F(ResetDialogue, AResetAsksForTheStatusOnceBehindItsCompletion) {
  QueryInstrumentStatus(true);
  Script(R"(
    > *RST
    > *OPC?
    < 1
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
}

TEST_F(ResetDialogue, AResetThatTheInstrumentRefusesKeepsTheAttributesAndTheTimeout) {
  SetIoTimeout(4321);
  RememberAPeriod();
  QueryInstrumentStatus(true);
  Script(R"(
    > *RST
    > *OPC?
    < 1
    > *ESR?
    < 8
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_reset(vi));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
  EXPECT_EQ(4321, IoTimeout());
  EXPECT_EQ(5, RememberedPeriod());
}

TEST_F(ResetDialogue, AResetThatIsCutOffKeepsTheAttributesAndTheTimeout) {
  SetIoTimeout(4321);
  RememberAPeriod();
  Script(R"(
    > *RST
    > *OPC?
    ! close
  )");
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_reset(vi));
  EXPECT_EQ(4321, IoTimeout());
  EXPECT_EQ(5, RememberedPeriod());
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_reset(vi));
  EXPECT_EQ(4321, IoTimeout());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ResetDialogue, AResetRunsWithATimeoutOfItsOwn) {
  SetIoTimeout(20);
  Script(R"(
    > *RST
    > *OPC?
    ! pause 150
    < 1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_reset(vi));
  EXPECT_EQ(20, IoTimeout());
}

TEST_F(ResetDialogue, AResetWithDefaultsPutsTheOptionsBackToWhereTheyBegan) {
  const auto set = [this](ViAttr id, ViBoolean value) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, id, value));
  };
  set(KVTD481X2C_ATTR_CACHE, VI_FALSE);
  set(KVTD481X2C_ATTR_RANGE_CHECK, VI_FALSE);
  set(KVTD481X2C_ATTR_RECORD_COERCIONS, VI_TRUE);
  set(KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS, VI_TRUE);
  Script(R"(
    > *RST
    > *OPC?
    < 1
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetWithDefaults(vi));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_CACHE));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_RANGE_CHECK));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_RECORD_COERCIONS));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS));
}

TEST_F(ResetDialogue, ARefusedResetWithDefaultsLeavesTheOptions) {
  QueryInstrumentStatus(true);
  Script(R"(
    > *RST
    > *OPC?
    < 1
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_ResetWithDefaults(vi));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS));
}

TEST_F(ResetDialogue, InvalidatingSendsNothingAndTheNextReadAsksTheInstrument) {
  RememberAPeriod();
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  Asked(":PULS:PER?", "6");
  ViReal64 period = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPulseInternalPeriod(vi, &period));
  EXPECT_EQ(6, period);
}

TEST_F(ResetDialogue, TheLargerResetsAndAShutdownAskNothingAfterwards) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :SYST:DEF:RES:MAST
    > :SYST:DEF:RES:FACT
    > :SYST:SHUT
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetAll(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_FactoryReset(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_Shutdown(vi));
}

TEST_F(ResetDialogue, OnlyTheOrdinaryResetForgetsTheAttributes) {
  RememberAPeriod();
  Script(R"(
    > :SYST:DEF:RES:MAST
    > :SYST:DEF:RES:FACT
    > :SYST:DEF:RES:DATA USER
    > :SYST:PRES
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetAll(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_FactoryReset(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetSystemFiles(vi, 0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SystemPreset(vi));
  EXPECT_EQ(5, RememberedPeriod());
}

TEST_F(ResetDialogue, SimpleActionsSendTheirCommandAndAskForTheStatus) {
  ExpectCheckedAction(":STAT:PRES\n", [this] { return KVTD481X2C_StatusPreset(vi); });
  ExpectCheckedAction("*CLS\n", [this] { return KVTD481X2C_ClearStatus(vi); });
  ExpectCheckedAction(":SYST:REB\n", [this] { return KVTD481X2C_Reboot(vi); });
  ExpectCheckedAction("*OPC\n", [this] { return KVTD481X2C_SetOperationComplete(vi); });
  ExpectCheckedAction("*WAI\n", [this] { return KVTD481X2C_WaitToContinue(vi); });
  ExpectCheckedAction(":SYST:DEF:RES:DATA USER\n", [this] { return KVTD481X2C_ResetSystemFiles(vi, 0); });
  ExpectCheckedAction(":SYST:DEF:RES:DATA SYSTem\n", [this] { return KVTD481X2C_ResetSystemFiles(vi, 1); });
}

TEST_F(ResetDialogue, AScopeThatNobodyKnowsSendsNothing) {
  EXPECT_STATUS(kCannotRecover, KVTD481X2C_ResetSystemFiles(vi, 2));
  EXPECT_EQ("Failure cannot recover.  Could not convert defined value '2' to an instrument command.", LastErrorText());
}

TEST_F(ResetDialogue, WhatCannotBeSentComesBackAsVisaTellsIt) {
  LoseTheConnection();
  for (const auto operation :
       {&KVTD481X2C_ResetAll, &KVTD481X2C_FactoryReset, &KVTD481X2C_Shutdown, &KVTD481X2C_StatusPreset,
        &KVTD481X2C_ClearStatus, &KVTD481X2C_Reboot, &KVTD481X2C_SetOperationComplete, &KVTD481X2C_WaitToContinue,
        &KVTD481X2C_WaitForOperationComplete, &KVTD481X2C_ResetWithDefaults}) {
    EXPECT_STATUS(kVisaConnectionLost, operation(vi));
  }
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_ResetSystemFiles(vi, 0));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ResetDialogue, WaitingForCompletionDemandsAOne) {
  QueryInstrumentStatus(true);
  Script(R"(
    > *OPC?
    < 1
    > *ESR?
    < 0
    > *OPC?
    < 1
    > *ESR?
    < 32
    > *OPC?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_WaitForOperationComplete(vi));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_WaitForOperationComplete(vi));
  EXPECT_STATUS(kUnexpectedResponse, KVTD481X2C_WaitForOperationComplete(vi));
  EXPECT_EQ((RecordedError{kUnexpectedResponse, "Unexpected response from instrument."}), LastError());
}

TEST_F(ResetDialogue, WaitingForCompletionLastsAsLongAsTheTimeout) {
  SetIoTimeout(50);
  Script("> *OPC?");
  EXPECT_STATUS(kVisaTimeout, KVTD481X2C_WaitForOperationComplete(vi));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ResetDialogue, ASystemPresetRunsWithAtLeastTenSeconds) {
  SetIoTimeout(50);
  QueryInstrumentStatus(true);
  Script(R"(
    > :SYST:PRES
    > *ESR?
    ! pause 200
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SystemPreset(vi));
  EXPECT_EQ(50, IoTimeout());
}

// Without an end it reads as -1, and that is below every limit.
TEST_F(ResetDialogue, ATimeoutWithoutEndIsReplacedForASystemPresetAndComesBack) {
  SetIoTimeout(-1);
  Script("> :SYST:PRES");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SystemPreset(vi));
  EXPECT_EQ(-1, IoTimeout());
}

TEST_F(ResetDialogue, ARestoredTimeoutHidesTheRefusalOfASystemPreset) {
  SetIoTimeout(5000);
  QueryInstrumentStatus(true);
  Script(R"(
    > :SYST:PRES
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SystemPreset(vi));
  EXPECT_EQ(5000, IoTimeout());
}

TEST_F(ResetDialogue, ATimeoutThatIsLongEnoughLeavesTheRefusalOfASystemPreset) {
  for (const ViInt32 timeout : {10000, 20000}) {
    QueryInstrumentStatus(true);
    SetIoTimeout(timeout);
    Script(R"(
      > :SYST:PRES
      > *ESR?
      < 16
    )");
    EXPECT_STATUS(kInstrumentError, KVTD481X2C_SystemPreset(vi));
    EXPECT_EQ(kInstrumentErrorText, LastErrorText());
    EXPECT_EQ(timeout, IoTimeout());
  }
}

TEST_F(ResetDialogue, ASystemPresetThatCannotBeSentLeavesTheTimeoutRaised) {
  SetIoTimeout(9999);
  LoseTheConnection();
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_SystemPreset(vi));
  EXPECT_EQ(10000, IoTimeout());
}

TEST_F(ResetDialogue, ASelfTestThatPassesSaysSo) {
  QueryInstrumentStatus(true);
  Script(R"(
    > *TST?
    < 0
    > *ESR?
    < 0
  )");
  ViInt16 result = 77;
  GuardedText<256> message;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_self_test(vi, &result, message.data()));
  EXPECT_EQ(0, result);
  EXPECT_EQ("Selftest passed", message.text());
}

TEST_F(ResetDialogue, ASelfTestThatFailsIsNoFailureOfTheCall) {
  struct Result {
    const char* answer;
    ViInt16 value;
  };
  for (const auto& [answer, value] : {Result{"3", 3}, Result{"-1", -1}, Result{"+32767", 32767}}) {
    Asked("*TST?", answer);
    ViInt16 result = 77;
    GuardedText<256> message;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_self_test(vi, &result, message.data()));
    EXPECT_EQ(value, result);
    EXPECT_EQ("Selftest failed", message.text());
  }
}

TEST_F(ResetDialogue, ASelfTestThatTheInstrumentRefusesWritesNoMessage) {
  SetIoTimeout(7777);
  QueryInstrumentStatus(true);
  Script(R"(
    > *TST?
    < 0
    > *ESR?
    < 16
  )");
  ViInt16 result = 77;
  GuardedText<256> message;
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_self_test(vi, &result, message.data()));
  EXPECT_TRUE(message.Untouched());
  EXPECT_EQ(7777, IoTimeout());
}

TEST_F(ResetDialogue, ASelfTestThatIsCutOffWritesNoMessageAndKeepsTheTimeout) {
  SetIoTimeout(7777);
  Script(R"(
    > *TST?
    ! close
  )");
  ViInt16 result = 77;
  GuardedText<256> message;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_self_test(vi, &result, message.data()));
  EXPECT_EQ(77, result);
  EXPECT_TRUE(message.Untouched());
  EXPECT_EQ(7777, IoTimeout());
}

TEST_F(ResetDialogue, ASelfTestRunsWithATimeoutOfItsOwn) {
  SetIoTimeout(20);
  Script(R"(
    > *TST?
    ! pause 150
    < 0
  )");
  ViInt16 result = 77;
  GuardedText<256> message;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_self_test(vi, &result, message.data()));
  EXPECT_EQ(20, IoTimeout());
}

TEST_F(ResetDialogue, ASelfTestIntoNothingIsRefusedByTheFirstNullParameter) {
  ViInt16 result = 77;
  GuardedText<256> message;
  EXPECT_STATUS(kNullPointer, KVTD481X2C_self_test(vi, nullptr, message.data()));
  EXPECT_EQ(NullPointerError("KVTD481X2C_self_test", "TestResult"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_self_test(vi, &result, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_self_test", "TestMessage"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_self_test(vi, nullptr, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_self_test", "TestResult"), LastError());
  EXPECT_EQ(77, result);
  EXPECT_TRUE(message.Untouched());
}

TEST_F(ResetDialogue, TheExtendedSelfTestReadsOneLine) {
  SetIoTimeout(10000);
  ExpectTextQuery(":TEST:SELF?", "KVTD481X2C_SelfTest", "Val", &KVTD481X2C_SelfTest);
}

TEST_F(ResetDialogue, TheExtendedSelfTestRunsWithAtLeastTenSeconds) {
  SetIoTimeout(50);
  Script(R"(
    > :TEST:SELF?
    ! pause 200
    < PASS
  )");
  GuardedText<16> report;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SelfTest(vi, report.size(), report.data()));
  EXPECT_EQ("PASS", report.text());
  EXPECT_EQ(50, IoTimeout());
}

TEST_F(ResetDialogue, ARestoredTimeoutHidesTheRefusalOfTheExtendedSelfTest) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :TEST:SELF?
    < FAIL
    > *ESR?
    < 8
  )");
  GuardedText<16> report;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SelfTest(vi, report.size(), report.data()));
  EXPECT_EQ("FAIL", report.text());
  EXPECT_EQ(kDefaultTimeout, IoTimeout());
}

TEST_F(ResetDialogue, AnExtendedSelfTestThatIsCutOffLeavesTheTimeoutRaised) {
  Script(R"(
    > :TEST:SELF?
    ! close
  )");
  std::array<ViChar, 16> report{};
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_SelfTest(vi, 16, report.data()));
  EXPECT_EQ(10000, IoTimeout());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ResetDialogue, OperationsRefuseAHandleThatIsNotOpen) {
  ViInt16 result = 77;
  GuardedText<256> message;
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    for (const auto operation :
         {&KVTD481X2C_reset, &KVTD481X2C_ResetWithDefaults, &KVTD481X2C_ResetAll, &KVTD481X2C_FactoryReset,
          &KVTD481X2C_StatusPreset, &KVTD481X2C_SystemPreset, &KVTD481X2C_ClearStatus, &KVTD481X2C_Reboot,
          &KVTD481X2C_Shutdown, &KVTD481X2C_SetOperationComplete, &KVTD481X2C_WaitToContinue,
          &KVTD481X2C_WaitForOperationComplete, &KVTD481X2C_InvalidateAllAttributes}) {
      EXPECT_STATUS(kInvalidHandle, operation(handle));
    }
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ResetSystemFiles(handle, 0));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_self_test(handle, &result, message.data()));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_self_test(handle, nullptr, message.data()));
  }
  EXPECT_EQ(77, result);
  EXPECT_TRUE(message.Untouched());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedReset, AResetForgetsWhatWasSet) {
  ViInt32 mask = 77;
  for (const auto reset : {&KVTD481X2C_reset, &KVTD481X2C_ResetWithDefaults, &KVTD481X2C_InvalidateAllAttributes}) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetOperationEnableRegister(vi, 9));
    EXPECT_STATUS(VI_SUCCESS, reset(vi));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetOperationEnableRegister(vi, &mask));
    EXPECT_EQ(0, mask);
  }
}

TEST_F(SimulatedReset, AResetWithDefaultsPutsTheOptionsBack) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_CACHE, VI_FALSE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetWithDefaults(vi));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_CACHE));
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
}

TEST_F(SimulatedReset, EveryOtherActionSucceedsAndKeepsWhatWasSet) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetOperationEnableRegister(vi, 9));
  for (const auto operation :
       {&KVTD481X2C_ResetAll, &KVTD481X2C_FactoryReset, &KVTD481X2C_StatusPreset, &KVTD481X2C_SystemPreset,
        &KVTD481X2C_ClearStatus, &KVTD481X2C_Reboot, &KVTD481X2C_Shutdown, &KVTD481X2C_SetOperationComplete,
        &KVTD481X2C_WaitToContinue, &KVTD481X2C_WaitForOperationComplete}) {
    EXPECT_STATUS(VI_SUCCESS, operation(vi));
  }
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetSystemFiles(vi, 99));
  ViInt32 mask = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetOperationEnableRegister(vi, &mask));
  EXPECT_EQ(9, mask);
}

TEST_F(SimulatedReset, ASelfTestPasses) {
  ViInt16 result = 77;
  GuardedText<256> message;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_self_test(vi, &result, message.data()));
  EXPECT_EQ(0, result);
  EXPECT_EQ("Selftest passed", message.text());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_self_test(vi, &result, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_self_test", "TestMessage"), LastError());
}

TEST_F(SimulatedReset, TheExtendedSelfTestSucceedsAndWritesNothing) {
  ExpectUnwritten("KVTD481X2C_SelfTest", "Val", &KVTD481X2C_SelfTest);
}

}  // namespace
}  // namespace kvtd::test
