// What the library shows to the world.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

extern "C" int CallsOfAPlainCProgram(void);

namespace {

TEST(Exports, AreTheTwoComponentsFunctionsAndNothingElse) {
  FILE* nm = ::popen("nm -D --defined-only --format=posix " LIBRARY, "r");
  ASSERT_NE(nullptr, nm);
  char name[256];
  std::vector<std::string> names;
  while (std::fscanf(nm, "%255s%*[^\n]", name) == 1) names.emplace_back(name);
  EXPECT_EQ(0, ::pclose(nm));
  EXPECT_EQ(49u, names.size());
  using ::testing::StartsWith;
  EXPECT_THAT(names, ::testing::Each(::testing::AnyOf(StartsWith("IviSession_"), StartsWith("IviConfig_"))));
}

TEST(Exports, AreCallableFromC) { EXPECT_EQ(0, CallsOfAPlainCProgram()); }

}  // namespace
