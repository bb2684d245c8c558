// The text functions on which maps, options and selectors stand.

#include <Strings.h>
#include <gtest/gtest.h>

#include <array>

namespace kvtd::test {
namespace {

using Fields = std::vector<std::string>;

TEST(SplitString, AnEmptyTextHasNoField) {
  EXPECT_EQ(Fields{}, tvr::SplitString("", ',', false));
  EXPECT_EQ(Fields{}, tvr::SplitString("", ',', true));
}

TEST(SplitString, ATextWithoutSeparatorIsOneField) { EXPECT_EQ(Fields{"abc"}, tvr::SplitString("abc", ',', false)); }

TEST(SplitString, TwoSeparatorsHaveAnEmptyFieldBetweenThem) {
  EXPECT_EQ((Fields{"a", "", "b"}), tvr::SplitString("a,,b", ',', false));
}

TEST(SplitString, ALeadingSeparatorHasAnEmptyFieldBeforeIt) {
  EXPECT_EQ((Fields{"", "a"}), tvr::SplitString(",a", ',', false));
}

TEST(SplitString, ATrailingSeparatorAddsNoField) {
  EXPECT_EQ(Fields{"a"}, tvr::SplitString("a,", ',', false));
  EXPECT_EQ((Fields{"a", ""}), tvr::SplitString("a,,", ',', false));
  EXPECT_EQ(Fields{""}, tvr::SplitString(",", ',', false));
}

TEST(SplitString, BlanksStayUnlessTheFieldsAreTrimmed) {
  EXPECT_EQ((Fields{" a ", "\tb\r\n"}), tvr::SplitString(" a ,\tb\r\n", ',', false));
  EXPECT_EQ((Fields{"a", "b"}), tvr::SplitString(" a ,\tb\r\n", ',', true));
  EXPECT_EQ((Fields{"1", "ON"}), tvr::SplitString("1,  ON", ',', true));
  EXPECT_EQ((Fields{"", "a"}), tvr::SplitString("  ,a", ',', true));
  EXPECT_EQ(Fields{""}, tvr::SplitString(" ", ',', true));
}

TEST(SplitString, OtherWhiteSpaceIsNotTrimmed) { EXPECT_EQ(Fields{"\va\f"}, tvr::SplitString(" \va\f ", ',', true)); }

TEST(SplitString, TheSeparatorIsTheOneGiven) { EXPECT_EQ((Fields{"a,b", "c"}), tvr::SplitString("a,b:c", ':', true)); }

TEST(TrimString, TakesTheSetFromBothEndsAndNothingFromWithin) {
  EXPECT_EQ("a b", tvr::TrimString(" \t a b\r\n", tvr::kBlanks));
  EXPECT_EQ("0,\"No", tvr::TrimString("\"0,\"No\"\"\"", "\""));
  EXPECT_EQ("b", tvr::TrimString("aabaa", "a"));
}

TEST(TrimString, ATextOfSuchCharactersOnlyIsEmpty) {
  EXPECT_EQ("", tvr::TrimString(" \t\r\n", tvr::kBlanks));
  EXPECT_EQ("", tvr::TrimString("", tvr::kBlanks));
}

TEST(TrimString, AnEmptySetTakesNothing) { EXPECT_EQ(" a ", tvr::TrimString(" a ", "")); }

TEST(EqualIgnoringCase, FoldsAsciiLettersAndNothingElse) {
  EXPECT_TRUE(tvr::EqualIgnoringCase("FIXed", "fixED"));
  EXPECT_TRUE(tvr::EqualIgnoringCase("", ""));
  EXPECT_FALSE(tvr::EqualIgnoringCase("FIX", "FIXE"));
  EXPECT_FALSE(tvr::EqualIgnoringCase("[", "{"));
  EXPECT_FALSE(tvr::EqualIgnoringCase("\xC4", "\xE4"));
}

TEST(CopyText, LeavesRoomForTheTerminator) {
  std::array<char, 5> buffer{'x', 'x', 'x', 'x', 'x'};
  tvr::CopyText("abcdef", 4, buffer.data());
  EXPECT_STREQ("abc", buffer.data());
  EXPECT_EQ('x', buffer[4]);
  tvr::CopyText("abcdef", 1, buffer.data());
  EXPECT_STREQ("", buffer.data());
}

TEST(CopyText, ASizeBelowOneCopiesNothing) {
  for (const ViInt32 size : {0, -1, -2147483647 - 1}) {
    char byte = 'x';
    tvr::CopyText("abc", size, &byte);
    EXPECT_EQ('x', byte);
  }
}

TEST(BoundedText, EndsAtTheTerminatorOrAtTheEndOfTheBuffer) {
  constexpr char kText[] = {'a', 'b', 'c', '\0', 'd'};
  EXPECT_EQ("abc", tvr::BoundedText(kText, 5));
  EXPECT_EQ("ab", tvr::BoundedText(kText, 2));
  EXPECT_EQ("", tvr::BoundedText(kText, 0));
  EXPECT_EQ("", tvr::BoundedText(kText, -3));
}

TEST(CaseInsensitiveMap, FindsAKeyInAnyCase) {
  tvr::CaseInsensitiveMap<int> map;
  map["Model"] = 1;
  map["MODEL"] = 2;
  EXPECT_EQ(1U, map.size());
  EXPECT_EQ(2, map.at("mOdEl"));
  EXPECT_EQ("Model", map.begin()->first);
}

TEST(CaseInsensitiveMap, AShorterKeyThatBeginsALongerOneComesFirst) {
  tvr::CaseInsensitiveMap<int> map{{"abc", 3}, {"AB", 2}, {"a", 1}, {"", 0}};
  Fields keys;
  for (const auto& entry : map) keys.push_back(entry.first);
  EXPECT_EQ((Fields{"", "a", "AB", "abc"}), keys);
}

TEST(CaseInsensitiveMap, ComparesAfterUpperCasing) {
  // '_' stands between the upper and the lower letters.
  tvr::CaseInsensitiveMap<int> map{{"a_", 1}, {"ab", 2}, {"a[", 3}};
  Fields keys;
  for (const auto& entry : map) keys.push_back(entry.first);
  EXPECT_EQ((Fields{"ab", "a[", "a_"}), keys);
}

}  // namespace
}  // namespace kvtd::test
