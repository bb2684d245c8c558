// Takes a program message apart into its units: header, query mark, parameters.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scpi/bytes.h"

namespace siggen::scpi {

// One mnemonic of a header: "LIST3" is the word "LIST" with the suffix 3.
struct Mnemonic {
  std::string_view whole;
  std::string_view word;
  std::optional<int> suffix;
};

struct Argument {
  enum class Kind { kNumber, kWord, kString, kBlock };
  Kind kind = Kind::kWord;
  std::string_view word;  // a word as it was sent, or the suffix of a number
  double number = 0.0;
  std::string text;  // what stood between the quotes
  Bytes block;
};

struct Unit {
  std::string_view header;  // as it was sent, for the error queue
  bool common = false;      // "*IDN?"
  bool absolute = false;    // began with a colon
  bool query = false;
  std::vector<Mnemonic> path;
  std::vector<Argument> arguments;
};

class Parser {
 public:
  explicit Parser(Bytes message) : message_(std::move(message)), rest_(message_.view) {}

  // The next unit, or false at the end of the message. Throws a Refusal where the message is no program message.
  bool Next(Unit& unit);

 private:
  void ReadHeader(Unit& unit);
  void ReadArguments(Unit& unit);
  void ReadArgument(Argument& argument);
  void ReadNumber(Argument& argument);
  void ReadRadixNumber(Argument& argument, int base);
  void ReadString(Argument& argument);
  void ReadBlock(Argument& argument);
  void SkipBlanks();
  char Peek() const { return rest_.empty() ? '\0' : rest_.front(); }

  Bytes message_;
  std::string_view rest_;
};

}  // namespace siggen::scpi
