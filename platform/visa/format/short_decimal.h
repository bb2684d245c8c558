// A short number in plain notation, as instruments answer most of the time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tvr::visa {

// Reads digits with at most one point, 15 of them at most. Behind the last of them, or null when there are more, or
// none. Exact: the digits and the power of ten are both doubles as they stand, so that dividing them rounds once.
inline const char* ScanShortDecimal(const char* next, const char* end, double& value) {
  static constexpr std::array<double, 16> kPowers = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const bool negative = next != end && *next == '-';
  if (negative) ++next;
  std::uint64_t digits = 0;
  std::size_t count = 0;
  std::size_t places = 0;
  const char* point = nullptr;
  for (; next != end; ++next) {
    const unsigned digit = static_cast<unsigned char>(*next) - unsigned{'0'};
    if (digit <= 9) {
      digits = digits * 10 + digit;
      if (++count == kPowers.size()) return nullptr;
    } else if (*next == '.' && point == nullptr) {
      point = next;
      places = count;
    } else {
      break;
    }
  }
  if (count == 0) return nullptr;
  const double whole = static_cast<double>(digits);
  const double scaled = point == nullptr ? whole : whole / kPowers[count - places];
  value = negative ? -scaled : scaled;
  return next;
}

}  // namespace tvr::visa
