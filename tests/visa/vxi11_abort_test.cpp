// Calls that are given up: by the timeout, by another thread, by the end of the session.
#include <algorithm>
#include <cstdlib>
#include <future>
#include <thread>

#include "vxi11_peer.h"

namespace tvr::visa::vxi11 {
namespace {

class Vxi11Abort : public Vxi11Link {
 protected:
  static constexpr std::string_view kAsync = "000607B0";
};

TEST_F(Vxi11Abort, ASilentDeviceTakesNoMoreThanTheTimeoutAndIsToldToGiveUp) {
  for (const ViUInt32 timeout : {0u, 30u, 150u}) {
    const Stopwatch watch;
    EXPECT_EQ("", Read(timeout));
    EXPECT_EQ(VI_ERROR_TMO, status_);
    EXPECT_GE(watch.Milliseconds(), static_cast<long>(timeout));
    EXPECT_LT(watch.OwnMilliseconds(), static_cast<long>(timeout) + 100);
    peer_.Says(kAbort, Reply(timeout == 0 ? 1 : timeout == 30 ? 2 : 3, "00000000"));
  }
  peer_.Hears(kAbort, Bytes("8000002C 00000001 00000000 00000002 000607B0 00000001 00000001"
                            "00000000 00000000 00000000 00000000 00000007"));
  peer_.Hears(kAbort, Call(2, 1, "00000007", kAsync));
  peer_.Hears(kAbort, Call(3, 1, "00000007", kAsync));
  peer_.HearsNothingMore(kAbort);
}

TEST_F(Vxi11Abort, TheDeviceMaySayItselfThatTimeIsUp) {
  auto device = std::async(std::launch::async, [&] {
    peer_.Next(kCore, 68);
    std::this_thread::sleep_for(std::chrono::milliseconds(60));  // as slow as it was told to be, and no sooner
    peer_.Says(kCore, Reply(2, "0000000F 00000000 00000002 'AB' 0000"));
  });
  EXPECT_EQ("AB", Read(50));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  device.get();
  peer_.HearsNothingMore(kAbort);
}

TEST_F(Vxi11Abort, ALateReplyIsNotTheNextOne) {
  EXPECT_EQ("", Read(30));
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, Reply(2, "00000000 00000004 00000003 'old' 00"));
  peer_.Says(kCore, Reply(3, "00000000 00000001"));
  EXPECT_EQ(VI_SUCCESS, Write("B"));
  peer_.Says(kCore, Reply(4, "00000000 00000004 00000003 'new' 00"));
  EXPECT_EQ("new", Read());
  EXPECT_EQ(VI_SUCCESS, status_);
}

// Each of them takes the time that a reply may be on its way, so there are few unless the environment asks for more.
int Timeouts() {
  const char* const wanted = std::getenv("KVTD_LATE_ANSWERS");
  return wanted == nullptr ? 40 : std::atoi(wanted);
}

TEST_F(Vxi11Abort, NeverIsAWrongValueReadThroughManyTimeouts) {
  const int timeouts = Timeouts();
  unsigned call = 1;
  for (int i = 0; i < timeouts; ++i) {
    EXPECT_EQ("", Read(1));
    ASSERT_EQ(VI_ERROR_TMO, status_);
    const std::string late = Reply(++call, "00000000 00000004 00000008 'late    '");
    // By turns all at once, and in the middle of what follows.
    const std::size_t cut = i % 2 == 0 ? late.size() : static_cast<std::size_t>(i) % late.size();
    peer_.Says(kAbort, Reply(static_cast<unsigned>(i) + 1, "00000000"));
    peer_.Says(kCore, late.substr(0, cut));
    peer_.Says(kCore, late.substr(cut) + Reply(++call, "00000000 00000001"));
    ASSERT_EQ(VI_SUCCESS, Write("B"));
    peer_.Says(kCore, Reply(++call, "00000000 00000004 00000003 'new' 00"));
    ASSERT_EQ("new", Read()) << i;
    ASSERT_EQ(VI_SUCCESS, status_);
  }
}

TEST_F(Vxi11Abort, AReplyThatStoppedHalfWayIsPassedOverToo) {
  const std::string late = Reply(2, "00000000 00000004 00000008 'old data'");
  peer_.Says(kCore, late.substr(0, late.size() - 5));
  EXPECT_EQ("old", Read(30));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, late.substr(late.size() - 5) + Reply(3, "00000000 00000004 00000003 'new' 00"));
  EXPECT_EQ("new", Read());
}

TEST_F(Vxi11Abort, TheNextCallWaitsUntilTheAbortIsThrough) {
  EXPECT_EQ("", Read(20));
  peer_.Next(kCore, 68);
  auto asking = std::async(std::launch::async, [&] { return StatusByte(); });
  peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
  EXPECT_EQ(std::future_status::timeout, asking.wait_for(std::chrono::milliseconds(30)));
  peer_.HearsNothingMore(kCore);
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, Reply(3, "00000000 00000011"));
  EXPECT_EQ(0x11, asking.get());
}

TEST_F(Vxi11Abort, ADeviceThatDoesNotAnswerAnAbortIsNotToldAgain) {
  EXPECT_EQ("", Read(20));
  peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
  peer_.Says(kCore, Reply(3, "00000000 00000011"));
  const Stopwatch watch;
  EXPECT_EQ(0x11, StatusByte());
  EXPECT_GE(watch.Milliseconds(), 200);
  EXPECT_LT(watch.OwnMilliseconds(), 400);
  peer_.HearsTheEnd(kAbort);
  EXPECT_EQ("", Read(20));
  peer_.Says(kCore, Reply(5, "00000000 00000022"));
  EXPECT_EQ(0x22, StatusByte());
}

TEST_F(Vxi11Abort, AnInterruptionEndsAReadAtOnceAndTheLinkGoesOn) {
  // A loaded machine delays threads: one try of many has to be as quick as that.
  long quickest = 1000;
  unsigned number = 2;
  for (; quickest >= 10 && number < 42; ++number) {
    auto reading = std::async(std::launch::async, [&] { return Read(60000); });
    peer_.Next(kCore, 68);
    const Stopwatch watch;
    interruption_.Request();
    EXPECT_EQ("", reading.get());
    quickest = std::min(quickest, watch.Milliseconds());
    EXPECT_EQ(VI_ERROR_ABORT, status_);
    peer_.Hears(kAbort, Call(number - 1, 1, "00000007", kAsync));
    peer_.Says(kAbort, Reply(number - 1, "00000000"));
    peer_.Says(kCore, Reply(number, "00000017 00000000 00000000"));
    interruption_.BeginCall();
  }
  EXPECT_LT(quickest, 10);
  peer_.Says(kCore, Reply(number, "00000000 00000004 00000002 'OK' 0000"));
  EXPECT_EQ("OK", Read());
  peer_.Next(kCore, 68);
  Close(number + 1);
}

TEST_F(Vxi11Abort, HangingUpEndsAWaitAndTheLinkAtTheDevice) {
  auto reading = std::async(std::launch::async, [&] { return Read(60000); });
  peer_.Next(kCore, 68);
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, Reply(3, "00000000"));
  link_->HangUp();
  EXPECT_EQ("", reading.get());
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  peer_.Hears(kAbort, Call(1, 1, "00000007", kAsync));
  peer_.Hears(kCore, Call(3, 23, "00000007"));
  peer_.HearsTheEnd(kCore);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("A"));
}

TEST_F(Vxi11Abort, ARecordThatWasGivenUpHalfWayEndsTheLink) {
  // The device takes nothing: what it has of the record cannot be taken back.
  Close(2);
  Open("FFFFFFFF");
  const std::string text(64 << 20, 'x');
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, Write(text, 100));
  EXPECT_LT(watch.OwnMilliseconds(), 250);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("A?"));
}

}  // namespace
}  // namespace tvr::visa::vxi11
