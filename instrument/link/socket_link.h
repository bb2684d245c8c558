// One client on the raw socket: lines in, lines out.
#pragma once

#include <asio/ip/tcp.hpp>
#include <asio/steady_timer.hpp>
#include <memory>
#include <optional>
#include <vector>

#include "link/services.h"
#include "scpi/framer.h"
#include "scpi/session.h"

namespace siggen::link {

class SocketLink : public Link, public std::enable_shared_from_this<SocketLink> {
 public:
  SocketLink(asio::ip::tcp::socket socket, Services& services);

  void Start();
  bool waiting() const override { return session_.waiting(); }
  void Pump() override;
  void Close() override;

 private:
  void Read();
  void Received(std::size_t count);
  void Send(std::vector<scpi::Bytes> answer);
  void Write(bool close_behind);
  void Reset();

  asio::ip::tcp::socket socket_;
  Services& services_;
  asio::steady_timer delay_;
  scpi::Framer framer_;
  scpi::Session session_;
  std::vector<scpi::Bytes> outgoing_;
  bool reading_ = false;
  bool writing_ = false;
  bool ended_ = false;  // the client sends no more
};

}  // namespace siggen::link
