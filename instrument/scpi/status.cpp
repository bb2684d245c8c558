#include "scpi/status.h"

#include <utility>

namespace siggen::scpi {
namespace {

std::uint8_t StandardEventOf(Error error) {
  const int code = static_cast<int>(error);
  if (code <= -400) return 0x04;  // query error
  if (code <= -300) return 0x08;  // device-dependent error
  if (code <= -200) return 0x10;  // execution error
  return 0x20;                    // command error
}

}  // namespace

void StatusRegister::SetCondition(std::uint16_t bit, bool on) {
  const auto after = static_cast<std::uint16_t>(on ? condition_ | bit : condition_ & ~bit);
  const auto risen = after & ~condition_;
  const auto fallen = condition_ & ~after;
  event_ = static_cast<std::uint16_t>(event_ | (risen & positive) | (fallen & negative));
  condition_ = after;
}

std::uint16_t StatusRegister::TakeEvent() { return std::exchange(event_, std::uint16_t{0}); }

void StatusRegister::Preset() {
  enable = 0;
  positive = kAllBits;
  negative = 0;
}

void Status::Report(Error error, std::string_view detail) {
  SetStandardEvent(StandardEventOf(error));
  if (errors.size() == ErrorQueue::kRoom) SetStandardEvent(StandardEventOf(Error::kQueueOverflow));
  errors.Push(error, detail);
  log.Add(error, detail);
}

std::uint8_t Status::TakeStandardEvent() { return std::exchange(standard_event_, std::uint8_t{0}); }

std::uint8_t Status::Byte(bool message_available) const {
  unsigned byte = 0;
  if (errors.size() != 0) byte |= 0x04;
  if (questionable.Summary()) byte |= 0x08;
  if (message_available) byte |= kMessageAvailable;
  if ((standard_event_ & standard_enable) != 0) byte |= 0x20;
  if (operation.Summary()) byte |= 0x80;
  if ((byte & service_enable) != 0) byte |= 0x40;  // the master summary; its own enable bit means nothing
  return static_cast<std::uint8_t>(byte);
}

void Status::Clear() {
  standard_event_ = 0;
  operation.ClearEvent();
  questionable.ClearEvent();
  errors.Clear();
}

void Status::Preset() {
  operation.Preset();
  questionable.Preset();
}

}  // namespace siggen::scpi
