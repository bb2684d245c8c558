// Values into the caller's memory, in exactly the published width.
#pragma once

#include <visa.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace tvr::visa {

// At most VI_FIND_BUFLEN bytes with the NUL: what every caller of a text attribute provides.
inline ViStatus PutText(void* value, std::string_view text) {
  auto* const out = static_cast<char*>(value);
  const std::size_t length = std::min<std::size_t>(text.size(), VI_FIND_BUFLEN - 1);
  std::memcpy(out, text.data(), length);
  out[length] = '\0';
  return VI_SUCCESS;
}

template <class T>
ViStatus PutNumber(void* value, T number) {
  std::memcpy(value, &number, sizeof number);
  return VI_SUCCESS;
}

}  // namespace tvr::visa
