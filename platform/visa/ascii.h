// Letters and digits as SCPI and resource names have them, whatever the locale.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tvr::visa {

constexpr bool IsDigit(int c) { return c >= '0' && c <= '9'; }
constexpr char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

inline std::string Upper(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return Upper(c); });
  return upper;
}

}  // namespace tvr::visa
