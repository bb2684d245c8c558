// The trigger system and the run it starts. Time is handed in: the engine computes where it would be by then, and says
// when it wants to be asked next.
//
//   idle --INIT, or :INIT:CONT ON--> armed --trigger--> running --end of the run--> idle, or armed when continuous
//
// What counts as a trigger:
//   :TRIG:TYPE AUTO      what :TRIG:SOUR says: at once, *TRG, or the external input
//   SINGle               a software trigger starts a run
//   EXTernal             a pulse at the external input starts a run
//   MANual               a software trigger moves on by one point
//   INACtive             nothing
// With :TRIG:MODE POINt each trigger moves on by one point.
#pragma once

#include <chrono>
#include <optional>

#include "model/settings.h"
#include "model/sweep_plan.h"
#include "scpi/status.h"

namespace siggen::model {

using Instant = std::chrono::steady_clock::time_point;

class SweepEngine {
 public:
  SweepEngine(Settings& settings, scpi::Status& status) : settings_(settings), status_(status) {}

  void CatchUp(Instant now);
  std::optional<Instant> next_event() const;

  void Initiate();  // throws -213 when a run is armed or under way, -226 when two lists cannot be played together
  void Abort();
  void SoftwareTrigger();  // :TRIG, whatever the trigger type
  void BusTrigger();       // *TRG; throws -211 when no software trigger is awaited
  void ExternalTrigger();

  void DriveChanged() { Abort(); }
  void TriggerChanged();  // type, source or mode
  void ContinuousChanged();
  void JumpTo(int list, int index);

  // Whether *OPC? has to wait: a run that was asked for has not come to its end.
  bool pending() const;
  bool running() const { return state_ == State::kRunning; }
  SweepPosition position() const;

 private:
  enum class State { kIdle, kArmed, kRunning };

  void Enter(State state);
  void Arm();
  void Fire();
  void MoveTo(std::int64_t index);
  void End();
  bool FreeRunning() const;
  bool PointByPoint() const;
  bool AwaitsSoftware() const;
  std::chrono::nanoseconds Dwell() const;

  Settings& settings_;
  scpi::Status& status_;
  State state_ = State::kIdle;
  std::int64_t index_ = 0;
  Instant now_{};
  Instant point_began_{};
};

}  // namespace siggen::model
