// A peer that answers queries as fast as a thread can: one line in, one line out for each line with a question mark.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>

namespace bench {

class Responder {
 public:
  // Listens on a free port of 127.0.0.1. A core of -1 leaves the thread where the system puts it.
  explicit Responder(int core = -1);
  ~Responder();
  Responder(const Responder&) = delete;
  Responder& operator=(const Responder&) = delete;

  std::uint16_t port() const { return port_; }
  std::string resource() const { return "TCPIP0::127.0.0.1::" + std::to_string(port_) + "::SOCKET"; }

 private:
  void Serve(int core);
  void ServeOne(int connection);

  int listener_;
  std::uint16_t port_;
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

// The thread that calls it stays on this core; -1 frees it again.
void PinTo(int core);

}  // namespace bench
