#ifndef TVRIVI_COMMON_TEXT_BUFFER_H
#define TVRIVI_COMMON_TEXT_BUFFER_H

#include <cstring>
#include <limits>
#include <string_view>

#include "IviCShared.h"

namespace tvrivi {

/// The buffer rule of IviCShared.h: VI_SUCCESS when the text went out whole, else the size that it needs.
/// A text longer than ViInt32 can say is given out as far as it can.
inline ViStatus CopyText(std::string_view text, ViInt32 size, ViChar* buffer) {
  constexpr size_t kLongest = std::numeric_limits<ViInt32>::max() - 1;
  text = text.substr(0, kLongest);
  const ViInt32 required = static_cast<ViInt32>(text.size()) + 1;
  if (size == 0) return required;
  if (buffer == nullptr) return IVI_ERROR_NULL_POINTER;

  const bool whole = size < 0 || size >= required;
  const size_t length = whole ? text.size() : static_cast<size_t>(size) - 1;
  if (length > 0) std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
  return whole ? VI_SUCCESS : required;
}

}  // namespace tvrivi

#endif
