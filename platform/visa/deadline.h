// The end of a call's patience. One deadline serves a whole call, however many sends and receives it takes.
#pragma once

#include <visa.h>

#include <algorithm>
#include <chrono>
#include <limits>

namespace tvr::visa {

// The clock is first read when a call has to wait a second time: an exchange whose answer arrives whole never asks for
// the time. The start is late by one slice of waiting at most (tcp_stream.h), never early, and a timeout is the least
// time to wait.
class Deadline {
 public:
  explicit Deadline(ViUInt32 timeout_ms) : timeout_ms_(timeout_ms) {}

  bool Infinite() const { return timeout_ms_ == VI_TMO_INFINITE; }

  // Milliseconds left, rounded up, at least 0 and fit for poll; -1 without a limit.
  int Remaining() {
    if (Infinite()) return -1;
    const auto now = Clock::now();
    if (!started_) Start(now);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - now).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
  }

  bool Expired() { return Remaining() == 0; }

  // True at the second and every later wait when the time is up: what a peer sends in drops must not go on for ever.
  bool ExpiredAtNextWait() {
    if (waited_) return Expired();
    waited_ = true;
    return false;
  }

  // Is less than this left? Asks the clock only when it runs already.
  bool ShorterThan(int milliseconds) {
    if (Infinite()) return false;
    return started_ ? Remaining() < milliseconds : timeout_ms_ < static_cast<ViUInt32>(milliseconds);
  }

 private:
  using Clock = std::chrono::steady_clock;

  void Start(Clock::time_point now) {
    started_ = true;
    end_ = now + std::chrono::milliseconds(timeout_ms_);
  }

  ViUInt32 timeout_ms_;
  bool started_ = false;
  bool waited_ = false;
  Clock::time_point end_{};
};

}  // namespace tvr::visa
