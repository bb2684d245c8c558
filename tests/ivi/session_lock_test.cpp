// The lock of a session: nesting, exclusion, the callerHasLock protocol, and what happens when the session ends.
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "IviCShared.h"

namespace {

constexpr ViStatus kInvalidHandle = static_cast<ViStatus>(0xBFFA1190u);

class SessionLock : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(VI_SUCCESS, IviSession_New(&vi)); }
  void TearDown() override { IviSession_Dispose(vi); }

  // What another thread gets to hear when it unlocks: its status tells whether it would have found the lock its own.
  ViStatus UnlockElsewhere() {
    return std::async(std::launch::async, [this] { return IviSession_Unlock(vi, nullptr); }).get();
  }

  // Whether another thread gets the lock within the time; it gives it back. When it does not, this thread's levels are
  // given up so that it ends.
  bool TakenElsewhereWithin(std::chrono::milliseconds time) {
    std::future<ViStatus> taken = std::async(std::launch::async, [this] {
      const ViStatus status = IviSession_Lock(vi, nullptr);
      IviSession_Unlock(vi, nullptr);
      return status;
    });
    const bool in_time = taken.wait_for(time) == std::future_status::ready;
    if (!in_time) {
      while (IviSession_Unlock(vi, nullptr) >= 0) {
      }
    }
    EXPECT_EQ(VI_SUCCESS, taken.get());
    return in_time;
  }

  ViSession vi = 0;
};

TEST_F(SessionLock, IsFreeForOthersOnlyAfterAsManyUnlocksAsLocks) {
  for (int i = 0; i < 3; ++i) ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  for (int i = 0; i < 2; ++i) ASSERT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
  EXPECT_FALSE(TakenElsewhereWithin(std::chrono::milliseconds(50)));

  for (int i = 0; i < 3; ++i) ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  for (int i = 0; i < 3; ++i) ASSERT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
  EXPECT_TRUE(TakenElsewhereWithin(std::chrono::seconds(10)));
}

TEST_F(SessionLock, UnlockWithoutLockIsRefused) { EXPECT_GT(0, IviSession_Unlock(vi, nullptr)); }

TEST_F(SessionLock, UnlockByAnotherThreadIsRefusedAndLeavesTheLockAlone) {
  ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  EXPECT_GT(0, UnlockElsewhere());
  EXPECT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
}

TEST_F(SessionLock, LockOfACallerThatHasItDoesNothing) {
  ViBoolean has_lock = VI_TRUE;
  EXPECT_EQ(VI_SUCCESS, IviSession_Lock(vi, &has_lock));
  EXPECT_EQ(VI_TRUE, has_lock);
  EXPECT_GT(0, IviSession_Unlock(vi, nullptr));
}

TEST_F(SessionLock, LockOfACallerWithoutItTakesALevelAndSaysSo) {
  ViBoolean has_lock = VI_FALSE;
  EXPECT_EQ(VI_SUCCESS, IviSession_Lock(vi, &has_lock));
  EXPECT_EQ(VI_TRUE, has_lock);
  EXPECT_EQ(VI_SUCCESS, IviSession_Lock(vi, &has_lock));
  EXPECT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
  EXPECT_GT(0, IviSession_Unlock(vi, nullptr));
}

TEST_F(SessionLock, UnlockOfACallerThatHasItGivesALevelBackAndSaysSo) {
  ViBoolean has_lock = VI_FALSE;
  ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, &has_lock));
  EXPECT_EQ(VI_SUCCESS, IviSession_Unlock(vi, &has_lock));
  EXPECT_EQ(VI_FALSE, has_lock);
  EXPECT_GT(0, IviSession_Unlock(vi, nullptr));
}

TEST_F(SessionLock, UnlockOfACallerWithoutItDoesNothing) {
  ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  ViBoolean has_lock = VI_FALSE;
  EXPECT_EQ(VI_SUCCESS, IviSession_Unlock(vi, &has_lock));
  EXPECT_EQ(VI_FALSE, has_lock);
  EXPECT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
}

TEST_F(SessionLock, RefusedUnlockLeavesTheCallersBalanceAlone) {
  ViBoolean has_lock = VI_TRUE;
  EXPECT_GT(0, IviSession_Unlock(vi, &has_lock));
  EXPECT_EQ(VI_TRUE, has_lock);
}

TEST_F(SessionLock, CountsWithoutLossWhenManyThreadsContend) {
  long count = 0;  // plain on purpose: the lock is all that guards it
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([&] {
      for (int i = 0; i < 5000; ++i) {
        ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
        ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
        ++count;
        ASSERT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
        ASSERT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(20000, count);
}

TEST_F(SessionLock, HoldingOneSessionsLockKeepsNobodyFromAnother) {
  ViSession other = 0;
  ASSERT_EQ(VI_SUCCESS, IviSession_New(&other));
  ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  std::thread([other] {
    EXPECT_EQ(VI_SUCCESS, IviSession_Lock(other, nullptr));
    EXPECT_EQ(VI_SUCCESS, IviSession_Unlock(other, nullptr));
  }).join();
  EXPECT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
  EXPECT_EQ(VI_SUCCESS, IviSession_Dispose(other));
}

TEST_F(SessionLock, PointerIsReadableWhileAnotherThreadHoldsTheLock) {
  ASSERT_EQ(VI_SUCCESS, IviSession_SetDataPtr(vi, this));
  ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  std::thread([this] {
    ViAddr data = nullptr;
    EXPECT_EQ(VI_SUCCESS, IviSession_GetDataPtr(vi, &data));
    EXPECT_EQ(this, data);
  }).join();
  EXPECT_EQ(VI_SUCCESS, IviSession_Unlock(vi, nullptr));
}

TEST_F(SessionLock, DisposeUnderTheLockOfAnotherThreadRefusesThatThreadsUnlock) {
  ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  std::thread([this] { EXPECT_EQ(VI_SUCCESS, IviSession_Dispose(vi)); }).join();
  EXPECT_EQ(kInvalidHandle, IviSession_Unlock(vi, nullptr));
  EXPECT_EQ(kInvalidHandle, IviSession_Lock(vi, nullptr));
}

TEST_F(SessionLock, DisposeSendsWaitingThreadsAway) {
  ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  std::vector<std::future<ViStatus>> waiting;
  for (int i = 0; i < 3; ++i) {
    waiting.push_back(std::async(std::launch::async, [this] { return IviSession_Lock(vi, nullptr); }));
  }
  ASSERT_EQ(std::future_status::timeout, waiting[0].wait_for(std::chrono::milliseconds(20)));
  ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
  for (auto& status : waiting) {
    ASSERT_EQ(std::future_status::ready, status.wait_for(std::chrono::seconds(10)));
    EXPECT_EQ(kInvalidHandle, status.get());
  }
}

TEST_F(SessionLock, LockLeftBehindByADisposedSessionIsFreeInTheSlotsNextSession) {
  ASSERT_EQ(VI_SUCCESS, IviSession_Lock(vi, nullptr));
  ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
  std::vector<ViSession> all_slots(2048);
  for (ViSession& session : all_slots) ASSERT_EQ(VI_SUCCESS, IviSession_New(&session));
  std::thread([&] {
    for (ViSession session : all_slots) {
      ASSERT_EQ(VI_SUCCESS, IviSession_Lock(session, nullptr));
      ASSERT_EQ(VI_SUCCESS, IviSession_Unlock(session, nullptr));
    }
  }).join();
  for (ViSession session : all_slots) ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(session));
}

}  // namespace
