// :ROSCillator, the reference in use, and :DIAGnostic:CALibration:REFerence, its two calibrations.
#include "model/bind.h"
#include "model/instrument.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Commands;
using scpi::kNothing;

void AddCalibration(Commands& commands, Instrument& instrument, const std::string& tree, Calibration& calibration) {
  commands.Do(tree + ":INITiate", kNothing,
              [&instrument, &calibration](Call&) { calibration.Start(instrument.now()); });
  commands.Do(tree + ":ABORt", kNothing, [&calibration](Call&) { calibration.Abort(); });
  commands.Ask(tree + ":STATus", kNothing, [&instrument, &calibration](Call& call) {
    call.answer.Plain(calibration.StatusText(instrument.now()));
  });
  commands.Ask(tree + ":DATE", kNothing, [&calibration](Call& call) { call.answer.Plain(calibration.date()); });
}

}  // namespace

void AddReference(Commands& commands, Instrument& instrument) {
  // With the GPS receiver on, its pulse per second disciplines the reference; otherwise the internal 10 MHz runs free.
  const Keepsakes& keepsakes = instrument.keepsakes();
  commands.Ask("ROSCillator:SOURce:CURRent", kNothing,
               [&keepsakes](Call& call) { call.answer.Plain(keepsakes.gps_on ? "REF INT GPS" : "REF INT 10"); });
  commands.Ask("ROSCillator:LFReference:SOURce", kNothing,
               [&keepsakes](Call& call) { call.answer.Plain(keepsakes.gps_on ? "GPPS" : "INT"); });
  commands.Ask("ROSCillator:MULTiplied:SOURce", kNothing, [](Call& call) { call.answer.Plain("INT"); });
  commands.Ask("ROSCillator:HFReference:SOURce", kNothing, [](Call& call) { call.answer.Plain("INT"); });

  AddCalibration(commands, instrument, "DIAGnostic:CALibration:REFerence", instrument.reference_calibration());
  AddCalibration(commands, instrument, "DIAGnostic:CALibration:REFerence:LFReference",
                 instrument.low_frequency_calibration());
}

}  // namespace siggen::model
