// Between the defined values of the public interface and the words of the instrument.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <visatype.h>

namespace tvr {

// A row of a map. The first command is the word that is written, all are accepted on reading. A row without models
// holds for every model; "!!!" is no model's name, so that a row of that kind only names its value.
struct EnumCommandInfo {
  EnumCommandInfo(const char* name, ViInt32 value, const char* commands, const char* models);

  std::string Name;
  ViInt32 Value;
  std::vector<std::string> Commands;
  std::vector<std::string> Models;
};

using EnumMap = std::vector<EnumCommandInfo>;

// The map of VI_TRUE and VI_FALSE, which the driver's tables hold like any other.
const EnumMap& BooleanMap();

// The defined value of a response for the session's model. The value is -1 after a failure, which is recorded as
// 0xBFFA0059 with the response as it arrived.
ViStatus ResponseToValue(ViSession vi, const EnumMap& map, std::string_view response, ViInt32& value);

// The word to send for a defined value. It is empty after a failure, which is recorded as 0xBFFA0000.
ViStatus ValueToCommand(ViSession vi, const EnumMap& map, ViInt32 value, std::string_view& command);

// The public name of a defined value, or its decimal digits.
std::string ValueToName(const EnumMap& map, ViInt32 value);

}  // namespace tvr
