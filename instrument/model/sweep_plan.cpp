#include "model/sweep_plan.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace siggen::model {
namespace {

constexpr double kMostPoints = std::numeric_limits<std::int32_t>::max();

double FrequencySpan(const Settings& settings) { return settings.frequency.stop - settings.frequency.start; }
double PowerSpan(const Settings& settings) { return settings.power.stop - settings.power.start; }

bool IsAnalog(const Settings& settings) {
  return settings.frequency.drive == Drive::kSweep && settings.frequency_sweep.generation == Generation::kAnalog;
}

std::int64_t ListPoints(const ListSettings& list, std::size_t points) {
  return std::max(0, LastPlayed(list, points) - list.start + 1);
}

double ListValue(const ListSettings& list, const std::vector<double>& values, double otherwise) {
  if (values.empty()) return otherwise;
  return values[std::min(static_cast<std::size_t>(list.index), values.size() - 1)];
}

// From 0 at the first point of the run to 1 at its last.
double Progress(const Settings& settings, const SweepPosition& position) {
  if (IsAnalog(settings)) return position.fraction;
  const std::int64_t points = PlanOf(settings).points;
  return points < 2 ? 0.0 : static_cast<double>(position.index) / static_cast<double>(points - 1);
}

}  // namespace

std::int64_t SweepPoints(const SweepSettings& sweep, double span) {
  if (!sweep.step) return sweep.points;
  // A step that divides the span but for its last bits ends on the stop value.
  return static_cast<std::int64_t>(std::min(std::floor(std::fabs(span) / *sweep.step + 1e-9) + 1.0, kMostPoints));
}

double SweepStep(const SweepSettings& sweep, double span) {
  return sweep.step ? *sweep.step : std::fabs(span) / static_cast<double>(sweep.points - 1);
}

double SweepTime(const SweepSettings& sweep, double span) {
  if (sweep.dwell_auto || sweep.generation == Generation::kAnalog) return sweep.time;
  return sweep.dwell * static_cast<double>(SweepPoints(sweep, span));
}

double SweepDwell(const SweepSettings& sweep, double span) {
  return sweep.dwell_auto ? sweep.time / static_cast<double>(SweepPoints(sweep, span)) : sweep.dwell;
}

double SweepValue(const SweepSettings& sweep, double start, double stop, double progress) {
  if (sweep.direction == Direction::kDown) progress = 1.0 - progress;
  if (sweep.step && sweep.spacing == Spacing::kLinear && sweep.generation == Generation::kStepped) {
    // Whole steps from the start; the last one need not reach the stop value.
    const double steps = static_cast<double>(SweepPoints(sweep, stop - start) - 1);
    return start + std::copysign(*sweep.step, stop - start) * std::round(steps * progress);
  }
  if (sweep.spacing == Spacing::kLogarithmic) return start * std::pow(stop / start, progress);
  return start + (stop - start) * progress;
}

int LastPlayed(const ListSettings& list, std::size_t points) {
  const int last = static_cast<int>(points) - 1;
  return list.stop ? std::min(*list.stop, last) : last;
}

int LeadingList(const Settings& settings) {
  return settings.frequency.drive != Drive::kFixed ? ListOf(settings.frequency.drive) : ListOf(settings.power.drive);
}

bool ListsDiffer(const Settings& settings) {
  const int frequency = ListOf(settings.frequency.drive);
  const int power = ListOf(settings.power.drive);
  if (frequency == 0 || power == 0) return false;
  const ListSettings& first = settings.list(frequency);
  const ListSettings& second = settings.list(power);
  return ListPoints(first, first.frequencies.size()) != ListPoints(second, second.powers.size());
}

SweepPlan PlanOf(const Settings& settings) {
  if (IsAnalog(settings)) return {1, settings.frequency_sweep.time};
  if (settings.frequency.drive == Drive::kSweep) {
    const double span = FrequencySpan(settings);
    return {SweepPoints(settings.frequency_sweep, span), SweepDwell(settings.frequency_sweep, span)};
  }
  if (const int number = LeadingList(settings); number != 0) {
    const ListSettings& list = settings.list(number);
    const bool leads_frequency = settings.frequency.drive != Drive::kFixed;
    return {ListPoints(list, leads_frequency ? list.frequencies.size() : list.powers.size()), list.dwell};
  }
  if (settings.power.drive == Drive::kSweep) {
    const double span = PowerSpan(settings);
    return {SweepPoints(settings.power_sweep, span), SweepDwell(settings.power_sweep, span)};
  }
  return {};
}

double CarrierFrequency(const Settings& settings, const SweepPosition& position) {
  const FrequencySettings& frequency = settings.frequency;
  if (frequency.drive == Drive::kFixed) return frequency.fixed;
  if (frequency.drive == Drive::kSweep) {
    return SweepValue(settings.frequency_sweep, frequency.start, frequency.stop, Progress(settings, position));
  }
  const ListSettings& list = settings.list(ListOf(frequency.drive));
  return ListValue(list, list.frequencies, frequency.fixed);
}

double CarrierPower(const Settings& settings, const SweepPosition& position) {
  const PowerSettings& power = settings.power;
  if (power.drive == Drive::kFixed) return power.level;
  if (power.drive == Drive::kSweep) {
    return SweepValue(settings.power_sweep, power.start, power.stop, Progress(settings, position));
  }
  const ListSettings& list = settings.list(ListOf(power.drive));
  return ListValue(list, list.powers, power.level);
}

}  // namespace siggen::model
