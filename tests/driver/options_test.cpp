// The option string: its words, its spellings, and the driver setup that must stand last in it.

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

class Options : public InstrumentDialogue {
 protected:
  struct Flags {
    bool cache = true;
    bool interchange_check = false;
    bool query_status = false;
    bool range_check = true;
    bool record_coercions = false;
    bool simulate = false;

    bool operator==(const Flags&) const = default;
  };

  Flags Current() {
    return {.cache = BooleanAttribute(KVTD481X2C_ATTR_CACHE) == VI_TRUE,
            .interchange_check = BooleanAttribute(KVTD481X2C_ATTR_INTERCHANGE_CHECK) == VI_TRUE,
            .query_status = BooleanAttribute(KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS) == VI_TRUE,
            .range_check = BooleanAttribute(KVTD481X2C_ATTR_RANGE_CHECK) == VI_TRUE,
            .record_coercions = BooleanAttribute(KVTD481X2C_ATTR_RECORD_COERCIONS) == VI_TRUE,
            .simulate = BooleanAttribute(KVTD481X2C_ATTR_SIMULATE) == VI_TRUE};
  }

  // Opens a session with the options, looks at its flags and closes it.
  void ExpectFlags(std::string_view options, const Flags& flags) {
    if (!flags.simulate) ScriptBringUp();
    ASSERT_STATUS(VI_SUCCESS, Open(options)) << options;
    EXPECT_TRUE(flags == Current()) << options;
    Close();
  }

  void ExpectRefused(std::string_view options, const RecordedError& error) {
    vi = 77;
    EXPECT_STATUS(error.code, Open(options)) << options;
    EXPECT_EQ(VI_NULL, static_cast<int>(vi));
    EXPECT_EQ(error, ErrorOf(0)) << options;
  }

  std::string Model() { return TextAttribute(KVTD481X2C_ATTR_INSTRUMENT_MODEL); }
  std::string SetupText() { return TextAttribute(KVTD481X2C_ATTR_DRIVER_SETUP); }
};

TEST_F(Options, WithoutAnyTheDefaultsHold) {
  ExpectFlags("", {});
  ExpectFlags("   \t ", {});
}

TEST_F(Options, EachWordSetsItsFlag) {
  ExpectFlags("Simulate=1", {.simulate = true});
  ExpectFlags("Simulate=1,Cache=0", {.cache = false, .simulate = true});
  ExpectFlags("Simulate=1,QueryInstrStatus=1", {.query_status = true, .simulate = true});
  ExpectFlags("Simulate=1,RangeCheck=0", {.range_check = false, .simulate = true});
  ExpectFlags("Simulate=1,RecordCoercions=1", {.record_coercions = true, .simulate = true});
  ExpectFlags("Simulate=1,InterchangeCheck=0", {.simulate = true});
  ExpectFlags("Cache=0", {.cache = false});
}

TEST_F(Options, EverySpellingOfTrueAndFalseIsUnderstoodInAnyCase) {
  for (const char* yes : {"1", "true", "TRUE", "True", "vi_true", "VI_TRUE"}) {
    ExpectFlags(std::string("Simulate=1,RecordCoercions=") + yes, {.record_coercions = true, .simulate = true});
  }
  for (const char* no : {"0", "false", "FALSE", "vi_false", "VI_FALSE", "Vi_False"}) {
    ExpectFlags(std::string("Simulate=1,Cache=") + no, {.cache = false, .simulate = true});
  }
  ExpectFlags("SIMULATE=VI_TRUE", {.simulate = true});
  ExpectFlags("sImUlAtE=true", {.simulate = true});
}

TEST_F(Options, TheCommaIsOptionalAndBlanksAreFree) {
  ExpectFlags("simulate=1 cache=0", {.cache = false, .simulate = true});
  ExpectFlags("  simulate =  1 ,   cache   = 0  ,", {.cache = false, .simulate = true});
  ExpectFlags("simulate=1;cache=0", {.cache = false, .simulate = true});
  ExpectFlags("simulate=1\ncache=0", {.cache = false, .simulate = true});
}

TEST_F(Options, TextThatIsNoOptionIsPassedOver) {
  ExpectFlags("simulate=1, cache", {.simulate = true});
  ExpectFlags("simulate=1, cache=", {.simulate = true});
  ExpectFlags("=1, simulate=1", {.simulate = true});
  ExpectFlags("simulate=1, cache:0", {.simulate = true});
  ExpectFlags("!?, simulate=1", {.simulate = true});
}

TEST_F(Options, AnUnknownNameIsRefusedInLowerCase) {
  ExpectRefused("Foo=1", {kUnknownOption, "The 'foo' name in the option string is unknown."});
  ExpectRefused("Simulate=1,FOO=1", {kUnknownOption, "The 'foo' name in the option string is unknown."});
}

TEST_F(Options, AnUnknownValueIsRefusedInLowerCase) {
  ExpectRefused("simulate=yes", {kUnknownOptionValue, "The 'yes' value in the option string is unknown."});
  ExpectRefused("Cache=Maybe", {kUnknownOptionValue, "The 'maybe' value in the option string is unknown."});
  ExpectRefused("Cache=2", {kUnknownOptionValue, "The '2' value in the option string is unknown."});
}

TEST_F(Options, TheFirstErrorEndsTheReading) {
  ExpectRefused("foo=1,cache=maybe", {kUnknownOption, "The 'foo' name in the option string is unknown."});
  ExpectRefused("cache=maybe,foo=1", {kUnknownOptionValue, "The 'maybe' value in the option string is unknown."});
}

TEST_F(Options, AnOptionMayStandOnlyOnceEvenWithEqualValues) {
  ExpectRefused("Simulate=1,simulate=1",
                {kCannotRecover, "Failure cannot recover.  Inherent option 'simulate' appears more than once."});
  ExpectRefused("Cache=0,CACHE=1",
                {kCannotRecover, "Failure cannot recover.  Inherent option 'cache' appears more than once."});
}

TEST_F(Options, ADuplicateIsToldAlsoWhereItsValueIsUnknown) {
  ExpectRefused("simulate=1,simulate=yes",
                {kCannotRecover, "Failure cannot recover.  Inherent option 'simulate' appears more than once."});
}

TEST_F(Options, TheInterchangeCheckCannotBeAskedFor) {
  const RecordedError refused{
      kUnknownOptionValue,
      "The 'True' value in the option string is unknown.  Interchange checking is not supported by the driver."};
  ExpectRefused("InterchangeCheck=1", refused);
  ExpectRefused("Simulate=1,InterchangeCheck=1", refused);
}

TEST_F(Options, ARefusedStringOpensNoConnection) {
  ExpectRefused("foo=1", {kUnknownOption, "The 'foo' name in the option string is unknown."});
  EXPECT_EQ(0, instrument.Connections());
}

// ---- the driver setup ----

TEST_F(Options, TheSetupChoosesTheModelOfASimulatedSession) {
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1, DriverSetup=Model:TD48142C", VI_TRUE));
  EXPECT_EQ("TD48142C", Model());
  EXPECT_EQ("Model:TD48142C", SetupText());
}

TEST_F(Options, KeywordAndKeyAreReadInAnyCaseAndWithEitherSign) {
  for (const char* options :
       {"simulate=1,driversetup = Model=TD48142C", "simulate=1,DRIVERSETUP=model:TD48142C",
        "simulate=1 DriverSetup=MODEL : TD48142C", "simulate=1,DriverSetup=Other:7,Model:TD48142C"}) {
    ASSERT_STATUS(VI_SUCCESS, Open(options, VI_TRUE)) << options;
    EXPECT_EQ("TD48142C", Model()) << options;
    Close();
  }
}

TEST_F(Options, TheSetupIsKeptAsItIsWrittenBlanksIncluded) {
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1,DriverSetup= Model:TD48142C , Foo = 7 "));
  EXPECT_EQ(" Model:TD48142C , Foo = 7 ", SetupText());
  EXPECT_EQ("TD48142C ", Model());
}

TEST_F(Options, AnOptionBehindTheSetupBelongsToTheSetup) {
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open("DriverSetup=Model:TD48142C, Simulate=1"));
  EXPECT_EQ(VI_FALSE, BooleanAttribute(KVTD481X2C_ATTR_SIMULATE));
  EXPECT_EQ("Model:TD48142C, Simulate=1", SetupText());
}

TEST_F(Options, ALineBehindTheSetupIsNotLookedAt) {
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1,DriverSetup=Model:TD48142C\nfoo=1"));
  EXPECT_EQ("TD48142C", Model());
  EXPECT_EQ("Model:TD48142C", SetupText());
}

TEST_F(Options, ATrailingBlankBelongsToTheModelAndTheIdQueryRefusesIt) {
  EXPECT_STATUS(kIdQueryFailed, Open("Simulate=1,DriverSetup=Model:TD48142C ,Foo=1", VI_TRUE));
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1,DriverSetup=Model:X ,Foo=1", VI_FALSE));
  EXPECT_EQ("X ", Model());
}

TEST_F(Options, AKeyMayStandOnlyOnceInTheSetupAndItsLaterSpellingIsTold) {
  ExpectRefused("DriverSetup=Foo=1,foo=2",
                {kCannotRecover, "Failure cannot recover.  DriverSetup option 'foo' appears more than once."});
  ExpectRefused("Simulate=1,DriverSetup=model:A,Model:A",
                {kCannotRecover, "Failure cannot recover.  DriverSetup option 'Model' appears more than once."});
}

TEST_F(Options, ARecordedTextIsCutAtOneThousandAndTwentyThreeCharacters) {
  const std::string key(2000, 'k');
  EXPECT_STATUS(kCannotRecover, Open("DriverSetup=" + key + "=1," + key + "=2"));
  const std::string text = ErrorOf(0).text;
  EXPECT_EQ(1023U, text.size());
  EXPECT_TRUE(text.starts_with("Failure cannot recover.  DriverSetup option 'kkkk")) << text;
}

TEST_F(Options, TheSetupIsReadBeforeTheOptionsInFrontOfIt) {
  ExpectRefused("nonsense=1,DriverSetup=Model:A,Model:A",
                {kCannotRecover, "Failure cannot recover.  DriverSetup option 'Model' appears more than once."});
}

TEST_F(Options, ASetupWithoutAnyPairIsAcceptedAndChoosesNothing) {
  for (const char* options :
       {"Simulate=1,DriverSetup=", "Simulate=1,DriverSetup=whatever", "Simulate=1,DriverSetup=,,,"}) {
    ASSERT_STATUS(VI_SUCCESS, Open(options)) << options;
    EXPECT_EQ("TD48122C", Model()) << options;
    Close();
  }
}

TEST_F(Options, AnEmptyModelIsNoPair) {
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1,DriverSetup=Model:"));
  EXPECT_EQ("TD48122C", Model());
}

// ---- what the options do to the dialogue ----

TEST_F(Options, ASetupOfAnyLengthIsRead) {
  const std::string note(50000, 'x');
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1,DriverSetup=Note=" + note + ",Model:TD48142C"));
  EXPECT_EQ("TD48142C", Model());
  // The attribute gives out what fits into the longest text there is.
  GuardedText<4096> text;
  EXPECT_STATUS(4096,
                KVTD481X2C_GetAttributeViString(vi, nullptr, KVTD481X2C_ATTR_DRIVER_SETUP, text.size(), text.data()));
  EXPECT_EQ("Note=" + std::string(4090, 'x'), text.text());
}

TEST_F(Options, ResettingWithDefaultsGoesBackToTheOptionsOfTheStart) {
  ScriptBringUp();
  ASSERT_STATUS(VI_SUCCESS, Open("RecordCoercions=1,Cache=0"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_CACHE, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_RECORD_COERCIONS, VI_FALSE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_RANGE_CHECK, VI_FALSE));
  Script(R"(
    > *RST
    > *OPC?
    < 1
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ResetWithDefaults(vi));
  EXPECT_TRUE((Flags{.cache = false, .record_coercions = true}) == Current());
}

}  // namespace
}  // namespace kvtd::test
