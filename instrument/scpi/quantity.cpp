#include "scpi/quantity.h"

#include <cmath>
#include <numbers>

#include "scpi/errors.h"
#include "scpi/words.h"

namespace siggen::scpi {
namespace {

struct Suffix {
  std::string_view text;
  Quantity quantity;
  double factor;
};

constexpr Suffix kSuffixes[] = {
    {"HZ", Quantity::kFrequency, 1.0},
    {"KHZ", Quantity::kFrequency, 1e3},
    {"MHZ", Quantity::kFrequency, 1e6},
    {"MAHZ", Quantity::kFrequency, 1e6},
    {"GHZ", Quantity::kFrequency, 1e9},
    {"S", Quantity::kTime, 1.0},
    {"MS", Quantity::kTime, 1e-3},
    {"US", Quantity::kTime, 1e-6},
    {"NS", Quantity::kTime, 1e-9},
    {"DB", Quantity::kRatio, 1.0},
    {"PCT", Quantity::kPercent, 1.0},
    {"RAD", Quantity::kAngle, 1.0},
    {"DEG", Quantity::kAngle, std::numbers::pi / 180.0},
    {"V", Quantity::kVoltage, 1.0},
    {"MV", Quantity::kVoltage, 1e-3},
    {"UV", Quantity::kVoltage, 1e-6},
    // A factor is a plain number that also puts up with the unit of what it multiplies.
    {"HZ", Quantity::kFactor, 1.0},
};

// 1 mW in 50 ohm.
constexpr double kVoltsAtZeroDbm = 0.22360679774997896;
constexpr double kDbuvAtZeroDbm = 106.98970004336019;

double DbmFromVolts(double volts) {
  if (!(volts > 0.0)) throw Refusal(Error::kDataOutOfRange);
  return 20.0 * std::log10(volts / kVoltsAtZeroDbm);
}

double PowerToModel(double number, std::string_view suffix, PowerUnit unit) {
  if (SameWord(suffix, "DBM")) return number;
  if (SameWord(suffix, "DBUV")) return number - kDbuvAtZeroDbm;
  for (const Suffix& row : kSuffixes) {
    if (row.quantity == Quantity::kVoltage && SameWord(row.text, suffix)) return DbmFromVolts(number * row.factor);
  }
  if (!suffix.empty()) throw Refusal(Error::kInvalidSuffix, std::string(suffix));
  switch (unit) {
    case PowerUnit::kDbuv:
      return number - kDbuvAtZeroDbm;
    case PowerUnit::kVolt:
      return DbmFromVolts(number);
    case PowerUnit::kDbm:
      break;
  }
  return number;
}

double SecondsPer(TimeUnit unit) {
  switch (unit) {
    case TimeUnit::kMillisecond:
      return 1e-3;
    case TimeUnit::kMicrosecond:
      return 1e-6;
    case TimeUnit::kNanosecond:
      return 1e-9;
    case TimeUnit::kSecond:
      break;
  }
  return 1.0;
}

}  // namespace

double ToModel(double number, std::string_view suffix, Quantity quantity, const DefaultUnits& units) {
  if (quantity == Quantity::kPower) return PowerToModel(number, suffix, units.power);
  if (suffix.empty()) return quantity == Quantity::kTime ? number * SecondsPer(units.time) : number;
  if (quantity == Quantity::kPlain) throw Refusal(Error::kSuffixNotAllowed, std::string(suffix));
  for (const Suffix& row : kSuffixes) {
    if (row.quantity == quantity && SameWord(row.text, suffix)) return number * row.factor;
  }
  throw Refusal(Error::kInvalidSuffix, std::string(suffix));
}

double FromModel(double value, Quantity quantity, const DefaultUnits& units) {
  if (quantity == Quantity::kTime) return value / SecondsPer(units.time);
  if (quantity != Quantity::kPower) return value;
  switch (units.power) {
    case PowerUnit::kDbuv:
      return value + kDbuvAtZeroDbm;
    case PowerUnit::kVolt:
      return kVoltsAtZeroDbm * std::pow(10.0, value / 20.0);
    case PowerUnit::kDbm:
      break;
  }
  return value;
}

}  // namespace siggen::scpi
