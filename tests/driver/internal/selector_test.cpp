// The selector language in full: grammar, ranges, lists, brackets, levels, virtual names.

#include <RepeatedCapability.h>

#include "BareSession.h"
#include "Stopwatch.h"

namespace kvtd::test {
namespace {

constexpr ViStatus kNoSelector = Status(0xBFFA0044U);
constexpr ViStatus kWrongLevels = Status(0xBFFA0063U);
constexpr ViStatus kInvalidRange = Status(0xBFFA0064U);
constexpr ViStatus kBadlyFormed = Status(0xBFFA0066U);
constexpr ViStatus kUnknownPhysical = Status(0xBFFA0067U);

constexpr const char* kBadlyFormedText = "The repeated capability selector is badly-formed.";

using Names = std::vector<std::string>;

class Selectors : public BareSession {
 protected:
  // Everything well-formed passes.
  Names Expand(const char* selector) { return Expand(generators, selector, false); }
  // Only what the capability has passes.
  Names Find(const char* selector) { return Expand(generators, selector, true); }

  Names Expand(const tvr::RepeatedCapability& capability, const char* selector, bool check) {
    std::vector<tvr::RepCapIdentifier> output;
    EXPECT_EQ(VI_SUCCESS, capability.ExpandSelector(vi, selector, output, check)) << selector << LastErrorText();
    Names names;
    for (const tvr::RepCapIdentifier& identifier : output) {
      EXPECT_EQ(capability.name() + "!!" + identifier.Name, identifier.QualifiedName);
      names.push_back(identifier.Name);
    }
    return names;
  }

  void ExpectFailure(ViStatus status, const std::string& text, const char* selector, bool check = false) {
    std::vector<tvr::RepCapIdentifier> output;
    EXPECT_EQ(status, generators.ExpandSelector(vi, selector, output, check)) << selector;
    EXPECT_EQ(text, LastErrorText()) << selector;
  }
  void ExpectInvalidRange(const std::string& why, const std::string& token, const std::string& selector) {
    ExpectFailure(kInvalidRange,
                  "The range '" + token + "' is not valid for the repeated capability 'LFGenerator'.  " + why,
                  selector.c_str());
  }
  void ExpectUnknown(const std::string& name, const char* selector) {
    ExpectFailure(kUnknownPhysical,
                  "Unknown physical repeated capability selector.  The identifier '" + name +
                      "' is not defined for repeated capability 'LFGenerator'.",
                  selector, true);
  }

  const tvr::RepeatedCapability generators{"LFGenerator", "AM,FM,PM"};
};

// The capability itself.

TEST_F(Selectors, PhysicalNamesAreASelectorOfTheirOwn) {
  const tvr::RepeatedCapability channels("Channel", "C1-C3, Aux");
  Names names;
  for (const tvr::RepCapIdentifier& identifier : channels.identifiers()) names.push_back(identifier.QualifiedName);
  EXPECT_EQ((Names{"Channel!!C1", "Channel!!C2", "Channel!!C3", "Channel!!Aux"}), names);
}

TEST_F(Selectors, AnIdentifierCarriesItsCapability) {
  std::vector<tvr::RepCapIdentifier> output;
  EXPECT_EQ(VI_SUCCESS, generators.ExpandSelector(vi, "AM", output, true));
  ASSERT_EQ(1U, output.size());
  EXPECT_EQ("AM", output[0].Name);
  EXPECT_EQ("LFGenerator!!AM", output[0].QualifiedName);
}

TEST_F(Selectors, WhatIsFoundIsAppended) {
  std::vector<tvr::RepCapIdentifier> output;
  EXPECT_EQ(VI_SUCCESS, generators.ExpandSelector(vi, "PM", output, true));
  EXPECT_EQ(VI_SUCCESS, generators.ExpandSelector(vi, "AM", output, true));
  ASSERT_EQ(2U, output.size());
  EXPECT_EQ("PM", output[0].Name);
  EXPECT_EQ("AM", output[1].Name);
}

// Empty selectors.

TEST_F(Selectors, AnEmptySelectorOnSeveralNamesIsRefusedWithTheirNumber) {
  const std::string text =
      "A channel name is required.  No selector was specified for repeated capability 'LFGenerator'.  The repeated "
      "capability identifier can be null or empty only when there is exactly one physical name defined.  Repeated "
      "capability 'LFGenerator' has 3 physical names defined.";
  ExpectFailure(kNoSelector, text, nullptr, true);
  for (const char* selector : {"", " ", " \t\n\r\v\f"}) ExpectFailure(kNoSelector, text, selector, true);
}

TEST_F(Selectors, AnEmptySelectorOnOneNameIsThatName) {
  const tvr::RepeatedCapability one("Output", "RF");
  EXPECT_EQ(Names{"RF"}, Expand(one, nullptr, true));
  EXPECT_EQ(Names{"RF"}, Expand(one, "", true));
  EXPECT_EQ(Names{"RF"}, Expand(one, " \v", true));
}

// Grammar.

TEST_F(Selectors, TheGrammarTakesNamesRangesListsBracketsAndLevels) {
  for (const char* text : {"AM",
                           " AM",
                           "AM ",
                           "\tAM\n",
                           "a",
                           "1",
                           "_",
                           "!!",
                           "LFGenerator!!AM",
                           "AM,FM",
                           "AM , FM",
                           "a1-a3",
                           "a1 - a3",
                           "1-3",
                           "a1-b3",
                           "a3-a1",
                           "a1-a3,b",
                           "[AM]",
                           "[AM,FM]",
                           "[ AM , FM ]",
                           " [AM]",
                           "[AM] :\tFM",
                           "[AM",
                           "AM]",
                           "AM:FM",
                           "[AM]:[FM]",
                           "AM : FM",
                           "a1-a2:b1-b2:c",
                           "[a,b]:c,d:[e",
                           "a9999999999-a1"}) {
    EXPECT_EQ(VI_SUCCESS, tvr::ValidateSelector(vi, text)) << text;
  }
}

TEST_F(Selectors, TheGrammarRefusesAllElse) {
  for (const char* text :
       {"",          " ",     ",",        "AM,",  ",AM", "AM,,FM", "AM FM",    "AM-", "-AM",   "AM-FM",
        "a1-a",      "a-a1",  "a1-a2-a3", ":",    "AM:", ":AM",    "AM::FM",   "[]",  "[AM] ", "[[AM]]",
        "[AM],[FM]", "AM;FM", "AM.FM",    "AM/1", "a+b", "AM\"",   "\xC3\x84", "%s"}) {
    EXPECT_EQ(kBadlyFormed, tvr::ValidateSelector(vi, text)) << text;
    EXPECT_EQ(kBadlyFormedText, LastErrorText());
  }
}

TEST_F(Selectors, ABadlyFormedSelectorIsRefusedWithoutFurtherText) {
  ExpectFailure(kBadlyFormed, kBadlyFormedText, "AM,");
  ExpectFailure(kBadlyFormed, kBadlyFormedText, "[]", true);
}

// Lists and brackets.

TEST_F(Selectors, AListKeepsItsOrder) {
  EXPECT_EQ((Names{"AM", "PM"}), Find("AM,PM"));
  EXPECT_EQ((Names{"PM", "AM", "FM"}), Find(" PM ,\tAM\n, FM "));
}

TEST_F(Selectors, BracketsAroundALevelAreTakenOff) {
  EXPECT_EQ((Names{"AM", "FM"}), Find("[AM,FM]"));
  EXPECT_EQ(Names{"AM"}, Find(" [ AM ]"));
}

TEST_F(Selectors, AHalfBracketTakesMoreOrLessThanItself) {
  ExpectUnknown("A", "[AM");    // the last character goes with the bracket
  ExpectUnknown("AM]", "AM]");  // a closing bracket alone stays
}

TEST_F(Selectors, ANameTwiceIsBadlyFormed) {
  ExpectFailure(kBadlyFormed, kBadlyFormedText, "AM,AM", true);
  ExpectFailure(kBadlyFormed, kBadlyFormedText, "a,b,a");
  EXPECT_EQ((Names{"a", "A"}), Expand("a,A"));
}

// Ranges.

TEST_F(Selectors, ARangeIsEveryNameFromStartToEnd) {
  EXPECT_EQ((Names{"a1", "a2", "a3"}), Expand("a1-a3"));
  EXPECT_EQ((Names{"a1", "a2"}), Expand(" a1 \t-\n a2 "));
  EXPECT_EQ((Names{"8", "9", "10", "11"}), Expand("8-11"));
  EXPECT_EQ((Names{"_!9", "_!10"}), Expand("_!9-_!10"));
  EXPECT_EQ((Names{"b", "a1", "a2", "c"}), Expand("[b,a1-a2,c]"));
}

TEST_F(Selectors, LeadingZerosAreNotKept) {
  EXPECT_EQ((Names{"a7", "a8", "a9"}), Expand("a07-a09"));
  EXPECT_EQ((Names{"0", "1"}), Expand("000-001"));
}

TEST_F(Selectors, TheBaseNamesOfARangeMustMatch) {
  ExpectInvalidRange("The base names do not match.", "a1-b3", "a1-b3");
  ExpectInvalidRange("The base names do not match.", "1-a3", "x,1-a3");
  EXPECT_EQ((Names{"a1", "a2"}), Expand("a1-A2"));
}

TEST_F(Selectors, ARangeRunsUpwardsAndHasMoreThanOneName) {
  ExpectInvalidRange("The start index must be less than the end index.", "a3-a1", "a3-a1");
  ExpectInvalidRange("The start index must be less than the end index.", "a3-a3", "a3-a3");
  ExpectInvalidRange("The start index must be less than the end index.", "3-03", "3-03");
}

TEST_F(Selectors, ARangeThatOverlapsIsRefusedUnderTheLaterToken) {
  const std::string overlap = "An identifier in the range overlaps with another range.";
  ExpectInvalidRange(overlap, "a3-a5", "a1-a3,a3-a5");
  ExpectInvalidRange(overlap, "a1-a3", "a2,a1-a3");
  ExpectInvalidRange(overlap, "a2", "a1-a3,a2");
  EXPECT_EQ((Names{"a1", "a2", "a3", "a4"}), Expand("a1-a2,a3-a4"));
  EXPECT_EQ((Names{"a1", "a2", "a02"}), Expand("a1-a2,a02"));
}

TEST_F(Selectors, AnIndexBeyondThirtyTwoBitsIsAnInvalidRange) {
  for (const char* selector :
       {"a1-a2147483648", "a2147483648-a2147483649", "a1-a99999999999999999999", "0-4294967296"}) {
    std::vector<tvr::RepCapIdentifier> output;
    EXPECT_EQ(kInvalidRange, generators.ExpandSelector(vi, selector, output, false)) << selector;
    EXPECT_TRUE(LastErrorText().starts_with(std::string("The range '") + selector +
                                            "' is not valid for the repeated capability 'LFGenerator'."));
    EXPECT_TRUE(output.empty());
  }
  EXPECT_EQ((Names{"a2147483646", "a2147483647"}), Expand("a2147483646-a2147483647"));
}

TEST_F(Selectors, ARangeOverAllNumbersIsRefusedAndTakesNoMemory) {
  std::vector<tvr::RepCapIdentifier> output;
  EXPECT_EQ(kInvalidRange, generators.ExpandSelector(vi, "a0-a2147483647", output, false));
  EXPECT_TRUE(output.empty());
}

// Levels.

TEST_F(Selectors, ASelectorOfSeveralLevelsIsRefusedOnACapabilityOfOne) {
  const std::string text =
      "The number of levels in the selector is not valid for the 'LFGenerator' repeated capability.";
  for (const char* selector : {"AM:FM", "AM:AM", "[AM,FM]:PM", "a1-a2:b:c", "x : y"}) {
    ExpectFailure(kWrongLevels, text, selector, true);
    ExpectFailure(kWrongLevels, text, selector, false);
  }
}

TEST_F(Selectors, AFaultWithinALevelIsToldBeforeTheNumberOfLevels) {
  ExpectFailure(kBadlyFormed, kBadlyFormedText, "AM:FM,FM");
  ExpectInvalidRange("The start index must be less than the end index.", "a2-a1", "AM:a2-a1");
}

// The check.

TEST_F(Selectors, ANameThatTheCapabilityHasNotIsRefused) {
  ExpectUnknown("XM", "XM");
  ExpectUnknown("XM", "AM,XM,FM");
  ExpectUnknown("a1", "a1-a3");
  EXPECT_EQ(Names{"XM"}, Expand("XM"));
}

TEST_F(Selectors, NamesCompareByteForByte) {
  ExpectUnknown("am", "am");
  ExpectUnknown("Am", "Am");
}

// Virtual names.

TEST_F(Selectors, AVirtualNameStandsForItsPhysicalName) {
  session().VirtualNames()["Voice"] = "FM";
  EXPECT_EQ(Names{"FM"}, Find("Voice"));
  EXPECT_EQ((Names{"AM", "FM"}), Find("[AM,Voice]"));
}

TEST_F(Selectors, AVirtualNameIsFoundInAnyCase) {
  session().VirtualNames()["Voice"] = "FM";
  EXPECT_EQ(Names{"FM"}, Find("vOICE"));
}

TEST_F(Selectors, AVirtualNameMayStandForSeveralAndStaysOneLevel) {
  session().VirtualNames()["Both"] = "AM,FM";
  EXPECT_EQ("[AM,FM]", tvr::ApplyVirtualNames(vi, "Both"));
  EXPECT_EQ((Names{"AM", "FM"}), Find("Both"));
  EXPECT_EQ("x:[AM,FM]", tvr::ApplyVirtualNames(vi, "x:Both"));
}

TEST_F(Selectors, SeveralNamesWithinAListAreNoSelectorAnyMore) {
  session().VirtualNames()["Both"] = "AM,FM";
  EXPECT_EQ("PM,[AM,FM]", tvr::ApplyVirtualNames(vi, "PM,Both"));
  ExpectFailure(kBadlyFormed, kBadlyFormedText, "PM,Both", true);
}

TEST_F(Selectors, AVirtualNameOfSeveralLevelsIsNotBracketed) {
  session().VirtualNames()["Deep"] = "AM:FM,PM";
  EXPECT_EQ("AM:FM,PM", tvr::ApplyVirtualNames(vi, "Deep"));
  std::vector<tvr::RepCapIdentifier> output;
  EXPECT_EQ(kWrongLevels, generators.ExpandSelector(vi, "Deep", output, true));
}

TEST_F(Selectors, TheCapabilityInFrontOfAPhysicalNameIsTakenOff) {
  session().VirtualNames()["Voice"] = "LFGenerator!!PM";
  EXPECT_EQ(Names{"PM"}, Find("Voice"));
  EXPECT_EQ(Names{"AM"}, Find("LFGenerator!!AM"));
}

TEST_F(Selectors, WhatStandsBetweenTheNamesStays) {
  session().VirtualNames()["a"] = "X";
  session().VirtualNames()["b1"] = "Y1";
  EXPECT_EQ(" [ X , Y1-b2 ]\t: c", tvr::ApplyVirtualNames(vi, " [ a , b1-b2 ]\t: c"));
  EXPECT_EQ("", tvr::ApplyVirtualNames(vi, ""));
}

TEST_F(Selectors, AReplacementIsCheckedAgain) {
  session().VirtualNames()["Bad"] = "A M";
  ExpectFailure(kBadlyFormed, kBadlyFormedText, "Bad", true);
}

TEST_F(Selectors, AReplacementIsNotReplacedAgain) {
  session().VirtualNames()["One"] = "Two";
  session().VirtualNames()["Two"] = "AM";
  EXPECT_EQ(Names{"Two"}, Expand("One"));
}

// Size.

TEST_F(Selectors, AHundredKilobytesAreAnsweredInGoodTime) {
  const Stopwatch watch;
  std::vector<tvr::RepCapIdentifier> output;

  const std::string name(100'000, 'a');
  EXPECT_EQ(kUnknownPhysical, generators.ExpandSelector(vi, name.c_str(), output, true));
  EXPECT_EQ(kBadlyFormed, generators.ExpandSelector(vi, (name + ',').c_str(), output, true));
  EXPECT_EQ(kBadlyFormed, generators.ExpandSelector(vi, std::string(100'000, '[').c_str(), output, true));
  EXPECT_EQ(kNoSelector, generators.ExpandSelector(vi, std::string(100'000, ' ').c_str(), output, true));
  const std::string digits(100'000, '7');
  EXPECT_EQ(kInvalidRange, generators.ExpandSelector(vi, ("a" + digits + "-a" + digits).c_str(), output, false));
  EXPECT_EQ(kInvalidRange, generators.ExpandSelector(vi, (name + "1-" + name + "2").c_str(), output, false));

  std::string list = "n0";
  for (int i = 1; list.size() < 100'000; ++i) list += ",n" + std::to_string(i);
  EXPECT_EQ(VI_SUCCESS, generators.ExpandSelector(vi, list.c_str(), output, false));
  EXPECT_GT(output.size(), 14'000U);

  std::string levels = "a";
  while (levels.size() < 100'000) levels += ":a";
  EXPECT_EQ(kWrongLevels, generators.ExpandSelector(vi, levels.c_str(), output, false));

  EXPECT_LT(watch.OwnMilliseconds(), 60'000);
}

TEST_F(Selectors, TheRangesOfASelectorHaveSoManyNamesTogetherAndNoMore) {
  EXPECT_EQ(65'536U, Expand("0-65535").size());
  EXPECT_EQ(65'536U, Expand("a1-a65534,b1-b2").size());
  ExpectInvalidRange("The range has too many names.", "0-65536", "0-65536");
  ExpectInvalidRange("The range has too many names.", "0-2147483647", "0-2147483647");
  ExpectInvalidRange("The range has too many names.", "b1-b3", "a1-a65534,b1-b3");
  ExpectInvalidRange("The range has too many names.", "b1-b3", "a1-a65534:b1-b3");
}

TEST_F(Selectors, ARangeOfAHundredNamesExpandsWhole) {
  const Names names = Expand("n901-n1000");
  ASSERT_EQ(100U, names.size());
  EXPECT_EQ("n901", names.front());
  EXPECT_EQ("n1000", names.back());
}

TEST(SelectorDeathTest, ACapabilityWithoutNamesIsAFaultOfOurOwn) {
  EXPECT_DEATH(tvr::RepeatedCapability("Nothing", ""), "names.size\\(\\) > 0");
}

TEST(SelectorDeathTest, ACapabilityWithNamesThatDoNotExpandIsAFaultOfOurOwn) {
  EXPECT_DEATH(tvr::RepeatedCapability("Twice", "AM,AM"), "RepeatedCapability\\.cpp.*status >= 0");
}

}  // namespace
}  // namespace kvtd::test
