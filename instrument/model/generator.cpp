#include "model/generator.h"

#include <algorithm>
#include <cmath>

namespace siggen::model {

Generator::Generator(const Variant& variant, scpi::Status& status) : variant_(variant), status_(status) { Reset(); }

void Generator::Reset() {
  now = Settings();
  now.frequency.start = kLowestFrequency;
  now.frequency.stop = variant_.highest_frequency;
}

void Generator::Load(const Settings& settings) {
  now = settings;
  if (protection_tripped_) now.output.on = false;
}

double Generator::highest_level() const {
  return now.power.limit_on ? std::min(now.power.limit, kHighestPower) : kHighestPower;
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
