// A peer on a raw socket that answers queries as fast as a thread can: one line in, one line out for each line with a
// question mark.
#pragma once

#include <cstdint>
#include <string>

#include "Answers.h"
#include "Listener.h"

namespace bench {

class Responder {
 public:
  explicit Responder(int core = -1) : Responder(Answers(), core) {}
  explicit Responder(Answers answers, int core = -1)
      : answers_(std::move(answers)), listener_([this](int connection) { Serve(connection); }, core) {}

  std::uint16_t port() const { return listener_.port(); }
  std::string resource() const { return "TCPIP0::127.0.0.1::" + std::to_string(port()) + "::SOCKET"; }

 private:
  void Serve(int connection) const;

  const Answers answers_;
  Listener listener_;
};

}  // namespace bench
