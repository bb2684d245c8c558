#include "model/state_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <optional>
#include <type_traits>
#include <vector>

#include "model/limits.h"
#include "model/sweep_plan.h"
#include "scpi/errors.h"

namespace siggen::model {
namespace {

using scpi::Error;
using scpi::Refusal;

constexpr std::string_view kHeading = "TD481X2C state 1";

// The one list of what a state holds. A new setting is added here.
template <typename Visitor, typename S>
void VisitModulation(Visitor& visit, const std::string& name, S& modulation) {
  visit(name + ".on", modulation.on);
  visit(name + ".source", modulation.source);
  visit(name + ".waveform", modulation.waveform);
  visit(name + ".rate", modulation.rate);
  visit(name + ".size", modulation.size);
  visit(name + ".sensitivity", modulation.sensitivity);
}

template <typename Visitor, typename S>
void VisitSweep(Visitor& visit, const std::string& name, S& sweep) {
  visit(name + ".spacing", sweep.spacing);
  visit(name + ".generation", sweep.generation);
  visit(name + ".direction", sweep.direction);
  visit(name + ".points", sweep.points);
  visit(name + ".step", sweep.step);
  visit(name + ".dwell", sweep.dwell);
  visit(name + ".dwell_auto", sweep.dwell_auto);
  visit(name + ".time", sweep.time);
  visit(name + ".shortest_time", sweep.shortest_time);
}

template <typename Visitor, typename S>
void Visit(Visitor& visit, S& s) {
  visit("frequency.fixed", s.frequency.fixed);
  visit("frequency.drive", s.frequency.drive);
  visit("frequency.multiplier", s.frequency.multiplier);
  visit("frequency.step", s.frequency.step);
  visit("frequency.selected", s.frequency.selected);
  visit("frequency.presets", s.frequency.presets);
  visit("frequency.start", s.frequency.start);
  visit("frequency.stop", s.frequency.stop);
  visit("frequency.delta", s.frequency.delta);
  visit("power.level", s.power.level);
  visit("power.drive", s.power.drive);
  visit("power.step", s.power.step);
  visit("power.selected", s.power.selected);
  visit("power.presets", s.power.presets);
  visit("power.range", s.power.range);
  visit("power.dac", s.power.dac);
  visit("power.attenuator_auto", s.power.attenuator_auto);
  visit("power.attenuation", s.power.attenuation);
  visit("power.offset", s.power.offset);
  visit("power.offset_on", s.power.offset_on);
  visit("power.limit", s.power.limit);
  visit("power.limit_on", s.power.limit_on);
  visit("power.leveling", s.power.leveling);
  visit("power.start", s.power.start);
  visit("power.stop", s.power.stop);
  visit("output.on", s.output.on);
  visit("output.blanking", s.output.blanking);
  VisitModulation(visit, "am", s.am);
  visit("am.logarithmic", s.am.logarithmic);
  visit("am.size_db", s.am.size_db);
  visit("am.sensitivity_db", s.am.sensitivity_db);
  VisitModulation(visit, "fm", s.fm);
  visit("fm.mode", s.fm.mode);
  visit("fm.filter", s.fm.filter);
  VisitModulation(visit, "pm", s.pm);
  visit("pm.bandwidth", s.pm.bandwidth);
  visit("pulse.on", s.pulse.on);
  visit("pulse.source", s.pulse.source);
  visit("pulse.polarity", s.pulse.polarity);
  visit("pulse.period", s.pulse.period);
  visit("pulse.count", s.pulse.count);
  visit("pulse.widths", s.pulse.widths);
  visit("pulse.delays", s.pulse.delays);
  visit("pulse.trigger", s.pulse.trigger);
  visit("pulse.slope", s.pulse.slope);
  VisitSweep(visit, "frequency_sweep", s.frequency_sweep);
  VisitSweep(visit, "power_sweep", s.power_sweep);
  for (std::size_t i = 0; i < s.lists.size(); ++i) {
    const std::string name = "list" + std::to_string(i + 1);
    visit(name + ".frequencies", s.lists[i].frequencies);
    visit(name + ".powers", s.lists[i].powers);
    visit(name + ".index", s.lists[i].index);
    visit(name + ".start", s.lists[i].start);
    visit(name + ".stop", s.lists[i].stop);
    visit(name + ".dwell", s.lists[i].dwell);
  }
  visit("trigger.type", s.trigger.type);
  visit("trigger.mode", s.trigger.mode);
  visit("trigger.source", s.trigger.source);
  visit("trigger.continuous", s.trigger.continuous);
  visit("units.power", s.units.power);
  visit("units.time", s.units.time);
}

class Writer {
 public:
  std::string text;

  template <typename T>
  void operator()(const std::string& name, const T& value) {
    text += name;
    Append(value);
    text += '\n';
  }

 private:
  void Append(double value) {
    char digits[32];
    text += ' ';
    text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
  }
  void Append(int value) { text += ' ' + std::to_string(value); }
  void Append(bool value) { Append(value ? 1 : 0); }
  template <typename E>
  std::enable_if_t<std::is_enum_v<E>> Append(E value) {
    Append(static_cast<int>(value));
  }
  template <typename T>
  void Append(const std::optional<T>& value) {
    if (value) Append(*value);
  }
  template <std::size_t N>
  void Append(const std::array<double, N>& values) {
    for (const double value : values) Append(value);
  }
  void Append(const std::vector<double>& values) {
    for (const double value : values) Append(value);
  }
};

// The last value of each choice.
template <typename E>
constexpr E kLast = E();
template <>
constexpr Drive kLast<Drive> = Drive::kList10;
template <>
constexpr AttenuatorRange kLast<AttenuatorRange> = AttenuatorRange::kLow;
template <>
constexpr LevelingSource kLast<LevelingSource> = LevelingSource::kPowerMeter;
template <>
constexpr ModulationSource kLast<ModulationSource> = ModulationSource::kExternal;
template <>
constexpr Waveform kLast<Waveform> = Waveform::kUniform;
template <>
constexpr FmMode kLast<FmMode> = FmMode::kUnlocked;
template <>
constexpr FmFilter kLast<FmFilter> = FmFilter::kHp1k;
template <>
constexpr PmBandwidth kLast<PmBandwidth> = PmBandwidth::kMaximum;
template <>
constexpr Polarity kLast<Polarity> = Polarity::kInverted;
template <>
constexpr Slope kLast<Slope> = Slope::kNegative;
template <>
constexpr PulseTrigger kLast<PulseTrigger> = PulseTrigger::kComposite;
template <>
constexpr Spacing kLast<Spacing> = Spacing::kLogarithmic;
template <>
constexpr Generation kLast<Generation> = Generation::kStepped;
template <>
constexpr Direction kLast<Direction> = Direction::kDown;
template <>
constexpr TriggerType kLast<TriggerType> = TriggerType::kInactive;
template <>
constexpr TriggerMode kLast<TriggerMode> = TriggerMode::kPoint;
template <>
constexpr TriggerSource kLast<TriggerSource> = TriggerSource::kExternal;
template <>
constexpr scpi::PowerUnit kLast<scpi::PowerUnit> = scpi::PowerUnit::kVolt;
template <>
constexpr scpi::TimeUnit kLast<scpi::TimeUnit> = scpi::TimeUnit::kNanosecond;

[[noreturn]] void Refuse(const std::string& why) { throw Refusal(Error::kMassStorage, why); }

class Reader {
 public:
  explicit Reader(std::string_view text) {
    while (!text.empty()) {
      const std::string_view line = text.substr(0, text.find('\n'));
      text.remove_prefix(std::min(text.size(), line.size() + 1));
      const std::size_t blank = std::min(line.find(' '), line.size());
      values_[std::string(line.substr(0, blank))] = line.substr(blank);
    }
  }

  template <typename T>
  void operator()(const std::string& name, T& value) {
    const auto found = values_.find(name);
    if (found == values_.end()) Refuse("No " + name);
    rest_ = found->second;
    Take(value);
    if (!rest_.empty()) Refuse("Bad " + name);
  }

 private:
  template <typename T>
  T Number() {
    T number{};
    if (rest_.size() < 2) Refuse("Value missing");
    const auto [end, problem] = std::from_chars(rest_.data() + 1, rest_.data() + rest_.size(), number);
    if (problem != std::errc() || (end != rest_.data() + rest_.size() && *end != ' ')) Refuse("Bad number");
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return number;
  }
  void Take(double& value) {
    value = Number<double>();
    if (!std::isfinite(value)) Refuse("Bad number");
  }
  void Take(int& value) { value = Number<int>(); }
  void Take(bool& value) { value = Number<int>() != 0; }
  template <typename E>
  std::enable_if_t<std::is_enum_v<E>> Take(E& value) {
    const int number = Number<int>();
    if (number < 0 || number > static_cast<int>(kLast<E>)) Refuse("Bad choice");
    value = static_cast<E>(number);
  }
  template <typename T>
  void Take(std::optional<T>& value) {
    value.reset();
    if (!rest_.empty()) Take(value.emplace());
  }
  template <std::size_t N>
  void Take(std::array<double, N>& values) {
    for (double& value : values) Take(value);
  }
  void Take(std::vector<double>& values) {
    values.clear();
    while (!rest_.empty()) Take(values.emplace_back());
    if (values.size() > kMostListPoints) Refuse("List too long");
  }

  std::map<std::string, std::string_view> values_;
  std::string_view rest_;
};

// What no command would have let in does not come in through a file either.
void Check(const Settings& s, const Variant& variant) {
  const auto in = [](double value, double least, double most) {
    if (!(value >= least && value <= most)) Refuse("Value out of range");
  };
  const auto frequency = [&](double value) { in(value, kLowestFrequency, variant.highest_frequency); };
  const auto power = [&](double value) { in(value, kLowestPower, kHighestPower); };
  for (const double value : {s.frequency.fixed, s.frequency.start, s.frequency.stop}) frequency(value);
  for (const double value : s.frequency.presets) frequency(value);
  for (const double value : {s.power.level, s.power.start, s.power.stop, s.power.limit}) power(value);
  for (const double value : s.power.presets) power(value);
  in(s.frequency.selected, 0, 9);
  in(s.power.selected, 0, 9);
  const auto within = [&in](double value, const scpi::Limits& limits) { in(value, limits.least, limits.most); };
  within(s.pulse.period, kPulsePeriodLimits);
  in(s.pulse.count, 1, kMostPulses);
  for (const SweepSettings* sweep : {&s.frequency_sweep, &s.power_sweep}) {
    in(sweep->points, kFewestSweepPoints, kMostSweepPoints);
    within(sweep->dwell, kDwellLimits);
    within(sweep->time, kSweepTimeLimits);
    in(sweep->step.value_or(1.0), kSmallestStep, variant.highest_frequency);
  }
  for (const ListSettings& list : s.lists) {
    for (const double value : list.frequencies) frequency(value);
    for (const double value : list.powers) power(value);
    const double last =
        static_cast<double>(std::max({list.frequencies.size(), list.powers.size(), std::size_t{1}}) - 1);
    in(list.index, 0, last);
    in(list.start, 0, last);
    in(list.stop.value_or(0), 0, last);
    within(list.dwell, kDwellLimits);
  }
}

}  // namespace

std::string WriteState(const Settings& settings, const Variant& variant) {
  Writer write;
  write.text = std::string(kHeading) + ' ' + std::string(variant.name) + '\n';
  Visit(write, settings);
  return std::move(write.text);
}

Settings ReadState(std::string_view text, const Variant& variant) {
  const std::string heading = std::string(kHeading) + ' ' + std::string(variant.name) + '\n';
  if (!text.starts_with(heading)) Refuse("No state of this model");
  Reader read(text.substr(heading.size()));
  Settings settings;
  Visit(read, settings);
  Check(settings, variant);
  return settings;
}

}  // namespace siggen::model
