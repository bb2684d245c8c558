// A connection with ONC RPC, when the other side does not keep up.
#include "link/rpc_channel.h"

#include <gtest/gtest.h>

#include <asio/io_context.hpp>
#include <asio/ip/address_v4.hpp>

namespace siggen::link::rpc {
namespace {

using asio::ip::tcp;

struct CountingReceiver : Receiver {
  bool Ready() override { return true; }
  void Received(Channel&, std::string_view) override {}
  void Lost(Channel& from) override {
    ++lost;
    from.Close();
  }
  int lost = 0;
};

TEST(RpcChannel, AnOtherSideThatTakesNothingIsGivenUpWhenTooMuchWaitsForIt) {
  asio::io_context io;
  tcp::acceptor listener(io, {asio::ip::address_v4::loopback(), 0});
  tcp::socket deaf(io);
  deaf.connect(listener.local_endpoint());
  const auto channel = std::make_shared<Channel>(listener.accept(), 1024);
  const auto receiver = std::make_shared<CountingReceiver>();
  channel->SetReceiver(receiver);
  const std::string record(256 * 1024, 'x');
  for (int i = 0; i < 1000 && receiver->lost == 0; ++i) {
    channel->Send(record);
    io.poll();
  }
  EXPECT_EQ(1, receiver->lost);
  EXPECT_FALSE(channel->open());
  // A write that was under way ends as well, and finds nobody to tell.
  io.restart();
  io.run();
  EXPECT_EQ(1, receiver->lost);
}

}  // namespace
}  // namespace siggen::link::rpc
