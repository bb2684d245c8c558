// :LIST1 to :LIST10, lists of frequencies and powers.
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

using Values = std::vector<double> ListSettings::*;

std::vector<double> ReadValues(Call& call, Quantity quantity, const Limits& limits, std::size_t room) {
  if (call.left() > room) throw Refusal(Error::kTooMuchData);
  std::vector<double> values;
  values.reserve(call.left());
  while (call.left() != 0) values.push_back(call.Real(quantity, limits));
  return values;
}

int PointsOf(const ListSettings& list) {
  return static_cast<int>(std::max(list.frequencies.size(), list.powers.size()));
}

// What the points no longer reach goes back to the first.
void Settle(ListSettings& list) {
  const int points = PointsOf(list);
  if (list.start >= points) list.start = 0;
  if (list.stop && *list.stop >= points) list.stop.reset();
  if (list.index >= points) list.index = list.start;
}

void AddValues(Commands& commands, Generator& generator, const std::string& pattern, Quantity quantity,
               const Limits& limits, Values values) {
  commands.Do(pattern, scpi::kAnyNumber, [=, &generator](Call& call) {
    ListSettings& list = generator.now.list(call.suffix());
    list.*values = ReadValues(call, quantity, limits, kMostListPoints);
    Settle(list);
  });
  commands.Ask(pattern, scpi::kNothing, [=, &generator](Call& call) {
    const std::vector<double>& points = generator.now.list(call.suffix()).*values;
    if (points.empty()) call.answer.Plain("");
    for (const double value : points) call.answer.Real(scpi::FromModel(value, quantity, call.units));
  });
  // Writes over the points from the given one on, and lengthens the list where they reach beyond its end.
  commands.Do(pattern + ":UPDate", {2, static_cast<std::size_t>(-1)}, [=, &generator](Call& call) {
    std::vector<double>& points = generator.now.list(call.suffix()).*values;
    const auto first = static_cast<std::size_t>(call.Integer(0, kMostListPoints - 1, 0));
    if (first > points.size()) throw Refusal(Error::kDataOutOfRange);
    const std::vector<double> update = ReadValues(call, quantity, limits, kMostListPoints - first);
    points.resize(std::max(points.size(), first + update.size()));
    std::copy(update.begin(), update.end(), points.begin() + static_cast<std::ptrdiff_t>(first));
  });
  commands.Ask(pattern + ":POINts", scpi::kNothing, [=, &generator](Call& call) {
    call.answer.Integer(static_cast<std::int64_t>((generator.now.list(call.suffix()).*values).size()));
  });
}

// The number of an existing point.
int ReadPoint(Call& call, const ListSettings& list) {
  if (PointsOf(list) == 0) throw Refusal(Error::kSettingsConflict, "The list is empty");
  return static_cast<int>(call.Integer(0, PointsOf(list) - 1, 0));
}

// The frequency sweep's points, each with the power that the power sweep, if it is on, would have there.
void CopySweep(Generator& generator, ListSettings& list) {
  const Settings& now = generator.now;
  SweepSettings sweep = now.frequency_sweep;
  sweep.generation = Generation::kStepped;
  const std::int64_t points = SweepPoints(sweep, now.frequency.stop - now.frequency.start);
  if (points > kMostListPoints) throw Refusal(Error::kTooMuchData);
  list.frequencies.clear();
  list.powers.clear();
  for (std::int64_t i = 0; i < points; ++i) {
    const double progress = points < 2 ? 0.0 : static_cast<double>(i) / static_cast<double>(points - 1);
    list.frequencies.push_back(SweepValue(sweep, now.frequency.start, now.frequency.stop, progress));
    list.powers.push_back(now.power.drive == Drive::kSweep
                              ? SweepValue(now.power_sweep, now.power.start, now.power.stop, progress)
                              : now.power.level);
  }
  Settle(list);
}

}  // namespace

void AddList(Commands& commands, Generator& generator) {
  AddValues(commands, generator, "LIST<1-10>:FREQuency", Quantity::kFrequency, generator.FrequencyLimits(1e9),
            &ListSettings::frequencies);
  AddValues(commands, generator, "LIST<1-10>:POWer", Quantity::kPower, {kLowestPower, kHighestPower, -20.0},
            &ListSettings::powers);

  commands.Do("LIST<1-10>:INDex", scpi::kOne, [&generator](Call& call) {
    const int point = ReadPoint(call, generator.now.list(call.suffix()));
    generator.sweep.JumpTo(call.suffix(), point);
  });
  commands.Ask("LIST<1-10>:INDex", scpi::kNothing,
               [&generator](Call& call) { call.answer.Integer(generator.now.list(call.suffix()).index); });
  commands.Do("LIST<1-10>:STARt", scpi::kOne, [&generator](Call& call) {
    ListSettings& list = generator.now.list(call.suffix());
    list.start = ReadPoint(call, list);
  });
  commands.Ask("LIST<1-10>:STARt", scpi::kNothing,
               [&generator](Call& call) { call.answer.Integer(generator.now.list(call.suffix()).start); });
  commands.Do("LIST<1-10>:STOP", scpi::kOne, [&generator](Call& call) {
    ListSettings& list = generator.now.list(call.suffix());
    list.stop = ReadPoint(call, list);
  });
  commands.Ask("LIST<1-10>:STOP", scpi::kNothing, [&generator](Call& call) {
    const ListSettings& list = generator.now.list(call.suffix());
    call.answer.Integer(std::max(0, LastPlayed(list, static_cast<std::size_t>(PointsOf(list)))));
  });

  commands.Do("LIST<1-10>:DWELl", scpi::kOne, [&generator](Call& call) {
    generator.now.list(call.suffix()).dwell = call.Real(Quantity::kTime, kDwellLimits);
  });
  commands.Ask("LIST<1-10>:DWELl", {0, 1}, [&generator](Call& call) {
    AnswerReal(call, Quantity::kTime, generator.now.list(call.suffix()).dwell, kDwellLimits);
  });
  commands.Do("LIST<1-10>:COPY", scpi::kNothing,
              [&generator](Call& call) { CopySweep(generator, generator.now.list(call.suffix())); });
}

}  // namespace siggen::model
