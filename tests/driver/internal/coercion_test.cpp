// Coercion records as they are handed out. The driver makes none, so the session is given them.

#include <KVTD481X2C.h>

#include "BareSession.h"
#include "GuardedText.h"

namespace kvtd::test {
namespace {

class CoercionRecords : public BareSession {
 protected:
  void SetUp() override {
    BareSession::SetUp();
    session().CoercionRecords() = {"first", "and second"};
  }
  template <std::size_t Size>
  ViStatus Next(GuardedText<Size>& text) {
    return KVTD481X2C_GetNextCoercionRecord(vi, text.size(), text.data());
  }
  void ExpectNext(const std::string& record) {
    GuardedText<64> text;
    EXPECT_EQ(VI_SUCCESS, Next(text));
    EXPECT_EQ(record, text.text());
  }
};

TEST_F(CoercionRecords, ComeInTheirOrderAndThenNoneIsLeft) {
  ExpectNext("first");
  ExpectNext("and second");
  ExpectNext("");
  EXPECT_EQ(1, KVTD481X2C_GetNextCoercionRecord(vi, 0, nullptr));
}

TEST_F(CoercionRecords, ASizeOfZeroTellsTheSizeAndTakesNothing) {
  for (int look = 0; look < 2; ++look) EXPECT_EQ(6, KVTD481X2C_GetNextCoercionRecord(vi, 0, nullptr));
  GuardedText<8> text;
  EXPECT_EQ(6, KVTD481X2C_GetNextCoercionRecord(vi, 0, text.data()));
  EXPECT_TRUE(text.Untouched());
  ExpectNext("first");
  EXPECT_EQ(11, KVTD481X2C_GetNextCoercionRecord(vi, 0, nullptr));
}

TEST_F(CoercionRecords, TheExactSizeTakesTheWholeRecord) {
  GuardedText<6> text;
  EXPECT_EQ(VI_SUCCESS, Next(text));
  EXPECT_EQ("first", text.text());
  ExpectNext("and second");
}

// Kept on purpose: a record that was cut is gone all the same.
TEST_F(CoercionRecords, ARecordThatIsCutTellsItsSizeAndIsGone) {
  GuardedText<5> text;
  EXPECT_EQ(6, Next(text));
  EXPECT_EQ("firs", text.text());
  GuardedText<1> empty;
  EXPECT_EQ(11, Next(empty));
  EXPECT_EQ("", empty.text());
  ExpectNext("");
}

TEST_F(CoercionRecords, ANegativeSizeCopiesTheWholeRecordAndTakesIt) {
  GuardedText<6> text;
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_GetNextCoercionRecord(vi, -1, text.data()));
  EXPECT_EQ("first", text.text());
  GuardedText<11> other;
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_GetNextCoercionRecord(vi, -2147483647 - 1, other.data()));
  EXPECT_EQ("and second", other.text());
  ExpectNext("");
}

TEST_F(CoercionRecords, AnEmptyRecordIsTakenLikeAnyOther) {
  session().CoercionRecords() = {"", "next"};
  GuardedText<1> text;
  EXPECT_EQ(VI_SUCCESS, Next(text));
  ExpectNext("next");
}

TEST_F(CoercionRecords, ARefusedBufferTakesNothing) {
  for (const ViInt32 size : {5, 1, -1}) EXPECT_EQ(kNullPointer, KVTD481X2C_GetNextCoercionRecord(vi, size, nullptr));
  ExpectNext("first");
}

}  // namespace
}  // namespace kvtd::test
