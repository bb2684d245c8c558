// Numbers as text: the number directives of a write format. The process locale has no say in them.
#pragma once

#include <visa.h>

#include "format/directive.h"
#include "format/formatted_output.h"

namespace tvr::visa {

// A directive whose numbers are known.
struct NumberFormat {
  const WriteDirective& directive;
  bool left;
  int width;
  int precision;  // -1: none given
};

// `bits` is the width of the argument's type: it cuts the two's complement of a negative number in the forms that have
// no sign.
void WriteInteger(FormattedOutput& out, const NumberFormat& format, ViInt64 value, int bits);
void WriteUnsigned(FormattedOutput& out, const NumberFormat& format, ViUInt64 value);
void WriteReal(FormattedOutput& out, const NumberFormat& format, double value);
void WriteReal(FormattedOutput& out, const NumberFormat& format, long double value);

}  // namespace tvr::visa
