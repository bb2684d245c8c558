// A setting in one line: its header, what it means, where it lives. Each gives the command and the query.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "scpi/commands.h"

namespace siggen::model {

using scpi::Limits;
using scpi::Quantity;

// For a real setting that is more than a number in a place.
struct RealSetting {
  Quantity quantity = Quantity::kPlain;
  std::function<Limits()> limits;
  std::function<double()> get;
  std::function<void(double)> set;
  std::function<double()> step;  // when given, UP and DOWN move by it
};

void BindReal(scpi::Commands& commands, std::string_view pattern, RealSetting setting);
void BindReal(scpi::Commands& commands, std::string_view pattern, Quantity quantity, Limits limits, double& value);
void BindInteger(scpi::Commands& commands, std::string_view pattern, int least, int most, int usual, int& value);
void BindBoolean(scpi::Commands& commands, std::string_view pattern, bool& value);
void BindText(scpi::Commands& commands, std::string_view pattern, std::size_t longest, std::string& value);

// A value with its limits, for a query that may ask for MINimum, MAXimum or DEFault.
void AnswerReal(scpi::Call& call, Quantity quantity, double value, const Limits& limits);

template <typename E, std::size_t N>
void AnswerWord(scpi::Call& call, const scpi::Word<E> (&words)[N], E value) {
  for (const auto& word : words) {
    if (word.value == value) return call.answer.Plain(scpi::ShortForm(word.form));
  }
}

template <typename E, std::size_t N>
void BindChoice(scpi::Commands& commands, std::string_view pattern, const scpi::Word<E> (&words)[N], E& value,
                std::function<void(E)> changed = {}) {
  commands.Do(pattern, scpi::kOne, [&words, &value, changed](scpi::Call& call) {
    value = call.Choice(std::span<const scpi::Word<E>>(words));
    if (changed) changed(value);
  });
  commands.Ask(pattern, scpi::kNothing, [&words, &value](scpi::Call& call) { AnswerWord(call, words, value); });
}

}  // namespace siggen::model
