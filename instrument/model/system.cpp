// :SYSTem: errors, version, preset.
#include "model/bind.h"
#include "model/instrument.h"
#include "model/trees.h"

namespace siggen::model {

using scpi::Call;
using scpi::kNothing;

void AddSystem(scpi::Commands& commands, Instrument& instrument) {
  scpi::ErrorQueue& errors = instrument.status().errors;
  commands.Ask("SYSTem:ERRor[:NEXT]", kNothing, [&errors](Call& call) { call.answer.Plain(errors.Pop()); });
  commands.Ask("SYSTem:ERRor:ALL", kNothing, [&errors](Call& call) { call.answer.Plain(errors.PopAll()); });
  commands.Ask("SYSTem:ERRor:COUNt", kNothing,
               [&errors](Call& call) { call.answer.Integer(static_cast<std::int64_t>(errors.size())); });
  commands.Ask("SYSTem:VERSion", kNothing, [](Call& call) { call.answer.Plain("1999.0"); });
  commands.Do("SYSTem:PRESet", kNothing, [&instrument](Call&) { instrument.Reset(); });
}

}  // namespace siggen::model
