// :FREQuency, the carrier's frequency, its presets and the range of the frequency sweep.
#include <algorithm>
#include <cmath>

#include "model/bind.h"
#include "model/generator.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;

constexpr scpi::Word<Drive> kDrives[] = {
    {"FIXed", Drive::kFixed}, {"CW", Drive::kFixed},    {"SWEep", Drive::kSweep},   {"SWEep1", Drive::kSweep},
    {"LIST1", Drive::kList1}, {"LIST", Drive::kList1},  {"LIST2", Drive::kList2},   {"LIST3", Drive::kList3},
    {"LIST4", Drive::kList4}, {"LIST5", Drive::kList5}, {"LIST6", Drive::kList6},   {"LIST7", Drive::kList7},
    {"LIST8", Drive::kList8}, {"LIST9", Drive::kList9}, {"LIST10", Drive::kList10},
};

constexpr scpi::Word<int> kPresets[] = {{"F0", 0}, {"F1", 1}, {"F2", 2}, {"F3", 3}, {"F4", 4},
                                        {"F5", 5}, {"F6", 6}, {"F7", 7}, {"F8", 8}, {"F9", 9}};

// Start and stop are what is kept. Center and span are another view of them and move both.
void AddRange(scpi::Commands& commands, Generator& generator) {
  FrequencySettings& frequency = generator.now.frequency;
  const double widest = generator.variant().highest_frequency - kLowestFrequency;

  BindReal(commands, "FREQuency:STARt", Quantity::kFrequency, generator.FrequencyLimits(kLowestFrequency),
           frequency.start);
  BindReal(commands, "FREQuency:STOP", Quantity::kFrequency,
           generator.FrequencyLimits(generator.variant().highest_frequency), frequency.stop);

  const auto set_range = [&frequency](double center, double span) {
    frequency.start = center - span / 2.0;
    frequency.stop = center + span / 2.0;
  };
  // How wide a span fits around `center`.
  const auto room = [&generator](double center) {
    return 2.0 * std::min(center - kLowestFrequency, generator.variant().highest_frequency - center);
  };
  const auto center = [&frequency] { return (frequency.start + frequency.stop) / 2.0; };
  const auto span = [&frequency] { return frequency.stop - frequency.start; };

  BindReal(commands, "FREQuency:CENTer",
           {Quantity::kFrequency,
            [&generator] {
              return generator.FrequencyLimits((kLowestFrequency + generator.variant().highest_frequency) / 2.0);
            },
            center,
            [=](double value) { set_range(value, std::clamp(span(), -room(value), room(value))); },
            {}});
  BindReal(commands, "FREQuency:SPAN",
           {Quantity::kFrequency,
            [=] {
              return Limits{0.0, room(center()), widest};
            },
            span,
            [=](double value) { set_range(center(), value); },
            {}});
  commands.Do("FREQuency:SPAN:FULL", scpi::kNothing, [&generator](Call&) {
    generator.now.frequency.start = kLowestFrequency;
    generator.now.frequency.stop = generator.variant().highest_frequency;
  });
  BindReal(commands, "FREQuency:DELTa", Quantity::kFrequency, {0.0, widest, 1e6}, frequency.delta);
}

}  // namespace

void AddFrequency(scpi::Commands& commands, Generator& generator) {
  FrequencySettings& frequency = generator.now.frequency;

  BindReal(commands, "FREQuency[:CW|FIXed]",
           {Quantity::kFrequency, [&generator] { return generator.FrequencyLimits(1e9); },
            [&frequency] { return frequency.fixed; }, [&frequency](double value) { frequency.fixed = value; },
            [&frequency] { return frequency.step; }});
  BindChoice(commands, "FREQuency:MODE", kDrives, frequency.drive,
             std::function<void(Drive)>([&generator](Drive) { generator.sweep.DriveChanged(); }));
  BindReal(commands, "FREQuency:MULTiplier", Quantity::kFactor, {0.001, 1000.0, 1.0}, frequency.multiplier);
  BindReal(commands, "FREQuency:STEP", Quantity::kFrequency, {0.001, generator.variant().highest_frequency, 1e6},
           frequency.step);

  commands.Do("FREQuency:F<0-9>", scpi::kOne, [&generator, &frequency](Call& call) {
    const double value = call.Real(Quantity::kFrequency, generator.FrequencyLimits(1e9));
    frequency.presets[static_cast<std::size_t>(call.suffix())] = value;
  });
  commands.Ask("FREQuency:F<0-9>", {0, 1}, [&generator, &frequency](Call& call) {
    AnswerReal(call, Quantity::kFrequency, frequency.presets[static_cast<std::size_t>(call.suffix())],
               generator.FrequencyLimits(1e9));
  });
  // Choosing a preset recalls it into the fixed frequency.
  BindChoice(commands, "FREQuency:SELect", kPresets, frequency.selected,
             std::function<void(int)>(
                 [&frequency](int preset) { frequency.fixed = frequency.presets[static_cast<std::size_t>(preset)]; }));
  AddRange(commands, generator);
}

}  // namespace siggen::model
