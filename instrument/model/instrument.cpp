#include "model/instrument.h"

#include "model/trees.h"

namespace siggen::model {

Instrument::Instrument(Identity identity, Clock clock)
    : identity_(std::move(identity)), clock_(std::move(clock)), generator_(identity_.variant, status_) {
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
  status_.SetStandardEvent(scpi::Status::kPowerOn);
}

void Instrument::CatchUp() {
  generator_.CatchUp(clock_());
  if (complete_wanted_ && !operations_pending()) {
    complete_wanted_ = false;
    status_.SetStandardEvent(scpi::Status::kOperationComplete);
  }
}

void Instrument::Reset() {
  ForgetOperationComplete();
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

}  // namespace siggen::model
