#include "scpi/parser.h"

#include <charconv>

#include "scpi/errors.h"

namespace siggen::scpi {
namespace {

constexpr std::size_t kLongestMnemonic = 12;
constexpr std::size_t kMostArguments = 8192;  // twice what the longest list needs

// Not <cctype>: the process locale must not decide what a letter is.
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsWordPart(char c) { return IsLetter(c) || IsDigit(c) || c == '_'; }
bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

std::size_t WordLength(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && IsWordPart(text[length])) ++length;
  return length;
}

Mnemonic SplitSuffix(std::string_view whole) {
  Mnemonic mnemonic{whole, whole, std::nullopt};
  std::size_t letters = whole.size();
  while (letters > 0 && IsDigit(whole[letters - 1])) --letters;
  if (letters == whole.size()) return mnemonic;
  int suffix = 0;
  const auto [end, problem] = std::from_chars(whole.data() + letters, whole.data() + whole.size(), suffix);
  if (problem != std::errc()) throw Refusal(Error::kHeaderSuffixOutOfRange);
  mnemonic.word = whole.substr(0, letters);
  mnemonic.suffix = suffix;
  return mnemonic;
}

}  // namespace

void Parser::SkipBlanks() {
  while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
}

bool Parser::Next(Unit& unit) {
  for (SkipBlanks(); Peek() == ';'; SkipBlanks()) rest_.remove_prefix(1);
  if (rest_.empty()) return false;
  ReadHeader(unit);
  ReadArguments(unit);
  return true;
}

void Parser::ReadHeader(Unit& unit) {
  unit.path.clear();
  unit.arguments.clear();
  unit.query = false;
  unit.header = {};
  const std::string_view start = rest_;
  unit.common = Peek() == '*';
  unit.absolute = Peek() == ':';
  if (unit.common || unit.absolute) rest_.remove_prefix(1);
  while (true) {
    if (!IsLetter(Peek())) throw Refusal(rest_.empty() ? Error::kSyntax : Error::kInvalidCharacter);
    const std::string_view whole = rest_.substr(0, WordLength(rest_));
    if (whole.size() > kLongestMnemonic) throw Refusal(Error::kMnemonicTooLong, std::string(whole));
    rest_.remove_prefix(whole.size());
    unit.header = start.substr(0, start.size() - rest_.size());
    unit.path.push_back(SplitSuffix(whole));
    if (Peek() != ':' || unit.common) break;
    rest_.remove_prefix(1);
  }
  if (Peek() == '?') {
    unit.query = true;
    rest_.remove_prefix(1);
    unit.header = start.substr(0, start.size() - rest_.size());
  }
  if (rest_.empty() || Peek() == ';' || IsBlank(Peek())) return;
  throw Refusal(Peek() == ',' || Peek() == '"' || Peek() == '\'' ? Error::kInvalidSeparator : Error::kInvalidCharacter,
                std::string(unit.header));
}

void Parser::ReadArguments(Unit& unit) {
  SkipBlanks();
  if (rest_.empty() || Peek() == ';') return;
  while (true) {
    if (unit.arguments.size() == kMostArguments) throw Refusal(Error::kParameterNotAllowed, std::string(unit.header));
    ReadArgument(unit.arguments.emplace_back());
    SkipBlanks();
    if (rest_.empty() || Peek() == ';') return;
    if (Peek() != ',') throw Refusal(Error::kInvalidSeparator, std::string(unit.header));
    rest_.remove_prefix(1);
    SkipBlanks();
  }
}

void Parser::ReadArgument(Argument& argument) {
  const char c = Peek();
  if (IsDigit(c) || c == '+' || c == '-' || c == '.') return ReadNumber(argument);
  if (c == '"' || c == '\'') return ReadString(argument);
  if (c == '#') return ReadBlock(argument);
  if (c == '(') throw Refusal(Error::kExpressionNotAllowed);
  if (rest_.empty() || c == ';' || c == ',') throw Refusal(Error::kSyntax);
  if (!IsLetter(c)) throw Refusal(Error::kInvalidCharacter);
  argument.kind = Argument::Kind::kWord;
  argument.word = rest_.substr(0, WordLength(rest_));
  rest_.remove_prefix(argument.word.size());
}

void Parser::ReadNumber(Argument& argument) {
  argument.kind = Argument::Kind::kNumber;
  const char* begin = rest_.data();
  const char* const end = begin + rest_.size();
  if (Peek() == '+') ++begin;
  if (begin != end && !IsDigit(*begin) && *begin != '.' && (*begin != '-' || begin != rest_.data())) {
    throw Refusal(Error::kInvalidCharacterInNumber);
  }
  const auto [behind, problem] = std::from_chars(begin, end, argument.number);
  if (problem == std::errc::result_out_of_range) throw Refusal(Error::kExponentTooLarge);
  // from_chars would take "-inf" and "-nan" for numbers.
  if (problem != std::errc() || (!IsDigit(behind[-1]) && behind[-1] != '.')) {
    throw Refusal(Error::kInvalidCharacterInNumber);
  }
  rest_.remove_prefix(static_cast<std::size_t>(behind - rest_.data()));
  const std::string_view after_number = rest_;
  SkipBlanks();
  if (!IsLetter(Peek())) {
    rest_ = after_number;
    return;
  }
  argument.word = rest_.substr(0, WordLength(rest_));
  rest_.remove_prefix(argument.word.size());
}

void Parser::ReadRadixNumber(Argument& argument, int base) {
  argument.kind = Argument::Kind::kNumber;
  unsigned long value = 0;
  const char* const begin = rest_.data() + 2;
  const auto [behind, problem] = std::from_chars(begin, rest_.data() + rest_.size(), value, base);
  if (problem != std::errc()) throw Refusal(Error::kInvalidCharacterInNumber);
  argument.number = static_cast<double>(value);
  rest_.remove_prefix(static_cast<std::size_t>(behind - rest_.data()));
}

void Parser::ReadString(Argument& argument) {
  argument.kind = Argument::Kind::kString;
  const char quote = Peek();
  rest_.remove_prefix(1);
  while (!rest_.empty()) {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    if (c == quote) {
      if (Peek() != quote) return;
      rest_.remove_prefix(1);  // a doubled quote stands for one
    }
    argument.text += c;
  }
  throw Refusal(Error::kInvalidString);
}

void Parser::ReadBlock(Argument& argument) {
  if (rest_.size() < 2) throw Refusal(Error::kInvalidBlock);
  switch (rest_[1]) {
    case 'H':
    case 'h':
      return ReadRadixNumber(argument, 16);
    case 'Q':
    case 'q':
      return ReadRadixNumber(argument, 8);
    case 'B':
    case 'b':
      return ReadRadixNumber(argument, 2);
    default:
      break;
  }
  argument.kind = Argument::Kind::kBlock;
  if (!IsDigit(rest_[1])) throw Refusal(Error::kInvalidBlock);
  const std::size_t digits = static_cast<std::size_t>(rest_[1] - '0');
  rest_.remove_prefix(2);
  if (digits == 0) {  // an indefinite block goes on to the end of the message
    argument.block = message_.Part(rest_);
    rest_ = {};
    return;
  }
  std::size_t length = 0;
  if (rest_.size() < digits) throw Refusal(Error::kInvalidBlock);
  const auto [behind, problem] = std::from_chars(rest_.data(), rest_.data() + digits, length);
  if (problem != std::errc() || behind != rest_.data() + digits) throw Refusal(Error::kInvalidBlock);
  rest_.remove_prefix(digits);
  if (rest_.size() < length) throw Refusal(Error::kInvalidBlock);
  argument.block = message_.Part(rest_.substr(0, length));
  rest_.remove_prefix(length);
}

}  // namespace siggen::scpi
