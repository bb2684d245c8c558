#include "vxi11_record.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "big_endian.h"

namespace tvr::visa::vxi11 {
namespace {

constexpr ViUInt32 kLastFragment = 0x80000000;

}  // namespace

void RecordStream::Add(std::span<ViByte> head, std::span<const iovec> data) {
  static constexpr std::array<ViByte, BYTES_PER_XDR_UNIT> kZeros{};
  std::size_t data_length = 0;
  // Beside the data a head, what fills it up, and the head of a record to come. What stood here half when memory ended
  // would go out with the next call; a link is left in a destructor, which no exception may leave.
  if (!data.empty()) gather_.reserve(gather_.size() + data.size() + 3);
  gather_.push_back({head.data(), head.size()});
  for (const iovec& piece : data) {
    gather_.push_back(piece);
    data_length += piece.iov_len;
  }
  const std::size_t padding = RNDUP(data_length) - data_length;
  if (padding > 0) gather_.push_back({const_cast<ViByte*>(kZeros.data()), padding});
  const std::size_t length = head.size() - kMarkSize + data_length + padding;
  PutBigEndian(head.data(), kLastFragment | static_cast<ViUInt32>(length));
}

ViStatus RecordStream::Send(Deadline& deadline) {
  std::size_t sent = 0;
  const ViStatus status = stream_.Send(gather_, deadline, sent);
  gather_.clear();
  if (status < 0 && sent > 0) sent_in_part_ = true;
  return status;
}

ViStatus RecordStream::Reconnect(const std::string& host, ViUInt16 port, Deadline& deadline) {
  sent_in_part_ = false;
  begin_ = end_ = fragment_left_ = 0;
  last_fragment_ = true;
  return stream_.Reconnect(host, port, deadline);
}

ViStatus RecordStream::Fill(std::size_t at_least, Deadline& deadline) {
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, Buffered());
    end_ -= begin_;
    begin_ = 0;
  }
  std::size_t received = 0;
  const ViStatus status = stream_.Receive(buffer_.data() + end_, buffer_.size() - end_, at_least, deadline, received);
  end_ += received;
  return status;
}

ViStatus RecordStream::NextFragment(Deadline& deadline) {
  if (Buffered() < kMarkSize) {
    if (const ViStatus status = Fill(kMarkSize - Buffered(), deadline); status < 0) return status;
  }
  const ViUInt32 mark = BigEndian32(buffer_.data() + begin_);
  begin_ += kMarkSize;
  last_fragment_ = (mark & kLastFragment) != 0;
  fragment_left_ = mark & ~kLastFragment;
  return VI_SUCCESS;
}

ViStatus RecordStream::Next(Deadline& deadline) {
  // Less than this in a call's whole time is no record on its way: one was shorter than it told, and swallows the
  // replies that come now.
  constexpr std::size_t kSlowest = 4096;
  std::size_t dropped = 0;
  while (fragment_left_ > 0 || !last_fragment_) {
    if (fragment_left_ == 0) {
      if (const ViStatus status = NextFragment(deadline); status < 0) return status;
      continue;
    }
    if (Buffered() == 0) {
      if (const ViStatus status = Fill(1, deadline); status < 0) {
        return status == VI_ERROR_TMO && dropped < kSlowest ? kMalformed : status;
      }
    }
    const std::size_t count = std::min(Buffered(), fragment_left_);
    begin_ += count;
    fragment_left_ -= count;
    dropped += count;
  }
  return NextFragment(deadline);
}

ViStatus RecordStream::Read(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received) {
  // With this little to come the buffer takes what follows along.
  constexpr std::size_t kWorthNoCopy = 4096;
  received = 0;
  while (received < count) {
    if (fragment_left_ == 0) {
      if (last_fragment_) return kMalformed;
      if (const ViStatus status = NextFragment(deadline); status < 0) return status;
      continue;
    }
    const std::size_t wanted = std::min(count - received, fragment_left_);
    if (Buffered() == 0 && wanted < kWorthNoCopy) {
      if (const ViStatus status = Fill(1, deadline); status < 0) return status;
    }
    std::size_t got = std::min(wanted, Buffered());
    ViStatus status = VI_SUCCESS;
    if (got > 0) {
      std::memcpy(into + received, buffer_.data() + begin_, got);
      begin_ += got;
    } else {
      status = stream_.Receive(into + received, wanted, wanted, deadline, got);
    }
    received += got;
    fragment_left_ -= got;
    if (status < 0) return status;
  }
  return VI_SUCCESS;
}

bool_t RecordStream::GetBytes(XDR* xdr, char* into, u_int count) {
  auto* const decoding = static_cast<Decoding*>(xdr->x_private);
  std::size_t received = 0;
  decoding->status = decoding->record->Read(reinterpret_cast<ViByte*>(into), count, *decoding->deadline, received);
  return decoding->status < 0 ? FALSE : TRUE;
}

bool_t RecordStream::GetLong(XDR* xdr, long* value) {
  std::array<char, BYTES_PER_XDR_UNIT> unit;
  if (GetBytes(xdr, unit.data(), unit.size()) == FALSE) return FALSE;
  *value = static_cast<long>(BigEndian32(reinterpret_cast<const ViByte*>(unit.data())));
  return TRUE;
}

XDR RecordStream::Source(Decoding& decoding) {
  // What decoding from a stream needs; nothing of it is asked to write or to seek.
  static const XDR::xdr_ops kOperations = [] {
    XDR::xdr_ops operations{};
    operations.x_getlong = GetLong;
    operations.x_getbytes = GetBytes;
    operations.x_inline = [](XDR*, u_int) -> std::int32_t* { return nullptr; };
    return operations;
  }();
  XDR xdr{};
  xdr.x_op = XDR_DECODE;
  xdr.x_ops = &kOperations;
  xdr.x_private = &decoding;
  return xdr;
}

}  // namespace tvr::visa::vxi11
