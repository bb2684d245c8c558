// The bytes that a framed protocol's peer takes its messages from.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "Listener.h"

namespace bench {

// What has been received and not been used, so that a message that comes whole costs one receive.
class Input {
 public:
  explicit Input(int connection) : connection_(connection) {}

  // The next `count` bytes, at most what fits; empty at the end.
  std::string_view Take(std::size_t count) {
    while (last_ - next_ < count) {
      if (next_ > 0) std::copy(buffer_.begin() + Place(next_), buffer_.begin() + Place(last_), buffer_.begin());
      last_ -= next_, next_ = 0;
      const std::size_t got = ReceiveSome(connection_, buffer_.data() + last_, buffer_.size() - last_);
      if (got == 0) return {};
      last_ += got;
    }
    next_ += count;
    return {buffer_.data() + next_ - count, count};
  }
  // Has something been received that was not taken?
  bool HasMore() const { return next_ != last_; }
  bool Skip(std::uint64_t count) {
    while (count > 0) {
      const std::size_t part = static_cast<std::size_t>(std::min<std::uint64_t>(count, buffer_.size()));
      if (Take(part).empty()) return false;
      count -= part;
    }
    return true;
  }

 private:
  static std::ptrdiff_t Place(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

  const int connection_;
  std::vector<char> buffer_ = std::vector<char>(256 * 1024);
  std::size_t next_ = 0;
  std::size_t last_ = 0;
};

// A big-endian number.
inline std::uint64_t Number(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

}  // namespace bench
