#include "model/wall_clock.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace siggen::model {
namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::minutes;

// Minutes east of Greenwich of the zones in use.
constexpr int kOffsets[] = {-720, -660, -600, -570, -540, -480, -420, -360, -300, -240, -210, -180, -120,
                            -60,  0,    60,   120,  180,  210,  240,  270,  300,  330,  345,  360,  390,
                            420,  480,  525,  540,  570,  600,  630,  660,  720,  765,  780,  840};

std::string ZoneName(int offset) {
  char name[16];
  const int distance = std::abs(offset);
  std::snprintf(name, sizeof name, "UTC%c%02d:%02d", offset < 0 ? '-' : '+', distance / 60, distance % 60);
  return name;
}

}  // namespace

std::span<const std::string> WallClock::Zones() {
  static const std::vector<std::string> zones = [] {
    std::vector<std::string> names;
    for (const int offset : kOffsets) names.push_back(ZoneName(offset));
    return names;
  }();
  return zones;
}

bool WallClock::SetZone(std::string_view zone) {
  const auto zones = Zones();
  const auto found = std::find(zones.begin(), zones.end(), zone);
  if (found == zones.end()) return false;
  zone_ = zone;
  zone_offset_ = minutes(kOffsets[found - zones.begin()]);
  return true;
}

void WallClock::SetDate(Steady now, std::chrono::year_month_day date) {
  const auto since_midnight = Read(now) - floor<days>(Read(now));
  utc_ = std::chrono::sys_days(date) + since_midnight - zone_offset_ - Since(now);
}

void WallClock::SetTime(Steady now, std::chrono::seconds since_midnight) {
  utc_ = floor<days>(Read(now)) + since_midnight - zone_offset_ - Since(now);
}

std::string WallClock::Text(Steady now) const {
  const auto reading = floor<std::chrono::seconds>(Read(now));
  const std::chrono::year_month_day date(floor<days>(reading));
  const std::chrono::hh_mm_ss time(reading - floor<days>(reading));
  char text[48];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d:%02d:%02d", int{date.year()}, unsigned{date.month()},
                unsigned{date.day()}, static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                static_cast<int>(time.seconds().count()));
  return text;
}

}  // namespace siggen::model
