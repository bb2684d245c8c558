#include "GuardedText.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace kvtd::test {
namespace {

TEST(GuardedText, StartsUntouchedAndHoldsWhatIsWritten) {
  GuardedText<4> text;
  EXPECT_TRUE(text.Untouched());
  std::memcpy(text.data(), "abc", 4);
  EXPECT_FALSE(text.Untouched());
  EXPECT_EQ("abc", text.text());
}

TEST(GuardedText, NoticesAByteBehindItsEnd) {
  EXPECT_NONFATAL_FAILURE(
      {
        GuardedText<4> text;
        text.data()[4] = '\0';
      },
      "outside a buffer of 4 bytes");
}

TEST(GuardedText, NoticesAByteBeforeItsBeginning) {
  EXPECT_NONFATAL_FAILURE(
      {
        GuardedText<4> text;
        text.data()[-1] = '\0';
      },
      "outside a buffer of 4 bytes");
}

TEST(GuardedText, AMissingTerminatorIsAFailure) {
  GuardedText<4> text;
  EXPECT_NONFATAL_FAILURE(text.text(), "no terminator within 4 bytes");
}

}  // namespace
}  // namespace kvtd::test
