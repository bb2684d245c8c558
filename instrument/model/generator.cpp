#include "model/generator.h"

#include <algorithm>
#include <cmath>

#include "model/modulation.h"

namespace siggen::model {

Generator::Generator(const Variant& variant, scpi::Status& status)
    : sweep(now, status), variant_(variant), status_(status) {
  Reset();
}

void Generator::Reset() {
  Settings initial;
  // The points of the lists are the user's work: a reset keeps them and resets only how they are played.
  for (std::size_t i = 0; i < initial.lists.size(); ++i) {
    initial.lists[i].frequencies = std::move(now.lists[i].frequencies);
    initial.lists[i].powers = std::move(now.lists[i].powers);
  }
  now = std::move(initial);
  now.am.size = 30.0;
  now.am.sensitivity = 30.0;
  now.fm.size = now.fm.sensitivity = 100e3;
  now.pm.size = now.pm.sensitivity = 1.0;
  now.power_sweep.generation = Generation::kStepped;
  now.frequency.start = kLowestFrequency;
  now.frequency.stop = variant_.highest_frequency;
  sweep.Abort();
}

void Generator::Load(const Settings& settings) {
  now = settings;
  if (protection_tripped_) now.output.on = false;
  sweep.Abort();
}

double Generator::highest_level() const {
  return now.power.limit_on ? std::min(now.power.limit, kHighestPower) : kHighestPower;
}

double Generator::carrier_power() const { return std::min(CarrierPower(now, sweep.position()), highest_level()); }

void Generator::CatchUp(Instant moment) {
  sweep.CatchUp(moment);
  status_.questionable.SetCondition(scpi::kQuestionableModulation, AmError(now) || FmPmError(now) || PulseError(now));
}

double Generator::attenuation() const {
  if (!now.power.attenuator_auto) return now.power.attenuation;
  // The leveling loop covers the top 10 dB; the attenuator takes the rest in steps of 10 dB.
  return std::clamp(10.0 * std::floor((kHighestPower - 10.0 - now.power.level) / 10.0), 0.0, 120.0);
}

void Generator::TripProtection() {
  protection_tripped_ = true;
  now.output.on = false;
  status_.questionable.SetCondition(scpi::kQuestionablePower, true);
}

void Generator::ClearProtection() {
  protection_tripped_ = false;
  status_.questionable.SetCondition(scpi::kQuestionablePower, false);
}

}  // namespace siggen::model
