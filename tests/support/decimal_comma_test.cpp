#include "DecimalComma.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

namespace kvtd::test {
namespace {

TEST(DecimalComma, TheCLibraryWritesACommaUntilTheEndOfTheScope) {
  std::array<char, 16> text{};
  {
    const DecimalComma comma;
    EXPECT_TRUE(DecimalComma::InForce());
    std::snprintf(text.data(), text.size(), "%.1f", 1.5);
    EXPECT_STREQ("1,5", text.data());
  }
  EXPECT_FALSE(DecimalComma::InForce());
  std::snprintf(text.data(), text.size(), "%.1f", 1.5);
  EXPECT_STREQ("1.5", text.data());
}

}  // namespace
}  // namespace kvtd::test
