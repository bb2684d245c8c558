// Limits that a command and a state file have to keep alike. Those of frequency and power stand in variant.h.
#pragma once

#include "scpi/quantity.h"

namespace siggen::model {

inline constexpr scpi::Limits kDwellLimits{1e-4, 100.0, 0.05};
inline constexpr scpi::Limits kSweepTimeLimits{1e-3, 1000.0, 1.0};
inline constexpr scpi::Limits kPulsePeriodLimits{20e-9, 1000.0, 1e-3};
inline constexpr int kFewestSweepPoints = 2;
inline constexpr int kMostSweepPoints = 1'000'000;
inline constexpr int kMostPulses = 4;
inline constexpr double kSmallestStep = 0.001;  // hertz or decibels

}  // namespace siggen::model
