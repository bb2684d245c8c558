// What a person at the bench does to the instrument, as lines on standard input: "trip", "trigger",
// "insert-usb", "fault cut@1", "clear-faults".
#pragma once

#include <string_view>

#include "link/fault.h"
#include "model/instrument.h"

namespace siggen::link {

// False when the line means nothing.
bool CarryOut(std::string_view line, model::Instrument& instrument, FaultPlan& faults);

}  // namespace siggen::link
