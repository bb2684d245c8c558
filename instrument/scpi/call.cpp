#include "scpi/call.h"

#include <cmath>
#include <optional>

namespace siggen::scpi {
namespace {

std::optional<double> LimitNamed(std::string_view word, const Limits& limits) {
  if (Matches("MINimum", word)) return limits.least;
  if (Matches("MAXimum", word)) return limits.most;
  if (Matches("DEFault", word)) return limits.usual;
  return std::nullopt;
}

bool IsBeyondNumbers(std::string_view word) {
  return Matches("INFinity", word) || Matches("NINFinity", word) || SameWord("NAN", word);
}

}  // namespace

const Argument& Call::Next() {
  if (next_ == unit_.arguments.size()) throw Refusal(Error::kMissingParameter);
  return unit_.arguments[next_++];
}

double Call::Real(Quantity quantity, const Limits& limits) {
  const Argument& argument = Next();
  if (argument.kind == Argument::Kind::kWord) {
    if (const auto limit = LimitNamed(argument.word, limits)) return *limit;
    throw Refusal(IsBeyondNumbers(argument.word) ? Error::kDataOutOfRange : Error::kDataType);
  }
  if (argument.kind != Argument::Kind::kNumber) throw Refusal(Error::kDataType);
  const double value = ToModel(argument.number, argument.word, quantity, units);
  // Limits are often sums of settings: a hair beyond one is on it.
  const double slack = 1e-12 * (std::fabs(limits.least) + std::fabs(limits.most));
  if (!(value >= limits.least - slack && value <= limits.most + slack)) throw Refusal(Error::kDataOutOfRange);
  return value;
}

std::int64_t Call::Integer(std::int64_t least, std::int64_t most, std::int64_t usual) {
  const double value =
      Real(Quantity::kPlain, {static_cast<double>(least), static_cast<double>(most), static_cast<double>(usual)});
  return static_cast<std::int64_t>(std::llround(value));
}

bool Call::Boolean() {
  const Argument& argument = Next();
  if (argument.kind == Argument::Kind::kNumber) {
    if (!argument.word.empty()) throw Refusal(Error::kSuffixNotAllowed, std::string(argument.word));
    return std::fabs(argument.number) >= 0.5;
  }
  if (argument.kind != Argument::Kind::kWord) throw Refusal(Error::kDataType);
  if (SameWord(argument.word, "ON")) return true;
  if (SameWord(argument.word, "OFF")) return false;
  throw Refusal(Error::kIllegalParameter, std::string(argument.word));
}

std::string Call::Text() {
  const Argument& argument = Next();
  if (argument.kind != Argument::Kind::kString) throw Refusal(Error::kDataType);
  // Texts are answered bare: a control character in one would end the answer early.
  for (const char c : argument.text) {
    if (static_cast<unsigned char>(c) < ' ') throw Refusal(Error::kInvalidString);
  }
  return argument.text;
}

Bytes Call::Block() {
  const Argument& argument = Next();
  if (argument.kind != Argument::Kind::kBlock) throw Refusal(Error::kDataType);
  return argument.block;
}

int Call::StepDirection() {
  if (left() == 0 || unit_.arguments[next_].kind != Argument::Kind::kWord) return 0;
  const std::string_view word = unit_.arguments[next_].word;
  const int direction = SameWord(word, "UP") ? 1 : SameWord(word, "DOWN") ? -1 : 0;
  if (direction != 0) ++next_;
  return direction;
}

std::string_view Call::Word() {
  const Argument& argument = Next();
  if (argument.kind != Argument::Kind::kWord) throw Refusal(Error::kDataType);
  return argument.word;
}

double Call::AskedReal(double value, const Limits& limits) {
  if (left() == 0) return value;
  if (const auto limit = LimitNamed(Word(), limits)) return *limit;
  throw Refusal(Error::kIllegalParameter);
}

}  // namespace siggen::scpi
