// How failures are told: the table of texts, the recorded error, the status check, and the instrument's own queue.

#include <stdexcept>

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

class ErrorsDialogue : public DriverDialogue {
 protected:
  // One reading of the instrument's error queue, answered with these bytes.
  ViStatus ErrorQuery(const std::string& answer) {
    Sent(":SYST:ERR?\n");
    Answer(answer);
    code = 77;
    return KVTD481X2C_error_query(vi, &code, message.data());
  }

  ViInt32 code = 77;
  GuardedText<256> message;
};

class SimulatedErrors : public SimulatedDriver {};

// ---- the table ----

struct TableText {
  unsigned int status;
  const char* text;
};

const TableText kTexts[] = {
    {0xBFFA4214, "I/O error."},
    {0xBFFA4215, "I/O timeout error."},
    {0xBFFA0000, "Failure cannot recover."},
    {0xBFFA0001, "Instrument error detected.  Use ErrorQuery() to determine the error(s)."},
    {0xBFFA0002, "Cannot open file."},
    {0xBFFA0003, "Error reading file."},
    {0xBFFA0004, "Error writing file."},
    {0xBFFA000B, "The pathname is invalid."},
    {0xBFFA000C, "Attribute ID '%s' not recognized."},
    {0xBFFA000D, "Attribute '%s' is read-only."},
    {0xBFFA000E, "Attribute '%s' is write-only."},
    {0xBFFA0010, "Invalid value '%s' for function '%s', parameter '%s'."},
    {0xBFFA0011, "Does not support this class-compliant feature: function '%s'"},
    {0xBFFA0012, "Does not support this class-compliant feature: attribute '%s'."},
    {0xBFFA0013,
     "Does not support this class-compliant feature:  Enumeration value '%s' passed as the value for parameter '%s' in "
     "function '%s'."},
    {0xBFFA0015, "%sAttribute%s called for attribute '%s' of type '%s'."},
    {0xBFFA001D, "A connection to the instrument has not been established."},
    {0xBFFA0020, "Unknown channel name."},
    {0xBFFA0023, "Too many files are open."},
    {0xBFFA0044, "A channel name is required."},
    {0xBFFA0049, "The option string is missing an option name."},
    {0xBFFA004A, "The option string is missing an option value."},
    {0xBFFA004B, "The '%s' name in the option string is unknown."},
    {0xBFFA004C, "The '%s' value in the option string is unknown."},
    {0xBFFA0056, "Could not allocate necessary memory."},
    {0xBFFA0057, "Operation in progress."},
    {0xBFFA0058, "Null pointer passed for function '%s', parameter '%s'."},
    {0xBFFA0059, "Unexpected response from instrument."},
    {0xBFFA005B, "File not found."},
    {0xBFFA005C, "Invalid file format."},
    {0xBFFA005D, "The instrument status is not available."},
    {0xBFFA005E, "Instrument ID query failed."},
    {0xBFFA005F, "Instrument reset failed."},
    {0xBFFA0060, "Unknown resource."},
    {0xBFFA0061, "The driver is already initialized."},
    {0xBFFA0062, "The simulation state cannot be changed."},
    {0xBFFA0063, "The number of levels in the selector is not valid for the '%s' repeated capability."},
    {0xBFFA0064, "The range '%s' is not valid for the repeated capability '%s'."},
    {0xBFFA0065, "Unknown name in selector."},
    {0xBFFA0066, "The repeated capability selector is badly-formed."},
    {0xBFFA0067, "Unknown physical repeated capability selector."},
    {0xBFFA1190, "Invalid session handle."},
    {0xBFFA1001, "The trigger source is not set to software trigger."},
    {0xBFFA2003, "Maximum time exceeded before the operation completed."},
    {0xBFFA200A, "The selected list is not defined."},
    {0x3FFA0065, "ID Query is not supported by this instrument."},
    {0x3FFA0066, "Reset is not supported by this instrument."},
    {0x3FFA0067, "Self test is not supported by this instrument."},
    {0x3FFA0068, "Error query is not supported by this instrument."},
    {0x3FFA0069, "Firmware revision query is not supported by this instrument."},
};

TEST_F(SimulatedErrors, EveryCodeHasItsTextWithAndWithoutASession) {
  for (const TableText& row : kTexts) {
    for (const ViSession handle : {vi, ViSession{0}, ViSession{0xDEADBEEF}}) {
      GuardedText<256> text;
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_error_message(handle, Status(row.status), text.data()));
      EXPECT_EQ(row.text, text.text());
    }
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedErrors, ACodeThatIsNotTheDriversIsRefusedAndRecorded) {
  GuardedText<256> text;
  EXPECT_STATUS(kInvalidValue, KVTD481X2C_error_message(vi, kVisaTimeout, text.data()));
  EXPECT_EQ((RecordedError{kInvalidValue,
                           "Invalid value '-1073807339' for function 'error_message', parameter 'ErrorCode'.  The "
                           "error code supplied is not defined by the driver."}),
            LastError());
  EXPECT_STATUS(kInvalidValue, KVTD481X2C_error_message(vi, 0, text.data()));
  EXPECT_EQ(
      "Invalid value '0' for function 'error_message', parameter 'ErrorCode'.  The error code supplied is not defined "
      "by the driver.",
      LastErrorText());
  EXPECT_TRUE(text.Untouched());
}

TEST_F(SimulatedErrors, ACodeThatIsNotTheDriversIsRefusedWithoutASessionAndNothingIsRecorded) {
  GuardedText<256> text;
  EXPECT_EQ(kNothingRecorded, ErrorOf(0));
  EXPECT_STATUS(kInvalidValue, KVTD481X2C_error_message(0, kVisaTimeout, text.data()));
  EXPECT_TRUE(text.Untouched());
  EXPECT_EQ(kNothingRecorded, ErrorOf(0));
}

TEST_F(SimulatedErrors, ANullBufferIsRefusedForAKnownCodeToo) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_error_message(vi, kUnknownAttribute, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_error_message', parameter 'ErrorMessage'.", LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_error_message(vi, kVisaTimeout, nullptr));
  EXPECT_STATUS(kNullPointer, KVTD481X2C_error_message(0, kUnknownAttribute, nullptr));
}

// ---- the recorded error ----

TEST_F(SimulatedErrors, ReadingTheErrorForgetsIt) {
  EXPECT_STATUS(kReadOnly, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_RF_OUTPUT_IMPEDANCE, 1));
  EXPECT_EQ((RecordedError{kReadOnly, "Attribute 'KVTD481X2C_ATTR_RF_OUTPUT_IMPEDANCE' is read-only."}), LastError());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedErrors, TheSizeQueryTellsTheSizeAndForgetsNothing) {
  EXPECT_STATUS(kSimulationCannotChange,
                KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, VI_FALSE));
  ViStatus code = 0;
  const std::string text = "The simulation state cannot be changed.";
  EXPECT_STATUS(static_cast<ViStatus>(text.size() + 1), KVTD481X2C_GetError(vi, &code, 0, nullptr));
  EXPECT_EQ((RecordedError{kSimulationCannotChange, text}), LastError());
}

TEST_F(SimulatedErrors, ACutTextIsTerminatedAndStaysToBeReadWhole) {
  EXPECT_STATUS(kSimulationCannotChange,
                KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, VI_FALSE));
  ViStatus code = 0;
  GuardedText<4> cut;
  EXPECT_LT(0, KVTD481X2C_GetError(vi, &code, cut.size(), cut.data()));
  EXPECT_EQ("The", cut.text());
  EXPECT_EQ(kSimulationCannotChange, code);
  EXPECT_EQ("The simulation state cannot be changed.", LastErrorText());
}

TEST_F(SimulatedErrors, ClearingForgetsTheError) {
  EXPECT_STATUS(kSimulationCannotChange,
                KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, VI_FALSE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ClearError(vi));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedErrors, ALaterErrorReplacesTheEarlierOneAndASuccessDoesNot) {
  EXPECT_STATUS(kSimulationCannotChange,
                KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, VI_FALSE));
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViInt32(vi, nullptr, 5, 1));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 1.0));
  EXPECT_EQ("Attribute ID '5' not recognized.", LastErrorText());
}

TEST_F(SimulatedErrors, AStatusThatVisaGivesLeavesTheRecordedErrorAsItWas) {
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViInt32(vi, nullptr, 5, 1));
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, 1));
  EXPECT_EQ("Attribute ID '5' not recognized.", LastErrorText());
}

TEST_F(SimulatedErrors, SessionsKeepTheirErrorsApart) {
  const ViSession first = vi;
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1"));
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViInt32(vi, nullptr, 5, 1));
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViInt32(first, nullptr, 6, 1));
  EXPECT_EQ("Attribute ID '5' not recognized.", LastErrorText());
  Close();
  vi = first;
  EXPECT_EQ("Attribute ID '6' not recognized.", LastErrorText());
}

// ---- the status check ----

TEST_F(ErrorsDialogue, OnlyTheFourErrorBitsOfTheRegisterAreErrors) {
  QueryInstrumentStatus(true);
  struct Register {
    const char* value;
    ViStatus status;
  };
  for (const auto& [value, status] :
       {Register{"0\n", VI_SUCCESS}, Register{"1\n", VI_SUCCESS}, Register{"2\n", VI_SUCCESS},
        Register{"4\n", kInstrumentError}, Register{"8\n", kInstrumentError}, Register{"16\n", kInstrumentError},
        Register{"32\n", kInstrumentError}, Register{"64\n", VI_SUCCESS}, Register{"128\n", VI_SUCCESS},
        Register{"195\n", VI_SUCCESS}, Register{"60\n", kInstrumentError}, Register{"+255\n", kInstrumentError}}) {
    Sent(":FREQ:MULT 1 HZ\n");
    Sent("*ESR?\n");
    Answer(value);
    EXPECT_STATUS(status, KVTD481X2C_SetFrequencyMultiplier(vi, 1.0)) << value;
    EXPECT_EQ(status == VI_SUCCESS ? "" : kInstrumentErrorText, LastErrorText());
  }
}

TEST_F(ErrorsDialogue, WithTheStatusQueryOffARefusedCommandGoesUnreported) {
  Script("> :FREQ:MULT 99 HZ");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 99.0));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ErrorsDialogue, AStatusCheckThatFailsComesBackAsVisaTellsIt) {
  QueryInstrumentStatus(true);
  Script(R"(
    > :FREQ:MULT 1 HZ
    > *ESR?
    ! close
  )");
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_SetFrequencyMultiplier(vi, 1.0));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(ErrorsDialogue, ATimeoutComesBackWithinItsTimeAndNothingIsRecorded) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, 50));
  Script("> :FREQ:MULT?");
  ViReal64 value = 77;
  const Clock::time_point start = Clock::now();
  EXPECT_STATUS(kVisaTimeout, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_LT(Clock::now() - start, Milliseconds(50 + 1000));
  EXPECT_GE(Clock::now() - start, Milliseconds(50));
  EXPECT_EQ(kNothingRecorded, LastError());
}

// ---- the instrument's own queue ----

TEST_F(ErrorsDialogue, TheQueueGivesACodeAndAMessageWithoutItsQuotes) {
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("0,\"No error\"\n"));
  EXPECT_EQ(0, code);
  EXPECT_EQ("No error", message.text());
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("+0,\"No error\"\n"));
  EXPECT_EQ(0, code);
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("-222,\"Data out of range;FREQ 9E99\"\n"));
  EXPECT_EQ(-222, code);
  EXPECT_EQ("Data out of range;FREQ 9E99", message.text());
}

TEST_F(ErrorsDialogue, BlanksAndQuotesAroundThePartsAreTakenAway) {
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery(" \t -113 , \"Undefined header\" \r\n"));
  EXPECT_EQ(-113, code);
  EXPECT_EQ("Undefined header", message.text());
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("\"-350,Queue overflow\"\n"));
  EXPECT_EQ(-350, code);
  EXPECT_EQ("Queue overflow", message.text());
}

TEST_F(ErrorsDialogue, OnlyTheFirstCommaParts) {
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("7,\"one, two, three\"\n"));
  EXPECT_EQ(7, code);
  EXPECT_EQ("one, two, three", message.text());
}

TEST_F(ErrorsDialogue, TheCodeEndsAtTheFirstCharacterThatIsNoDigit) {
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("12abc,\"x\"\n"));
  EXPECT_EQ(12, code);
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("3.9,\"x\"\n"));
  EXPECT_EQ(3, code);
}

TEST_F(ErrorsDialogue, AResponseWithoutACommaIsUnexpectedAndLeavesTheOutputsAlone) {
  EXPECT_STATUS(kUnexpectedResponse, ErrorQuery("No error\n"));
  EXPECT_EQ(77, code);
  EXPECT_TRUE(message.Untouched());
  EXPECT_EQ(
      "Unexpected response from instrument.  Failed to parse the response to the SYST:ERR? query.  The response is "
      "expected to be a comma-separated list of 2 items in the form '<error code>,<error message>'.",
      LastErrorText());
}

TEST_F(ErrorsDialogue, AnEmptyMessageIsTheEmptyText) {
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("5,\n"));
  EXPECT_EQ(5, code);
  EXPECT_EQ("", message.text());
}

TEST_F(ErrorsDialogue, TheQueueIsReadWithoutAStatusCheck) {
  QueryInstrumentStatus(true);
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("0,\"No error\"\n"));
}

TEST_F(ErrorsDialogue, AMessageThatIsLongerThanTheBufferNeverRunsOverIt) {
  const ViStatus status = ErrorQuery("-1,\"" + std::string(5000, 'x') + "\"\n");
  EXPECT_TRUE(message.Intact());
  if (status >= VI_SUCCESS) {
    EXPECT_LE(message.text().size(), 255U);
  }
  instrument.AnswerAlways(":FREQ:MULT?", "3");
  ViReal64 value = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(3.0, value);
}

// The driver turns no exception into a status: a code that is no number, or none of 32 bits, leaves the call as one.
TEST_F(ErrorsDialogue, ACodeThatIsNoNumberLeavesTheCallAsAnExceptionAndReleasesTheSession) {
  EXPECT_THROW(ErrorQuery("none,\"x\"\n"), std::invalid_argument);
  EXPECT_THROW(ErrorQuery("99999999999,\"x\"\n"), std::out_of_range);
  EXPECT_TRUE(message.Untouched());
  EXPECT_STATUS(VI_SUCCESS, ErrorQuery("1,\"x\"\n"));
}

TEST_F(ErrorsDialogue, NullOutputsAreRefusedByName) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_error_query(vi, nullptr, message.data()));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_error_query', parameter 'ErrorCode'.", LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_error_query(vi, &code, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_error_query', parameter 'ErrorMessage'.", LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_error_query(vi, nullptr, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_error_query', parameter 'ErrorCode'.", LastErrorText());
}

TEST_F(ErrorsDialogue, AHandleThatIsNotOpenIsToldBeforeTheNullOutputs) {
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_error_query(0, nullptr, nullptr));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_error_query(0xDEADBEEF, &code, message.data()));
  EXPECT_EQ(77, code);
  EXPECT_TRUE(message.Untouched());
}

TEST_F(ErrorsDialogue, ALostConnectionComesBackFromTheQueueAsVisaTellsIt) {
  Script(R"(
    > :SYST:ERR?
    ! close
  )");
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_error_query(vi, &code, message.data()));
  EXPECT_EQ(77, code);
  EXPECT_TRUE(message.Untouched());
}

TEST_F(SimulatedErrors, TheQueueOfASimulatedSessionIsEmpty) {
  ViInt32 code = 77;
  GuardedText<256> message;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_error_query(vi, &code, message.data()));
  EXPECT_EQ(0, code);
  EXPECT_EQ("No error.", message.text());
}

}  // namespace
}  // namespace kvtd::test
