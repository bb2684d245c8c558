// The arithmetic of sweeps and lists: how many points a run has, how long it stays on each, and what comes out there.
#pragma once

#include <cstdint>

#include "model/settings.h"

namespace siggen::model {

inline constexpr int kMostListPoints = 4000;

// One run, as the settings have it. The frequency leads when it is driven, otherwise the power.
struct SweepPlan {
  std::int64_t points = 0;  // 0 when nothing is driven or a list is empty
  double dwell = 0.0;       // seconds on each; an analog sweep is one long point
};

struct SweepPosition {
  std::int64_t index = 0;
  double fraction = 0.0;  // of the present point's dwell; only an analog sweep moves within a point
};

SweepPlan PlanOf(const Settings& settings);
double CarrierFrequency(const Settings& settings, const SweepPosition& position);
double CarrierPower(const Settings& settings, const SweepPosition& position);

// Points and step are two views of one thing, and so are time and dwell.
std::int64_t SweepPoints(const SweepSettings& sweep, double span);
double SweepStep(const SweepSettings& sweep, double span);
double SweepTime(const SweepSettings& sweep, double span);
double SweepDwell(const SweepSettings& sweep, double span);
double SweepValue(const SweepSettings& sweep, double start, double stop, double progress);

int LastPlayed(const ListSettings& list, std::size_t points);
// Whether frequency and power both play lists, and these have different numbers of points to play.
bool ListsDiffer(const Settings& settings);
// The list that leads the run, 0 when none does.
int LeadingList(const Settings& settings);

}  // namespace siggen::model
