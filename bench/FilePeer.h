// A peer on a raw socket that takes blocks of any size and has a file to give.
#pragma once

#include <cstdint>
#include <string>

#include "Answers.h"
#include "Listener.h"

namespace bench {

class FilePeer {
 public:
  explicit FilePeer(int core = -1, std::size_t file_size = 0)
      : answers_(file_size), listener_([this](int connection) { Serve(connection); }, core) {}

  std::uint16_t port() const { return listener_.port(); }
  std::string resource() const { return "TCPIP0::127.0.0.1::" + std::to_string(port()) + "::SOCKET"; }

 private:
  void Serve(int connection) const;

  const Answers answers_;
  Listener listener_;
};

}  // namespace bench
