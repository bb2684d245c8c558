// A peer that speaks as much HiSLIP as a client needs to open a link, send messages of any size and read answers.
#pragma once

#include <cstdint>
#include <string>

#include "Answers.h"
#include "Listener.h"

namespace bench {

class HislipPeer {
 public:
  explicit HislipPeer(int core = -1, std::size_t file_size = 0) : HislipPeer(Answers(file_size), core) {}
  explicit HislipPeer(Answers answers, int core = -1)
      : answers_(std::move(answers)), listener_([this](int connection) { Serve(connection); }, core) {}

  std::uint16_t port() const { return listener_.port(); }
  std::string resource() const { return "TCPIP0::127.0.0.1::hislip0," + std::to_string(port()) + "::INSTR"; }

  // A message of one frame as it goes over the wire, with the number of the question in it.
  static std::string Frame(std::uint32_t id, std::string_view text);

 private:
  void Serve(int connection) const;

  const Answers answers_;
  Listener listener_;
};

}  // namespace bench
