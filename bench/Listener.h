// The side of a benchmark that is connected to: a thread that accepts, and one for each connection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <thread>

namespace bench {

class Listener {
 public:
  // Listens on a free port of 127.0.0.1. `serve` returns when its connection has ended. A core of -1 leaves the threads
  // where the system puts them.
  explicit Listener(std::function<void(int connection)> serve, int core = -1);
  ~Listener();
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  std::uint16_t port() const { return port_; }

 private:
  void Accept(int core);

  const std::function<void(int)> serve_;
  int listener_;
  std::uint16_t port_ = 0;
  std::thread thread_;
};

// False: the connection has ended.
bool SendAll(int connection, std::string_view bytes);
// At least one byte; 0 at the end of the connection.
std::size_t ReceiveSome(int connection, char* into, std::size_t room);

// The thread that calls it stays on this core; -1 frees it again.
void PinTo(int core);

}  // namespace bench
