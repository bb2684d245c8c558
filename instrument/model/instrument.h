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

#include "model/generator.h"
#include "model/settings.h"
#include "model/variant.h"
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

class Instrument : public scpi::Device {
 public:
  static constexpr std::size_t kSaveRegisters = 10;

  explicit Instrument(Identity identity, Clock clock = std::chrono::steady_clock::now);

  const scpi::Commands& commands() const override { return commands_; }
  scpi::Status& status() override { return status_; }
  const scpi::DefaultUnits& units() const override { return generator_.now.units; }
  void CatchUp() override;

  Generator& generator() { return generator_; }
  const Identity& identity() const { return identity_; }
  Instant now() const { return clock_(); }

  bool operations_pending() const { return generator_.sweep.pending(); }
  std::optional<Instant> next_event() const { return generator_.sweep.next_event(); }

  void Reset();                  // *RST
  void NoteOperationComplete();  // *OPC
  void ForgetOperationComplete() { complete_wanted_ = false; }
  void Save(std::size_t place) { saved_[place] = generator_.now; }
  void Recall(std::size_t place);

 private:
  Identity identity_;
  Clock clock_;
  scpi::Status status_;
  Generator generator_;
  scpi::Commands commands_;
  std::array<std::optional<Settings>, kSaveRegisters> saved_;
  bool complete_wanted_ = false;
};

}  // namespace siggen::model
