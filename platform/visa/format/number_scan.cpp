#include "format/number_scan.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <type_traits>

#include "ascii.h"

namespace tvr::visa {
namespace {

// Beyond every type's range, and far from overflow of its own.
constexpr long kLargestExponent = 100000000;

int DigitValue(int c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 99;
}

}  // namespace

// The input, as far as the field width goes.
class ScannedNumber::Cursor {
 public:
  Cursor(ReadStream& in, std::size_t width) : in_(in), left_(width == 0 ? ~std::size_t{0} : width) {}
  int Peek() { return left_ > 0 ? in_.Peek() : -1; }
  int PeekAt(std::size_t distance) { return left_ > distance ? in_.PeekAt(distance) : -1; }
  void Take() { in_.Take(), --left_; }

 private:
  ReadStream& in_;
  std::size_t left_;
};

bool ScannedNumber::Scan(ReadStream& in, int base, std::size_t width) {
  negative_ = based_ = false;
  digit_count_ = 0;
  exponent_ = 0;
  Cursor cursor(in, width);
  if (cursor.Peek() == '#') {
    cursor.Take();
    switch (cursor.Peek()) {
      case 'H':
      case 'h':
        base = 16;
        break;
      case 'Q':
      case 'q':
        base = 8;
        break;
      case 'B':
      case 'b':
        base = 2;
        break;
      default:
        return false;
    }
    cursor.Take();
    return ScanBased(cursor, base);
  }
  if (const int sign = cursor.Peek(); sign == '-' || sign == '+') {
    negative_ = sign == '-';
    cursor.Take();
  }
  if (base == 10) return ScanDecimal(cursor);
  if (base == 16 && cursor.Peek() == '0' && (cursor.PeekAt(1) == 'x' || cursor.PeekAt(1) == 'X')) {
    cursor.Take();
    cursor.Take();
  }
  return ScanBased(cursor, base);
}

bool ScannedNumber::ScanBased(Cursor& cursor, int base) {
  based_ = true;
  based_value_ = 0;
  bool any = false;
  bool overflow = false;
  for (int digit = DigitValue(cursor.Peek()); digit < base; digit = DigitValue(cursor.Peek())) {
    const auto factor = static_cast<ViUInt64>(base);
    overflow = overflow || based_value_ > (~ViUInt64{0} - static_cast<ViUInt64>(digit)) / factor;
    based_value_ = based_value_ * factor + static_cast<ViUInt64>(digit);
    any = true;
    cursor.Take();
  }
  if (overflow) based_value_ = ~ViUInt64{0};
  return any;
}

void ScannedNumber::AddDigit(char digit, bool behind_point) {
  const bool leading_zero = digit == '0' && digit_count_ == 0;
  if (behind_point) {
    if (leading_zero) exponent_ = std::max(exponent_ - 1, -kLargestExponent);
  } else if (!leading_zero) {
    exponent_ = std::min(exponent_ + 1, kLargestExponent);
  }
  if (leading_zero) return;
  if (digit_count_ < kMostDigits) {
    digits_[digit_count_++] = digit;
  } else if (digit != '0') {
    // Not lost altogether: it may decide a rounding.
    digits_[kMostDigits] = '1';
    digit_count_ = kMostDigits + 1;
  }
}

bool ScannedNumber::ScanDecimal(Cursor& cursor) {
  bool any = false;
  for (int c = cursor.Peek(); IsDigit(c); c = cursor.Peek()) {
    AddDigit(static_cast<char>(c), false);
    any = true;
    cursor.Take();
  }
  if (cursor.Peek() == '.' && (any || IsDigit(cursor.PeekAt(1)))) {
    cursor.Take();
    for (int c = cursor.Peek(); IsDigit(c); c = cursor.Peek()) {
      AddDigit(static_cast<char>(c), true);
      any = true;
      cursor.Take();
    }
  }
  if (!any) return false;
  if (const int mark = cursor.Peek(); mark != 'e' && mark != 'E') return true;
  // An E belongs to the number only when an exponent follows it.
  const int sign = cursor.PeekAt(1);
  const bool signed_exponent = sign == '-' || sign == '+';
  if (!IsDigit(signed_exponent ? cursor.PeekAt(2) : sign)) return true;
  cursor.Take();
  if (signed_exponent) cursor.Take();
  long exponent = 0;
  for (int c = cursor.Peek(); IsDigit(c); c = cursor.Peek()) {
    exponent = std::min(exponent * 10 + (c - '0'), kLargestExponent);
    cursor.Take();
  }
  exponent_ += sign == '-' ? -exponent : exponent;
  return true;
}

ViUInt64 ScannedNumber::Whole() const {
  if (based_) return based_value_;
  constexpr ViUInt64 kGreatest = std::numeric_limits<ViUInt64>::max();
  if (digit_count_ == 0 || exponent_ < 0) return 0;
  if (exponent_ > 20) return kGreatest;
  ViUInt64 whole = 0;
  const auto whole_digits = static_cast<std::size_t>(exponent_);
  for (std::size_t i = 0; i < whole_digits; ++i) {
    const auto digit = static_cast<ViUInt64>(i < digit_count_ ? digits_[i] - '0' : 0);
    if (whole > (kGreatest - digit) / 10) return kGreatest;
    whole = whole * 10 + digit;
  }
  const bool up = whole_digits < digit_count_ && digits_[whole_digits] >= '5';
  return up && whole != kGreatest ? whole + 1 : whole;
}

ViInt64 ScannedNumber::Signed(ViInt64 lowest, ViInt64 highest) const {
  const ViUInt64 magnitude = Whole();
  if (negative_) {
    const ViUInt64 limit = ViUInt64{0} - static_cast<ViUInt64>(lowest);
    return magnitude >= limit ? lowest : -static_cast<ViInt64>(magnitude);
  }
  return magnitude >= static_cast<ViUInt64>(highest) ? highest : static_cast<ViInt64>(magnitude);
}

ViUInt64 ScannedNumber::Unsigned(ViUInt64 highest) const { return negative_ ? 0 : std::min(Whole(), highest); }

template <class Real>
Real ScannedNumber::As() const {
  Real value = 0;
  if (based_) {
    value = static_cast<Real>(based_value_);
  } else if (digit_count_ > 0) {
    std::array<char, kMostDigits + 32> text;
    char* end = std::copy_n(digits_.data(), digit_count_, text.data());
    if (const long power = exponent_ - static_cast<long>(digit_count_); power != 0) {
      *end++ = 'e';
      end = std::to_chars(end, text.data() + text.size(), power).ptr;
    }
    const auto [rest, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc::result_out_of_range)
      value = exponent_ > 0 ? std::numeric_limits<Real>::infinity() : Real{0};
  }
  return negative_ ? -value : value;
}

template float ScannedNumber::As<float>() const;
template double ScannedNumber::As<double>() const;
template long double ScannedNumber::As<long double>() const;

}  // namespace tvr::visa
