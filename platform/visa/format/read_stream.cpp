#include "format/read_stream.h"

#include <algorithm>
#include <cstring>

namespace tvr::visa {

int ReadStream::PeekAt(std::size_t distance) {
  while (Unread() <= distance) {
    if (final_ != Final::kNot && next_ != last_) return -1;
    if (!More()) return -1;
  }
  return static_cast<unsigned char>(next_[distance]);
}

void ReadStream::SkipSpace(bool and_empty_lines) {
  while (IsSpace(Peek())) {
    const bool stale = stale_;
    const bool blank = blank_;
    const bool empty_line = and_empty_lines && blank && final_ == Final::kTermchar;
    const bool end_of_an_earlier_message = (stale || empty_line) && AtFinalByte();
    TakeMany(1);
    stale_ = stale && next_ != last_;
    blank_ = blank;
    if (end_of_an_earlier_message) {
      ended_ = false;
      final_ = Final::kNot;
    }
  }
}

std::size_t ReadStream::TakeBlock(ViByte* into, std::size_t count) {
  const std::size_t from_window = std::min(count, Unread());
  if (from_window > 0) {
    std::memcpy(into, next_, from_window);
    TakeMany(from_window);
    // A character that stopped the filling of this window was one of the data.
    if (ended_ && final_ == Final::kTermchar) {
      ended_ = false;
      final_ = Final::kNot;
    }
  }
  if (from_window == count || ended_ || status_ < 0) return from_window;
  const std::size_t direct = ReadDirectly(into + from_window, count - from_window);
  taken_ += direct;
  return from_window + direct;
}

}  // namespace tvr::visa
