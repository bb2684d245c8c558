// Handles of the session component: what resolves, what is refused, and what a stale one may not reach.
#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <thread>
#include <vector>

#include "IviCShared.h"

namespace {

constexpr ViStatus kInvalidHandle = static_cast<ViStatus>(0xBFFA1190u);
constexpr ViStatus kNullPointer = static_cast<ViStatus>(0xBFFA0058u);

ViSession Open(ViAddr data = nullptr) {
  ViSession vi = 0;
  EXPECT_EQ(VI_SUCCESS, IviSession_New(&vi));
  EXPECT_EQ(VI_SUCCESS, IviSession_SetDataPtr(vi, data));
  return vi;
}

TEST(SessionHandle, NewSessionHasANonZeroHandleAndANullPointer) {
  ViSession vi = 0;
  ASSERT_EQ(VI_SUCCESS, IviSession_New(&vi));
  EXPECT_NE(0u, vi);
  int something = 0;
  ViAddr data = &something;
  EXPECT_EQ(VI_SUCCESS, IviSession_GetDataPtr(vi, &data));
  EXPECT_EQ(nullptr, data);
  EXPECT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
}

TEST(SessionHandle, EverySessionGivesItsOwnPointerBack) {
  std::vector<int> objects(3000);  // more than one chunk of slots
  std::vector<ViSession> sessions;
  for (int& object : objects) sessions.push_back(Open(&object));
  for (size_t i = 0; i < objects.size(); ++i) {
    ViAddr data = nullptr;
    ASSERT_EQ(VI_SUCCESS, IviSession_GetDataPtr(sessions[i], &data));
    ASSERT_EQ(&objects[i], data);
  }
  EXPECT_EQ(objects.size(), std::set<ViSession>(sessions.begin(), sessions.end()).size());
  for (ViSession vi : sessions) ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
}

TEST(SessionHandle, HandleThatWasNeverGivenOutIsRefusedByEveryOperation) {
  for (ViSession vi : {0x7FFFFFFFu, 0xFFFFFFFFu, 1u, 0x00100000u + 5000u}) {
    int untouched = 0;
    ViAddr data = &untouched;
    ViStatus code = 77;
    ViChar text[8] = "as was";
    EXPECT_EQ(kInvalidHandle, IviSession_GetDataPtr(vi, &data));
    EXPECT_EQ(&untouched, data);
    EXPECT_EQ(kInvalidHandle, IviSession_SetDataPtr(vi, nullptr));
    EXPECT_EQ(kInvalidHandle, IviSession_Lock(vi, nullptr));
    EXPECT_EQ(kInvalidHandle, IviSession_Unlock(vi, nullptr));
    EXPECT_EQ(kInvalidHandle, IviSession_GetError(vi, 8, &code, text));
    EXPECT_EQ(77, code);
    EXPECT_STREQ("as was", text);
    EXPECT_EQ(kInvalidHandle, IviSession_ClearError(vi));
    EXPECT_EQ(kInvalidHandle, IviSession_Dispose(vi));
  }
}

TEST(SessionHandle, ZeroIsNoSession) {
  ViAddr data = nullptr;
  EXPECT_EQ(kInvalidHandle, IviSession_GetDataPtr(0, &data));
  EXPECT_EQ(kInvalidHandle, IviSession_SetDataPtr(0, &data));
  EXPECT_EQ(kInvalidHandle, IviSession_Lock(0, nullptr));
  EXPECT_EQ(kInvalidHandle, IviSession_Unlock(0, nullptr));
  EXPECT_EQ(kInvalidHandle, IviSession_Dispose(0));
}

TEST(SessionHandle, NullOutputsAreReportedAsSuch) {
  EXPECT_EQ(kNullPointer, IviSession_New(nullptr));
  const ViSession vi = Open();
  EXPECT_EQ(kNullPointer, IviSession_GetDataPtr(vi, nullptr));
  EXPECT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
}

TEST(SessionHandle, DisposedHandleIsRefusedAndTheSecondDisposeToo) {
  const ViSession vi = Open();
  ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
  ViAddr data = nullptr;
  EXPECT_EQ(kInvalidHandle, IviSession_GetDataPtr(vi, &data));
  EXPECT_EQ(kInvalidHandle, IviSession_Lock(vi, nullptr));
  EXPECT_EQ(kInvalidHandle, IviSession_Dispose(vi));
}

TEST(SessionHandle, DisposedHandleStaysRefusedWhenItsSlotIsInUseAgain) {
  int object = 0;
  const ViSession stale = Open(&object);
  ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(stale));
  // Enough sessions at once that every free slot is taken.
  std::vector<ViSession> open;
  for (int i = 0; i < 3000; ++i) open.push_back(Open(&object));
  ViAddr data = nullptr;
  EXPECT_EQ(kInvalidHandle, IviSession_GetDataPtr(stale, &data));
  EXPECT_EQ(kInvalidHandle, IviSession_Dispose(stale));
  for (ViSession vi : open) {
    ASSERT_NE(stale, vi);
    ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
  }
}

TEST(SessionHandle, HandleDoesNotComeBackWithinHundredThousandSessions) {
  const ViSession first = Open();
  ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(first));
  for (int i = 0; i < 100000; ++i) {
    ViSession vi = 0;
    ASSERT_EQ(VI_SUCCESS, IviSession_New(&vi));
    ASSERT_NE(first, vi);
    ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
  }
}

TEST(SessionHandle, SessionsOpenAndCloseInManyThreadsWithoutMeetingEachOther) {
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([] {
      for (int i = 0; i < 3000; ++i) {
        int object = i;
        const ViSession vi = Open(&object);
        ViAddr data = nullptr;
        ASSERT_EQ(VI_SUCCESS, IviSession_GetDataPtr(vi, &data));
        ASSERT_EQ(&object, data);
        ASSERT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(SessionHandle, ResolvingBesideAThreadThatOpensAndClosesGivesTheRightPointerOrRefuses) {
  int object = 0;
  const ViSession steady = Open(&object);
  std::atomic<ViSession> passing{0};
  std::atomic<bool> done{false};
  std::thread opener([&] {
    int other = 0;
    for (int i = 0; i < 5000; ++i) {
      const ViSession vi = Open(&other);
      passing = vi;
      EXPECT_EQ(VI_SUCCESS, IviSession_Dispose(vi));
    }
    done = true;
  });
  while (!done) {
    ViAddr data = nullptr;
    ASSERT_EQ(VI_SUCCESS, IviSession_GetDataPtr(steady, &data));
    ASSERT_EQ(&object, data);
    data = nullptr;
    const ViStatus status = IviSession_GetDataPtr(passing, &data);
    ASSERT_TRUE(status == VI_SUCCESS || (status == kInvalidHandle && data == nullptr));
    ASSERT_NE(&object, data);
  }
  opener.join();
  EXPECT_EQ(VI_SUCCESS, IviSession_Dispose(steady));
}

}  // namespace
