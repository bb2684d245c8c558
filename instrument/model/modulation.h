// What the modulators make of their settings: the depth and deviation that can be measured, and settings that cannot be
// met.
#pragma once

#include "model/settings.h"

namespace siggen::model {

double AmDepth(const Settings& settings);      // percent
double FmDeviation(const Settings& settings);  // hertz
double PmDeviation(const Settings& settings);  // radians

bool AmError(const Settings& settings);     // the envelope's peak is beyond the highest power
bool FmPmError(const Settings& settings);   // both want the same modulator
bool PulseError(const Settings& settings);  // the train does not fit into its period

}  // namespace siggen::model
