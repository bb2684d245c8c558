#include "link/socket_link.h"

#include <asio/buffer.hpp>
#include <asio/error.hpp>
#include <asio/write.hpp>

#include "link/connection.h"

namespace siggen::link {
namespace {

// While an answer is owed, this much may be received ahead; then the client has to wait.
constexpr std::size_t kReadAhead = std::size_t{64} * 1024;

}  // namespace

SocketLink::SocketLink(asio::ip::tcp::socket socket, Services& services)
    : socket_(std::move(socket)), services_(services), delay_(services.io()), session_(services.instrument()) {}

void SocketLink::Start() {
  SendAtOnce(socket_);
  Read();
}

void SocketLink::Read() {
  const bool owing = writing_ || session_.waiting();
  if (reading_ || ended_ || !socket_.is_open() || (owing && framer_.backlog() > kReadAhead)) return;
  reading_ = true;
  const auto room = framer_.Room();
  socket_.async_read_some(asio::buffer(room.data(), room.size()),
                          [self = shared_from_this()](const asio::error_code& problem, std::size_t count) {
                            self->reading_ = false;
                            if (problem) self->ended_ = true;
                            if (problem && problem != asio::error::eof) return self->Close();
                            self->Received(count);
                          });
}

void SocketLink::Received(std::size_t count) {
  framer_.Filled(count);
  Pump();
  if (ended_ && !writing_) return Close();
  Read();
}

void SocketLink::Pump() {
  const auto self = shared_from_this();
  while (!writing_ && socket_.is_open()) {
    session_.Run();
    if (session_.answer_ready()) {
      Send(session_.TakeAnswer());
      continue;
    }
    if (session_.waiting()) break;
    auto message = framer_.Next();
    if (!message) break;
    session_.Submit(std::move(*message));
  }
  services_.Worked();
}

void SocketLink::Send(std::vector<scpi::Bytes> answer) {
  const auto fault = services_.faults().Next();
  if (fault) answer = Distort(fault->kind, std::move(answer));
  outgoing_ = std::move(answer);
  writing_ = true;
  if (!fault) return Write(false);
  switch (fault->kind) {
    case Fault::Kind::kDrop:
      return Close();
    case Fault::Kind::kReset:
      return Reset();
    case Fault::Kind::kCut:
      return Write(true);
    default:
      break;
  }
  if (fault->delay.count() == 0) return Write(false);
  delay_.expires_after(fault->delay);
  delay_.async_wait([self = shared_from_this()](const asio::error_code& problem) {
    if (!problem) self->Write(false);
  });
}

void SocketLink::Write(bool close_behind) {
  std::vector<asio::const_buffer> buffers;
  for (const scpi::Bytes& part : outgoing_) buffers.emplace_back(part.view.data(), part.view.size());
  asio::async_write(socket_, buffers,
                    [self = shared_from_this(), close_behind](const asio::error_code& problem, std::size_t) {
                      self->writing_ = false;
                      self->outgoing_.clear();
                      if (problem || close_behind) return self->Close();
                      self->Pump();
                      if (self->ended_ && !self->writing_) return self->Close();
                      self->Read();
                    });
}

void SocketLink::Close() {
  delay_.cancel();
  session_.Clear();
  CloseConnection(socket_);
}

void SocketLink::Reset() {
  session_.Clear();
  ResetConnection(socket_);
}

}  // namespace siggen::link
