// The name by which a client asks for a device at this address.
#pragma once

#include <algorithm>
#include <string_view>

namespace siggen::link {

// Letter case does not matter; `own` is in lower case.
inline bool IsDeviceName(std::string_view name, std::string_view own) {
  return std::equal(name.begin(), name.end(), own.begin(), own.end(), [](char theirs, char ours) {
    return (theirs >= 'A' && theirs <= 'Z' ? static_cast<char>(theirs - 'A' + 'a') : theirs) == ours;
  });
}

}  // namespace siggen::link
