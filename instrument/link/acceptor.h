// Takes TCP connections on one address and port.
#pragma once

#include <asio/ip/tcp.hpp>
#include <asio/steady_timer.hpp>
#include <cstdint>
#include <functional>
#include <string>

namespace siggen::link {

class Acceptor {
 public:
  using Taker = std::function<void(asio::ip::tcp::socket)>;

  // Listens when it returns. Throws std::system_error when the address or the port cannot be had.
  Acceptor(asio::io_context& io, const std::string& address, std::uint16_t port, Taker taker);
  // Takes connections from now on. When nothing can fail any more: from here this has to live as long as `io` runs.
  void Start() { Accept(); }

  // Known for as long as this lives: what is told of it to a client may be told while the server ends.
  std::uint16_t port() const { return port_; }
  void Close();

 private:
  void Accept();

  asio::ip::tcp::acceptor acceptor_;
  std::uint16_t port_;
  asio::steady_timer retry_;
  Taker taker_;
};

}  // namespace siggen::link
