#include "model/instrument.h"

#include <algorithm>

#include "model/trees.h"

namespace siggen::model {
namespace {

constexpr std::chrono::milliseconds kReferenceTakes{3000};
constexpr std::chrono::milliseconds kLowFrequencyTakes{1000};
constexpr const char* kCalibratedAtFactory = "2026-01-12 08:15:00";

}  // namespace

Instrument::Instrument(Identity identity, Clock clock, WallTime utc)
    : identity_(std::move(identity)),
      clock_(std::move(clock)),
      generator_(identity_.variant, status_),
      firmware_(identity_.firmware),
      wall_clock_(clock_(), utc),
      reference_calibration_(kReferenceTakes, kCalibratedAtFactory),
      low_frequency_calibration_(kLowFrequencyTakes, kCalibratedAtFactory) {
  AddCommon(commands_, *this);
  AddFrequency(commands_, generator_);
  AddPower(commands_, generator_);
  AddOutput(commands_, generator_);
  AddUnit(commands_, generator_);
  AddAm(commands_, generator_);
  AddFm(commands_, generator_);
  AddPm(commands_, generator_);
  AddPulse(commands_, generator_);
  AddSweep(commands_, generator_);
  AddList(commands_, generator_);
  AddTrigger(commands_, generator_);
  AddMeasure(commands_, generator_);
  AddStatus(commands_, status_);
  AddSystem(commands_, *this);
  AddTime(commands_, *this);
  AddNetwork(commands_, keepsakes_.network);
  AddFirmware(commands_, *this);
  AddReference(commands_, *this);
  AddDiagnostics(commands_, *this);
  AddMassMemory(commands_, *this);
  status_.SetStandardEvent(scpi::Status::kPowerOn);
}

void Instrument::CatchUp() {
  const Instant moment = clock_();
  generator_.CatchUp(moment);
  for (Calibration* calibration : {&reference_calibration_, &low_frequency_calibration_}) {
    calibration->CatchUp(moment, wall_clock_.Text(moment));
  }
  status_.operation.SetCondition(scpi::kCalibrating,
                                 reference_calibration_.running() || low_frequency_calibration_.running());
  if (firmware_.CatchUp(moment)) Reboot();
  if (complete_wanted_ && !operations_pending()) {
    complete_wanted_ = false;
    status_.SetStandardEvent(scpi::Status::kOperationComplete);
  }
}

bool Instrument::operations_pending() const {
  return generator_.sweep.pending() || reference_calibration_.running() || low_frequency_calibration_.running();
}

std::optional<Instant> Instrument::next_event() const {
  std::optional<Instant> next;
  for (const auto& event : {generator_.sweep.next_event(), reference_calibration_.end(),
                            low_frequency_calibration_.end(), firmware_.end()}) {
    if (event && (!next || *event < *next)) next = event;
  }
  return next;
}

void Instrument::Reset() {
  ForgetOperationComplete();
  reference_calibration_.Abort();
  low_frequency_calibration_.Abort();
  generator_.Reset();
}

void Instrument::NoteOperationComplete() {
  complete_wanted_ = true;
  CatchUp();
}

void Instrument::Recall(std::size_t place) {
  if (!saved_[place]) throw scpi::Refusal(scpi::Error::kSaveRecallMemoryLost);
  generator_.Load(*saved_[place]);
}

void Instrument::FactoryReset() {
  Reset();
  generator_.ClearLists();
  saved_.fill(std::nullopt);
  keepsakes_ = Keepsakes();
  wall_clock_.SetZone(WallClock::kUtc);
  firmware_.source = Firmware::kDefaultSource;
  firmware_.check_automatically = false;
}

void Instrument::Reboot() {
  Reset();
  generator_.ClearProtection();
  status_ = scpi::Status();
  status_.SetStandardEvent(scpi::Status::kPowerOn);
  files_.InsertUsb();
  files_.SelectDevice(FileStore::kInternal);
  power_event_ = PowerEvent::kReboot;
}

}  // namespace siggen::model
