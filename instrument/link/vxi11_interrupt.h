// The interrupt channel: the instrument calls its client, which has told where it listens.
#pragma once

#include <asio/steady_timer.hpp>
#include <functional>
#include <memory>
#include <string>

#include "link/rpc_channel.h"

namespace siggen::link::vxi11 {

class InterruptChannel : public rpc::Receiver, public std::enable_shared_from_this<InterruptChannel> {
 public:
  InterruptChannel(asio::io_context& io, std::uint32_t program, std::uint32_t version);

  // `done` is called with whether somebody listens there, and not at all after Close().
  void Open(const asio::ip::tcp::endpoint& client, std::function<void(bool)> done);
  bool open() const { return channel_ != nullptr && channel_->open(); }
  // device_intr_srq; what the client answers is not waited for.
  void RequestService(const std::string& handle);
  void Close();

  bool Ready() override { return true; }
  void Received(rpc::Channel&, std::string_view) override {}
  void Lost(rpc::Channel&) override { Close(); }

 private:
  void Connected(bool well);

  const std::uint32_t program_;
  const std::uint32_t version_;
  asio::ip::tcp::socket socket_;
  asio::steady_timer timer_;
  std::function<void(bool)> done_;
  std::shared_ptr<rpc::Channel> channel_;
  std::uint32_t last_xid_ = 0;
};

}  // namespace siggen::link::vxi11
