// The instrument's date and time: it runs with the clock it is handed, can be set by hand and stands in a time zone.
#pragma once

#include <chrono>
#include <span>
#include <string>
#include <string_view>

namespace siggen::model {

using WallTime = std::chrono::system_clock::time_point;  // as if it were UTC: a reading of the dial, not a moment

class WallClock {
 public:
  using Steady = std::chrono::steady_clock::time_point;

  static constexpr const char* kUtc = "UTC+00:00";

  WallClock(Steady now, WallTime utc) : began_(now), utc_(utc) {}

  WallTime Read(Steady now) const { return utc_ + Since(now) + zone_offset_; }
  void SetDate(Steady now, std::chrono::year_month_day date);
  void SetTime(Steady now, std::chrono::seconds since_midnight);

  // "UTC+01:00"; false when there is no such zone.
  bool SetZone(std::string_view zone);
  const std::string& zone() const { return zone_; }
  static std::span<const std::string> Zones();

  std::string Text(Steady now) const;  // "2026-03-14 09:26:53"

 private:
  std::chrono::system_clock::duration Since(Steady now) const {
    return std::chrono::duration_cast<std::chrono::system_clock::duration>(now - began_);
  }

  Steady began_;
  WallTime utc_;  // at `began_`
  std::string zone_ = kUtc;
  std::chrono::minutes zone_offset_{0};
};

}  // namespace siggen::model
