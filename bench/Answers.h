// What the peers of the benchmarks answer, whatever protocol carries it.
#pragma once

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace bench {

class Answers {
 public:
  // A file of so many random bytes can be read with ":MMEM:DATA?".
  explicit Answers(std::size_t file_size = 0) {
    const std::string length = std::to_string(file_size);
    block_ = "#" + std::to_string(length.size()) + length;
    std::mt19937 random(3);
    std::generate_n(std::back_inserter(block_), file_size, [&random] { return static_cast<char>(random()); });
    block_ += '\n';
  }

  // Does a message that begins like this ask? A block may hold any character.
  static bool Asks(std::string_view line) {
    return line.find('?') != std::string_view::npos && line.find('#') == std::string_view::npos;
  }

  // To a line with a question mark; line feed included.
  std::string_view To(std::string_view line) const {
    if (line.starts_with("*IDN?")) return "Kelvora,TD48142C,1,1.0\n";
    if (line.starts_with("*ESR?")) return "0\n";
    if (line.starts_with("*OPC?")) return "1\n";
    if (line.starts_with(":MMEM:DATA?")) return block_;
    return "1000000000\n";
  }

 private:
  std::string block_;  // as it is answered, with its header and the line feed
};

}  // namespace bench
