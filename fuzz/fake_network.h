// A network inside the process: the system calls of the VISA library end here (they are wrapped by the linker), and so
// does its clock. What a peer says is asked for only when the library waits for it, and time passes only where it
// waits. So a run depends on nothing but its input, and a minute of silence costs nothing.
//
// For one thread.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kvtd::fuzz {

struct Speech {
  // At a half-close the peer still reads; what it is sent after a close is answered with a reset.
  enum class Kind { kBytes, kSilence, kHalfClose, kClose, kReset };
  Kind kind = Kind::kSilence;
  std::chrono::milliseconds after{0};  // how long it is in coming
  std::string bytes;                   // for kBytes; never empty
};

// One end of a connection.
class Peer {
 public:
  virtual ~Peer() = default;
  // What the library has sent.
  virtual void Hear(std::string_view bytes) = 0;
  // What comes next. A silence that is longer than the library's patience is followed by what comes after it.
  virtual Speech Speak() = 0;
  // How much of what is sent now the peer takes before it stops reading; asked before each send.
  virtual std::size_t Room() { return std::numeric_limits<std::size_t>::max(); }
};

// System calls that fail, or do less than they could.
struct Disturbance {
  enum class Call { kNone, kSocket, kConnect, kSend, kReceive, kPoll, kEventDescriptor };
  Call call = Call::kNone;
  std::size_t after = 0;  // so many of these calls still go well
  int error = 0;          // what errno says then; 0: a single byte is sent or received
  bool from_then_on = false;
};

// While it lives, connection n meets peer n; more connections than peers are refused.
class FakeNetwork {
 public:
  explicit FakeNetwork(std::vector<Peer*> peers);
  ~FakeNetwork();
  FakeNetwork(const FakeNetwork&) = delete;
  FakeNetwork& operator=(const FakeNetwork&) = delete;

  // Connections that are open now: what is left at the end has leaked.
  static int OpenConnections();
  static void Disturb(const Disturbance& disturbance);
  // The disturbance has befallen a call.
  static bool Disturbed();
  static std::chrono::steady_clock::time_point Now();
  static void Pass(std::chrono::milliseconds time);
};

}  // namespace kvtd::fuzz
