#include "model/modulation.h"

#include <algorithm>
#include <cmath>

#include "model/variant.h"

namespace siggen::model {
namespace {

// Nothing is connected to the external input, so that it modulates nothing.
double Applied(const ModulationSettings& modulation, double internal) {
  return modulation.on && modulation.source == ModulationSource::kInternal ? internal : 0.0;
}

}  // namespace

double AmDepth(const Settings& settings) {
  const AmSettings& am = settings.am;
  // A logarithmic depth is how far the envelope goes down, in decibels.
  return Applied(am, am.logarithmic ? 100.0 * (1.0 - std::pow(10.0, -am.size_db / 20.0)) : am.size);
}

double FmDeviation(const Settings& settings) { return Applied(settings.fm, settings.fm.size); }
double PmDeviation(const Settings& settings) { return Applied(settings.pm, settings.pm.size); }

bool AmError(const Settings& settings) {
  if (!settings.am.on || settings.am.logarithmic) return false;
  return settings.power.level + 20.0 * std::log10(1.0 + AmDepth(settings) / 100.0) > kHighestPower;
}

bool FmPmError(const Settings& settings) { return settings.fm.on && settings.pm.on; }

bool PulseError(const Settings& settings) {
  const PulseSettings& pulse = settings.pulse;
  const bool periodic = pulse.trigger == PulseTrigger::kFreeRun || pulse.trigger == PulseTrigger::kDelayed;
  if (!pulse.on || pulse.source == ModulationSource::kExternal || !periodic) return false;
  double length = 0.0;
  for (std::size_t i = 0; i < static_cast<std::size_t>(pulse.count); ++i) length += pulse.delays[i] + pulse.widths[i];
  return length > pulse.period;
}

}  // namespace siggen::model
