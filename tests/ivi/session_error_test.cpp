// The last error of a session and of a thread.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "IviCShared.h"
#include "TextOut.h"

namespace {

constexpr ViStatus kInvalidHandle = static_cast<ViStatus>(0xBFFA1190u);
constexpr ViStatus kSome = static_cast<ViStatus>(0xBFFA0001u);
constexpr ViStatus kOther = static_cast<ViStatus>(0xBFFA000Cu);
constexpr ViStatus kWarning = static_cast<ViStatus>(0x3FFA0005u);

class SessionError : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(VI_SUCCESS, IviSession_New(&vi));
    ASSERT_EQ(VI_SUCCESS, IviSession_ClearError(0));
  }
  void TearDown() override { IviSession_Dispose(vi); }

  struct Taken {
    ViStatus code;
    std::string text;
    bool operator==(const Taken&) const = default;
  };
  static Taken Take(ViSession session) {
    ViStatus code = 77;
    ViChar text[1024] = "nothing";
    EXPECT_EQ(VI_SUCCESS, IviSession_GetError(session, 1024, &code, text));
    return {code, text};
  }
  const Taken kNone{VI_SUCCESS, ""};

  ViSession vi = 0;
};

TEST_F(SessionError, WithoutAnErrorTheCodeIsZeroAndTheTextEmpty) {
  EXPECT_EQ(kNone, Take(vi));
  EXPECT_EQ(kNone, Take(0));
}

TEST_F(SessionError, IsGivenOutOnceAndForgotten) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, "The instrument reports an error."));
  EXPECT_EQ((Taken{kSome, "The instrument reports an error."}), Take(vi));
  EXPECT_EQ(kNone, Take(vi));
}

TEST_F(SessionError, TheLastOneReplacesWhateverWasThere) {
  for (const ViStatus first : {kSome, kWarning, 0}) {
    for (const ViStatus last : {kOther, kWarning, 0}) {
      ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, first, "first"));
      ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, last, "last"));
      EXPECT_EQ((Taken{last, "last"}), Take(vi));
      EXPECT_EQ((Taken{last, "last"}), Take(0));
    }
  }
}

TEST_F(SessionError, TakingTheSessionsErrorLeavesTheThreadsAndTheOtherWayRound) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, "both"));
  EXPECT_EQ((Taken{kSome, "both"}), Take(vi));
  EXPECT_EQ((Taken{kSome, "both"}), Take(0));
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kOther, "again"));
  EXPECT_EQ((Taken{kOther, "again"}), Take(0));
  EXPECT_EQ((Taken{kOther, "again"}), Take(vi));
}

TEST_F(SessionError, WithHandleZeroOnlyTheThreadsErrorIsSet) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(0, kSome, "thread"));
  EXPECT_EQ(kNone, Take(vi));
  EXPECT_EQ((Taken{kSome, "thread"}), Take(0));
}

TEST_F(SessionError, ForAHandleThatDoesNotResolveIsTheThreadsAndSucceeds) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(0xFFFFFFFFu, kSome, "Null pointer passed."));
  EXPECT_EQ((Taken{kSome, "Null pointer passed."}), Take(0));
}

TEST_F(SessionError, OfASessionThatEndedIsFoundWithHandleZero) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, "why it failed"));
  ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
  ViStatus code = 77;
  ViChar text[32] = "as was";
  EXPECT_EQ(kInvalidHandle, IviSession_GetError(vi, 32, &code, text));
  EXPECT_EQ(77, code);
  EXPECT_STREQ("as was", text);
  EXPECT_EQ((Taken{kSome, "why it failed"}), Take(0));
}

TEST_F(SessionError, IsNotInheritedByTheSlotsNextSession) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, "old"));
  ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
  std::vector<ViSession> all_slots(2048);
  for (ViSession& session : all_slots) {
    ASSERT_EQ(VI_SUCCESS, IviSession_New(&session));
    ASSERT_EQ(kNone, Take(session));
  }
  for (ViSession session : all_slots) ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(session));
}

TEST_F(SessionError, OfOneThreadIsNotSeenByAnother) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, "mine"));
  std::thread([this] {
    EXPECT_EQ(kNone, Take(0));
    EXPECT_EQ((Taken{kSome, "mine"}), Take(vi));
    ASSERT_EQ(VI_SUCCESS, IviSession_SetError(0, kOther, "theirs"));
  }).join();
  EXPECT_EQ((Taken{kSome, "mine"}), Take(0));
}

TEST_F(SessionError, ClearForgetsTheSessionsOrWithZeroTheThreads) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, "text"));
  ASSERT_EQ(VI_SUCCESS, IviSession_ClearError(vi));
  EXPECT_EQ(kNone, Take(vi));
  EXPECT_EQ((Taken{kSome, "text"}), Take(0));
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, "text"));
  ASSERT_EQ(VI_SUCCESS, IviSession_ClearError(0));
  EXPECT_EQ(kNone, Take(0));
  EXPECT_EQ((Taken{kSome, "text"}), Take(vi));
}

TEST_F(SessionError, NullTextIsEmptyAndNullCodeIsSkipped) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, nullptr));
  ViChar text[4] = "abc";
  EXPECT_EQ(VI_SUCCESS, IviSession_GetError(vi, 4, nullptr, text));
  EXPECT_STREQ("", text);
  EXPECT_EQ(kNone, Take(vi)) << "given out whole, without the code";
}

TEST_F(SessionError, TextFollowsTheBufferRule) {
  for (const std::string text : {"", "x", "Invalid value for attribute."}) {
    ExpectBufferRule(text, [&](ViInt32 size, ViChar* buffer) {
      EXPECT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, text.c_str()));
      return IviSession_GetError(vi, size, nullptr, buffer);
    });
  }
}

TEST_F(SessionError, StaysUntilItWentOutWhole) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, kSome, "0123456789"));
  ViStatus code = 77;
  EXPECT_EQ(11, IviSession_GetError(vi, 0, &code, nullptr));
  EXPECT_EQ(kSome, code);
  ViChar part[5];
  EXPECT_EQ(11, IviSession_GetError(vi, 5, &code, part));
  EXPECT_STREQ("0123", part);
  EXPECT_EQ((Taken{kSome, "0123456789"}), Take(vi));
  EXPECT_EQ(kNone, Take(vi));
}

TEST_F(SessionError, RecordedFromManyThreadsIsAlwaysOneThreadsCodeWithItsText) {
  std::vector<std::thread> threads;
  for (ViStatus t = 1; t <= 4; ++t) {
    threads.emplace_back([this, t] {
      const std::string text(static_cast<size_t>(t) * 40, static_cast<char>('a' + t));
      for (int i = 0; i < 2000; ++i) {
        ASSERT_EQ(VI_SUCCESS, IviSession_SetError(vi, -t, text.c_str()));
        const Taken taken = Take(vi);
        if (taken == kNone) continue;  // another thread took it
        const size_t whose = static_cast<size_t>(-taken.code);
        ASSERT_EQ(std::string(whose * 40, static_cast<char>('a' + whose)), taken.text);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
