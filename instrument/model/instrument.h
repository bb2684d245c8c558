// The whole instrument behind any number of links: identity, status, commands, generator and the registers of *SAV.
//
// It is used from one thread. Time reaches it through CatchUp(): whoever runs it calls that at next_event() at the
// latest, and the sessions do before each unit.
#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "model/calibration.h"
#include "model/file_store.h"
#include "model/firmware.h"
#include "model/generator.h"
#include "model/network.h"
#include "model/settings.h"
#include "model/variant.h"
#include "model/wall_clock.h"
#include "scpi/commands.h"
#include "scpi/session.h"
#include "scpi/status.h"

namespace siggen::model {

using Clock = std::function<Instant()>;

inline constexpr std::string_view kOptions = "FM,PULSE,GPS";

struct Identity {
  Variant variant = *VariantNamed("TD48142C");
  std::string serial = "481000001";
  std::string firmware = "1.4.2";
};

enum class TimeSync { kAuto, kManual };

// What has happened to the power since the links were last looked after.
enum class PowerEvent { kNone, kReboot, kShutdown };

// What outlasts a reset and a reboot, besides the files.
struct Keepsakes {
  NetworkSettings network;
  std::string unit_name = "TD481X2C";
  bool gps_on = true;
  TimeSync time_sync = TimeSync::kManual;
};

class Instrument : public scpi::Device {
 public:
  static constexpr std::size_t kSaveRegisters = 10;

  explicit Instrument(Identity identity, Clock clock = std::chrono::steady_clock::now,
                      WallTime utc = std::chrono::system_clock::now());

  const scpi::Commands& commands() const override { return commands_; }
  scpi::Status& status() override { return status_; }
  const scpi::DefaultUnits& units() const override { return generator_.now.units; }
  void CatchUp() override;

  const Identity& identity() const { return identity_; }
  Generator& generator() { return generator_; }
  Keepsakes& keepsakes() { return keepsakes_; }
  FileStore& files() { return files_; }
  Firmware& firmware() { return firmware_; }
  WallClock& wall_clock() { return wall_clock_; }
  Calibration& reference_calibration() { return reference_calibration_; }
  Calibration& low_frequency_calibration() { return low_frequency_calibration_; }
  Instant now() const { return clock_(); }

  bool operations_pending() const;
  std::optional<Instant> next_event() const;

  void Reset();                  // *RST
  void NoteOperationComplete();  // *OPC
  void ForgetOperationComplete() { complete_wanted_ = false; }
  void Save(std::size_t place) { saved_[place] = generator_.now; }
  void Recall(std::size_t place);
  void FactoryReset();  // as delivered, but for the files

  void Reboot();
  void Shutdown() { power_event_ = PowerEvent::kShutdown; }
  PowerEvent TakePowerEvent() { return std::exchange(power_event_, PowerEvent::kNone); }

 private:
  Identity identity_;
  Clock clock_;
  scpi::Status status_;
  Generator generator_;
  Keepsakes keepsakes_;
  FileStore files_;
  Firmware firmware_;
  WallClock wall_clock_;
  Calibration reference_calibration_;
  Calibration low_frequency_calibration_;
  scpi::Commands commands_;
  std::array<std::optional<Settings>, kSaveRegisters> saved_;
  bool complete_wanted_ = false;
  PowerEvent power_event_ = PowerEvent::kNone;
};

}  // namespace siggen::model
