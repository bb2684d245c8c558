// The parts of a conversion directive, and what both directions of formatting share in reading a format string.
//
//   written   %[flags][width][.precision][,size][length]code
//   read      %[*][width or #][,size][length]code
#pragma once

#include <visa.h>

#include <optional>

namespace tvr::visa {

enum class Length : unsigned char { kNone, kH, kL, kLL, kLongDouble, kSingle, kDouble };

// What a code converts; kNone for a character that is no code.
enum class Kind : unsigned char { kNone, kInteger, kReal, kText, kBlock, kCount };

constexpr bool IsNumber(Kind kind) { return kind == Kind::kInteger || kind == Kind::kReal; }

// How the number in a directive is given.
enum class Given : unsigned char { kNot, kInFormat, kAsArgument };

struct Amount {
  Given given = Given::kNot;
  int value = 0;
};

enum class NumberForm : unsigned char { kAnsi, kInteger, kPoint, kExponent, kHex, kOctal, kBinary };

struct WriteDirective {
  bool left = false, plus = false, blank = false, zero = false, alternative = false;
  NumberForm form = NumberForm::kAnsi;
  Amount width, precision, size;
  Length length = Length::kNone;
  bool little_endian = false;
  Kind kind = Kind::kNone;
  char code = 0;
};

struct ReadDirective {
  bool suppressed = false;
  Amount width, size;
  Length length = Length::kNone;
  bool little_endian = false;
  Kind kind = Kind::kNone;
  char code = 0;
  const char* set = nullptr;  // for [: behind the bracket
};

// Widths, precisions and sizes beyond this are taken for mistakes.
constexpr int kLargestAmount = 1 << 26;

// `format` stands behind the percent sign and is moved behind the directive. False: there is no such directive.
bool ParseWriteDirective(const char*& format, WriteDirective& directive);
bool ParseReadDirective(const char*& format, ReadDirective& directive);

// `format` stands behind a backslash and is moved behind the escape.
ViByte ParseEscape(const char*& format);

// Bytes per element of a block.
constexpr std::size_t BlockElementSize(Length length) {
  switch (length) {
    case Length::kH:
      return 2;
    case Length::kL:
    case Length::kSingle:
      return 4;
    case Length::kLL:
    case Length::kDouble:
      return 8;
    default:
      return 1;
  }
}

}  // namespace tvr::visa
