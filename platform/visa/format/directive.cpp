#include "format/directive.h"

#include <cstring>
#include <string_view>

namespace tvr::visa {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

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

bool IsBlockLength(Length length) { return length != Length::kLongDouble; }
bool IsIntegerLength(Length length) {
  return length == Length::kNone || length == Length::kH || length == Length::kL || length == Length::kLL;
}
bool IsRealLength(Length length) {
  return length == Length::kNone || length == Length::kL || length == Length::kLongDouble;
}

bool LengthFits(char code, Length length) {
  if (IsIntegerCode(code) || code == 'n') return IsIntegerLength(length);
  if (IsRealCode(code)) return IsRealLength(length);
  if (IsBlockCode(code)) return IsBlockLength(length);
  return length == Length::kNone;
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
  const bool number = IsIntegerCode(directive.code) || IsRealCode(directive.code);
  if (!number && (directive.form != NumberForm::kAnsi || directive.size.given != Given::kNot)) return false;
  if (number || directive.code == 's') return true;
  if (IsBlockCode(directive.code)) {
    return !any_flag && directive.precision.given == Given::kNot && directive.width.given != Given::kNot;
  }
  return directive.precision.given == Given::kNot;  // c, p, n
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
  if (directive.code == '\0' || std::strchr("diouxXfeEgGcspnbBy", directive.code) == nullptr) return false;
  ++format;
  return LengthFits(directive.code, directive.length) && PartsFit(directive) && (!ordered || directive.code == 'y');
}

bool ParseReadDirective(const char*& format, ReadDirective& directive) {
  if (*format == '*') {
    ++format;
    directive.suppressed = true;
  }
  if (!TakeAmount(format, '#', directive.width)) return false;
  if (*format == ',') {
    ++format;
    if (!TakeAmount(format, '#', directive.size) || directive.size.given == Given::kNot) return false;
  }
  bool ordered = false;
  if (!TakeByteOrder(format, ordered, directive.little_endian)) return false;
  directive.length = TakeLength(format);
  if (!TakeByteOrder(format, ordered, directive.little_endian)) return false;
  directive.code = *format;
  if (directive.code == '\0' || std::strchr("diouxXfeEgGcstTnby[", directive.code) == nullptr) return false;
  ++format;

  const bool number = IsIntegerCode(directive.code) || IsRealCode(directive.code);
  const bool empty = directive.width.given == Given::kInFormat && directive.width.value == 0;
  if (empty || !LengthFits(directive.code, directive.length) || (ordered && directive.code != 'y')) return false;
  if (!number && directive.size.given != Given::kNot) return false;
  // A number's width by pointer would have to be stored back into, and has no published meaning; nor has any of %n.
  if (number && directive.width.given == Given::kAsArgument) return false;
  if (directive.code == 'n' && directive.width.given != Given::kNot) return false;
  // Discarding takes no argument, so its size must stand in the format.
  if (directive.suppressed &&
      (directive.width.given == Given::kAsArgument || directive.size.given == Given::kAsArgument))
    return false;
  const bool block = directive.code == 'b' || directive.code == 'y';
  if (block && !directive.suppressed && directive.width.given == Given::kNot) return false;
  if (directive.code != '[') return true;

  // The set ends at the first bracket that is not its first character.
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
