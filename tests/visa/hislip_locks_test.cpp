// viLock reaches the device: the locks of this process inside, those of the device outside.
#include <cstring>

#include "hislip_session.h"

namespace tvr::visa::hislip {
namespace {

const std::string kGranted = Frame("HS 05 01 00000000 0000000000000000");  // or: exclusive lock released
const std::string kSharedReleased = Frame("HS 05 02 00000000 0000000000000000");
const std::string kFailed = Frame("HS 05 00 00000000 0000000000000000");
const std::string kRefused = Frame("HS 05 03 00000000 0000000000000000");
const std::string kAsksAtOnce = Frame("HS 04 01 00000000 0000000000000000");
const std::string kReleases = Frame("HS 04 00 FFFFFEFE 0000000000000000");

class HislipLocks : public HislipSession {
 protected:
  ViAccessMode State() const {
    ViAccessMode state = 9;
    EXPECT_EQ(VI_SUCCESS, viGetAttribute(vi_, VI_ATTR_RSRC_LOCK_STATE, &state));
    return state;
  }
};

TEST_F(HislipLocks, OnlyTheOutermostLevelIsAskedOfTheDevice) {
  peer_.Says(kAsync, kGranted);
  EXPECT_EQ(VI_SUCCESS, viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  peer_.Hears(kAsync, kAsksAtOnce);
  EXPECT_EQ(VI_SUCCESS_NESTED_EXCLUSIVE, viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  EXPECT_EQ(VI_SUCCESS_NESTED_EXCLUSIVE, viUnlock(vi_));
  peer_.HearsNothingMore(kAsync);
  peer_.Says(kAsync, kGranted);
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi_));
  peer_.Hears(kAsync, kReleases);
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, viUnlock(vi_));
  peer_.HearsNothingMore(kAsync);
}

TEST_F(HislipLocks, ASharedLockTakesItsKeyAlongAndTheExclusiveOneGoesOnTop) {
  peer_.Says(kAsync, kGranted + kGranted);
  EXPECT_EQ(VI_SUCCESS, viLock(vi_, VI_SHARED_LOCK, VI_TMO_IMMEDIATE, "bench", nullptr));
  peer_.Hears(kAsync, Frame("HS 04 01 00000000 0000000000000005", "bench"));
  EXPECT_EQ(VI_SUCCESS, viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  peer_.Hears(kAsync, kAsksAtOnce);
  peer_.Says(kAsync, kGranted + kSharedReleased);
  EXPECT_EQ(VI_SUCCESS_NESTED_SHARED, viUnlock(vi_));
  peer_.Hears(kAsync, kReleases);
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi_));
  peer_.Hears(kAsync, kReleases);
}

TEST_F(HislipLocks, AKeyOfOurMakingIsTheOneTheDeviceGets) {
  peer_.Says(kAsync, kGranted);
  char key[VI_FIND_BUFLEN] = "";
  EXPECT_EQ(VI_SUCCESS, viLock(vi_, VI_SHARED_LOCK, VI_TMO_IMMEDIATE, nullptr, key));
  ASSERT_GT(std::strlen(key), 20u) << "nobody else comes upon it by chance";
  std::string size(1, static_cast<char>(std::strlen(key)));
  peer_.Hears(kAsync, Frame("HS 04 01 00000000 0000000000000000").substr(0, 15) + size + key);
}

TEST_F(HislipLocks, WhatTheDeviceRefusesIsNotHeldHereEither) {
  peer_.Says(kAsync, kFailed);
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  peer_.Says(kAsync, kRefused);
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viLock(vi_, VI_SHARED_LOCK, 500, "bench", nullptr));
  peer_.Says(kAsync, kFailed);
  EXPECT_EQ(VI_ERROR_TMO, viLock(vi_, VI_EXCLUSIVE_LOCK, 500, nullptr, nullptr));
  EXPECT_EQ(static_cast<ViAccessMode>(VI_NO_LOCK), State());
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, viUnlock(vi_));
}

TEST_F(HislipLocks, ARefusedExclusiveLockLeavesTheSharedOneAlone) {
  peer_.Says(kAsync, kGranted + kFailed);
  EXPECT_EQ(VI_SUCCESS, viLock(vi_, VI_SHARED_LOCK, VI_TMO_IMMEDIATE, "bench", nullptr));
  EXPECT_EQ(VI_ERROR_TMO, viLock(vi_, VI_EXCLUSIVE_LOCK, 20, nullptr, nullptr));
  EXPECT_EQ(static_cast<ViAccessMode>(VI_SHARED_LOCK), State());
  peer_.Says(kAsync, kSharedReleased);
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi_));
}

TEST_F(HislipLocks, OneTimeServesTheLockInsideAndTheLockOutside) {
  const ViSession holder = vi_;
  HislipPeer first;
  peer_.MoveLinkTo(first);
  auto opening = OpenAside(VI_NULL, 2000);
  peer_.Welcome();
  ASSERT_EQ(VI_SUCCESS, opening.get());
  first.Says(kAsync, kGranted + kGranted);
  ASSERT_EQ(VI_SUCCESS, viLock(holder, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));

  const Stopwatch watch;
  auto locking =
      std::async(std::launch::async, [this] { return viLock(vi_, VI_EXCLUSIVE_LOCK, 400, nullptr, nullptr); });
  EXPECT_EQ(std::future_status::timeout, locking.wait_for(std::chrono::milliseconds(150)));
  peer_.HearsNothingMore(kAsync);
  EXPECT_EQ(VI_SUCCESS, viUnlock(holder));
  const std::string request = peer_.Next(kAsync, 16);
  const auto left = static_cast<unsigned char>(request[6]) * 256 + static_cast<unsigned char>(request[7]);
  EXPECT_LT(left, 300) << "what is left of the 400 milliseconds";
  EXPECT_EQ(VI_ERROR_TMO, locking.get()) << "the device never answers";
  EXPECT_GE(watch.Milliseconds(), 400);
  EXPECT_LT(watch.OwnMilliseconds(), 500);
}

TEST_F(HislipLocks, OpeningWithALockTakesItAtTheDevice) {
  viClose(vi_);
  auto opening = OpenAside(VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE);
  peer_.Welcome();
  peer_.Hears(kAsync, kAsksAtOnce);
  peer_.Says(kAsync, kGranted);
  EXPECT_EQ(VI_SUCCESS, opening.get());
  EXPECT_EQ(static_cast<ViAccessMode>(VI_EXCLUSIVE_LOCK), State());
}

TEST_F(HislipLocks, OpeningWithALockThatIsNotHadOpensNothing) {
  viClose(vi_);
  auto opening = OpenAside(VI_EXCLUSIVE_LOCK, 1000);
  peer_.Welcome();
  peer_.Next(kAsync, 16);
  peer_.Says(kAsync, kFailed);
  EXPECT_EQ(VI_ERROR_TMO, opening.get());
  EXPECT_EQ(ViSession{VI_NULL}, vi_);
  peer_.HearsTheEnd(kSync);
}

TEST_F(HislipLocks, AWaitForTheDeviceIsEndedAndTheSessionWorksAfter) {
  auto locking = std::async(std::launch::async,
                            [this] { return viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_INFINITE, nullptr, nullptr); });
  peer_.Hears(kAsync, Frame("HS 04 01 FFFFFFFF 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, viTerminate(vi_, VI_NULL, VI_NULL));
  EXPECT_EQ(VI_ERROR_ABORT, locking.get());
  EXPECT_EQ(static_cast<ViAccessMode>(VI_NO_LOCK), State());
  // Granted after all, and therefore given back.
  peer_.Says(kAsync, kGranted);
  AnswersStatusQuery("07");
  ViUInt16 status = 0;
  EXPECT_EQ(VI_SUCCESS, viReadSTB(vi_, &status));
  EXPECT_EQ(0x07, status);
  peer_.Hears(kAsync, Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  peer_.Hears(kAsync, kReleases);
}

TEST_F(HislipLocks, ClosingEndsAWaitForTheDevice) {
  auto locking = std::async(std::launch::async,
                            [this] { return viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_INFINITE, nullptr, nullptr); });
  peer_.Next(kAsync, 16);
  EXPECT_EQ(VI_SUCCESS, viClose(vi_));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, locking.get());
}

TEST_F(HislipLocks, ADeviceThatDoesNotAnswerAReleaseTakesNoMoreThanTheTimeout) {
  peer_.Says(kAsync, kGranted);
  ASSERT_EQ(VI_SUCCESS, viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, 100));
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, viUnlock(vi_));
  EXPECT_LT(watch.OwnMilliseconds(), 200);
  EXPECT_EQ(static_cast<ViAccessMode>(VI_NO_LOCK), State());
}

TEST_F(HislipLocks, ALockAtALostDeviceCanStillBeGivenUpHere) {
  peer_.Says(kAsync, kGranted);
  ASSERT_EQ(VI_SUCCESS, viLock(vi_, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  peer_.Closes(kAsync);
  EXPECT_EQ(VI_ERROR_CONN_LOST, viUnlock(vi_));
  EXPECT_EQ(static_cast<ViAccessMode>(VI_NO_LOCK), State());
}

}  // namespace
}  // namespace tvr::visa::hislip
