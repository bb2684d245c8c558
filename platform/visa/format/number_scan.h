// Numbers in answers: NRf and the #H, #Q, #B forms.
#pragma once

#include <visa.h>

#include <array>
#include <string_view>

#include "format/read_stream.h"

namespace tvr::visa {

// A number as it stood in the input, before it is fitted into a type. Values beyond a type's range become its nearest.
class ScannedNumber {
 public:
  // Takes the longest number that begins at the next byte, at most `width` bytes of it (0: no limit). `base` other than
  // 10 reads bare digits of that base. False: there is none; nothing but a sign or a mark may have been taken.
  bool Scan(ReadStream& in, int base, std::size_t width);

  ViInt64 Signed(ViInt64 lowest, ViInt64 highest) const;
  ViUInt64 Unsigned(ViUInt64 highest) const;
  template <class Real>
  Real As() const;

 private:
  // A double needs no more than 767 digits to be told from its neighbours.
  static constexpr std::size_t kMostDigits = 800;

  class Cursor;
  bool ScanBased(Cursor& cursor, int base);
  bool ScanDecimal(Cursor& cursor);
  void AddDigit(char digit, bool behind_point);
  // The magnitude rounded to a whole number, half away from zero; the greatest number when it is greater.
  ViUInt64 Whole() const;

  bool negative_ = false;
  bool based_ = false;
  ViUInt64 based_value_ = 0;
  // The value is 0.d1d2d3... times ten to the power of exponent_.
  std::array<char, kMostDigits + 1> digits_;
  std::size_t digit_count_ = 0;
  long exponent_ = 0;
};

}  // namespace tvr::visa
