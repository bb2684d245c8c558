#include "format/write_format.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <type_traits>

#include "format/directive.h"
#include "format/fixed_point.h"
#include "format/number_text.h"

namespace tvr::visa {
namespace {

bool IsValid(const char* format) {
  while (*(format += std::strcspn(format, "%")) != '\0') {
    ++format;
    WriteDirective directive;
    if (*format == '%') {
      ++format;
    } else if (!ParseWriteDirective(format, directive)) {
      return false;
    }
  }
  return true;
}

// How many characters stand for themselves. SCPI is nearly all of letters and digits, so that a look at each is over
// before std::strcspn has prepared its own.
std::size_t PlainLength(const char* format) {
  const char* c = format;
  while (*c > '%' ? *c != '\\' : *c != '%' && *c != '\n' && *c != '\0') ++c;
  return static_cast<std::size_t>(c - format);
}

class Writer {
 public:
  Writer(Args& args, FormattedOutput& out) : args_(args), out_(out) {}

  ViStatus Write(const char* format);

 private:
  ViStatus Convert(const WriteDirective& directive);
  ViStatus ConvertIntegers(const NumberFormat& format, bool array, int count);
  ViStatus ConvertReals(const NumberFormat& format, bool array, int count);
  void OneInteger(const NumberFormat& format);
  template <class Signed>
  ViStatus IntegerArray(const NumberFormat& format, int count);
  template <class Real>
  ViStatus RealArray(const NumberFormat& format, int count);
  const double* WriteFixedRun(const double* next, const double* end, int places);
  ViStatus ConvertText(const WriteDirective& directive, bool left, int width, int precision);
  ViStatus ConvertBlock(const WriteDirective& directive, int count);
  ViStatus StoreCount(Length length);
  void Padded(std::string_view text, bool left, int width);
  bool Resolve(const Amount& amount, int absent, int& value);

  Args& args_;
  FormattedOutput& out_;
};

ViStatus Writer::Write(const char* format) {
  for (;;) {
    const std::size_t plain = PlainLength(format);
    if (format[plain] == '\n' && format[plain + 1] == '\0') {
      out_.EndMessage({format, plain + 1});
      return out_.status();
    }
    if (plain > 0) out_.Append(std::string_view(format, plain));
    format += plain;
    const char special = *format;
    if (special == '\0') return out_.status();
    ++format;
    bool end_of_message = special == '\n';
    if (special == '%') {
      if (*format == '%') {
        out_.Append(*format++);
        continue;
      }
      WriteDirective directive;
      if (!ParseWriteDirective(format, directive)) return VI_ERROR_INV_FMT;
      if (const ViStatus status = Convert(directive); status < 0) return status;
    } else if (special == '\\') {
      end_of_message = *format == 'n';
      const ViByte byte = ParseEscape(format);
      if (!end_of_message) out_.Append(static_cast<char>(byte));
    }
    if (end_of_message) {
      // What has been sent cannot be taken back when a later directive is found bad.
      if (!IsValid(format)) return VI_ERROR_INV_FMT;
      out_.EndMessage();
    }
    if (out_.status() < 0) return out_.status();
  }
}

bool Writer::Resolve(const Amount& amount, int absent, int& value) {
  value = amount.given == Given::kNot ? absent : amount.given == Given::kInFormat ? amount.value : args_.Next<int>();
  return value <= kLargestAmount && value >= -kLargestAmount;
}

ViStatus Writer::Convert(const WriteDirective& directive) {
  if (directive.kind == Kind::kBlock) {
    // The count of a block is a count of elements in memory: only an int's own range bounds it.
    const int count = directive.width.given == Given::kInFormat ? directive.width.value : args_.Next<int>();
    return count < 0 ? VI_ERROR_INV_FMT : ConvertBlock(directive, count);
  }
  int width = 0;
  int precision = -1;
  if (!Resolve(directive.width, 0, width) || !Resolve(directive.precision, -1, precision)) return VI_ERROR_INV_FMT;
  // As in C: a negative width from an argument is the - flag, a negative precision is none.
  const bool left = directive.left || width < 0;
  if (width < 0) width = -width;
  if (precision < 0) precision = -1;

  const bool array = directive.size.given != Given::kNot;
  const int count = directive.size.given == Given::kAsArgument ? args_.Next<int>() : directive.size.value;
  if (count < 0) return VI_ERROR_INV_FMT;
  const NumberFormat format{directive, left, width, precision};
  if (directive.kind == Kind::kInteger) return ConvertIntegers(format, array, count);
  if (directive.kind == Kind::kReal) return ConvertReals(format, array, count);
  return ConvertText(directive, left, width, precision);
}

bool IsUnsigned(const WriteDirective& directive) { return directive.code == 'u'; }

// A VISA long has 32 bits, so it comes as an int; anything shorter has been promoted to one.
void Writer::OneInteger(const NumberFormat& format) {
  const Length length = format.directive.length;
  if (length == Length::kLL) {
    const auto value = args_.Next<long long>();
    return IsUnsigned(format.directive) ? WriteUnsigned(out_, format, static_cast<ViUInt64>(value))
                                        : WriteInteger(out_, format, value, 64);
  }
  const int value = args_.Next<int>();
  if (length == Length::kH) {
    return IsUnsigned(format.directive) ? WriteUnsigned(out_, format, static_cast<ViUInt16>(value))
                                        : WriteInteger(out_, format, static_cast<ViInt16>(value), 16);
  }
  return IsUnsigned(format.directive) ? WriteUnsigned(out_, format, static_cast<ViUInt32>(value))
                                      : WriteInteger(out_, format, value, 32);
}

template <class Signed>
ViStatus Writer::IntegerArray(const NumberFormat& format, int count) {
  const auto* const values = args_.Next<const Signed*>();
  if (values == nullptr && count > 0) return VI_ERROR_USER_BUF;
  for (int i = 0; i < count && out_.status() >= 0; ++i) {
    if (i > 0) out_.Append(',');
    if (IsUnsigned(format.directive)) {
      WriteUnsigned(out_, format, static_cast<std::make_unsigned_t<Signed>>(values[i]));
    } else {
      WriteInteger(out_, format, values[i], static_cast<int>(8 * sizeof(Signed)));
    }
  }
  return out_.status();
}

ViStatus Writer::ConvertIntegers(const NumberFormat& format, bool array, int count) {
  if (!array) {
    OneInteger(format);
    return out_.status();
  }
  switch (format.directive.length) {
    case Length::kH:
      return IntegerArray<ViInt16>(format, count);
    case Length::kLL:
      return IntegerArray<ViInt64>(format, count);
    default:
      return IntegerArray<ViInt32>(format, count);
  }
}

bool IsPlainFixed(const NumberFormat& format) {
  const WriteDirective& directive = format.directive;
  return directive.code == 'f' && directive.form == NumberForm::kAnsi && format.width == 0 && !directive.plus &&
         !directive.blank && !directive.alternative && format.precision >= 0 && format.precision <= kMostFixedPlaces;
}

template <class Real>
ViStatus Writer::RealArray(const NumberFormat& format, int count) {
  const auto* const values = args_.Next<const Real*>();
  if (values == nullptr && count > 0) return VI_ERROR_USER_BUF;
  const auto write_one = [&](Real value) {
    if constexpr (std::is_same_v<Real, long double>) {
      WriteReal(out_, format, value);
    } else {
      WriteReal(out_, format, static_cast<double>(value));
    }
  };
  const Real* next = values;
  const Real* const end = values + count;
  while (next != end && out_.status() >= 0) {
    if (next != values) out_.Append(',');
    write_one(*next++);
    if constexpr (std::is_same_v<Real, double>) {
      if (IsPlainFixed(format)) next = WriteFixedRun(next, end, format.precision);
    }
  }
  return out_.status();
}

// Long lists of plain fixed point numbers are what this engine is fast for. Stops at a number that is not so simple.
const double* Writer::WriteFixedRun(const double* next, const double* end, int places) {
  constexpr std::ptrdiff_t kAtATime = 64;
  while (next != end && out_.status() >= 0) {
    const double* const part_end = next + std::min(end - next, kAtATime);
    out_.Taken(WriteFixedList(out_.Room(kAtATime * kFixedRoom), next, part_end, places));
    if (next != part_end) break;
  }
  return next;
}

ViStatus Writer::ConvertReals(const NumberFormat& format, bool array, int count) {
  const Length length = format.directive.length;
  if (array) {
    if (length == Length::kLongDouble) return RealArray<long double>(format, count);
    return length == Length::kL ? RealArray<double>(format, count) : RealArray<float>(format, count);
  }
  if (length == Length::kLongDouble) {
    WriteReal(out_, format, args_.Next<long double>());
  } else {
    WriteReal(out_, format, args_.Next<double>());
  }
  return out_.status();
}

void Writer::Padded(std::string_view text, bool left, int width) {
  const auto wanted = static_cast<std::size_t>(width);
  const std::size_t padding = wanted > text.size() ? wanted - text.size() : 0;
  const auto pad = [&] {
    char* const begin = out_.Room(padding);
    std::memset(begin, ' ', padding);
    out_.Taken(begin + padding);
  };
  if (!left && padding > 0) pad();
  out_.Append(text);
  if (left && padding > 0) pad();
}

ViStatus Writer::ConvertText(const WriteDirective& directive, bool left, int width, int precision) {
  switch (directive.code) {
    case 's': {
      const char* const text = args_.Next<const char*>();
      if (text == nullptr) return VI_ERROR_USER_BUF;
      const std::size_t length =
          precision < 0 ? std::strlen(text) : ::strnlen(text, static_cast<std::size_t>(precision));
      Padded({text, length}, left, width);
      break;
    }
    case 'c': {
      const char character = static_cast<char>(args_.Next<int>());
      Padded({&character, 1}, left, width);
      break;
    }
    case 'p': {
      std::array<char, 20> text{'0', 'x'};
      const auto address = reinterpret_cast<std::uintptr_t>(args_.Next<void*>());
      const char* const end = std::to_chars(&text[2], text.data() + text.size(), address, 16).ptr;
      Padded({text.data(), static_cast<std::size_t>(end - text.data())}, left, width);
      break;
    }
    default:
      return StoreCount(directive.length);
  }
  return out_.status();
}

ViStatus Writer::StoreCount(Length length) {
  const auto count = static_cast<ViInt64>(out_.CountOfCall());
  void* const target = args_.Next<void*>();
  if (target == nullptr) return VI_ERROR_USER_BUF;
  if (length == Length::kH) {
    *static_cast<ViInt16*>(target) = static_cast<ViInt16>(count);
  } else if (length == Length::kLL) {
    *static_cast<ViInt64*>(target) = count;
  } else {
    *static_cast<ViInt32*>(target) = static_cast<ViInt32>(count);
  }
  return VI_SUCCESS;
}

// "#", the count's number of digits, the count; "#0" when the end of the message will tell.
ViStatus Writer::ConvertBlock(const WriteDirective& directive, int count) {
  const auto* const data = args_.Next<const ViByte*>();
  if (data == nullptr && count > 0) return VI_ERROR_USER_BUF;
  const std::size_t element = BlockElementSize(directive.length);
  const std::size_t size = static_cast<std::size_t>(count) * element;
  if (directive.code == 'b') {
    std::array<char, 24> header;
    const char* const end = std::to_chars(&header[2], header.data() + header.size(), size).ptr;
    const auto digits = end - &header[2];
    if (digits > 9) return VI_ERROR_INV_FMT;
    header[0] = '#';
    header[1] = static_cast<char>('0' + digits);
    out_.Append(std::string_view(header.data(), static_cast<std::size_t>(end - header.data())));
  } else if (directive.code == 'B') {
    out_.Append("#0");
  }
  const bool as_in_memory = element == 1 || directive.little_endian == (std::endian::native == std::endian::little);
  if (as_in_memory) {
    out_.AppendBlock(data, size);
  } else {
    for (std::size_t i = 0; i < size && out_.status() >= 0; i += element) {
      char* const room = out_.Room(element);
      for (std::size_t k = 0; k < element; ++k) room[k] = static_cast<char>(data[i + element - 1 - k]);
      out_.Taken(room + element);
    }
  }
  if (directive.code == 'B') out_.EndMessage();
  return out_.status();
}

}  // namespace

ViStatus WriteFormat(const char* format, Args& args, FormattedOutput& out) { return Writer(args, out).Write(format); }

bool IsOneMessage(const char* format) {
  while (*(format += PlainLength(format)) == '%') {
    ++format;
    WriteDirective directive;
    if (*format == '%') {
      ++format;
    } else if (!ParseWriteDirective(format, directive) || directive.code == 'B') {
      return false;
    }
  }
  // Escapes are rare, and some of them are line feeds.
  return *format == '\0' || (*format == '\n' && format[1] == '\0');
}

}  // namespace tvr::visa
