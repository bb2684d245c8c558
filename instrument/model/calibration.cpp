#include "model/calibration.h"

#include "scpi/errors.h"

namespace siggen::model {

void Calibration::Start(Instant now) {
  if (running()) throw scpi::Refusal(scpi::Error::kInitIgnored, "Calibration under way");
  end_ = now + takes_;
}

void Calibration::Abort() {
  if (!running()) return;
  end_.reset();
  outcome_ = "ABORTED";
}

bool Calibration::CatchUp(Instant now, const std::string& date) {
  if (!running() || now < *end_) return false;
  end_.reset();
  outcome_ = "PASSED";
  date_ = date;
  return true;
}

std::string Calibration::StatusText(Instant now) const {
  if (!running()) return outcome_;
  const auto left = *end_ - now;
  return "RUNNING " + std::to_string(100 - 100 * left / takes_) + '%';
}

}  // namespace siggen::model
