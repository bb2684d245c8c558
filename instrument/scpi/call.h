// One unit being carried out: its parameters are read off in order, its answer is built up.
//
// The number of parameters has been checked before a handler runs, and a handler reads all of them before it changes
// anything, so that a refused command leaves every setting alone.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "scpi/answer.h"
#include "scpi/errors.h"
#include "scpi/parser.h"
#include "scpi/quantity.h"
#include "scpi/words.h"

namespace siggen::scpi {

// Thrown by a handler that cannot go on before pending operations are done (*OPC?, *WAI). The unit is run again then.
struct Wait {};

class Call {
 public:
  Call(const Unit& unit, const std::vector<int>& suffixes, const DefaultUnits& default_units, Answer& builds)
      : answer(builds), units(default_units), unit_(unit), suffixes_(suffixes) {}

  Answer& answer;
  const DefaultUnits& units;

  // The numeric suffix of the header's `index`-th numbered mnemonic: 3 in :LIST3:FREQ.
  int suffix(std::size_t index = 0) const { return suffixes_[index]; }
  std::size_t left() const { return unit_.arguments.size() - next_; }

  double Real(Quantity quantity, const Limits& limits);
  std::int64_t Integer(std::int64_t least, std::int64_t most, std::int64_t usual);
  bool Boolean();
  std::string Text();
  Bytes Block();
  int StepDirection();      // 1 for UP, -1 for DOWN, both taken; else 0 and nothing taken
  std::string_view Word();  // a bare word that no table lists

  // MINimum, MAXimum or DEFault behind a query asks for the limit; otherwise `value` is the answer.
  double AskedReal(double value, const Limits& limits);

  template <typename E>
  E Choice(std::span<const scpi::Word<E>> words) {
    const std::string_view sent = Word();
    for (const auto& word : words) {
      if (Matches(word.form, sent)) return word.value;
    }
    throw Refusal(Error::kIllegalParameter, std::string(sent));
  }

 private:
  const Argument& Next();

  const Unit& unit_;
  const std::vector<int>& suffixes_;
  std::size_t next_ = 0;
};

}  // namespace siggen::scpi
