#include "format/formatted_input.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tvr::visa {

void FormattedInput::Discard() {
  next_ = last_ = nullptr;
  final_ = Final::kNot;
}

ViStatus FormattedInput::DiscardMessage(Deadline& deadline) {
  const bool ended_by_message = link_.transport().MessageEndsAnswer() && link_.writes() != writes_at_fill_;
  const bool goes_on = next_ != last_ && final_ == Final::kNot && link_.KnowsEnd() && !ended_by_message;
  Discard();
  if (!goes_on) return VI_SUCCESS;
  BeginCall(deadline);
  while (final_ == Final::kNot) {
    next_ = last_ = nullptr;
    if (const ViStatus status = Fill(); status < 0) {
      Discard();
      return status;
    }
  }
  Discard();
  return VI_SUCCESS;
}

void FormattedInput::SetSize(std::size_t size) {
  Discard();
  buffer_ = MakeBuffer(size);
  size_ = size;
}

// Not filled with zeros: opening a session would take that much longer.
std::unique_ptr<char[]> FormattedInput::MakeBuffer(std::size_t size) {
  return std::make_unique_for_overwrite<char[]>(RoomOf(size));
}

// One low-level read behind the unread bytes. It returns with what is there: on a link without END a full buffer might
// never come together.
ViStatus FormattedInput::Fill() {
  if (failed_ < 0) [[unlikely]]
    return std::exchange(failed_, VI_SUCCESS);
  if (buffer_ == nullptr) buffer_ = MakeBuffer(size_);
  const std::size_t unread = Unread();
  if (unread > 0) std::memmove(buffer_.get(), next_, unread);
  next_ = buffer_.get();
  last_ = next_ + unread;
  const std::size_t room = Room() - unread;
  if (room == 0) return VI_ERROR_ALLOC;
  const ReadRequest request{reinterpret_cast<ViByte*>(buffer_.get() + unread), room, 1, link_.settings().Termchar()};
  std::size_t received = 0;
  const ViStatus status = link_.Read(request, *deadline_, received);
  writes_at_fill_ = link_.writes();
  last_ += received;
  final_ = status == VI_SUCCESS ? Final::kEnd : status == VI_SUCCESS_TERM_CHAR ? Final::kTermchar : Final::kNot;
  if (received == 0) return status;
  // What came before a failure is used first. Not every failure would be met again: a device tells an error once.
  if (status < 0) failed_ = status;
  return VI_SUCCESS;
}

bool FormattedInput::Refill() {
  status_ = Fill();
  return status_ >= 0;
}

std::size_t FormattedInput::ReadDirectly(ViByte* into, std::size_t count) {
  std::size_t taken = 0;
  if (failed_ < 0) status_ = std::exchange(failed_, VI_SUCCESS);
  while (taken < count && status_ >= 0 && !ended_) {
    std::size_t received = 0;
    const ReadRequest request{into + taken, count - taken, count - taken, std::nullopt};
    const ViStatus status = link_.Read(request, *deadline_, received);
    taken += received;
    if (status < 0) status_ = status;
    if (status == VI_SUCCESS) ended_ = true;
  }
  return taken;
}

void FormattedInput::FetchTerminator() {
  if (next_ != last_ || ended_ || status_ < 0) return;
  if (link_.transport().CarriesEnd() || !link_.settings().Termchar()) return;
  // None within the timeout: then there was none, and the data is complete without it.
  Fill();
}

ViStatus FormattedInput::Read(ViByte* into, std::size_t count, std::size_t& received) {
  received = std::min(count, Unread());
  if (received > 0) {
    std::memcpy(into, next_, received);
    TakeMany(received);
    if (ended_) return final_ == Final::kEnd ? VI_SUCCESS : VI_SUCCESS_TERM_CHAR;
  }
  if (received == count) return VI_SUCCESS_MAX_CNT;
  std::size_t direct = 0;
  const ReadRequest request{into + received, count - received, count - received, link_.settings().Termchar()};
  const ViStatus status = link_.Read(request, *deadline_, direct);
  received += direct;
  return status;
}

}  // namespace tvr::visa
