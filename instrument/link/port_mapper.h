// A port mapper, version 2, that knows one program besides itself: where the system has none, clients ask this one.
#pragma once

#include <array>
#include <asio/ip/udp.hpp>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "link/acceptor.h"
#include "link/mapping.h"
#include "link/rpc_channel.h"
#include "link/rpc_message.h"

struct pmap;

namespace siggen::link {

class PortMapper {
 public:
  // Answers over TCP and UDP when it returns; port 0 picks a free one. Throws std::system_error when that cannot be
  // had.
  PortMapper(asio::io_context& io, const std::string& address, std::uint16_t port, const Mapping& mapping);
  PortMapper(const PortMapper&) = delete;
  PortMapper& operator=(const PortMapper&) = delete;

  std::uint16_t port() const { return acceptor_.port(); }
  void Close();

 private:
  class Client;

  void Take(asio::ip::tcp::socket socket);
  void ReceiveDatagram();
  // Nothing when it was no call.
  std::optional<std::string> Answer(std::string_view message) const;
  std::uint16_t PortOf(const pmap& wanted) const;
  std::string Ports(const rpc::Call& call) const;

  const Mapping mapping_;
  Acceptor acceptor_;
  std::set<std::shared_ptr<Client>> clients_;
  asio::ip::udp::socket datagrams_;
  asio::ip::udp::endpoint sender_;
  std::array<char, 1024> datagram_;
};

}  // namespace siggen::link
