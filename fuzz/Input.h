// Takes the input of a fuzzer apart, from its front. What is asked for beyond the end is 0 or empty.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kvtd::fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : left_(reinterpret_cast<const char*>(data), size) {}

  bool empty() const { return left_.empty(); }

  std::uint8_t Byte() {
    if (left_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(left_.front());
    left_.remove_prefix(1);
    return byte;
  }
  bool Bool() { return (Byte() & 1) != 0; }

  // 0 to `count` - 1.
  std::size_t Choice(std::size_t count) {
    const std::size_t high = count > 256 ? Byte() : 0U;
    return (high << 8 | Byte()) % count;
  }

  // Little endian, the raw bytes of a number.
  template <class T>
  T Number() {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) bits |= std::uint64_t{Byte()} << (8 * i);
    return static_cast<T>(bits);
  }

  std::string Bytes(std::size_t count) {
    const std::string bytes(left_.substr(0, count));
    left_.remove_prefix(bytes.size());
    return bytes;
  }
  // Behind a byte that tells the length.
  std::string Text() { return Bytes(Byte()); }
  // To the line feed, which is taken and not given.
  std::string Line() {
    const std::string line = Bytes(std::min(left_.find('\n'), left_.size()));
    Byte();
    return line;
  }
  std::string Rest() { return Bytes(left_.size()); }

 private:
  std::string_view left_;
};

}  // namespace kvtd::fuzz
