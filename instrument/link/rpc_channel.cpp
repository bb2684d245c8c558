#include "link/rpc_channel.h"

#include <algorithm>
#include <asio/buffer.hpp>
#include <asio/write.hpp>
#include <cstring>
#include <vector>

#include "link/connection.h"

namespace siggen::link::rpc {
namespace {

constexpr std::size_t kMarkSize = 4;
constexpr std::uint32_t kLastFragment = 0x80000000;

// The other side is given up when it does not take what it is sent and more is to be sent.
constexpr std::size_t kTooManyOutgoing = 64;
// Room is made as a record arrives and not as it announces itself; no more than this is kept from one to the next.
constexpr std::size_t kStep = std::size_t{64} * 1024;

std::uint32_t Number(const char* bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < kMarkSize; ++i) number = number << 8 | static_cast<unsigned char>(bytes[i]);
  return number;
}

std::array<unsigned char, kMarkSize> Mark(std::size_t length) {
  const std::uint32_t mark = kLastFragment | static_cast<std::uint32_t>(length);
  return {static_cast<unsigned char>(mark >> 24), static_cast<unsigned char>(mark >> 16),
          static_cast<unsigned char>(mark >> 8), static_cast<unsigned char>(mark)};
}

}  // namespace

Channel::Channel(asio::ip::tcp::socket socket, std::size_t longest_record)
    : socket_(std::move(socket)), longest_record_(longest_record) {
  SendAtOnce(socket_);
}

void Channel::Resume() {
  if (!advancing_) Advance();
}

// Goes on with what has been received, as far as the receiver lets it. Reading goes on ahead of it, so that the end of
// the connection is seen while a call is under way. What is answered in the meantime goes in one piece.
void Channel::Advance() {
  const auto self = shared_from_this();
  advancing_ = true;
  while (receiver_ && socket_.is_open()) {
    const auto receiver = receiver_;
    if (!in_record_) {
      if (writing_ || HasEnoughToSend()) break;  // who takes no answers is asked no more
      if (!receiver->Ready()) {
        if (!outgoing_.empty()) break;
        if (ended_) {
          receiver->Lost(*this);
        } else {
          Read();
        }
        break;
      }
      in_record_ = true;
    }
    if (!Assemble()) {
      if (!outgoing_.empty()) break;
      if (malformed_ || ended_) {
        receiver->Lost(*this);
      } else {
        Read();
      }
      break;
    }
    in_record_ = false;
    receiver->Received(*this, record_);
    record_.clear();
    if (record_.capacity() > kStep) record_.shrink_to_fit();
  }
  advancing_ = false;
  if (!writing_ && !outgoing_.empty()) Write();
}

// True when the record is complete.
bool Channel::Assemble() {
  for (;;) {
    if (!in_fragment_) {
      if (buffered() < kMarkSize) return false;
      const std::uint32_t mark = Number(buffer_.data() + begin_);
      begin_ += kMarkSize;
      last_fragment_ = (mark & kLastFragment) != 0;
      fragment_left_ = mark & ~kLastFragment;
      malformed_ = fragment_left_ > longest_record_ - record_.size();
      if (malformed_) return false;
      in_fragment_ = true;
    }
    TakeBuffered();
    if (fragment_left_ > 0) return false;
    in_fragment_ = false;
    if (last_fragment_) return true;
  }
}

void Channel::TakeBuffered() {
  const std::size_t count = std::min(fragment_left_, buffered());
  record_.append(buffer_.data() + begin_, count);
  begin_ += count;
  fragment_left_ -= count;
}

void Channel::Read() {
  if (reading_ || ended_) return;
  std::memmove(buffer_.data(), buffer_.data() + begin_, buffered());
  end_ -= begin_;
  begin_ = 0;
  // A long fragment goes straight to its place.
  const bool direct = in_fragment_ && fragment_left_ > buffer_.size();
  asio::mutable_buffer room = asio::buffer(buffer_.data() + end_, buffer_.size() - end_);
  if (direct) {
    const std::size_t before = record_.size();
    const std::size_t step = std::min(fragment_left_, std::max(kStep, before));
    record_.resize(before + step);
    room = asio::buffer(record_.data() + before, step);
  }
  if (room.size() == 0) return;
  reading_ = true;
  socket_.async_read_some(room, [self = shared_from_this(), direct, offered = room.size()](
                                    const asio::error_code& problem, std::size_t count) {
    if (direct) self->record_.resize(self->record_.size() - (offered - count));
    self->Arrived(problem, count, direct);
  });
}

void Channel::Arrived(const asio::error_code& problem, std::size_t count, bool direct) {
  reading_ = false;
  if (!receiver_) return;
  if (direct) {
    fragment_left_ -= count;
  } else {
    end_ += count;
  }
  if (problem) ended_ = true;
  if (problem && problem != asio::error::eof) return receiver_->Lost(*this);
  Advance();
}

void Channel::Send(std::string record) {
  const std::size_t length = record.size();
  Push(std::move(record), length, false);
}

void Channel::SendBroken(std::string record, std::size_t count) {
  const std::size_t length = record.size();
  record.resize(std::min(count, length));
  Push(std::move(record), length, true);
}

void Channel::Push(std::string record, std::size_t announced, bool broken) {
  if (!socket_.is_open()) return;
  if (outgoing_.size() >= kTooManyOutgoing) {
    if (receiver_) receiver_->Lost(*this);
    return;
  }
  outgoing_.push_back({Mark(announced), std::move(record), broken});
  if (!writing_ && !advancing_) Write();
}

bool Channel::HasEnoughToSend() const {
  constexpr std::size_t kGathered = 16;
  std::size_t size = 0;
  for (const Outgoing& each : outgoing_) {
    if (each.broken) return true;
    size += each.record.size();
  }
  return outgoing_.size() >= kGathered || size >= kStep;
}

void Channel::Write() {
  writing_ = true;
  std::vector<asio::const_buffer> buffers;
  std::size_t count = 0;
  bool broken = false;
  for (const Outgoing& next : outgoing_) {
    buffers.push_back(asio::buffer(next.mark));
    buffers.push_back(asio::buffer(next.record));
    ++count;
    broken = next.broken;
    if (broken) break;
  }
  asio::async_write(
      socket_, buffers, [self = shared_from_this(), count, broken](const asio::error_code& problem, std::size_t) {
        self->writing_ = false;
        if (problem || broken || self->outgoing_.size() < count) return self->GiveUp();
        self->outgoing_.erase(self->outgoing_.begin(), self->outgoing_.begin() + static_cast<std::ptrdiff_t>(count));
        if (!self->outgoing_.empty()) {
          self->Write();
        } else {
          self->Resume();
        }
      });
}

void Channel::GiveUp() {
  outgoing_.clear();
  if (const auto receiver = receiver_) receiver->Lost(*this);
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

}  // namespace siggen::link::rpc
