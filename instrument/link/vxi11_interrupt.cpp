#include "link/vxi11_interrupt.h"

#include <utility>

#include "link/rpc_message.h"
#include "rpcgen/vxi11.h"

namespace siggen::link::vxi11 {
namespace {

constexpr std::chrono::seconds kPatienceForClient{2};
constexpr std::size_t kLongestReply = 1024;

}  // namespace

InterruptChannel::InterruptChannel(asio::io_context& io, std::uint32_t program, std::uint32_t version)
    : program_(program), version_(version), socket_(io), timer_(io) {}

void InterruptChannel::Open(const asio::ip::tcp::endpoint& client, std::function<void(bool)> done) {
  done_ = std::move(done);
  timer_.expires_after(kPatienceForClient);
  timer_.async_wait([self = shared_from_this()](const asio::error_code& problem) {
    if (!problem) self->Connected(false);
  });
  socket_.async_connect(client,
                        [self = shared_from_this()](const asio::error_code& problem) { self->Connected(!problem); });
}

void InterruptChannel::Connected(bool well) {
  timer_.cancel();
  const auto done = std::exchange(done_, {});
  if (!done) return;
  asio::error_code ignored;
  if (well) {
    channel_ = std::make_shared<rpc::Channel>(std::move(socket_), kLongestReply);
    channel_->SetReceiver(shared_from_this());
    channel_->Resume();
  } else {
    socket_.close(ignored);
  }
  done(well);
}

void InterruptChannel::RequestService(const std::string& handle) {
  rpc::Call call;
  call.xid = ++last_xid_;
  call.program = program_;
  call.version = version_;
  call.procedure = device_intr_srq;
  Device_SrqParms parms{};
  parms.handle.handle_val = const_cast<char*>(handle.data());
  parms.handle.handle_len = static_cast<u_int>(handle.size());
  channel_->Send(rpc::Request(call, xdr_Device_SrqParms, parms));
}

void InterruptChannel::Close() {
  asio::error_code ignored;
  done_ = {};
  timer_.cancel();
  if (channel_) {
    channel_->Close();
  } else {
    socket_.close(ignored);
  }
}

}  // namespace siggen::link::vxi11
