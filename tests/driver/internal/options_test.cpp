// The option string, parsed on a session object that is never brought up.

#include <chrono>

#include "BareSession.h"

namespace kvtd::test {
namespace {

class Options : public BareSession {
 protected:
  void ExpectParsed(const std::string& text) { EXPECT_EQ(VI_SUCCESS, session().ParseOptionString(text)) << text; }
  void ExpectFailure(ViStatus status, const std::string& text, const std::string& options) {
    EXPECT_EQ(status, session().ParseOptionString(options)) << options;
    EXPECT_EQ(text, LastErrorText()) << options;
  }
  std::string Inherent(const std::string& name) { return session().InherentOptions().at(name); }
  std::string SetupOption(const std::string& name) { return session().DriverSetupOptions().at(name); }
};

// Inherent options.

TEST_F(Options, WithoutAnyTheDefaultsStand) {
  for (const char* text : {"", "   ", "\t\r\n", ",;, ", "nonsense", "cache", "cache=", "=1", "cache=,=1", "cache:1"}) {
    ExpectParsed(text);
  }
  EXPECT_TRUE(session().GetCache());
  EXPECT_FALSE(session().GetInterchangeCheck());
  EXPECT_FALSE(session().GetQueryInstrStatus());
  EXPECT_TRUE(session().GetRangeCheck());
  EXPECT_FALSE(session().GetRecordCoercions());
  EXPECT_FALSE(session().GetSimulate());
  EXPECT_TRUE(session().InherentOptions().empty());
  EXPECT_TRUE(session().DriverSetupOptions().empty());
}

TEST_F(Options, EachWordSetsItsOwnFlag) {
  ExpectParsed("Cache=0,InterchangeCheck=1,QueryInstrStatus=1,RangeCheck=0,RecordCoercions=1,Simulate=1");
  EXPECT_FALSE(session().GetCache());
  EXPECT_TRUE(session().GetInterchangeCheck());
  EXPECT_TRUE(session().GetQueryInstrStatus());
  EXPECT_FALSE(session().GetRangeCheck());
  EXPECT_TRUE(session().GetRecordCoercions());
  EXPECT_TRUE(session().GetSimulate());
  EXPECT_EQ(6U, session().InherentOptions().size());
}

TEST_F(Options, EverySpellingOfTrueAndFalseIsTakenInAnyCase) {
  for (const char* value : {"true", "TRUE", "vi_true", "VI_True", "1"}) {
    session().InherentOptions().clear();
    session().SetSimulate(false);
    ExpectParsed(std::string("SIMULATE=") + value);
    EXPECT_TRUE(session().GetSimulate()) << value;
  }
  for (const char* value : {"false", "False", "vi_false", "VI_FALSE", "0"}) {
    session().InherentOptions().clear();
    session().SetSimulate(true);
    ExpectParsed(std::string("simulate = ") + value);
    EXPECT_FALSE(session().GetSimulate()) << value;
  }
}

TEST_F(Options, TheCommaMayBeMissingAndOtherMarksAreSkipped) {
  ExpectParsed("simulate=1 cache=0;;; rangecheck = 0 ,, -- recordcoercions=1");
  EXPECT_TRUE(session().GetSimulate());
  EXPECT_FALSE(session().GetCache());
  EXPECT_FALSE(session().GetRangeCheck());
  EXPECT_TRUE(session().GetRecordCoercions());
}

TEST_F(Options, NamesAndValuesAreKeptInLowerCase) {
  ExpectParsed("SIMULATE=VI_TRUE");
  EXPECT_EQ("simulate", session().InherentOptions().begin()->first);
  EXPECT_EQ("vi_true", Inherent("Simulate"));
}

TEST_F(Options, AnUnknownNameIsToldInLowerCase) {
  ExpectFailure(kUnknownOption, "The 'foo' name in the option string is unknown.", "Simulate=1,FOO=1,Cache=0");
  EXPECT_TRUE(session().GetSimulate());
  EXPECT_TRUE(session().GetCache());
  EXPECT_EQ("1", Inherent("foo"));
}

TEST_F(Options, AnUnknownValueIsToldInLowerCaseAndLeavesTheFlag) {
  for (const std::string value : {"yes", "maybe", "on", "2", "11", "vi_tru", "truee"}) {
    session().InherentOptions().clear();
    ExpectFailure(kUnknownOptionValue, "The '" + value + "' value in the option string is unknown.", "CACHE=" + value);
    EXPECT_TRUE(session().GetCache());
  }
  session().InherentOptions().clear();
  ExpectFailure(kUnknownOptionValue, "The 'yes' value in the option string is unknown.", "simulate=YES");
}

TEST_F(Options, AnOptionWithAnUnknownValueIsKeptAmongTheOptionsSeen) {
  EXPECT_EQ(kUnknownOptionValue, session().ParseInherentOptions("cache=maybe"));
  ASSERT_EQ(1U, session().InherentOptions().size());
  EXPECT_EQ("cache", session().InherentOptions().begin()->first);
  EXPECT_EQ("maybe", Inherent("cache"));
}

TEST_F(Options, AnOptionTwiceIsRefusedEvenWithEqualValues) {
  ExpectFailure(kCannotRecover, "Failure cannot recover.  Inherent option 'simulate' appears more than once.",
                "Simulate=1,simulate=1");
  session().InherentOptions().clear();
  ExpectFailure(kCannotRecover, "Failure cannot recover.  Inherent option 'cache' appears more than once.",
                "cache=1 CACHE=0,foo=1");
}

TEST_F(Options, AnOptionTwiceIsADuplicateEvenWhenItsSecondValueIsUnknown) {
  ExpectFailure(kCannotRecover, "Failure cannot recover.  Inherent option 'simulate' appears more than once.",
                "simulate=1,simulate=yes");
}

TEST_F(Options, TheWalkEndsAtTheFirstFault) {
  EXPECT_EQ(kUnknownOption, session().ParseOptionString("foo=1,bar=1"));
  EXPECT_EQ("The 'foo' name in the option string is unknown.", LastErrorText());
  EXPECT_FALSE(session().InherentOptions().contains("bar"));
}

TEST_F(Options, OneBooleanIsConvertedByItsExactSpelling) {
  bool flag = false;
  EXPECT_EQ(VI_SUCCESS, session().ParseBooleanOption("any", "vi_true", flag));
  EXPECT_TRUE(flag);
  EXPECT_EQ(VI_SUCCESS, session().ParseBooleanOption("any", "0", flag));
  EXPECT_FALSE(flag);
  EXPECT_EQ(kUnknownOptionValue, session().ParseBooleanOption("any", "TRUE", flag));
  EXPECT_EQ("The 'TRUE' value in the option string is unknown.", LastErrorText());
}

// DriverSetup.

TEST_F(Options, DriverSetupStandsBehindTheInherentOptions) {
  ExpectParsed("Simulate=1, DriverSetup=Model:TD48142C");
  EXPECT_TRUE(session().GetSimulate());
  EXPECT_EQ("Model:TD48142C", session().GetDriverSetup());
  EXPECT_EQ("TD48142C", session().GetInstrumentModel());
  EXPECT_EQ("TD48142C", SetupOption("model"));
}

TEST_F(Options, TheKeywordComesInAnyCaseAndTheKeyWithEqualsOrColon) {
  ExpectParsed("driversetup = Model=TD48142C");
  EXPECT_EQ(" Model=TD48142C", session().GetDriverSetup());
  EXPECT_EQ("TD48142C", session().GetInstrumentModel());
  ExpectParsed("DRIVERSETUP=mOdEl : TD48172C");
  EXPECT_EQ("TD48172C", session().GetInstrumentModel());
}

TEST_F(Options, AnInherentOptionBehindDriverSetupIsAKeyOfDriverSetup) {
  ExpectParsed("DriverSetup=Model:TD48142C, Simulate=1");
  EXPECT_FALSE(session().GetSimulate());
  EXPECT_TRUE(session().InherentOptions().empty());
  EXPECT_EQ("1", SetupOption("Simulate"));
}

TEST_F(Options, DriverSetupEndsWithItsLineAndWhatFollowsIsDropped) {
  ExpectParsed("RangeCheck=0,DriverSetup=Model:X\nSimulate=1");
  EXPECT_EQ("X", session().GetInstrumentModel());
  EXPECT_FALSE(session().GetRangeCheck());
  EXPECT_FALSE(session().GetSimulate());
}

TEST_F(Options, TrailingBlanksStayInAValue) {
  ExpectParsed("DriverSetup=Model:X ,Foo=1");
  EXPECT_EQ("X ", session().GetInstrumentModel());
  EXPECT_EQ("1", SetupOption("FOO"));
}

TEST_F(Options, KeysKeepTheirSpellingAndUnknownOnesAreNoFault) {
  ExpectParsed("DriverSetup=Foo_+1=a=b:c,Bar:2");
  EXPECT_EQ("a=b:c", SetupOption("foo_+1"));
  EXPECT_EQ("2", SetupOption("Bar"));
  EXPECT_EQ("Bar", session().DriverSetupOptions().begin()->first);
}

TEST_F(Options, DriverSetupWithoutPairsIsKeptAsText) {
  ExpectParsed("DriverSetup=");
  EXPECT_EQ("", session().GetDriverSetup());
  ExpectParsed("DriverSetup= just words, no pairs");
  EXPECT_EQ(" just words, no pairs", session().GetDriverSetup());
  EXPECT_TRUE(session().DriverSetupOptions().empty());
}

TEST_F(Options, ANewDriverSetupTakesTheOldOnesPlaceButNotItsModel) {
  ExpectParsed("DriverSetup=Model:TD48142C,Foo=1");
  ExpectParsed("DriverSetup=Bar=2");
  EXPECT_EQ("Bar=2", session().GetDriverSetup());
  EXPECT_EQ(1U, session().DriverSetupOptions().size());
  EXPECT_EQ("TD48142C", session().GetInstrumentModel());
}

TEST_F(Options, AKeyTwiceIsToldInItsLaterSpelling) {
  ExpectFailure(kCannotRecover, "Failure cannot recover.  DriverSetup option 'foo' appears more than once.",
                "DriverSetup=Foo=1,foo=2");
}

TEST_F(Options, AFaultInDriverSetupComesBeforeTheInherentOptionsAreRead) {
  ExpectFailure(kCannotRecover, "Failure cannot recover.  DriverSetup option 'Model' appears more than once.",
                "cache=0,bad=1,DriverSetup=Model:A,Model:A");
  EXPECT_TRUE(session().GetCache());
  EXPECT_TRUE(session().InherentOptions().empty());
}

TEST_F(Options, ADriverSetupOptionIsLookedUpInAnyCase) {
  ExpectParsed("DriverSetup=Foo=1");
  std::string value = "unset";
  EXPECT_TRUE(session().LookupDriverSetupOption("FOO", value));
  EXPECT_EQ("1", value);
  EXPECT_FALSE(session().LookupDriverSetupOption("Bar", value));
  EXPECT_EQ("1", value);
}

// Size. Text without a pair in it is the costliest: a search that begins anew at every character takes minutes for it.

TEST_F(Options, AHundredKilobytesAreReadInGoodTime) {
  const std::string long_value(100'000, 'x');
  struct Case {
    ViStatus status;
    std::string options;
  };
  const Case cases[] = {
      {kUnknownOptionValue, "cache=" + long_value},
      {kUnknownOption, long_value + "=1"},
      {VI_SUCCESS, long_value},
      {VI_SUCCESS, std::string(100'000, ' ')},
      {VI_SUCCESS, std::string(100'000, ',')},
      {VI_SUCCESS, std::string(100'000, '\n')},
      {VI_SUCCESS, "DriverSetup=" + long_value},
      {VI_SUCCESS, "DriverSetup=Foo=" + long_value},
      {VI_SUCCESS, "DriverSetup=" + std::string(100'000, ' ')},
  };
  for (const Case& one : cases) {
    session().InherentOptions().clear();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(one.status, session().ParseOptionString(one.options)) << one.options.substr(0, 20);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(60)) << one.options.substr(0, 20);
  }
}

}  // namespace
}  // namespace kvtd::test
