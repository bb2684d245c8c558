// Everything a reset puts back and a saved state holds. Powers are in dBm at the connector, frequencies in hertz, times
// in seconds.
#pragma once

#include <array>

#include "scpi/quantity.h"

namespace siggen::model {

// What drives the frequency or the power: its fixed value, its sweep, or a list.
enum class Drive { kFixed, kSweep, kList1, kList2, kList3, kList4, kList5, kList6, kList7, kList8, kList9, kList10 };

// 1 to 10, or 0 when no list drives.
constexpr int ListOf(Drive drive) { return drive < Drive::kList1 ? 0 : static_cast<int>(drive) - 1; }

enum class LevelingSource { kInternal, kFixed, kDiode, kPowerMeter };
enum class AttenuatorRange { kHigh, kLow };

struct FrequencySettings {
  double fixed = 1e9;
  Drive drive = Drive::kFixed;
  double multiplier = 1.0;
  double step = 1e6;
  int selected = 0;
  std::array<double, 10> presets{1e9, 2e9, 10e9, 3e9, 5e9, 2e9, 5e9, 8e9, 9e9, 1e9};
  double start = 0.0;  // the range's ends, which the model decides
  double stop = 0.0;
  double delta = 1e6;
};

struct PowerSettings {
  double level = -20.0;
  Drive drive = Drive::kFixed;
  double step = 1.0;
  int selected = 0;
  std::array<double, 10> presets{-20.0, -10.0, 0.0, -15.0, -5.0, -10.0, 0.0, -15.0, -5.0, -20.0};
  AttenuatorRange range = AttenuatorRange::kHigh;
  int dac = 2048;
  bool attenuator_auto = true;
  double attenuation = 20.0;  // while it is set by hand
  double offset = 0.0;
  bool offset_on = false;
  double limit = 20.0;
  bool limit_on = false;
  LevelingSource leveling = LevelingSource::kInternal;
  double start = -120.0;
  double stop = 20.0;
};

struct OutputSettings {
  bool on = false;
  bool blanking = true;
};

struct Settings {
  FrequencySettings frequency;
  PowerSettings power;
  OutputSettings output;
  scpi::DefaultUnits units;
};

}  // namespace siggen::model
