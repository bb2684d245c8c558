// A peer that speaks as much VXI-11 as a client needs to open a link, send messages of any size and read answers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Answers.h"
#include "Listener.h"

namespace bench {

class Vxi11Peer {
 public:
  explicit Vxi11Peer(int core = -1, std::size_t file_size = 0) : Vxi11Peer(Answers(file_size), core) {}
  explicit Vxi11Peer(Answers answers, int core = -1)
      : answers_(std::move(answers)), listener_([this](int connection) { Serve(connection); }, core) {}

  // Of the core channel; there is no port mapper to ask.
  std::uint16_t port() const { return listener_.port(); }

  // Calls as they go over the wire, for a link that needs no opening.
  static std::string Write(std::string_view text);
  static std::string Read(std::uint32_t size);

 private:
  void Serve(int connection) const;

  const Answers answers_;
  Listener listener_;
};

}  // namespace bench
