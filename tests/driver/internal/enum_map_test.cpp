// Conversions over a map whose rows are addressed to models and families, as those of a driver for many models would
// be. The driver's own maps have no such rows.

#include <EnumMap.h>

#include "BareSession.h"

namespace kvtd::test {
namespace {

using Rows = tvr::EnumMap;

constexpr ViInt32 kUnset = 77;

class Enums : public BareSession {
 protected:
  void SetUp() override {
    BareSession::SetUp();
    SetModel("TD48142C");
  }

  ViInt32 Value(const Rows& rows, std::string_view response) {
    ViInt32 value = kUnset;
    EXPECT_EQ(VI_SUCCESS, tvr::ResponseToValue(vi, rows, response, value)) << response;
    return value;
  }
  void ExpectNoValue(const Rows& rows, const std::string& response) {
    ViInt32 value = kUnset;
    EXPECT_EQ(kUnexpectedResponse, tvr::ResponseToValue(vi, rows, response, value)) << response;
    EXPECT_EQ(-1, value);
    EXPECT_EQ("Unexpected response from instrument.  Could not convert instrument response (" + response +
                  ") to a defined value.",
              LastErrorText());
  }
  std::string Word(const Rows& rows, ViInt32 value) {
    std::string_view command = "unset";
    EXPECT_EQ(VI_SUCCESS, tvr::ValueToCommand(vi, rows, value, command)) << value;
    return std::string(command);
  }
  void ExpectNoWord(const Rows& rows, ViInt32 value) {
    std::string_view command = "unset";
    EXPECT_EQ(kCannotRecover, tvr::ValueToCommand(vi, rows, value, command));
    EXPECT_EQ("", command);
    EXPECT_EQ("Failure cannot recover.  Could not convert defined value '" + std::to_string(value) +
                  "' to an instrument command.",
              LastErrorText());
  }
};

using EnumsDeathTest = Enums;

// Rows.

TEST_F(Enums, ARowTakesItsWordsAndModelsFromListsWithBlanks) {
  const tvr::EnumCommandInfo row("NAME", 7, "FIXed, FIX,  CW", "TD48142C , DefaultFamily");
  EXPECT_EQ("NAME", row.Name);
  EXPECT_EQ(7, row.Value);
  EXPECT_EQ((std::vector<std::string>{"FIXed", "FIX", "CW"}), row.Commands);
  EXPECT_EQ((std::vector<std::string>{"TD48142C", "DefaultFamily"}), row.Models);
  EXPECT_TRUE(tvr::EnumCommandInfo("NAME", 7, "A", "").Models.empty());
}

// From response to value.

TEST_F(Enums, AResponseIsTrimmedAndComparedWithoutCase) {
  const Rows rows = {{"A", 0, "FIXed, FIX", ""}};
  for (const char* response : {"FIX", "fix", " \tfIxEd\r\n", "FIXED"}) EXPECT_EQ(0, Value(rows, response));
}

TEST_F(Enums, AWordMatchesWholeOrNotAtAll) {
  const Rows rows = {{"A", 0, "FIXed, FIX", ""}};
  for (const char* response : {"FIXE", "FI", "", " ", "FIX X", "\vFIX", "FIXed, FIX"}) ExpectNoValue(rows, response);
}

TEST_F(Enums, TheReportShowsTheResponseAsItArrived) {
  const Rows rows = {{"A", 0, "A", ""}};
  ExpectNoValue(rows, " %s\tfoo \r");
}

TEST_F(Enums, AnExactRowWinsOverFamilyAndGenericRowsWhereverItStands) {
  const tvr::EnumCommandInfo exact("E", 1, "W", "TD48142C");
  const tvr::EnumCommandInfo family("F", 2, "W", "DefaultFamily");
  const tvr::EnumCommandInfo generic("G", 3, "W", "");
  EXPECT_EQ(1, Value({exact, family, generic}, "W"));
  EXPECT_EQ(1, Value({family, exact, generic}, "W"));
  EXPECT_EQ(1, Value({generic, family, exact}, "W"));
  EXPECT_EQ(1, Value({generic, exact}, "W"));
}

TEST_F(Enums, TheFirstOfTwoExactRowsWins) {
  EXPECT_EQ(1, Value({{"A", 1, "W", "TD48142C"}, {"B", 2, "W", "TD48142C"}}, "W"));
}

TEST_F(Enums, AFamilyRowWinsOverAGenericRowWhereverItStands) {
  const tvr::EnumCommandInfo family("F", 2, "W", "DefaultFamily");
  const tvr::EnumCommandInfo generic("G", 3, "W", "");
  EXPECT_EQ(2, Value({family, generic}, "W"));
  EXPECT_EQ(2, Value({generic, family}, "W"));
}

TEST_F(Enums, AnyOfTheModelsOfARowMayBeTheSessions) {
  EXPECT_EQ(1, Value({{"A", 1, "W", "TD48122C, TD48142C"}}, "W"));
  EXPECT_EQ(1, Value({{"A", 1, "W", "OtherFamily, DefaultFamily"}}, "W"));
}

TEST_F(Enums, AWordOfAnotherModelIsNoWordHere) {
  const Rows rows = {{"A", 1, "W", "TD48172C"}, {"B", 2, "V", "OtherFamily"}};
  ExpectNoValue(rows, "W");
  ExpectNoValue(rows, "V");
}

TEST_F(Enums, ARowOfAnotherModelDoesNotStandInTheWayOfTheGenericOne) {
  EXPECT_EQ(2, Value({{"A", 1, "W", "TD48172C"}, {"B", 2, "W", ""}}, "W"));
  EXPECT_EQ(2, Value({{"B", 2, "W", ""}, {"A", 1, "W", "TD48172C"}}, "W"));
}

TEST_F(Enums, AGenericWordIsLostWhereARowOfTheModelHasTakenItsValueOver) {
  const Rows exact = {{"A", 1, "OLD", ""}, {"A", 1, "NEW", "TD48142C"}};
  ExpectNoValue(exact, "OLD");
  EXPECT_EQ(1, Value(exact, "NEW"));
  const Rows family = {{"A", 1, "NEW", "DefaultFamily"}, {"A", 1, "OLD", ""}};
  ExpectNoValue(family, "OLD");
  EXPECT_EQ(1, Value(family, "NEW"));
}

TEST_F(Enums, AGenericWordStaysWhereTheRowIsAnotherModels) {
  const Rows rows = {{"A", 1, "OLD", ""}, {"A", 1, "NEW", "TD48142C"}};
  SetModel("TD48122C");
  EXPECT_EQ(1, Value(rows, "OLD"));
  ExpectNoValue(rows, "NEW");
}

TEST_F(Enums, AGenericWordStaysWhenTheModelsRowsHaveOtherValues) {
  EXPECT_EQ(2, Value({{"A", 1, "NEW", "TD48142C"}, {"B", 2, "OLD", ""}}, "OLD"));
}

TEST_F(Enums, AnUnknownModelHasNoFamilyButItsOwnRows) {
  SetModel("X9");
  const Rows rows = {{"A", 1, "W", "DefaultFamily"}, {"B", 2, "W", ""}, {"C", 3, "V", "X9"}};
  EXPECT_EQ(2, Value(rows, "W"));
  EXPECT_EQ(3, Value(rows, "V"));
}

TEST_F(Enums, ModelsAndFamiliesCompareByteForByte) {
  const Rows rows = {{"A", 1, "W", "td48142c"}, {"B", 2, "V", "defaultfamily"}};
  ExpectNoValue(rows, "W");
  ExpectNoValue(rows, "V");
}

TEST_F(Enums, ADeclarationRowNamesAValueAndIsNoWord) {
  const Rows rows = {{"A", 0, "!!!", "!!!"}, {"B", 1, "!!!", "!!!"}, {"A", 0, "ON", ""}};
  ExpectNoValue(rows, "!!!");
  EXPECT_EQ(0, Value(rows, "ON"));
  ExpectNoWord(rows, 1);
  EXPECT_EQ("B", tvr::ValueToName(rows, 1));
}

TEST_F(Enums, AnEmptyMapKnowsNothing) {
  ExpectNoValue({}, "ON");
  ExpectNoWord({}, 0);
  EXPECT_EQ("0", tvr::ValueToName({}, 0));
}

TEST_F(EnumsDeathTest, TwoFamilyRowsForOneResponseAreAFaultOfTheMap) {
  const Rows rows = {{"A", 1, "W", "DefaultFamily"}, {"B", 2, "W", "DefaultFamily"}};
  ViInt32 value = 0;
  EXPECT_DEATH(tvr::ResponseToValue(vi, rows, "W", value),
               R"re(\(pBestMatch == nullptr \|\| pBestMatch->Models\.empty\(\)\) && "Invalid enum command map\.")re");
}

TEST_F(EnumsDeathTest, TwoGenericRowsForOneResponseAreAFaultOfTheMap) {
  const Rows rows = {{"A", 1, "W", ""}, {"B", 2, "W", ""}};
  ViInt32 value = 0;
  EXPECT_DEATH(tvr::ResponseToValue(vi, rows, "W", value),
               R"re(\(pBestMatch == nullptr \|\| !pBestMatch->Models\.empty\(\) \|\| !info\.Models\.empty\(\)\) && )re"
               R"re("Invalid enum command map\.")re");
}

TEST_F(EnumsDeathTest, AFaultyMapServesTheResponsesThatAreClear) {
  const Rows rows = {{"A", 1, "W", ""}, {"B", 2, "W", ""}, {"C", 3, "V", ""}};
  EXPECT_EQ(3, Value(rows, "V"));
}

// From value to command.

TEST_F(Enums, TheFirstWordGoesOutInItsOwnCase) { EXPECT_EQ("STEPped", Word({{"A", 1, "STEPped, STEP", ""}}, 1)); }

TEST_F(Enums, TheRowOfTheModelIsSentBeforeThatOfTheFamilyBeforeTheGenericOne) {
  const tvr::EnumCommandInfo exact("A", 1, "EXACt", "TD48142C");
  const tvr::EnumCommandInfo family("A", 1, "FAMily", "DefaultFamily");
  const tvr::EnumCommandInfo generic("A", 1, "GENeric", "");
  const tvr::EnumCommandInfo foreign("A", 1, "FOReign", "TD48172C");
  EXPECT_EQ("EXACt", Word({foreign, generic, family, exact}, 1));
  EXPECT_EQ("FAMily", Word({foreign, generic, family}, 1));
  EXPECT_EQ("GENeric", Word({foreign, generic}, 1));
  ExpectNoWord({foreign}, 1);
}

TEST_F(Enums, TheFirstRowOfItsKindIsSent) {
  EXPECT_EQ("ONE", Word({{"B", 2, "TWO", ""}, {"A", 1, "ONE", ""}, {"A", 1, "UNO", ""}}, 1));
}

TEST_F(Enums, AValueWithoutARowHasNoWord) {
  const Rows rows = {{"A", 1, "ONE", ""}};
  for (const ViInt32 value : {0, 2, -1, 2147483647}) ExpectNoWord(rows, value);
}

TEST_F(Enums, BothConversionsFollowAChangeOfTheModel) {
  const Rows rows = {{"A", 1, "OLD", ""}, {"A", 1, "NEW", "TD48172C"}};
  EXPECT_EQ("OLD", Word(rows, 1));
  SetModel("TD48172C");
  EXPECT_EQ("NEW", Word(rows, 1));
  EXPECT_EQ(1, Value(rows, "NEW"));
}

// Names.

TEST_F(Enums, ANameIsThatOfTheFirstRowWhateverItsModels) {
  const Rows rows = {{"FIRST", 1, "!!!", "!!!"}, {"SECOND", 1, "W", "TD48142C"}};
  EXPECT_EQ("FIRST", tvr::ValueToName(rows, 1));
}

TEST_F(Enums, AValueWithoutANameIsItsDigits) {
  EXPECT_EQ("99", tvr::ValueToName({{"A", 1, "W", ""}}, 99));
  EXPECT_EQ("-1", tvr::ValueToName({{"A", 1, "W", ""}}, -1));
  EXPECT_EQ("-2147483648", tvr::ValueToName({}, -2147483647 - 1));
}

}  // namespace
}  // namespace kvtd::test
