#include "Errors.h"

#include <IviCShared.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "Assertions.h"
#include "Strings.h"

namespace tvr {

ViStatus FormatError(ViSession vi, ViStatus code, const char* text, va_list arguments) {
  const char* message = LookupErrorText(code);
  const bool further = text != nullptr && *text != '\0';
  // On the stack: this must work when memory has run out. Twice a message's size holds every text of the driver.
  ViChar format[2 * kMessageSize] = "";
  std::snprintf(format, sizeof format, "%s%s%s", message == nullptr ? "" : message, further ? "  " : "",
                further ? text : "");

  ViChar buffer[kMessageSize] = "";
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  std::vsnprintf(buffer, sizeof buffer, format, arguments);
#pragma GCC diagnostic pop

  const ViStatus status = IviSession_SetError(vi, code, buffer);
  return status < 0 ? status : code;
}

ViStatus RaiseError(ViSession vi, ViStatus code, ...) {
  va_list arguments;
  va_start(arguments, code);
  const ViStatus status = FormatError(vi, code, nullptr, arguments);
  va_end(arguments);
  return status;
}

ViStatus RaiseErrorText(ViSession vi, ViStatus code, const char* text, ...) {
  va_list arguments;
  va_start(arguments, text);
  const ViStatus status = FormatError(vi, code, text, arguments);
  va_end(arguments);
  return status;
}

ViStatus CheckNullParameters(ViSession vi, const char* function, const char* names,
                             std::initializer_list<const void*> outputs) {
  const auto* const null = std::find(outputs.begin(), outputs.end(), nullptr);
  if (null == outputs.end()) return VI_SUCCESS;

  const int nIndex = static_cast<int>(null - outputs.begin());
  const std::vector<std::string> vecNames = SplitString(names, ',', true);
  assert(nIndex < (int)vecNames.size());
  const std::string name =
      nIndex < static_cast<int>(vecNames.size()) ? vecNames[static_cast<std::size_t>(nIndex)] : "<unknown parameter>";
  const std::string trimmed(TrimString(function, kBlanks));
  return RaiseError(vi, error::kNullPointer, trimmed.c_str(), name.c_str());
}

}  // namespace tvr
