#include "format/directive.h"

#include <array>
#include <cstring>
#include <string_view>

#include "ascii.h"

namespace tvr::visa {
namespace {

// By character, for one direction: both have the codes of numbers, and %n.
class Codes {
 public:
  constexpr Codes(std::string_view texts, std::string_view blocks) {
    Set("diouxX", Kind::kInteger);
    Set("feEgG", Kind::kReal);
    Set("n", Kind::kCount);
    Set(texts, Kind::kText);
    Set(blocks, Kind::kBlock);
  }
  Kind operator[](char code) const {
    const auto at = static_cast<unsigned char>(code);
    return at < kinds_.size() ? kinds_[at] : Kind::kNone;
  }

 private:
  constexpr void Set(std::string_view codes, Kind kind) {
    for (const char code : codes) kinds_[static_cast<unsigned char>(code)] = kind;
  }
  std::array<Kind, 128> kinds_{};
};

constexpr Codes kWriteCodes("csp", "bBy");
constexpr Codes kReadCodes("cstT[", "by");

constexpr unsigned Bit(Length length) { return 1U << static_cast<unsigned>(length); }

constexpr unsigned LengthsOf(Kind kind) {
  switch (kind) {
    case Kind::kInteger:
    case Kind::kCount:
      return Bit(Length::kNone) | Bit(Length::kH) | Bit(Length::kL) | Bit(Length::kLL);
    case Kind::kReal:
      return Bit(Length::kNone) | Bit(Length::kL) | Bit(Length::kLongDouble);
    case Kind::kBlock:
      return ~Bit(Length::kLongDouble);
    case Kind::kText:
      return Bit(Length::kNone);
    case Kind::kNone:
      break;
  }
  return 0;
}

bool LengthFits(Kind kind, Length length) { return (LengthsOf(kind) & Bit(length)) != 0; }

bool TakeDigits(const char*& format, int& value) {
  value = 0;
  for (; IsDigit(*format); ++format) {
    value = value * 10 + (*format - '0');
    if (value > kLargestAmount) return false;
  }
  return true;
}

// Digits, or the mark that says that an argument holds the number.
bool TakeAmount(const char*& format, char mark, Amount& amount) {
  if (*format == mark) {
    ++format;
    amount.given = Given::kAsArgument;
    return true;
  }
  if (IsDigit(*format)) amount.given = Given::kInFormat;
  return TakeDigits(format, amount.value);
}

Length TakeLength(const char*& format) {
  switch (*format) {
    case 'h':
      return ++format, Length::kH;
    case 'l':
      if (*++format != 'l') return Length::kL;
      return ++format, Length::kLL;
    case 'L':
      return ++format, Length::kLongDouble;
    case 'z':
      return ++format, Length::kSingle;
    case 'Z':
      return ++format, Length::kDouble;
    default:
      return Length::kNone;
  }
}

// "!ob" and "!ol", before or behind the length.
bool TakeByteOrder(const char*& format, bool& given, bool& little_endian) {
  if (*format != '!') return true;
  const std::string_view order(format, strnlen(format, 3));
  if (given || (order != "!ob" && order != "!ol")) return false;
  given = true;
  little_endian = order == "!ol";
  format += 3;
  return true;
}

bool TakeFlags(const char*& format, WriteDirective& directive) {
  for (;; ++format) {
    switch (*format) {
      case '-':
        directive.left = true;
        break;
      case '+':
        directive.plus = true;
        break;
      case ' ':
        directive.blank = true;
        break;
      case '0':
        directive.zero = true;
        break;
      case '#':
        directive.alternative = true;
        break;
      case '@': {
        constexpr std::string_view kForms = "123HQB";
        const char form = *++format;
        const std::size_t which = form == '\0' ? std::string_view::npos : kForms.find(form);
        if (which == std::string_view::npos || directive.form != NumberForm::kAnsi) return false;
        directive.form = static_cast<NumberForm>(which + 1);
        break;
      }
      default:
        return true;
    }
  }
}

bool PartsFit(const WriteDirective& directive) {
  const bool any_flag = directive.left || directive.plus || directive.blank || directive.zero || directive.alternative;
  const bool number = IsNumber(directive.kind);
  if (!number && (directive.form != NumberForm::kAnsi || directive.size.given != Given::kNot)) return false;
  if (number || directive.code == 's') return true;
  if (directive.kind == Kind::kBlock) {
    return !any_flag && directive.precision.given == Given::kNot && directive.width.given != Given::kNot;
  }
  return directive.precision.given == Given::kNot;  // c, p, n
}

bool TakeReadAmounts(const char*& format, ReadDirective& directive) {
  if (!TakeAmount(format, '#', directive.width)) return false;
  if (*format != ',') return true;
  ++format;
  return TakeAmount(format, '#', directive.size) && directive.size.given != Given::kNot;
}

bool AmountsFit(const ReadDirective& directive) {
  const bool number = IsNumber(directive.kind);
  if (directive.width.given == Given::kInFormat && directive.width.value == 0) return false;
  if (!number && directive.size.given != Given::kNot) return false;
  // A number's width by pointer would have to be stored back into, and has no published meaning; nor has any of %n.
  if (number && directive.width.given == Given::kAsArgument) return false;
  if (directive.kind == Kind::kCount && directive.width.given != Given::kNot) return false;
  // Discarding takes no argument, so its size must stand in the format.
  return !directive.suppressed ||
         (directive.width.given != Given::kAsArgument && directive.size.given != Given::kAsArgument);
}

// The set ends at the first bracket that is not its first character.
bool TakeSet(const char*& format, ReadDirective& directive) {
  directive.set = format;
  if (*format == '^') ++format;
  if (*format == ']') ++format;
  while (*format != '\0' && *format != ']') {
    if (*format == '\\' && format[1] != '\0') ++format;
    ++format;
  }
  if (*format == '\0') return false;
  ++format;
  return true;
}

}  // namespace

bool ParseWriteDirective(const char*& format, WriteDirective& directive) {
  if (!TakeFlags(format, directive) || !TakeAmount(format, '*', directive.width)) return false;
  if (*format == '.') {
    ++format;
    if (!TakeAmount(format, '*', directive.precision)) return false;
    // A point by itself means a precision of none, as in C.
    if (directive.precision.given == Given::kNot) directive.precision.given = Given::kInFormat;
  }
  if (*format == ',') {
    ++format;
    if (!TakeAmount(format, '*', directive.size) || directive.size.given == Given::kNot) return false;
  }
  bool ordered = false;
  if (!TakeByteOrder(format, ordered, directive.little_endian)) return false;
  directive.length = TakeLength(format);
  if (!TakeByteOrder(format, ordered, directive.little_endian)) return false;
  directive.code = *format;
  directive.kind = kWriteCodes[directive.code];
  if (!LengthFits(directive.kind, directive.length)) return false;
  ++format;
  return PartsFit(directive) && (!ordered || directive.code == 'y');
}

bool ParseReadDirective(const char*& format, ReadDirective& directive) {
  if (*format == '*') {
    ++format;
    directive.suppressed = true;
  }
  // Whatever may stand in front of a length lies before the letters. Most directives have none of it, and every query
  // comes this way.
  const bool bare = *format >= 'A';
  bool ordered = false;
  if (!bare && !(TakeReadAmounts(format, directive) && TakeByteOrder(format, ordered, directive.little_endian))) {
    return false;
  }
  directive.length = TakeLength(format);
  if (*format == '!' && !TakeByteOrder(format, ordered, directive.little_endian)) return false;
  directive.code = *format;
  directive.kind = kReadCodes[directive.code];
  if (!LengthFits(directive.kind, directive.length) || (ordered && directive.code != 'y')) return false;
  ++format;
  if (!bare && !AmountsFit(directive)) return false;
  if (directive.kind == Kind::kBlock && !directive.suppressed && directive.width.given == Given::kNot) return false;
  return directive.code != '[' || TakeSet(format, directive);
}

ViByte ParseEscape(const char*& format) {
  const char c = *format;
  if (c == '\0') return '\\';
  if (c >= '0' && c <= '7') {
    unsigned value = 0;
    for (int digits = 0; digits < 3 && *format >= '0' && *format <= '7'; ++digits, ++format) {
      value = value * 8 + static_cast<unsigned>(*format - '0');
    }
    return static_cast<ViByte>(value);
  }
  ++format;
  switch (c) {
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    default:
      return static_cast<ViByte>(c);
  }
}

}  // namespace tvr::visa
