#include "config/Operation.h"

#include <exception>

namespace tvrivi {

ViStatus Operation::Fail(ViStatus status, std::string_view reason) const noexcept {
  std::string& text = ThreadErrorText();
  try {
    text.assign(name_).append(": ").append(reason);
  } catch (const std::exception&) {
    text.clear();  // the status still says what happened
  }
  return status;
}

ViStatus Operation::FailForProperty(ViInt32 property, const char* type) const noexcept {
  return Run(IVICONFIG_ERROR_INVALID_PROPERTY_ID, [&]() -> ViStatus {
    return Fail(IVICONFIG_ERROR_INVALID_PROPERTY_ID,
                "the property " + std::to_string(property) + " is no " + type + " property of this class");
  });
}

std::string& ThreadErrorText() noexcept {
  static thread_local std::string text;
  return text;
}

}  // namespace tvrivi
