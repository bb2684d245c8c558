#include "hislip_channel.h"

#include <algorithm>
#include <cstring>

namespace tvr::visa::hislip {

ViStatus Channel::Send(Header header, std::span<const iovec> payload, Deadline& deadline, std::size_t& sent) {
  header.length = 0;
  for (const iovec& piece : payload) header.length += piece.iov_len;
  HeaderBytes bytes = Encode(header);
  gather_.clear();
  gather_.push_back({bytes.data(), bytes.size()});
  gather_.insert(gather_.end(), payload.begin(), payload.end());

  std::size_t gone = 0;
  const ViStatus status = stream_.Send(gather_, deadline, gone);
  sent = gone > kHeaderSize ? gone - kHeaderSize : 0;
  if (status < 0 && gone > 0) {
    // A header that was cut leaves a debt too; zeros would spoil it, but there is no better end for it.
    debt_ = kHeaderSize + header.length - gone;
  }
  return status;
}

ViStatus Channel::Send(const Header& header, Deadline& deadline) {
  std::size_t sent = 0;
  return Send(header, {}, deadline, sent);
}

ViStatus Channel::PayDebt(Deadline& deadline) {
  static constexpr std::array<ViByte, 4096> kZeros{};
  while (debt_ > 0) {
    iovec piece{const_cast<ViByte*>(kZeros.data()), static_cast<std::size_t>(std::min<ViUInt64>(debt_, kZeros.size()))};
    std::size_t sent = 0;
    const ViStatus status = stream_.Send({&piece, 1}, deadline, sent);
    debt_ -= sent;
    if (status < 0) return status;
  }
  return VI_SUCCESS;
}

ViStatus Channel::Fill(std::size_t at_least, Deadline& deadline) {
  if (begin_ == end_) {
    begin_ = end_ = 0;
  } else if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, Buffered());
    end_ -= begin_;
    begin_ = 0;
  }
  std::size_t received = 0;
  const ViStatus status = stream_.Receive(buffer_.data() + end_, buffer_.size() - end_, at_least, deadline, received);
  end_ += received;
  return status;
}

ViStatus Channel::Next(Deadline& deadline, Header& header) {
  while (payload_left_ > 0) {
    std::span<const ViByte> ahead;
    if (const ViStatus status = PeekPayload(deadline, ahead); status < 0) return status;
    TakePayload(ahead.size());
  }
  if (Buffered() < kHeaderSize) {
    if (const ViStatus status = Fill(kHeaderSize - Buffered(), deadline); status < 0) return status;
  }
  if (!Decode(buffer_.data() + begin_, header)) return kMalformed;
  begin_ += kHeaderSize;
  payload_left_ = header.length;
  return VI_SUCCESS;
}

ViStatus Channel::ReadPayload(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received) {
  received = std::min(count, Buffered());
  if (received > 0) std::memcpy(into, buffer_.data() + begin_, received);
  TakePayload(received);
  if (received == count) return VI_SUCCESS;
  // The rest comes straight from the kernel into the caller's memory.
  std::size_t direct = 0;
  const ViStatus status = stream_.Receive(into + received, count - received, count - received, deadline, direct);
  received += direct;
  payload_left_ -= direct;
  return status;
}

ViStatus Channel::PeekPayload(Deadline& deadline, std::span<const ViByte>& ahead) {
  if (Buffered() == 0) {
    if (const ViStatus status = Fill(1, deadline); status < 0) return status;
  }
  ahead = {buffer_.data() + begin_, static_cast<std::size_t>(std::min<ViUInt64>(Buffered(), payload_left_))};
  return VI_SUCCESS;
}

void Channel::TakePayload(std::size_t count) {
  begin_ += count;
  payload_left_ -= count;
}

ViStatus Channel::Refuse(const Header& header, Deadline& deadline) {
  const bool vendor = static_cast<ViByte>(header.type) >= kFirstVendorType;
  return Send({Type::kError, vendor ? kUnrecognizedVendorType : kUnrecognizedType}, deadline);
}

}  // namespace tvr::visa::hislip
