#include "link/console.h"

namespace siggen::link {

bool CarryOut(std::string_view line, model::Instrument& instrument, FaultPlan& faults) {
  constexpr std::string_view kFault = "fault ";
  while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
  instrument.CatchUp();
  if (line == "trip") {
    instrument.generator().TripProtection();
  } else if (line == "trigger") {
    instrument.generator().sweep.ExternalTrigger();
  } else if (line == "insert-usb") {
    instrument.files().InsertUsb();
  } else if (line == "clear-faults") {
    faults.Clear();
  } else if (line.starts_with(kFault)) {
    const auto fault = ParseFault(line.substr(kFault.size()));
    if (!fault) return false;
    faults.Add(*fault);
  } else {
    return line.empty();
  }
  return true;
}

}  // namespace siggen::link
