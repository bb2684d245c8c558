// The formatted read buffer of a session.
#pragma once

#include <algorithm>
#include <atomic>
#include <memory>

#include "deadline.h"
#include "format/read_stream.h"
#include "link.h"

namespace tvr::visa {

class FormattedInput final : public ReadStream {
 public:
  explicit FormattedInput(Link& link) : link_(link) {}

  void BeginCall(Deadline& deadline) {
    deadline_ = &deadline;
    failed_ = VI_SUCCESS;
    ReadStream::BeginCall();
  }

  // Drops what is unread, without I/O.
  void Discard();
  // Drops what is unread and, when the end of its message has not come yet, everything up to there.
  ViStatus DiscardMessage(Deadline& deadline);
  void SetSize(std::size_t size);
  std::size_t Size() const { return size_; }

  // A low-level read through this buffer: what is in it first.
  ViStatus Read(ViByte* into, std::size_t count, std::size_t& received);

  // Reads ahead of whoever takes the bytes, who will be told how that went.
  void Fetch() { Refill(); }
  // What a read into the empty buffer has.
  std::size_t Room() const { return RoomOf(size_); }

  void FetchTerminator() override;

 private:
  bool Refill() override;
  std::size_t ReadDirectly(ViByte* into, std::size_t count) override;
  ViStatus Fill();
  static std::unique_ptr<char[]> MakeBuffer(std::size_t size);
  // A byte to look ahead at must fit beside one that is looked at, however small the caller made the buffer.
  static std::size_t RoomOf(std::size_t size) { return std::max<std::size_t>(size, 4); }

  Link& link_;
  Deadline* deadline_ = nullptr;
  // Of the read that brought the bytes which are used first.
  ViStatus failed_ = VI_SUCCESS;
  std::unique_ptr<char[]> buffer_;  // of Room() bytes, from the first read on
  unsigned writes_at_fill_ = 0;
  // Read by viGetAttribute without the session's lock.
  std::atomic<std::size_t> size_{4096};
};

}  // namespace tvr::visa
