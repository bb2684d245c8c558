// A calibration of the reference: it takes its time and tells how far it is.
#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace siggen::model {

class Calibration {
 public:
  using Instant = std::chrono::steady_clock::time_point;

  Calibration(std::chrono::milliseconds takes, std::string last) : takes_(takes), date_(std::move(last)) {}

  void Start(Instant now);  // throws -213 while it runs
  void Abort();             // nothing when it does not run
  // True when the calibration has just come to its end; `date` is then the date of the last one.
  bool CatchUp(Instant now, const std::string& date);

  bool running() const { return end_.has_value(); }
  std::optional<Instant> end() const { return end_; }
  std::string StatusText(Instant now) const;  // "IDLE", "RUNNING 45%", "PASSED", "ABORTED"
  const std::string& date() const { return date_; }

 private:
  std::chrono::milliseconds takes_;
  std::optional<Instant> end_;
  std::string outcome_ = "IDLE";
  std::string date_;
};

}  // namespace siggen::model
