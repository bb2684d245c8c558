// Loopback TCP for the doubles: descriptors that close themselves, and calls that can be woken.

#ifndef KVTD_TESTS_SUPPORT_SOCKETS_H
#define KVTD_TESTS_SUPPORT_SOCKETS_H

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kvtd::test {

using Milliseconds = std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

// Long enough for a loaded machine, short enough that a broken test ends.
inline constexpr Milliseconds kPatience{5000};

enum class Family { V4, V6 };

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int fd) : fd_(fd) {}
  Descriptor(Descriptor&& other) noexcept;
  Descriptor& operator=(Descriptor&& other) noexcept;
  ~Descriptor() { Close(); }

  int get() const { return fd_; }
  bool open() const { return fd_ >= 0; }
  void Close();

 private:
  int fd_ = -1;
};

// A descriptor that becomes readable once, to end a wait in another thread.
class Alarm {
 public:
  Alarm();
  void Ring();
  int descriptor() const { return read_end_.get(); }

 private:
  Descriptor read_end_;
  Descriptor write_end_;
};

// Listens on the loopback address of the family, on a port that the system picks.
class Listener {
 public:
  explicit Listener(Family family = Family::V4);

  std::uint16_t port() const { return port_; }
  int descriptor() const { return socket_.get(); }
  // A pending connection, non-blocking and with Nagle's algorithm off; empty when none is pending.
  Descriptor Accept();
  void Close() { socket_.Close(); }

 private:
  Descriptor socket_;
  std::uint16_t port_ = 0;
};

Descriptor ConnectTo(std::uint16_t port, Family family = Family::V4);

// A port of the loopback address on which nobody listens.
std::uint16_t UnusedPort();

// Waits until the descriptor can be read (or written), the alarm rings or the time is over; true for the first.
bool WaitReadable(int descriptor, const Alarm* alarm, Milliseconds timeout);
bool WaitWritable(int descriptor, const Alarm* alarm, Milliseconds timeout);
// Waits until one of two can be read, and tells which; nothing when the alarm rings.
std::optional<std::size_t> WaitAnyReadable(const std::array<int, 2>& descriptors, const Alarm* alarm);

// Sends all bytes; false when the other side is gone, the alarm rang or patience ended.
bool SendAll(const Descriptor& socket, std::string_view bytes, const Alarm* alarm = nullptr);

// What is there to read: bytes, the empty string at the end of the stream, nothing when none came in time.
std::optional<std::string> ReceiveSome(const Descriptor& socket, Milliseconds timeout = kPatience);

// Reads up to and including the delimiter; what had arrived until then when the stream or patience ends.
std::string ReceiveUntil(const Descriptor& socket, char delimiter, Milliseconds timeout = kPatience);

// So many bytes; fewer when the stream ends, the alarm rings or patience with it ends.
std::string ReceiveExactly(const Descriptor& socket, std::size_t count, const Alarm* alarm = nullptr);

// No further bytes to the other side, which still may send.
void HalfClose(const Descriptor& socket);

// Makes the next close a reset.
void CloseByReset(Descriptor& socket);

}  // namespace kvtd::test

#endif
