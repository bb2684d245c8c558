// The status model of SCPI and IEEE 488.2: error queue, standard events, operation and questionable registers, and the
// status byte that sums them up.
#pragma once

#include <cstdint>

#include "scpi/error_queue.h"

namespace siggen::scpi {

// Condition, transition filters, event and enable of one 15 bit register.
class StatusRegister {
 public:
  static constexpr std::uint16_t kAllBits = 0x7FFF;

  std::uint16_t enable = 0;
  std::uint16_t positive = kAllBits;  // which bits that rise are events
  std::uint16_t negative = 0;         // which bits that fall are

  std::uint16_t condition() const { return condition_; }
  void SetCondition(std::uint16_t bit, bool on);
  std::uint16_t TakeEvent();
  bool Summary() const { return (event_ & enable) != 0; }
  void ClearEvent() { event_ = 0; }
  void Preset();

 private:
  std::uint16_t condition_ = 0;
  std::uint16_t event_ = 0;
};

// The conditions this instrument reports.
enum OperationBit : std::uint16_t {
  kCalibrating = 1U << 0,
  kSweeping = 1U << 3,
  kWaitingForTrigger = 1U << 5,
};
enum QuestionableBit : std::uint16_t {
  kQuestionablePower = 1U << 3,
  kQuestionableModulation = 1U << 7,
};

class Status {
 public:
  static constexpr std::uint8_t kOperationComplete = 0x01, kPowerOn = 0x80;
  static constexpr std::uint8_t kMessageAvailable = 0x10;  // in the status byte

  ErrorQueue errors;
  StatusRegister operation;
  StatusRegister questionable;
  ErrorLog log;
  std::uint8_t standard_enable = 0;
  std::uint8_t service_enable = 0;

  void Report(Error error, std::string_view detail = {});
  void Report(const Refusal& refusal) { Report(refusal.error(), refusal.detail()); }
  void SetStandardEvent(std::uint8_t bits) { standard_event_ = static_cast<std::uint8_t>(standard_event_ | bits); }
  std::uint8_t TakeStandardEvent();
  std::uint8_t Byte(bool message_available) const;
  void Clear();   // *CLS
  void Preset();  // :STATus:PRESet

 private:
  std::uint8_t standard_event_ = 0;
};

}  // namespace siggen::scpi
