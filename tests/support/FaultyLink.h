// The double that breaks: a proxy on the loopback address which hands bytes on until it is told to do worse.

#ifndef KVTD_TESTS_SUPPORT_FAULTY_LINK_H
#define KVTD_TESTS_SUPPORT_FAULTY_LINK_H

#include <array>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "Sockets.h"

namespace kvtd::test {

enum class Direction { ToInstrument, ToClient };

struct Fault {
  enum class Kind {
    Delay,      // every piece arrives `pace` late
    Trickle,    // one byte every `pace`
    Swallow,    // nothing more arrives, the connection stays
    HalfClose,  // end of the stream in this direction; the other goes on
    Close,      // both sides are closed
    Reset,      // both sides are closed, the client sees a reset
  };

  Kind kind = Kind::Close;
  Direction direction = Direction::ToClient;
  // So many bytes of the direction still pass unharmed, counted from the order.
  std::size_t after = 0;
  Milliseconds pace = Milliseconds(0);
};

class FaultyLink {
 public:
  explicit FaultyLink(std::uint16_t instrument_port);
  ~FaultyLink();

  std::uint16_t port() const { return port_; }
  std::string ResourceName() const { return "TCPIP0::127.0.0.1::" + std::to_string(port_) + "::SOCKET"; }

  // Holds for this connection and the next ones, until Heal or another fault.
  void Break(const Fault& fault);
  void Heal();

 private:
  // What is under way in one direction.
  struct Stream {
    std::string waiting;
    Clock::time_point due{};
    bool source_ended = false;
    bool ended = false;
  };

  void Run();
  void Serve();
  void Receive(Direction direction);
  // Moves what is due; false when the fault or a lost peer ends the connection.
  bool Forward(Direction direction);
  std::optional<Fault> FaultOf(Direction direction) const;
  void Passed(Direction direction, std::size_t count);
  Descriptor& Source(Direction direction) { return direction == Direction::ToClient ? instrument_ : client_; }
  Descriptor& Sink(Direction direction) { return direction == Direction::ToClient ? client_ : instrument_; }
  Stream& StreamOf(Direction direction) { return streams_[direction == Direction::ToClient ? 1 : 0]; }

  const std::uint16_t instrument_port_;
  Listener listener_;
  const std::uint16_t port_;
  Alarm stop_;
  mutable std::mutex mutex_;
  std::optional<Fault> fault_;
  Descriptor client_;
  Descriptor instrument_;
  std::array<Stream, 2> streams_;
  std::thread thread_;
};

}  // namespace kvtd::test

#endif
