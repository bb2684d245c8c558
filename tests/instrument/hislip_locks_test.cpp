// Several clients over HiSLIP, and the lock they share.
#include "hislip_client.h"

namespace siggen {
namespace {

const std::string kGranted = Frame("HS 05 01 00000000 0000000000000000");
const std::string kFailed = Frame("HS 05 00 00000000 0000000000000000");
const std::string kRefused = Frame("HS 05 03 00000000 0000000000000000");
const std::string kExclusiveReleased = Frame("HS 05 01 00000000 0000000000000000");
const std::string kSharedReleased = Frame("HS 05 02 00000000 0000000000000000");

class HislipLocks : public ::testing::Test {
 protected:
  // Nothing has been sent on the synchronous channel.
  static void Release(HislipClient& client) { client.async.Send(Frame("HS 04 00 FFFFFEFE 0000000000000000")); }
  static void AskExclusive(HislipClient& client, std::string_view milliseconds = "00000000") {
    client.async.Send(Frame("HS 04 01 " + std::string(milliseconds) + " 0000000000000000"));
  }
  static void AskShared(HislipClient& client, std::string_view key, std::string_view milliseconds = "00000000") {
    client.async.Send(Frame("HS 04 01 " + std::string(milliseconds) + " 0000000000000001", key));
  }

  LiveInstrument instrument_{HislipOnly()};
  HislipClient one_{instrument_.port()};
  HislipClient two_{instrument_.port()};
};

TEST_F(HislipLocks, ClientsShareTheSettingsAndNotTheAnswers) {
  one_.sync.Send(Frame("HS 07 00 FFFFFF00 000000000000000D", ":POW -8;:POW?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000003", "-8\n"), one_.sync);
  two_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", ":POW?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000003", "-8\n"), two_.sync);
}

TEST_F(HislipLocks, TheExclusiveLockKeepsOthersWaitingUntilItIsReleased) {
  AskExclusive(one_);
  EXPECT_HEARD(kGranted, one_.async);
  two_.sync.Send(Frame("HS 07 00 FFFFFF00 000000000000000D", ":POW -5;:POW?"));
  // What goes without the lock goes on, and shows that the message has been left where it is.
  two_.async.Send(Frame("HS 18 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 19 01 00000001 0000000000000000"), two_.async);
  one_.sync.Send(Frame("HS 07 00 FFFFFF00 000000000000000E", ":POW -20;:POW?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000004", "-20\n"), one_.sync);
  one_.async.Send(Frame("HS 04 00 FFFFFF00 0000000000000000"));
  EXPECT_HEARD(kExclusiveReleased, one_.async);
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000003", "-5\n"), two_.sync);
}

TEST_F(HislipLocks, AReleaseWaitsForTheMessagesSentBeforeIt) {
  AskExclusive(one_);
  EXPECT_HEARD(kGranted, one_.async);
  one_.async.Send(Frame("HS 04 00 FFFFFF00 0000000000000000"));  // overtakes the message it names
  one_.async.Send(Frame("HS 18 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 19 01 00000001 0000000000000000"), one_.async);
  one_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000007", ":POW -1"));
  EXPECT_HEARD(kExclusiveReleased, one_.async);
}

TEST_F(HislipLocks, ARequestFailsWhenItsTimeIsUp) {
  AskExclusive(one_);
  EXPECT_HEARD(kGranted, one_.async);
  AskExclusive(two_);
  EXPECT_HEARD(kFailed, two_.async);
  const auto begin = std::chrono::steady_clock::now();
  AskExclusive(two_, "00000064");
  EXPECT_HEARD(kFailed, two_.async);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(100));
}

TEST_F(HislipLocks, AWaitingRequestIsGrantedByTheRelease) {
  AskExclusive(one_);
  EXPECT_HEARD(kGranted, one_.async);
  AskExclusive(two_, "00007530");
  two_.async.Send(Frame("HS 18 00 00000000 0000000000000000"));  // the request has been read when this is answered
  EXPECT_HEARD(Frame("HS 19 01 00000001 0000000000000000"), two_.async);
  Release(one_);
  EXPECT_HEARD(kExclusiveReleased, one_.async);
  EXPECT_HEARD(kGranted, two_.async);
}

TEST_F(HislipLocks, WaitingRequestsAreServedInTheirOrder) {
  HislipClient three(instrument_.port());
  AskExclusive(one_);
  EXPECT_HEARD(kGranted, one_.async);
  for (HislipClient* next : {&two_, &three}) {
    AskExclusive(*next, "00007530");
    next->async.Send(Frame("HS 18 00 00000000 0000000000000000"));
    EXPECT_HEARD(Frame("HS 19 01 00000001 0000000000000000"), next->async);
  }
  Release(one_);
  EXPECT_HEARD(kGranted, two_.async);
  Release(two_);
  EXPECT_HEARD(kExclusiveReleased, two_.async);
  EXPECT_HEARD(kGranted, three.async);
}

TEST_F(HislipLocks, ALostClientLosesItsLock) {
  {
    HislipClient gone(instrument_.port());
    AskExclusive(gone);
    EXPECT_HEARD(kGranted, gone.async);
  }
  AskExclusive(one_, "00001388");
  EXPECT_HEARD(kGranted, one_.async);
}

TEST_F(HislipLocks, TheSameStringSharesAndAnotherDoesNot) {
  AskShared(one_, "a");
  EXPECT_HEARD(kGranted, one_.async);
  AskShared(two_, "b");
  EXPECT_HEARD(kFailed, two_.async);
  AskExclusive(two_);
  EXPECT_HEARD(kFailed, two_.async);
  AskShared(two_, "a");
  EXPECT_HEARD(kGranted, two_.async);
  two_.async.Send(Frame("HS 18 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 19 00 00000002 0000000000000000"), two_.async);
}

TEST_F(HislipLocks, ASharerMayHaveTheExclusiveLockOnTop) {
  AskShared(one_, "a");
  EXPECT_HEARD(kGranted, one_.async);
  AskShared(two_, "a");
  EXPECT_HEARD(kGranted, two_.async);
  AskExclusive(one_);
  EXPECT_HEARD(kGranted, one_.async);
  AskExclusive(two_);
  EXPECT_HEARD(kFailed, two_.async);
  Release(one_);
  EXPECT_HEARD(kExclusiveReleased, one_.async);
  Release(one_);
  EXPECT_HEARD(kSharedReleased, one_.async);
}

TEST_F(HislipLocks, TheHolderOfTheExclusiveLockMayHaveASharedOneOnTop) {
  AskExclusive(one_);
  AskShared(one_, "a");
  EXPECT_HEARD(kGranted + kGranted, one_.async);
  one_.async.Send(Frame("HS 18 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 19 01 00000001 0000000000000000"), one_.async) << "one client holds both";
  AskShared(two_, "a");
  EXPECT_HEARD(kFailed, two_.async);
  Release(one_);
  EXPECT_HEARD(kExclusiveReleased, one_.async);
  AskShared(two_, "b");
  EXPECT_HEARD(kFailed, two_.async);
  AskShared(two_, "a");
  EXPECT_HEARD(kGranted, two_.async);
  Release(one_);
  EXPECT_HEARD(kSharedReleased, one_.async);
  Release(one_);
  EXPECT_HEARD(kRefused, one_.async);
}

TEST_F(HislipLocks, ASharerThatWaitsIsServedWhenTheExclusiveLockBeneathIsReleased) {
  AskExclusive(one_);
  EXPECT_HEARD(kGranted, one_.async);
  AskShared(two_, "a", "00007530");
  two_.async.Send(Frame("HS 18 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 19 01 00000001 0000000000000000"), two_.async);
  AskShared(one_, "a");
  EXPECT_HEARD(kGranted, one_.async);
  Release(one_);
  EXPECT_HEARD(kExclusiveReleased, one_.async);
  EXPECT_HEARD(kGranted, two_.async);
}

TEST_F(HislipLocks, WhatOneHasOrHasNotIsAnError) {
  Release(one_);
  EXPECT_HEARD(kRefused, one_.async);
  AskExclusive(one_);
  AskExclusive(one_);
  EXPECT_HEARD(kGranted + kRefused, one_.async);
  AskShared(one_, "a");
  AskShared(one_, "a");
  AskExclusive(one_);
  EXPECT_HEARD(kGranted + kRefused + kRefused, one_.async);
  one_.async.Send(Frame("HS 04 02 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 03 02 00000000 0000000000000000"), one_.async);
}

TEST_F(HislipLocks, DeviceClearNeedsNoLock) {
  AskExclusive(one_);
  EXPECT_HEARD(kGranted, one_.async);
  two_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*IDN?"));
  two_.async.Send(Frame("HS 13 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 17 00 00000000 0000000000000000"), two_.async);
  two_.sync.Send(Frame("HS 08 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 09 00 00000000 0000000000000000"), two_.sync);
}

}  // namespace
}  // namespace siggen
