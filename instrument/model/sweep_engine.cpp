#include "model/sweep_engine.h"

#include <algorithm>
#include <cmath>

namespace siggen::model {

using scpi::Error;
using scpi::Refusal;

std::chrono::nanoseconds SweepEngine::Dwell() const {
  const double nanoseconds = std::max(1.0, std::round(PlanOf(settings_).dwell * 1e9));
  return std::chrono::nanoseconds(static_cast<std::int64_t>(nanoseconds));
}

bool SweepEngine::PointByPoint() const {
  if (FreeRunning()) return false;
  return settings_.trigger.type == TriggerType::kManual || settings_.trigger.mode == TriggerMode::kPoint;
}

bool SweepEngine::FreeRunning() const {
  return settings_.trigger.type == TriggerType::kAuto && settings_.trigger.source == TriggerSource::kImmediate;
}

bool SweepEngine::AwaitsSoftware() const {
  switch (settings_.trigger.type) {
    case TriggerType::kAuto:
      return settings_.trigger.source == TriggerSource::kBus;
    case TriggerType::kSingle:
    case TriggerType::kManual:
      return true;
    default:
      return false;
  }
}

void SweepEngine::Enter(State state) {
  state_ = state;
  const bool something_to_play = PlanOf(settings_).points > 0;
  const bool sweeping = state == State::kRunning;
  const bool waits = state == State::kArmed && (something_to_play || !settings_.trigger.continuous);
  status_.operation.SetCondition(scpi::kSweeping, sweeping);
  status_.operation.SetCondition(scpi::kWaitingForTrigger, waits);
}

void SweepEngine::Arm() {
  MoveTo(0);
  Enter(State::kArmed);
  if (FreeRunning() && PlanOf(settings_).points > 0) return Fire();
  if (FreeRunning() && !settings_.trigger.continuous) End();
}

void SweepEngine::Fire() {
  if (state_ == State::kIdle) return;
  const std::int64_t points = PlanOf(settings_).points;
  if (points == 0) {
    if (!settings_.trigger.continuous) End();
    return;
  }
  if (PointByPoint()) {
    if (index_ + 1 < points) return MoveTo(index_ + 1);
    return End();
  }
  if (state_ == State::kRunning) return;  // a trigger during a run is lost
  MoveTo(0);
  point_began_ = now_;
  Enter(State::kRunning);
}

void SweepEngine::End() {
  Enter(State::kIdle);
  if (settings_.trigger.continuous) {
    if (PointByPoint()) MoveTo(0);
    Enter(State::kArmed);
    if (FreeRunning()) Arm();
  }
}

void SweepEngine::MoveTo(std::int64_t index) {
  index_ = index;
  for (const int number : {ListOf(settings_.frequency.drive), ListOf(settings_.power.drive)}) {
    if (number == 0) continue;
    ListSettings& list = settings_.list(number);
    const int points = static_cast<int>(std::max(list.frequencies.size(), list.powers.size()));
    list.index = std::clamp(list.start + static_cast<int>(index), 0, std::max(0, points - 1));
  }
}

void SweepEngine::CatchUp(Instant now) {
  now_ = now;
  const std::int64_t points = PlanOf(settings_).points;
  if (state_ == State::kArmed) {
    // A list may have got its first points since.
    if (FreeRunning() && points > 0) return Arm();
    Enter(State::kArmed);
  }
  if (state_ != State::kRunning) return;
  if (points == 0) return Abort();
  const auto dwell = Dwell();
  const std::int64_t passed = (now - point_began_) / dwell;
  if (passed == 0) return;
  point_began_ += passed * dwell;
  if (index_ + passed < points) return MoveTo(index_ + passed);
  if (FreeRunning() && settings_.trigger.continuous) return MoveTo((index_ + passed) % points);
  MoveTo(points - 1);
  End();
}

std::optional<Instant> SweepEngine::next_event() const {
  if (state_ != State::kRunning || (FreeRunning() && settings_.trigger.continuous)) return std::nullopt;
  return point_began_ + std::max<std::int64_t>(1, PlanOf(settings_).points - index_) * Dwell();
}

void SweepEngine::Initiate() {
  if (state_ != State::kIdle) throw Refusal(Error::kInitIgnored);
  if (ListsDiffer(settings_)) throw Refusal(Error::kListsNotSameLength);
  Arm();
}

void SweepEngine::Abort() {
  Enter(State::kIdle);
  if (settings_.trigger.continuous) Arm();
}

void SweepEngine::SoftwareTrigger() { Fire(); }

void SweepEngine::BusTrigger() {
  if (state_ != State::kArmed || !AwaitsSoftware()) throw Refusal(Error::kTriggerIgnored);
  Fire();
}

void SweepEngine::ExternalTrigger() {
  const TriggerSettings& trigger = settings_.trigger;
  if (trigger.type == TriggerType::kExternal ||
      (trigger.type == TriggerType::kAuto && trigger.source == TriggerSource::kExternal)) {
    Fire();
  }
}

void SweepEngine::TriggerChanged() {
  if (state_ == State::kArmed && FreeRunning()) return Arm();
  const bool ends_run = settings_.trigger.type == TriggerType::kInactive || PointByPoint();
  if (state_ == State::kRunning && ends_run) Enter(State::kArmed);
}

void SweepEngine::ContinuousChanged() {
  if (settings_.trigger.continuous && state_ == State::kIdle) return Arm();
  // A run under way goes on to its end.
  if (!settings_.trigger.continuous && state_ == State::kArmed) Enter(State::kIdle);
}

void SweepEngine::JumpTo(int list, int index) {
  settings_.list(list).index = index;
  if (list == LeadingList(settings_)) {
    index_ = std::max(0, index - settings_.list(list).start);
    point_began_ = now_;
  }
}

bool SweepEngine::pending() const {
  if (settings_.trigger.continuous) return state_ == State::kRunning && !FreeRunning();
  return state_ != State::kIdle;
}

SweepPosition SweepEngine::position() const {
  if (state_ != State::kRunning) return {index_, 0.0};
  const std::chrono::duration<double> passed = now_ - point_began_;
  const std::chrono::duration<double> dwell = Dwell();
  return {index_, std::clamp(passed / dwell, 0.0, 1.0)};
}

}  // namespace siggen::model
