#include "link/hislip_channel.h"

#include <algorithm>
#include <asio/buffer.hpp>
#include <asio/write.hpp>
#include <cstring>

#include "link/connection.h"

namespace siggen::link::hislip {
namespace {

// A client that does not take its answers is read no further, and given up when still more is to be told to it.
constexpr std::size_t kManyOutgoing = 16;
constexpr std::size_t kTooManyOutgoing = 256;

}  // namespace

Channel::Channel(asio::ip::tcp::socket socket) : socket_(std::move(socket)) { SendAtOnce(socket_); }

void Channel::Resume() {
  if (!advancing_ && !reading_) Advance();
}

bool Channel::InputQueued() {
  asio::error_code ignored;
  return buffered() > 0 || (socket_.is_open() && socket_.available(ignored) > 0);
}

// Goes on with what has been received, as far as the receiver lets it.
void Channel::Advance() {
  const auto self = shared_from_this();
  advancing_ = true;
  for (;;) {
    const auto receiver = receiver_;
    if (!receiver || !socket_.is_open()) break;
    if (!in_message_) {
      if (outgoing_.size() > kManyOutgoing || !receiver->Ready(*this)) break;
      if (receiver != receiver_) continue;
      if (buffered() < kHeaderSize) {
        Read();
        break;
      }
      const auto header = Decode({buffer_.data() + begin_, kHeaderSize});
      if (!header) {
        receiver->Malformed(*this);
        break;
      }
      begin_ += kHeaderSize;
      header_ = *header;
      left_ = header_.length;
      text_.clear();
      in_message_ = true;
      payload_ = receiver->Begins(*this, header_);
    }
    if (receiver_ != receiver) continue;
    if (!TakeBuffered(*receiver)) {
      Read();
      break;
    }
    in_message_ = false;
    receiver->Ends(*this, header_, text_);
  }
  advancing_ = false;
}

// True when the payload is complete.
bool Channel::TakeBuffered(Receiver& receiver) {
  while (left_ > 0 && buffered() > 0) {
    std::size_t count = static_cast<std::size_t>(std::min<std::uint64_t>(left_, buffered()));
    const char* const from = buffer_.data() + begin_;
    if (payload_ == Payload::kCollect) {
      text_.append(from, count);
    } else if (payload_ == Payload::kStream) {
      const auto room = receiver.Room();
      count = std::min(count, room.size());
      std::memcpy(room.data(), from, count);
      receiver.Filled(count);
    }
    begin_ += count;
    left_ -= count;
  }
  return left_ == 0;
}

void Channel::Read() {
  if (reading_ || !socket_.is_open()) return;
  reading_ = true;
  std::memmove(buffer_.data(), buffer_.data() + begin_, buffered());
  end_ -= begin_;
  begin_ = 0;
  // A long payload goes straight to its place.
  const bool direct = in_message_ && payload_ == Payload::kStream;
  std::span<char> room(buffer_.data() + end_, buffer_.size() - end_);
  if (direct) {
    room = receiver_->Room();
    room = room.first(static_cast<std::size_t>(std::min<std::uint64_t>(left_, room.size())));
  }
  socket_.async_read_some(
      asio::buffer(room.data(), room.size()),
      [self = shared_from_this(), receiver = receiver_, direct](const asio::error_code& problem, std::size_t count) {
        self->reading_ = false;
        if (!self->receiver_) return;
        if (problem) return self->receiver_->Lost(*self);
        if (direct) {
          self->left_ -= count;
          if (self->payload_ == Payload::kStream) receiver->Filled(count);
        } else {
          self->end_ += count;
        }
        self->Advance();
      });
}

void Channel::Send(const Header& header, std::vector<scpi::Bytes> parts, std::function<void()> sent) {
  if (!socket_.is_open()) return;
  if (outgoing_.size() >= kTooManyOutgoing) {
    if (receiver_) receiver_->Lost(*this);
    return;
  }
  outgoing_.push_back({Encode(header), std::move(parts), std::move(sent)});
  if (!writing_) Write();
}

void Channel::SendError(Problem problem) { Send({Message::kError, static_cast<std::uint8_t>(problem)}); }

void Channel::SendFatal(Fatal fatal) {
  receiver_.reset();
  if (writing_) return Close();  // what is being written must not be cut, and may never end
  Send({Message::kFatalError, static_cast<std::uint8_t>(fatal)}, {}, [this] { Close(); });
}

void Channel::Write() {
  writing_ = true;
  const Outgoing& next = outgoing_.front();
  std::vector<asio::const_buffer> buffers{asio::buffer(next.header)};
  for (const scpi::Bytes& part : next.parts) buffers.emplace_back(part.view.data(), part.view.size());
  asio::async_write(socket_, buffers, [self = shared_from_this()](const asio::error_code& problem, std::size_t) {
    self->writing_ = false;
    if (problem || self->outgoing_.empty()) {
      self->outgoing_.clear();
      if (self->receiver_) self->receiver_->Lost(*self);
      return;
    }
    const auto sent = std::move(self->outgoing_.front().sent);
    self->outgoing_.pop_front();
    if (!self->outgoing_.empty()) self->Write();
    if (sent) sent();
    if (self->outgoing_.size() <= kManyOutgoing) self->Resume();
  });
}

// What waits to be sent may keep the receiver alive, as the receiver does this channel.
void Channel::Forget() {
  receiver_.reset();
  outgoing_.clear();
}

void Channel::Close() {
  Forget();
  CloseConnection(socket_);
}

void Channel::Reset() {
  Forget();
  ResetConnection(socket_);
}

}  // namespace siggen::link::hislip
