// :DIAGnostic, :TEST and :INSTrument: what the instrument tells about itself.
#include "model/bind.h"
#include "model/instrument.h"
#include "model/trees.h"

namespace siggen::model {

using scpi::Call;
using scpi::kNothing;

void AddDiagnostics(scpi::Commands& commands, Instrument& instrument) {
  constexpr int kMemory = 4'194'304;  // kilobytes

  commands.Ask("DIAGnostic:SNUMber", kNothing,
               [&instrument](Call& call) { call.answer.Plain(instrument.identity().serial); });
  commands.Ask("DIAGnostic:MEMory", kNothing, [](Call& call) { call.answer.Integer(kMemory); });
  commands.Ask("DIAGnostic:MODule:INFO", kNothing, [](Call& call) {
    call.answer.Plain(
        "Reference A481-10 rev 3,Synthesizer A481-20 rev 5,Output A481-30 rev 4,Controller A481-40 rev 2");
  });
  commands.Ask("TEST:SELF", kNothing,
               [](Call& call) { call.answer.Plain("Passed: reference, synthesizer, output, controller"); });
  commands.Ask("INSTrument:CATalog:ACTive", kNothing, [](Call& call) { call.answer.Plain("Generator"); });
  commands.Ask("INSTrument:CATalog:FULL", kNothing,
               [](Call& call) { call.answer.Plain("Generator,Sweep Monitor,Software Update"); });
}

}  // namespace siggen::model
