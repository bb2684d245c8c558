// What a number means, and so which suffixes it may carry and which unit it is taken and answered in.
#pragma once

#include <string_view>

namespace siggen::scpi {

enum class Quantity { kPlain, kFactor, kFrequency, kTime, kPower, kRatio, kPercent, kAngle, kVoltage };

enum class PowerUnit { kDbm, kDbuv, kVolt };
enum class TimeUnit { kSecond, kMillisecond, kMicrosecond, kNanosecond };

// The units of numbers without a suffix, as :UNIT sets them.
struct DefaultUnits {
  PowerUnit power = PowerUnit::kDbm;
  TimeUnit time = TimeUnit::kSecond;
};

struct Limits {
  double least;
  double most;
  double usual;  // the value after a reset, and the meaning of DEFault
};

// Into the unit that the model works in: hertz, seconds, dBm, dB, percent, radians, volts.
// Throws -131 for a suffix that means nothing, -138 where none is allowed, -222 for a power of no volts.
double ToModel(double number, std::string_view suffix, Quantity quantity, const DefaultUnits& units);
double FromModel(double value, Quantity quantity, const DefaultUnits& units);

}  // namespace siggen::scpi
