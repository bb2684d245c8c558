// The generator proper: its settings and what follows from them. It knows nothing of messages.
#pragma once

#include "model/settings.h"
#include "model/sweep_engine.h"
#include "model/variant.h"
#include "scpi/status.h"

namespace siggen::model {

class Generator {
 public:
  Generator(const Variant& variant, scpi::Status& status);

  const Variant& variant() const { return variant_; }

  Settings now;
  SweepEngine sweep;

  void Reset();
  void Load(const Settings& settings);
  void ClearLists() { now.lists = {}; }

  scpi::Limits FrequencyLimits(double usual) const { return {kLowestFrequency, variant_.highest_frequency, usual}; }
  // The level as it is shown: the display offset, when on, counts.
  double shown_offset() const { return now.power.offset_on ? now.power.offset : 0.0; }
  double highest_level() const;
  double attenuation() const;

  // What comes out of the connector while the output is on.
  double carrier_frequency() const { return CarrierFrequency(now, sweep.position()); }
  double carrier_power() const;

  void CatchUp(Instant moment);

  // Trips the reverse power protection, as a transmitter at the output connector would: the output goes off.
  void TripProtection();
  void ClearProtection();
  bool protection_tripped() const { return protection_tripped_; }

 private:
  Variant variant_;
  scpi::Status& status_;
  bool protection_tripped_ = false;
};

}  // namespace siggen::model
