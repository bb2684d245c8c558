// Everything a reset puts back and a saved state holds. Powers are in dBm at the connector, frequencies in hertz, times
// in seconds.
#pragma once

#include <array>
#include <optional>
#include <vector>

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

enum class Waveform { kSine, kGaussian, kRampDown, kRampUp, kSquare, kTriangle, kUniform };
enum class ModulationSource { kInternal, kExternal };

// What AM, FM and PM have in common. The sizes are percent, hertz or radians; the sensitivities those per volt.
struct ModulationSettings {
  bool on = false;
  ModulationSource source = ModulationSource::kInternal;
  Waveform waveform = Waveform::kSine;
  double rate = 1e3;
  double size = 0.0;
  double sensitivity = 0.0;
};

struct AmSettings : ModulationSettings {
  bool logarithmic = false;
  double size_db = 3.0;
  double sensitivity_db = 3.0;
};

enum class FmMode { kLocked, kUnlocked };
enum class FmFilter { kDc, kHp63, kHp1k };

struct FmSettings : ModulationSettings {
  FmMode mode = FmMode::kLocked;
  FmFilter filter = FmFilter::kDc;
};

enum class PmBandwidth { kMinimum, kMaximum };

struct PmSettings : ModulationSettings {
  PmBandwidth bandwidth = PmBandwidth::kMinimum;
};

enum class Polarity { kNormal, kInverted };
enum class Slope { kPositive, kNegative };
enum class PulseTrigger { kFreeRun, kGated, kDelayed, kTriggered, kTriggerDelayed, kComposite };

struct PulseSettings {
  bool on = false;
  ModulationSource source = ModulationSource::kInternal;
  Polarity polarity = Polarity::kNormal;
  double period = 1e-3;
  int count = 1;
  std::array<double, 4> widths{1e-4, 1e-4, 1e-4, 1e-4};
  std::array<double, 4> delays{};
  PulseTrigger trigger = PulseTrigger::kFreeRun;
  Slope slope = Slope::kPositive;
};

enum class Spacing { kLinear, kLogarithmic };
enum class Generation { kAnalog, kStepped };
enum class Direction { kUp, kDown };

struct SweepSettings {
  Spacing spacing = Spacing::kLinear;
  Generation generation = Generation::kAnalog;
  Direction direction = Direction::kUp;
  int points = 101;
  std::optional<double> step;  // set after the points were: then it counts, and the points follow
  double dwell = 0.05;
  bool dwell_auto = false;  // the dwell follows from the time instead of the time from the dwell
  double time = 1.0;
  double shortest_time = 0.0;
};

struct ListSettings {
  std::vector<double> frequencies;
  std::vector<double> powers;
  int index = 0;
  int start = 0;
  std::optional<int> stop;  // the last point as long as nobody sets it
  double dwell = 0.05;
};

enum class TriggerType { kAuto, kSingle, kExternal, kManual, kInactive };
enum class TriggerMode { kSweep, kPoint };
enum class TriggerSource { kBus, kImmediate, kExternal };

struct TriggerSettings {
  TriggerType type = TriggerType::kAuto;
  TriggerMode mode = TriggerMode::kSweep;
  TriggerSource source = TriggerSource::kImmediate;
  bool continuous = true;
};

struct Settings {
  FrequencySettings frequency;
  PowerSettings power;
  OutputSettings output;
  AmSettings am;
  FmSettings fm;
  PmSettings pm;
  PulseSettings pulse;
  SweepSettings frequency_sweep;
  SweepSettings power_sweep;
  std::array<ListSettings, 10> lists;
  TriggerSettings trigger;
  scpi::DefaultUnits units;

  ListSettings& list(int number) { return lists[static_cast<std::size_t>(number - 1)]; }
  const ListSettings& list(int number) const { return lists[static_cast<std::size_t>(number - 1)]; }
};

}  // namespace siggen::model
