// The generic accessors: which call an attribute accepts, in which order calls are refused, how texts are cut, and the
// options that every session has.

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

constexpr ViInt32 kLongestText = 4096;

class AttributeAccessDialogue : public DriverDialogue {};
class SimulatedAttributes : public SimulatedDriver {};

// ---- refusals, in their order ----

TEST_F(AttributeAccessDialogue, AnUnknownIdIsRefusedByEveryAccessor) {
  ViBoolean boolean = 77;
  ViInt32 integer = 77;
  ViReal64 real = 77;
  ViSession session = 77;
  GuardedText<8> text;
  const RecordedError refused{kUnknownAttribute, "Attribute ID '1234' not recognized."};
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, 1234, &boolean));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViInt32(vi, nullptr, 1234, &integer));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViReal64(vi, nullptr, 1234, &real));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViSession(vi, nullptr, 1234, &session));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViString(vi, nullptr, 1234, text.size(), text.data()));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, 1234, VI_TRUE));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViInt32(vi, nullptr, 1234, 1));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViReal64(vi, nullptr, 1234, 1));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViSession(vi, nullptr, 1234, 1));
  EXPECT_EQ(refused, LastError());
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_SetAttributeViString(vi, nullptr, 1234, "x"));
  EXPECT_EQ(refused, LastError());
  EXPECT_EQ(77, boolean);
  EXPECT_EQ(77, integer);
  EXPECT_EQ(77, real);
  EXPECT_EQ(77U, session);
  EXPECT_TRUE(text.Untouched());
}

TEST_F(AttributeAccessDialogue, AnUnknownIdIsToldAsAnUnsignedNumber) {
  ViInt32 value = 0;
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViInt32(vi, nullptr, 0xFFFFFFFF, &value));
  EXPECT_EQ("Attribute ID '4294967295' not recognized.", LastErrorText());
}

TEST_F(AttributeAccessDialogue, AnotherTypeIsRefusedWithBothTypesInTheText) {
  ViInt32 integer = 77;
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &integer));
  EXPECT_EQ("GetAttributeViInt32 called for attribute 'KVTD481X2C_ATTR_FREQUENCY' of type 'ViReal64'.",
            LastErrorText());
  EXPECT_EQ(77, integer);
  EXPECT_STATUS(kWrongType, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, 1));
  EXPECT_EQ("SetAttributeViInt32 called for attribute 'KVTD481X2C_ATTR_FREQUENCY' of type 'ViReal64'.",
            LastErrorText());
  ViReal64 real = 77;
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_POWER_LIMIT_ENABLED, &real));
  EXPECT_EQ("GetAttributeViReal64 called for attribute 'KVTD481X2C_ATTR_POWER_LIMIT_ENABLED' of type 'ViBoolean'.",
            LastErrorText());
  ViBoolean boolean = 77;
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY_MODE, &boolean));
  EXPECT_EQ("GetAttributeViBoolean called for attribute 'KVTD481X2C_ATTR_FREQUENCY_MODE' of type 'ViInt32'.",
            LastErrorText());
  ViSession session = 77;
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViSession(vi, nullptr, KVTD481X2C_ATTR_DRIVER_SETUP, &session));
  EXPECT_EQ("GetAttributeViSession called for attribute 'KVTD481X2C_ATTR_DRIVER_SETUP' of type 'ViString'.",
            LastErrorText());
  GuardedText<8> text;
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_SYSTEM_IO_SESSION, text.size(),
                                                            text.data()));
  EXPECT_EQ("GetAttributeViString called for attribute 'KVTD481X2C_ATTR_SYSTEM_IO_SESSION' of type 'ViSession'.",
            LastErrorText());
  EXPECT_TRUE(text.Untouched());
  EXPECT_STATUS(kWrongType, KVTD481X2C_SetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_POWER_MODE, "FIX"));
  EXPECT_EQ("SetAttributeViString called for attribute 'KVTD481X2C_ATTR_POWER_MODE' of type 'ViInt32'.",
            LastErrorText());
  EXPECT_STATUS(kWrongType, KVTD481X2C_SetAttributeViSession(vi, nullptr, KVTD481X2C_ATTR_POWER_MODE, 1));
  EXPECT_EQ("SetAttributeViSession called for attribute 'KVTD481X2C_ATTR_POWER_MODE' of type 'ViInt32'.",
            LastErrorText());
  EXPECT_STATUS(kWrongType, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_POWER_MODE, VI_TRUE));
  EXPECT_STATUS(kWrongType, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_POWER_MODE, 1));
}

TEST_F(AttributeAccessDialogue, TheTypeIsRefusedBeforeTheDirection) {
  EXPECT_STATUS(kWrongType, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_RF_OUTPUT_IMPEDANCE, 1));
  ViReal64 real = 0;
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY_SWEEP_RANGE, &real));
}

TEST_F(AttributeAccessDialogue, AReadOnlyAttributeCannotBeSet) {
  EXPECT_STATUS(kReadOnly, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_OPERATION_EVENT_REGISTER, 1));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_OPERATION_EVENT_REGISTER' is read-only.", LastErrorText());
  EXPECT_STATUS(kReadOnly, KVTD481X2C_SetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_DRIVER_SETUP, "x"));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_DRIVER_SETUP' is read-only.", LastErrorText());
  EXPECT_STATUS(kReadOnly, KVTD481X2C_SetAttributeViSession(vi, nullptr, KVTD481X2C_ATTR_SYSTEM_IO_SESSION, 1));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_SYSTEM_IO_SESSION' is read-only.", LastErrorText());
}

TEST_F(AttributeAccessDialogue, AWriteOnlyAttributeCannotBeRead) {
  ViInt32 value = 77;
  EXPECT_STATUS(kWriteOnly, KVTD481X2C_GetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY_SWEEP_RANGE, &value));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_FREQUENCY_SWEEP_RANGE' is write-only.", LastErrorText());
  EXPECT_STATUS(kWriteOnly, KVTD481X2C_GetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_POWER_SWEEP_RANGE, &value));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_POWER_SWEEP_RANGE' is write-only.", LastErrorText());
  EXPECT_EQ(77, value);
}

TEST_F(AttributeAccessDialogue, ANullPointerIsRefusedBeforeTheIdAndTheHandleAreLookedAt) {
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViBoolean(vi, nullptr, 1234, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetAttributeViBoolean', parameter 'AttributeValue'.",
            LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViInt32(vi, nullptr, 1234, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetAttributeViInt32', parameter 'AttributeValue'.",
            LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViReal64(vi, nullptr, 1234, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetAttributeViReal64', parameter 'AttributeValue'.",
            LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViSession(vi, nullptr, 1234, nullptr));
  EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_GetAttributeViSession', parameter 'AttributeValue'.",
            LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViInt32(0, nullptr, KVTD481X2C_ATTR_FREQUENCY_MODE, nullptr));
  EXPECT_STATUS(kNullPointer,
                KVTD481X2C_GetAttributeViInt32(0xDEADBEEF, nullptr, KVTD481X2C_ATTR_FREQUENCY_MODE, nullptr));
}

// With a handle that is not open the text is the thread's, found under handle 0.
TEST_F(AttributeAccessDialogue, ANullPointerIsRefusedOnAConstantOfTheDriverAlsoWithAHandleThatIsNotOpen) {
  for (const ViAttr attribute :
       std::initializer_list<ViAttr>{KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION,
                                     KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION}) {
    EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViInt32(0xDEADBEEF, nullptr, attribute, nullptr));
    EXPECT_EQ((RecordedError{kNullPointer,
                             "Null pointer passed for function 'KVTD481X2C_GetAttributeViInt32', parameter "
                             "'AttributeValue'."}),
              ErrorOf(VI_NULL));
  }
  for (const ViAttr attribute : std::initializer_list<ViAttr>{
           KVTD481X2C_ATTR_SUPPORTED_INSTRUMENT_MODELS, KVTD481X2C_ATTR_GROUP_CAPABILITIES,
           KVTD481X2C_ATTR_SPECIFIC_DRIVER_PREFIX, KVTD481X2C_ATTR_SPECIFIC_DRIVER_VENDOR,
           KVTD481X2C_ATTR_SPECIFIC_DRIVER_DESCRIPTION, KVTD481X2C_ATTR_SPECIFIC_DRIVER_REVISION}) {
    EXPECT_STATUS(kNullPointer, KVTD481X2C_GetAttributeViString(0xDEADBEEF, nullptr, attribute, 64, nullptr));
    EXPECT_EQ((RecordedError{kNullPointer,
                             "Null pointer passed for function 'GetAttributeViString', parameter "
                             "'AttributeValueBufferSize'."}),
              ErrorOf(VI_NULL));
  }
}

TEST_F(AttributeAccessDialogue, IdAndTypeAreRefusedBeforeTheHandleIsLookedAt) {
  ViInt32 value = 0;
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViInt32(0, nullptr, 1234, &value));
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViInt32(0, nullptr, KVTD481X2C_ATTR_FREQUENCY, &value));
  EXPECT_STATUS(kReadOnly, KVTD481X2C_SetAttributeViInt32(0, nullptr, KVTD481X2C_ATTR_OPERATION_EVENT_REGISTER, 0));
  EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViInt32(0, nullptr, KVTD481X2C_ATTR_FREQUENCY_MODE, &value));
}

TEST_F(AttributeAccessDialogue, EveryInherentAttributeRefusesAHandleThatIsNotOpen) {
  static constexpr ViAttr kFlags[] = {
      KVTD481X2C_ATTR_RANGE_CHECK, KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS, KVTD481X2C_ATTR_CACHE,
      KVTD481X2C_ATTR_SIMULATE,    KVTD481X2C_ATTR_RECORD_COERCIONS,        KVTD481X2C_ATTR_INTERCHANGE_CHECK};
  for (const ViAttr attribute : kFlags) {
    ViBoolean value = 77;
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViBoolean(0, nullptr, attribute, &value));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SetAttributeViBoolean(0, nullptr, attribute, VI_FALSE));
    EXPECT_EQ(77, value);
  }
  static constexpr ViAttr kTexts[] = {KVTD481X2C_ATTR_DRIVER_SETUP,
                                      KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR,
                                      KVTD481X2C_ATTR_LOGICAL_NAME,
                                      KVTD481X2C_ATTR_INSTRUMENT_MODEL,
                                      KVTD481X2C_ATTR_INSTRUMENT_MANUFACTURER,
                                      KVTD481X2C_ATTR_INSTRUMENT_FIRMWARE_REVISION};
  for (const ViAttr attribute : kTexts) {
    GuardedText<32> text;
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetAttributeViString(0, nullptr, attribute, text.size(), text.data()));
    EXPECT_TRUE(text.Untouched());
  }
}

// ---- texts ----

class TextDialogue : public DriverDialogue {
 protected:
  // One reading of the host name, answered with this text.
  template <std::size_t N>
  ViStatus ReadHostName(const std::string& answer, GuardedText<N>& text, ViInt32 size) {
    Sent(":SYST:COMM:LAN:HOST?\n");
    Answer(answer + '\n');
    return KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_LAN_HOSTNAME, size, text.data());
  }
};

TEST_F(TextDialogue, ABufferWithRoomToSpareGivesTheTextAndSuccess) {
  GuardedText<11> text;
  EXPECT_STATUS(VI_SUCCESS, ReadHostName("generator", text, text.size()));
  EXPECT_EQ("generator", text.text());
}

TEST_F(TextDialogue, ABufferThatIsJustFilledTellsTheSizeToOffer) {
  GuardedText<10> text;
  EXPECT_STATUS(kLongestText, ReadHostName("generator", text, text.size()));
  EXPECT_EQ("generator", text.text());
}

TEST_F(TextDialogue, ALongerAnswerIsCutAndLeavesNothingForTheNextRead) {
  GuardedText<16> text;
  EXPECT_STATUS(kLongestText, ReadHostName(std::string(100, 'x'), text, text.size()));
  EXPECT_EQ(std::string(15, 'x'), text.text());
  GuardedText<16> next;
  EXPECT_STATUS(VI_SUCCESS, ReadHostName("next", next, next.size()));
  EXPECT_EQ("next", next.text());
}

TEST_F(TextDialogue, ABufferOfOneByteHoldsTheEmptyTextAndAsksForMore) {
  for (const char* answer : {"generator", ""}) {
    GuardedText<1> text;
    EXPECT_STATUS(kLongestText, ReadHostName(answer, text, text.size()));
    EXPECT_EQ("", text.text());
  }
}

TEST_F(TextDialogue, ASizeOfZeroAsksForTheSizeAndNotTheInstrument) {
  GuardedText<4> text;
  EXPECT_STATUS(kLongestText,
                KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_LAN_HOSTNAME, 0, text.data()));
  EXPECT_TRUE(text.Untouched());
  EXPECT_STATUS(kLongestText, KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_LAN_HOSTNAME, 0, nullptr));
  EXPECT_STATUS(kLongestText, KVTD481X2C_GetLanHostname(vi, 0, nullptr));
}

TEST_F(TextDialogue, TheSizeQueryTouchesNoHandler) {
  EXPECT_STATUS(kLongestText, KVTD481X2C_GetAttributeViString(0, nullptr, KVTD481X2C_ATTR_LAN_HOSTNAME, 0, nullptr));
}

TEST_F(TextDialogue, ANullBufferWithASizeIsRefused) {
  for (const ViInt32 size : {1, 4096, -1}) {
    EXPECT_STATUS(kNullPointer,
                  KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_LAN_HOSTNAME, size, nullptr));
    EXPECT_EQ("Null pointer passed for function 'GetAttributeViString', parameter 'AttributeValueBufferSize'.",
              LastErrorText());
  }
}

TEST_F(TextDialogue, IdTypeAndDirectionAreRefusedBeforeTheBuffer) {
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViString(vi, nullptr, 1234, 5, nullptr));
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, 0, nullptr));
}

TEST_F(TextDialogue, ANegativeSizeTakesUpToFourThousandAndNinetyFiveCharacters) {
  GuardedText<4096> text;
  EXPECT_STATUS(VI_SUCCESS, ReadHostName("generator", text, -1));
  EXPECT_EQ("generator", text.text());
  GuardedText<4096> full;
  EXPECT_STATUS(VI_SUCCESS, ReadHostName(std::string(5000, 'y'), full, -2147483647));
  EXPECT_EQ(std::string(4095, 'y'), full.text());
}

TEST_F(TextDialogue, FourThousandAndNinetyFiveCharactersAreTheLongestText) {
  GuardedText<5000> text;
  EXPECT_STATUS(VI_SUCCESS, ReadHostName(std::string(4095, 'y'), text, text.size()));
  EXPECT_EQ(std::string(4095, 'y'), text.text());
}

class TextDialogueDeathTest : public TextDialogue {};

TEST_F(TextDialogueDeathTest, ALongerTextInALargerBufferEndsTheProcess) {
  Sent(":SYST:COMM:LAN:HOST?\n");
  Answer(std::string(4096, 'y') + '\n');
  GuardedText<5000> text;
  EXPECT_DEATH(KVTD481X2C_GetLanHostname(vi, text.size(), text.data()),
               R"(strnlen_s\(AttributeValue, _TRUNCATE\) < MAX_STRING_ATTRIBUTE_LENGTH)");
}

TEST_F(TextDialogue, AFailedReadIsToldBeforeTheSizeOfItsText) {
  QueryInstrumentStatus(true);
  Sent(":SYST:COMM:LAN:HOST?\n");
  Answer("generator\n");
  Script(R"(
    > *ESR?
    < 8
  )");
  GuardedText<10> text;
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_GetLanHostname(vi, text.size(), text.data()));
  EXPECT_EQ("generator", text.text());
}

TEST_F(TextDialogue, ATextIsSentBetweenQuotesAsItIs) {
  Sent(":SYST:COMM:LAN:HOST \"rack 7 % \"x\"\"\n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetLanHostname(vi, "rack 7 % \"x\""));
  Sent(":SYST:COMM:LAN:HOST \"\"\n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_LAN_HOSTNAME, ""));
}

// ---- inherent attributes ----

struct Option {
  const char* name;
  ViAttr published;
  ViAttr id;
  ViBoolean at_start;
};

// Simulation and the interchange check have rules of their own, below.
const Option kOptions[] = {
    {"RANGE_CHECK", KVTD481X2C_ATTR_RANGE_CHECK, 1050002, VI_TRUE},
    {"QUERY_INSTRUMENT_STATUS", KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS, 1050003, VI_FALSE},
    {"CACHE", KVTD481X2C_ATTR_CACHE, 1050004, VI_TRUE},
    {"RECORD_COERCIONS", KVTD481X2C_ATTR_RECORD_COERCIONS, 1050006, VI_FALSE},
};

TEST_F(AttributeAccessDialogue, OptionsAreStoredAndOnlyOneMeansOn) {
  for (const Option& option : kOptions) {
    SCOPED_TRACE(option.name);
    EXPECT_EQ(option.id, option.published);
    EXPECT_EQ(option.at_start, BooleanAttribute(option.id));
    for (const int value : {1, 0, 1, 2, 1, 0xFFFF}) {
      EXPECT_STATUS(VI_SUCCESS,
                    KVTD481X2C_SetAttributeViBoolean(vi, nullptr, option.id, static_cast<ViBoolean>(value)));
      EXPECT_EQ(value == 1 ? VI_TRUE : VI_FALSE, BooleanAttribute(option.id)) << value;
    }
  }
}

TEST_F(AttributeAccessDialogue, TheInterchangeCheckCanOnlyBeSwitchedOff) {
  EXPECT_EQ(1050021U, KVTD481X2C_ATTR_INTERCHANGE_CHECK);
  EXPECT_STATUS(kValueNotSupported,
                KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_INTERCHANGE_CHECK, VI_TRUE));
  EXPECT_EQ(
      "Does not support this class-compliant feature:  Enumeration value 'True' passed as the value for parameter "
      "'AttributeValue' in function 'SetAttributeViBoolean'.  Interchange checking is not supported by the driver.",
      LastErrorText());
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_INTERCHANGE_CHECK));
  for (const ViBoolean off : {ViBoolean{0}, ViBoolean{2}}) {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_INTERCHANGE_CHECK, off));
    EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_INTERCHANGE_CHECK));
  }
}

TEST_F(AttributeAccessDialogue, ARealSessionMayBeSwitchedToSimulationAndBack) {
  EXPECT_EQ(1050005U, KVTD481X2C_ATTR_SIMULATE);
  SwitchToSimulation(true);
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
  ViReal64 value = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(0.0, value);
  SwitchToSimulation(false);
  Script(R"(
    > :FREQ:MULT?
    < 3
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
  EXPECT_EQ(3.0, value);
}

TEST_F(AttributeAccessDialogue, APlainAttributeOfASwitchedSessionStillReachesTheInstrumentWithoutAStatusCheck) {
  QueryInstrumentStatus(true);
  SwitchToSimulation(true);
  Script(R"(
    > :FREQ 5 HZ
    > :FREQ?
    < 6
  )");
  ViReal64 value = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, 5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &value));
  EXPECT_EQ(6.0, value);
  SwitchToSimulation(false);
}

TEST_F(AttributeAccessDialogue, TwoIsNoSimulation) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, 2));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
}

TEST_F(SimulatedAttributes, ASessionThatBeganSimulatingCannotLeaveSimulation) {
  EXPECT_STATUS(kSimulationCannotChange,
                KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, VI_FALSE));
  EXPECT_EQ("The simulation state cannot be changed.", LastErrorText());
  EXPECT_EQ(VI_TRUE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, VI_TRUE));
}

// Kept on purpose: only 0 is refused, and only 1 is stored as true.
TEST_F(SimulatedAttributes, TwoLeavesSimulationForASessionWithoutALink) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, 2));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
  ViReal64 value = 77;
  EXPECT_STATUS(kVisaNoSession, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
}

struct Constant {
  const char* name;
  ViAttr published;
  ViAttr id;
  const char* text;
};

const Constant kConstants[] = {
    {"SPECIFIC_DRIVER_PREFIX", KVTD481X2C_ATTR_SPECIFIC_DRIVER_PREFIX, 1050302, "KVTD481X2C"},
    {"SUPPORTED_INSTRUMENT_MODELS", KVTD481X2C_ATTR_SUPPORTED_INSTRUMENT_MODELS, 1050327, "TD48122C,TD48142C,TD48172C"},
    {"GROUP_CAPABILITIES", KVTD481X2C_ATTR_GROUP_CAPABILITIES, 1050401,
     "IviRFSigGenBase,IviRFSigGenModulateAM,IviRFSigGenModulateFM,IviRFSigGenModulatePM,"
     "IviRFSigGenAnalogModulationSource,IviRFSigGenModulatePulse,IviRFSigGenLFGenerator,IviRFSigGenPulseGenerator,"
     "IviRFSigGenPulseDoubleGenerator,IviRFSigGenPulseGeneratorOutput,IviRFSigGenSweep,IviRFSigGenFrequencySweep,"
     "IviRFSigGenFrequencyStep,IviRFSigGenPowerStep,IviRFSigGenList,IviRFSigGenALC,IviRFSigGenSoftwareTrigger"},
    {"SPECIFIC_DRIVER_VENDOR", KVTD481X2C_ATTR_SPECIFIC_DRIVER_VENDOR, 1050513, "Kelvora Corporation"},
    {"SPECIFIC_DRIVER_DESCRIPTION", KVTD481X2C_ATTR_SPECIFIC_DRIVER_DESCRIPTION, 1050514,
     "IVI-C Driver for TD481X2C [Compiled for 64-bit]"},
    {"SPECIFIC_DRIVER_REVISION", KVTD481X2C_ATTR_SPECIFIC_DRIVER_REVISION, 1050551, "1.0.0.0"},
};

TEST_F(SimulatedAttributes, TheDriversConstantsAnswerForAnyHandle) {
  for (const Constant& constant : kConstants) {
    SCOPED_TRACE(constant.name);
    EXPECT_EQ(constant.id, constant.published);
    for (const ViSession handle : {vi, ViSession{0}, ViSession{0xDEADBEEF}}) {
      GuardedText<4096> text;
      EXPECT_STATUS(VI_SUCCESS,
                    KVTD481X2C_GetAttributeViString(handle, nullptr, constant.id, text.size(), text.data()));
      EXPECT_EQ(constant.text, text.text());
    }
    GuardedText<4> cut;
    EXPECT_STATUS(kLongestText, KVTD481X2C_GetAttributeViString(vi, nullptr, constant.id, cut.size(), cut.data()));
    EXPECT_EQ(std::string(constant.text).substr(0, 3), cut.text());
  }
}

TEST_F(SimulatedAttributes, TheGroupCapabilitiesAreFourHundredCharacters) {
  EXPECT_EQ(400U, TextAttribute(KVTD481X2C_ATTR_GROUP_CAPABILITIES).size());
}

TEST_F(SimulatedAttributes, TheClassVersionAnswersForAnyHandleButNotIntoNothing) {
  EXPECT_EQ(1050515U, KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION);
  EXPECT_EQ(1050516U, KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION);
  for (const ViSession handle : {vi, ViSession{0}}) {
    ViInt32 version = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViInt32(
                                  handle, nullptr, KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION, &version));
    EXPECT_EQ(2, version);
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViInt32(
                                  handle, nullptr, KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION, &version));
    EXPECT_EQ(0, version);
    EXPECT_STATUS(kNullPointer,
                  KVTD481X2C_GetAttributeViInt32(handle, nullptr,
                                                 KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION, nullptr));
  }
}

TEST_F(AttributeAccessDialogue, ASessionThatIsOpenedOnADescriptorHasNoLogicalName) {
  EXPECT_EQ(1050305U, KVTD481X2C_ATTR_LOGICAL_NAME);
  EXPECT_EQ(1050304U, KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR);
  EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_LOGICAL_NAME));
  EXPECT_EQ(instrument.ResourceName(), TextAttribute(KVTD481X2C_ATTR_IO_RESOURCE_DESCRIPTOR));
}

TEST_F(AttributeAccessDialogue, TheDriverSetupIsEmptyWithoutTheOption) {
  EXPECT_EQ(1050007U, KVTD481X2C_ATTR_DRIVER_SETUP);
  EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_DRIVER_SETUP));
}

// ---- simulation ----

TEST_F(SimulatedAttributes, ATextReadsAsItWasSetAndBeforeThatAsItsDefault) {
  EXPECT_EQ("", TextAttribute(KVTD481X2C_ATTR_LAN_HOSTNAME));
  EXPECT_EQ("0", TextAttribute(KVTD481X2C_ATTR_UNIT_NAME));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetLanHostname(vi, "generator"));
  EXPECT_EQ("generator", TextAttribute(KVTD481X2C_ATTR_LAN_HOSTNAME));
}

TEST_F(SimulatedAttributes, AWriteOnlyAttributeIsAcceptedAndUndefinedValuesToo) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY_SWEEP_RANGE, 0));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_POWER_SWEEP_RANGE, 99));
}

TEST_F(SimulatedAttributes, RefusalsAreThoseOfARealSession) {
  ViInt32 value = 77;
  EXPECT_STATUS(kUnknownAttribute, KVTD481X2C_GetAttributeViInt32(vi, nullptr, 1234, &value));
  EXPECT_STATUS(kWrongType, KVTD481X2C_GetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &value));
  EXPECT_STATUS(kReadOnly, KVTD481X2C_SetAttributeViInt32(vi, nullptr, KVTD481X2C_ATTR_OPERATION_EVENT_REGISTER, 1));
}

}  // namespace
}  // namespace kvtd::test
