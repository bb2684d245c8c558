#include "format/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "format/fixed_point.h"

namespace tvr::visa {
namespace {

// Sign or prefix, then zeros, then digits, in a field of at least the width.
void WriteField(FormattedOutput& out, const NumberFormat& format, std::string_view prefix, std::size_t zeros,
                std::string_view digits, bool zeros_fill) {
  const std::size_t length = prefix.size() + zeros + digits.size();
  const auto width = static_cast<std::size_t>(format.width);
  std::size_t padding = width > length ? width - length : 0;
  if (zeros_fill && !format.left) zeros += std::exchange(padding, 0);
  char* end = out.Room(length + zeros + padding);
  if (!format.left) end = std::fill_n(end, padding, ' ');
  end = std::copy(prefix.begin(), prefix.end(), end);
  end = std::fill_n(end, zeros, '0');
  end = std::copy(digits.begin(), digits.end(), end);
  if (format.left) end = std::fill_n(end, padding, ' ');
  out.Taken(end);
}

std::string_view SignOf(const WriteDirective& directive, bool negative) {
  if (negative) return "-";
  if (directive.plus) return "+";
  return directive.blank ? " " : "";
}

struct Base {
  int base;
  std::string_view prefix;
  bool upper;
};

// The forms without a sign.
bool BaseOf(const WriteDirective& directive, Base& base) {
  switch (directive.form) {
    case NumberForm::kHex:
      return base = {16, "#H", true}, true;
    case NumberForm::kOctal:
      return base = {8, "#Q", false}, true;
    case NumberForm::kBinary:
      return base = {2, "#B", false}, true;
    case NumberForm::kAnsi:
      if (directive.code == 'x') return base = {16, directive.alternative ? "0x" : "", false}, true;
      if (directive.code == 'X') return base = {16, directive.alternative ? "0X" : "", true}, true;
      if (directive.code == 'o') return base = {8, "", false}, true;
      return false;
    default:
      return false;
  }
}

void WriteMagnitude(FormattedOutput& out, const NumberFormat& format, ViUInt64 magnitude, std::string_view prefix,
                    int base, bool upper) {
  std::array<char, 64> text;
  char* end = std::to_chars(text.data(), text.data() + text.size(), magnitude, base).ptr;
  if (upper)
    std::transform(text.data(), end, text.data(), [](char c) { return c >= 'a' ? static_cast<char>(c - 32) : c; });
  if (magnitude == 0 && format.precision == 0) end = text.data();  // as in C: no digits at all
  const auto count = static_cast<std::size_t>(end - text.data());
  std::size_t least = format.precision < 0 ? 1 : static_cast<std::size_t>(format.precision);
  const bool octal_mark = base == 8 && format.directive.form == NumberForm::kAnsi && format.directive.alternative;
  if (octal_mark && (count == 0 || text[0] != '0')) least = std::max(least, count + 1);
  WriteField(out, format, prefix, least > count ? least - count : 0, {text.data(), count},
             format.directive.zero && format.precision < 0);
}

// The decimal forms of a whole number: @2 puts a point behind it, and digits that can only be zero.
void WriteDecimal(FormattedOutput& out, const NumberFormat& format, ViUInt64 magnitude, bool negative) {
  const std::string_view sign = SignOf(format.directive, negative);
  if (format.directive.form != NumberForm::kPoint) return WriteMagnitude(out, format, magnitude, sign, 10, false);
  std::array<char, 24> text;
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), magnitude).ptr;
  const std::size_t places = static_cast<std::size_t>(format.precision < 0 ? 6 : std::max(format.precision, 1));
  std::string digits(text.data(), static_cast<std::size_t>(end - text.data()));
  digits.append(1, '.').append(places, '0');
  WriteField(out, format, sign, 0, digits, format.directive.zero);
}

// What std::to_chars leaves out: the # flag keeps the point and, for g, the zeros at the end.
template <class Real>
char* AlternativeGeneral(char* begin, char* room_end, Real magnitude, int significant) {
  significant = std::max(significant, 1);
  char* end = std::to_chars(begin, room_end, magnitude, std::chars_format::scientific, significant - 1).ptr;
  char* const mark = std::find(begin, end, 'e');
  int exponent = 0;
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent);
  if (exponent >= -4 && exponent < significant) {
    end = std::to_chars(begin, room_end, magnitude, std::chars_format::fixed, significant - 1 - exponent).ptr;
  }
  return end;
}

char* WithPoint(char* begin, char* end) {
  if (std::find(begin, end, '.') != end) return end;
  char* const mark = std::find(begin, end, 'e');
  std::memmove(mark + 1, mark, static_cast<std::size_t>(end - mark));
  *mark = '.';
  return end + 1;
}

// %g of everyday magnitudes without an exponent: the whole part's digits come off the precision, the rest are places,
// and zeros at the end are dropped. Null when it is not that simple.
char* EverydayGeneral(char* begin, double magnitude, int significant) {
  significant = std::max(significant, 1);
  int places = 0;
  int whole_digits = 1;
  if (magnitude >= 1.0) {
    if (magnitude >= 1e15) return nullptr;
    // NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter): these powers of ten are exact
    for (double limit = 10.0; magnitude >= limit; limit *= 10.0) ++whole_digits;
    places = significant - whole_digits;
  } else if (magnitude >= 1e-4) {
    places = significant + (magnitude >= 0.1 ? 0 : magnitude >= 0.01 ? 1 : magnitude >= 0.001 ? 2 : 3);
  } else if (magnitude != 0.0) {
    return nullptr;
  }
  if (places < 0 || places > kMostFixedPlaces) return nullptr;
  char* end = WriteFixed(begin, magnitude, places);
  // Rounded up to one digit more than the precision holds: that is written with an exponent.
  if (places == 0 && end - begin > whole_digits) return nullptr;
  if (places == 0) return end;
  while (end[-1] == '0') --end;
  return end[-1] == '.' ? end - 1 : end;
}

// The text of a magnitude, without sign. Lower case.
template <class Real>
char* RealText(char* begin, char* room_end, const WriteDirective& directive, Real magnitude, int precision) {
  const char code = directive.code;
  const bool general = directive.form == NumberForm::kAnsi && (code == 'g' || code == 'G');
  const bool fixed = directive.form == NumberForm::kPoint || directive.form == NumberForm::kInteger ||
                     (directive.form == NumberForm::kAnsi && code == 'f');
  if constexpr (std::is_same_v<Real, double>) {
    char* end = nullptr;
    if (general && !directive.alternative) end = EverydayGeneral(begin, magnitude, precision);
    if (fixed && precision <= kMostFixedPlaces) end = WriteFixed(begin, magnitude, precision);
    if (end != nullptr) return directive.alternative ? WithPoint(begin, end) : end;
  }
  char* end = nullptr;
  if (general) {
    end = directive.alternative ? AlternativeGeneral(begin, room_end, magnitude, precision)
                                : std::to_chars(begin, room_end, magnitude, std::chars_format::general, precision).ptr;
  } else {
    const auto format = fixed ? std::chars_format::fixed : std::chars_format::scientific;
    end = std::to_chars(begin, room_end, magnitude, format, precision).ptr;
  }
  return directive.alternative ? WithPoint(begin, end) : end;
}

int PlacesOf(const NumberFormat& format) {
  const int precision = format.precision < 0 ? 6 : format.precision;
  switch (format.directive.form) {
    case NumberForm::kInteger:
      return 0;
    case NumberForm::kPoint:
    case NumberForm::kExponent:
      return std::max(precision, 1);
    default:
      return precision;
  }
}

template <class Real>
void WriteAnyReal(FormattedOutput& out, const NumberFormat& format, Real value) {
  const WriteDirective& directive = format.directive;
  if (Base base{}; directive.form != NumberForm::kAnsi && BaseOf(directive, base)) {
    constexpr Real kLimit = 9223372036854775808.0;
    const Real whole = std::isnan(value) ? Real{0} : std::rint(value);
    const ViInt64 integer = whole >= kLimit   ? std::numeric_limits<ViInt64>::max()
                            : whole < -kLimit ? std::numeric_limits<ViInt64>::min()
                                              : static_cast<ViInt64>(whole);
    return WriteInteger(out, format, integer, 64);
  }
  const std::string_view sign = SignOf(directive, std::signbit(value));
  const bool upper = directive.code == 'E' || directive.code == 'G' || directive.form == NumberForm::kExponent;
  if (!std::isfinite(value)) {
    const std::string_view word = std::isnan(value) ? (upper ? "NAN" : "nan") : (upper ? "INF" : "inf");
    return WriteField(out, format, sign, 0, word, false);
  }
  const int places = PlacesOf(format);
  const Real magnitude = std::abs(value);
  // The digits of the largest number, the places, the room that WriteFixed wants, the point of the # flag.
  const std::size_t room = static_cast<std::size_t>(std::numeric_limits<Real>::max_exponent10) + kFixedRoom +
                           static_cast<std::size_t>(places) + 8;
  const auto width = static_cast<std::size_t>(format.width);
  char* const begin = out.Room(room + width + sign.size());
  char* const digits = std::copy(sign.begin(), sign.end(), begin);
  char* end = RealText(digits, digits + room, directive, magnitude, places);
  if (upper) std::replace(digits, end, 'e', 'E');
  if (const auto length = static_cast<std::size_t>(end - begin); length < width) {
    const std::size_t padding = width - length;
    if (format.left) {
      end = std::fill_n(end, padding, ' ');
    } else {
      char* const from = directive.zero ? digits : begin;
      std::memmove(from + padding, from, static_cast<std::size_t>(end - from));
      std::fill_n(from, padding, directive.zero ? '0' : ' ');
      end += padding;
    }
  }
  out.Taken(end);
}

}  // namespace

void WriteInteger(FormattedOutput& out, const NumberFormat& format, ViInt64 value, int bits) {
  if (Base base{}; BaseOf(format.directive, base)) {
    const ViUInt64 mask = ~ViUInt64{0} >> (64 - bits);
    const ViUInt64 pattern = static_cast<ViUInt64>(value) & mask;
    const bool no_prefix = pattern == 0 && format.directive.form == NumberForm::kAnsi;
    return WriteMagnitude(out, format, pattern, no_prefix ? "" : base.prefix, base.base, base.upper);
  }
  if (format.directive.form == NumberForm::kExponent) return WriteAnyReal(out, format, static_cast<long double>(value));
  const ViUInt64 magnitude = value < 0 ? ViUInt64{0} - static_cast<ViUInt64>(value) : static_cast<ViUInt64>(value);
  WriteDecimal(out, format, magnitude, value < 0);
}

void WriteUnsigned(FormattedOutput& out, const NumberFormat& format, ViUInt64 value) {
  if (Base base{}; BaseOf(format.directive, base)) return WriteInteger(out, format, static_cast<ViInt64>(value), 64);
  if (format.directive.form == NumberForm::kExponent) return WriteAnyReal(out, format, static_cast<long double>(value));
  // As in C, an unsigned number has no sign, whatever the flags say.
  WriteDirective unsigned_directive = format.directive;
  unsigned_directive.plus = unsigned_directive.blank = false;
  WriteDecimal(out, {unsigned_directive, format.left, format.width, format.precision}, value, false);
}

void WriteReal(FormattedOutput& out, const NumberFormat& format, double value) { WriteAnyReal(out, format, value); }
void WriteReal(FormattedOutput& out, const NumberFormat& format, long double value) {
  WriteAnyReal(out, format, value);
}

}  // namespace tvr::visa
