// :SWEep1, the frequency sweep, and :SWEep2, the power sweep.
#include <algorithm>
#include <string>

#include "model/bind.h"
#include "model/generator.h"
#include "model/limits.h"
#include "model/sweep_plan.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Commands;
using scpi::Error;
using scpi::Refusal;

constexpr scpi::Word<Spacing> kSpacings[] = {{"LINear", Spacing::kLinear}, {"LOGarithmic", Spacing::kLogarithmic}};
constexpr scpi::Word<Generation> kGenerations[] = {{"ANALog", Generation::kAnalog}, {"STEPped", Generation::kStepped}};
constexpr scpi::Word<Direction> kDirections[] = {{"UP", Direction::kUp}, {"DOWN", Direction::kDown}};

// Pairs of presets: the numbers of the two, or of one preset and the delta around it.
struct Range {
  int first;
  int second;  // -1 stands for the delta
};
constexpr scpi::Word<int> kFrequencyRanges[] = {{"F1F2", 0}, {"F3F4", 1}, {"F5DF", 2}, {"F6DF", 3}};
constexpr Range kFrequencyPresets[] = {{1, 2}, {3, 4}, {5, -1}, {6, -1}};
constexpr scpi::Word<int> kPowerRanges[] = {{"L1L2", 0}, {"L3L4", 1}, {"L5L6", 2}, {"L7L8", 3}, {"L9L0", 4}};
constexpr Range kPowerPresets[] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 0}};

using Span = std::function<double()>;

// What the two sweeps have in common.
void AddSweep(Commands& commands, const std::string& tree, SweepSettings& sweep, const Span& span) {
  BindChoice(commands, tree + ":DIRection", kDirections, sweep.direction);

  commands.Do(tree + ":POINts", scpi::kOne, [&sweep](Call& call) {
    sweep.points = static_cast<int>(call.Integer(kFewestSweepPoints, kMostSweepPoints, 101));
    sweep.step.reset();
  });
  commands.Ask(tree + ":POINts", scpi::kNothing,
               [&sweep, span](Call& call) { call.answer.Integer(SweepPoints(sweep, span())); });

  BindReal(commands, tree + ":DWELl",
           {Quantity::kTime,
            [] { return kDwellLimits; },
            [&sweep, span] { return SweepDwell(sweep, span()); },
            [&sweep](double value) {
              sweep.dwell = value;
              sweep.dwell_auto = false;
            },
            {}});
  BindReal(commands, tree + ":TIME",
           {Quantity::kTime,
            [&sweep] {
              return Limits{std::max(kSweepTimeLimits.least, sweep.shortest_time), kSweepTimeLimits.most,
                            kSweepTimeLimits.usual};
            },
            [&sweep, span] { return SweepTime(sweep, span()); },
            [&sweep](double value) {
              sweep.time = value;
              sweep.dwell_auto = true;
            },
            {}});
  BindReal(commands, tree + ":TIME:LLIMit", Quantity::kTime, {0.0, kSweepTimeLimits.most, 0.0}, sweep.shortest_time);

  // Of time and dwell one follows the other; an analog sweep has a time and nothing that follows.
  const auto set_dwell_auto = [&sweep, span](bool on) {
    if (on && !sweep.dwell_auto)
      sweep.time = std::clamp(SweepTime(sweep, span()), kSweepTimeLimits.least, kSweepTimeLimits.most);
    if (!on && sweep.dwell_auto)
      sweep.dwell = std::clamp(SweepDwell(sweep, span()), kDwellLimits.least, kDwellLimits.most);
    sweep.dwell_auto = on;
  };
  const auto analog = [&sweep] { return sweep.generation == Generation::kAnalog; };
  commands.Do(tree + ":DWELl:AUTO", scpi::kOne, [set_dwell_auto](Call& call) { set_dwell_auto(call.Boolean()); });
  commands.Ask(tree + ":DWELl:AUTO", scpi::kNothing,
               [&sweep, analog](Call& call) { call.answer.Boolean(!analog() && sweep.dwell_auto); });
  commands.Do(tree + ":TIME:AUTO", scpi::kOne, [set_dwell_auto](Call& call) { set_dwell_auto(!call.Boolean()); });
  commands.Ask(tree + ":TIME:AUTO", scpi::kNothing,
               [&sweep, analog](Call& call) { call.answer.Boolean(!analog() && !sweep.dwell_auto); });
}

void AddStep(Commands& commands, const std::string& pattern, Quantity quantity, Limits limits, SweepSettings& sweep,
             const Span& span) {
  BindReal(commands, pattern,
           {quantity,
            [limits] { return limits; },
            [&sweep, span] { return SweepStep(sweep, span()); },
            [&sweep](double value) { sweep.step = value; },
            {}});
}

void AddFrequencySweep(Commands& commands, Generator& generator) {
  SweepSettings& sweep = generator.now.frequency_sweep;
  FrequencySettings& frequency = generator.now.frequency;
  const Span span = [&frequency] { return frequency.stop - frequency.start; };

  AddSweep(commands, "SWEep<1>", sweep, span);
  AddStep(commands, "SWEep<1>[:FREQuency]:STEP", Quantity::kFrequency,
          {kSmallestStep, generator.variant().highest_frequency, 1e6}, sweep, span);
  BindChoice(commands, "SWEep<1>:SPACing", kSpacings, sweep.spacing);
  BindChoice(commands, "SWEep<1>:GENeration", kGenerations, sweep.generation);
  commands.Do("SWEep<1>:RANGe", scpi::kOne, [&generator, &frequency](Call& call) {
    const int choice = call.Choice(std::span<const scpi::Word<int>>(kFrequencyRanges));
    const Range range = kFrequencyPresets[choice];
    const double first = frequency.presets[static_cast<std::size_t>(range.first)];
    if (range.second >= 0) {
      frequency.start = first;
      frequency.stop = frequency.presets[static_cast<std::size_t>(range.second)];
      return;
    }
    const double half = frequency.delta / 2.0;
    const Limits limits = generator.FrequencyLimits(first);
    if (first - half < limits.least || first + half > limits.most) throw Refusal(Error::kSettingsConflict);
    frequency.start = first - half;
    frequency.stop = first + half;
  });
}

void AddPowerSweep(Commands& commands, Generator& generator) {
  SweepSettings& sweep = generator.now.power_sweep;
  PowerSettings& power = generator.now.power;
  const Span span = [&power] { return power.stop - power.start; };

  AddSweep(commands, "SWEep<2>", sweep, span);
  AddStep(commands, "SWEep<2>[:POWer]:STEP", Quantity::kRatio, {kSmallestStep, kHighestPower - kLowestPower, 1.0},
          sweep, span);
  commands.Do("SWEep<2>:RANGe", scpi::kOne, [&power](Call& call) {
    const Range range = kPowerPresets[call.Choice(std::span<const scpi::Word<int>>(kPowerRanges))];
    power.start = power.presets[static_cast<std::size_t>(range.first)];
    power.stop = power.presets[static_cast<std::size_t>(range.second)];
  });
}

}  // namespace

void AddSweep(Commands& commands, Generator& generator) {
  AddFrequencySweep(commands, generator);
  AddPowerSweep(commands, generator);
}

}  // namespace siggen::model
