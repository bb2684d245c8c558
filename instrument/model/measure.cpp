// :MEASure, what a meter at the connector would read.
#include "model/bind.h"
#include "model/generator.h"
#include "model/modulation.h"
#include "model/trees.h"

namespace siggen::model {

using scpi::Call;
using scpi::kNothing;

void AddMeasure(scpi::Commands& commands, Generator& generator) {
  commands.Ask("MEASure:AM:DEPTh", kNothing, [&generator](Call& call) { call.answer.Real(AmDepth(generator.now)); });
  commands.Ask("MEASure:FM:DEViation", kNothing,
               [&generator](Call& call) { call.answer.Real(FmDeviation(generator.now)); });
  commands.Ask("MEASure:PM:DEViation", kNothing,
               [&generator](Call& call) { call.answer.Real(PmDeviation(generator.now)); });
  // The carrier, which a sweep or a list may be moving.
  commands.Ask("MEASure:FREQuency", kNothing,
               [&generator](Call& call) { call.answer.Real(generator.carrier_frequency()); });
  commands.Ask("MEASure:POWer", kNothing, [&generator](Call& call) {
    call.answer.Real(scpi::FromModel(generator.carrier_power(), Quantity::kPower, call.units));
  });
}

}  // namespace siggen::model
