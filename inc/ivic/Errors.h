// From a status code to the text that the session component keeps for the caller.
#pragma once

#include <cstdarg>
#include <initializer_list>

#include <visatype.h>

#include "error_codes.h"

namespace tvr {

// A message read back has at most 1023 characters.
constexpr ViInt32 kMessageSize = 1024;

// The message format of a driver code, or null for a code that the driver does not define.
const char* LookupErrorText(ViStatus code);

// Formats the code's message, followed by two blanks and the further text when there is one, with one list of
// arguments for both, and records it for the session. Returns the code, or the failure of the recording.
ViStatus FormatError(ViSession vi, ViStatus code, const char* text, va_list arguments);

ViStatus RaiseError(ViSession vi, ViStatus code, ...);
ViStatus RaiseErrorText(ViSession vi, ViStatus code, const char* text, ...);

// 0 when no output pointer is null. Otherwise 0xBFFA0058 with the name that stands in `names`, separated by commas, at
// the place of the first null one.
ViStatus CheckNullParameters(ViSession vi, const char* function, const char* names,
                             std::initializer_list<const void*> outputs);

}  // namespace tvr
