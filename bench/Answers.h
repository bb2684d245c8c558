// What the peers of the benchmarks answer, whatever protocol carries it.
#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace bench {

class Answers {
 public:
  using Rule = std::function<std::string(std::string_view line)>;

  // A file of so many random bytes can be read with ":MMEM:DATA?".
  explicit Answers(std::size_t file_size = 0) {
    const std::string length = std::to_string(file_size);
    block_ = "#" + std::to_string(length.size()) + length;
    std::mt19937 random(3);
    std::generate_n(std::back_inserter(block_), file_size, [&random] { return static_cast<char>(random()); });
    block_ += '\n';
  }

  // Those of a test's own: what the rule makes of a line, without its end.
  explicit Answers(Rule rule) : rule_(std::move(rule)) {}

  // Does a message that begins like this ask? A block may hold any character.
  static bool Asks(std::string_view line) {
    return line.find('?') != std::string_view::npos && line.find('#') == std::string_view::npos;
  }

  // To a line with a question mark; line feed included. What a rule makes is kept in `made`.
  std::string_view To(std::string_view line, std::string& made) const {
    if (!rule_) return To(line);
    if (line.ends_with('\n')) line.remove_suffix(1);
    return made = rule_(line);
  }
  std::string_view To(std::string_view line) const {
    if (line.starts_with("*IDN?")) return "Kelvora,TD48142C,1,1.0\n";
    if (line.starts_with("*ESR?")) return "0\n";
    if (line.starts_with("*OPC?")) return "1\n";
    if (line.starts_with(":MMEM:DATA?")) return block_;
    return "1000000000\n";
  }

 private:
  Rule rule_;
  std::string block_;  // as it is answered, with its header and the line feed
};

}  // namespace bench
