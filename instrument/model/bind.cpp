#include "model/bind.h"

#include <utility>

namespace siggen::model {

using scpi::Call;
using scpi::Commands;
using scpi::Error;
using scpi::Refusal;

void AnswerReal(Call& call, Quantity quantity, double value, const Limits& limits) {
  call.answer.Real(scpi::FromModel(call.AskedReal(value, limits), quantity, call.units));
}

void BindReal(Commands& commands, std::string_view pattern, RealSetting setting) {
  commands.Ask(pattern, {0, 1},
               [setting](Call& call) { AnswerReal(call, setting.quantity, setting.get(), setting.limits()); });
  commands.Do(pattern, scpi::kOne, [setting = std::move(setting)](Call& call) {
    const Limits limits = setting.limits();
    if (setting.step) {
      if (const int direction = call.StepDirection(); direction != 0) {
        const double moved = setting.get() + direction * setting.step();
        if (moved < limits.least || moved > limits.most) throw Refusal(Error::kDataOutOfRange);
        return setting.set(moved);
      }
    }
    setting.set(call.Real(setting.quantity, limits));
  });
}

void BindReal(Commands& commands, std::string_view pattern, Quantity quantity, Limits limits, double& value) {
  BindReal(
      commands, pattern,
      {quantity, [limits] { return limits; }, [&value] { return value; }, [&value](double to) { value = to; }, {}});
}

void BindInteger(Commands& commands, std::string_view pattern, int least, int most, int usual, int& value) {
  commands.Do(pattern, scpi::kOne,
              [=, &value](Call& call) { value = static_cast<int>(call.Integer(least, most, usual)); });
  commands.Ask(pattern, {0, 1}, [=, &value](Call& call) {
    const Limits limits{static_cast<double>(least), static_cast<double>(most), static_cast<double>(usual)};
    call.answer.Real(call.AskedReal(value, limits));
  });
}

void BindBoolean(Commands& commands, std::string_view pattern, bool& value) {
  commands.Do(pattern, scpi::kOne, [&value](Call& call) { value = call.Boolean(); });
  commands.Ask(pattern, scpi::kNothing, [&value](Call& call) { call.answer.Boolean(value); });
}

void BindText(Commands& commands, std::string_view pattern, std::size_t longest, std::string& value) {
  commands.Do(pattern, scpi::kOne, [longest, &value](Call& call) {
    std::string text = call.Text();
    if (text.size() > longest) throw Refusal(Error::kTooMuchData);
    value = std::move(text);
  });
  commands.Ask(pattern, scpi::kNothing, [&value](Call& call) { call.answer.Plain(value); });
}

}  // namespace siggen::model
