// Recording of messages: how they are put together, how long they may be, how a null pointer is named.

#include <Errors.h>

#include "BareSession.h"

namespace kvtd::test {
namespace {

class Errors : public BareSession {};
using ErrorsDeathTest = Errors;

TEST_F(Errors, ACodesTextStandsAlone) {
  EXPECT_EQ(Status(0xBFFA0062U), tvr::RaiseError(vi, Status(0xBFFA0062U)));
  EXPECT_EQ("The simulation state cannot be changed.", LastErrorText());
}

TEST_F(Errors, FurtherTextFollowsBehindTwoBlanksAndSharesTheArguments) {
  EXPECT_EQ(Status(0xBFFA0010U),
            tvr::RaiseErrorText(vi, Status(0xBFFA0010U), "Four is '%d'.", "one", "two", "three", 4));
  EXPECT_EQ("Invalid value 'one' for function 'two', parameter 'three'.  Four is '4'.", LastErrorText());
}

TEST_F(Errors, AnEmptyFurtherTextAddsNoBlanks) {
  tvr::RaiseErrorText(vi, kCannotRecover, "");
  EXPECT_EQ("Failure cannot recover.", LastErrorText());
}

TEST_F(Errors, ACodeWithoutATextHasTheFurtherTextAlone) {
  EXPECT_EQ(Status(0xBFFF0015U), tvr::RaiseError(vi, Status(0xBFFF0015U)));
  EXPECT_EQ("", LastErrorText());
  tvr::RaiseErrorText(vi, Status(0xBFFF0015U), "More.");
  EXPECT_EQ("  More.", LastErrorText());
}

TEST_F(Errors, TheSessionsOwnReportsAreTheSame) {
  EXPECT_EQ(kUnknownOption, session().ReportError(kUnknownOption, "foo"));
  EXPECT_EQ("The 'foo' name in the option string is unknown.", LastErrorText());
  EXPECT_EQ(kCannotRecover, session().ReportErrorText(kCannotRecover, "Because of '%s'.", "bar"));
  EXPECT_EQ("Failure cannot recover.  Because of 'bar'.", LastErrorText());
}

TEST_F(Errors, AMessageIsCutToAThousandAndTwentyThreeCharacters) {
  const std::string before = "Attribute ID '";
  const std::string behind = "' not recognized.";
  for (const std::size_t length : {std::size_t{1022}, std::size_t{1023}}) {
    const std::string name(length - before.size() - behind.size(), 'n');
    tvr::RaiseError(vi, Status(0xBFFA000CU), name.c_str());
    EXPECT_EQ(before + name + behind, LastErrorText());
  }
  for (const std::size_t size : {std::size_t{1000}, std::size_t{1023}, std::size_t{100'000}}) {
    const std::string name(size, 'n');
    tvr::RaiseError(vi, Status(0xBFFA000CU), name.c_str());
    EXPECT_EQ((before + name + behind).substr(0, 1023), LastErrorText());
  }
}

TEST_F(Errors, AFurtherTextIsCutWithTheMessage) {
  const std::string text(2000, 't');
  tvr::RaiseErrorText(vi, kCannotRecover, text.c_str());
  EXPECT_EQ(("Failure cannot recover.  " + text).substr(0, 1023), LastErrorText());
}

TEST_F(Errors, ArgumentsAreTextAndNoFormat) {
  tvr::RaiseError(vi, kUnknownOption, "%s%n%d");
  EXPECT_EQ("The '%s%n%d' name in the option string is unknown.", LastErrorText());
}

TEST_F(Errors, AHandleThatDoesNotResolveStillGetsTheCodeBack) {
  EXPECT_EQ(kCannotRecover, tvr::RaiseError(0xDEADBEEF, kCannotRecover));
}

// Null pointers.

TEST_F(Errors, NoNullPointerIsNoError) {
  int one = 0;
  EXPECT_EQ(VI_SUCCESS, tvr::CheckNullParameters(vi, "F", "A, B", {&one, &one}));
  EXPECT_EQ("", LastErrorText());
}

TEST_F(Errors, TheFirstNullPointerIsNamedByItsPlace) {
  int one = 0;
  EXPECT_EQ(kNullPointer, tvr::CheckNullParameters(vi, "F", "A, B, C", {&one, nullptr, nullptr}));
  EXPECT_EQ("Null pointer passed for function 'F', parameter 'B'.", LastErrorText());
  EXPECT_EQ(kNullPointer, tvr::CheckNullParameters(vi, "F", "A, B, C", {nullptr, &one, nullptr}));
  EXPECT_EQ("Null pointer passed for function 'F', parameter 'A'.", LastErrorText());
  EXPECT_EQ(kNullPointer, tvr::CheckNullParameters(vi, "F", "A, B, C", {&one, &one, nullptr}));
  EXPECT_EQ("Null pointer passed for function 'F', parameter 'C'.", LastErrorText());
}

TEST_F(Errors, NamesAreTrimmed) {
  EXPECT_EQ(kNullPointer, tvr::CheckNullParameters(vi, " \tF\r\n", " \tA\r\n , B", {nullptr}));
  EXPECT_EQ("Null pointer passed for function 'F', parameter 'A'.", LastErrorText());
}

TEST_F(ErrorsDeathTest, APlaceBehindTheListOfNamesIsAFaultOfTheDriver) {
  int one = 0;
  EXPECT_DEATH(tvr::CheckNullParameters(vi, "F", "A", {&one, nullptr}), R"(nIndex < \(int\)vecNames\.size\(\))");
  EXPECT_DEATH(tvr::CheckNullParameters(vi, "F", "", {nullptr}), R"(nIndex < \(int\)vecNames\.size\(\))");
}

}  // namespace
}  // namespace kvtd::test
