#include "format/read_format.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>
#include <type_traits>

#include "format/block_scan.h"
#include "format/directive.h"
#include "format/number_scan.h"
#include "format/scan_set.h"
#include "format/short_decimal.h"

namespace tvr::visa {
namespace {

// Where the characters of a text directive go.
struct TextTarget {
  int* size = nullptr;  // for #: the size going in, the number stored coming out
  char* text = nullptr;
  std::size_t most = std::numeric_limits<std::size_t>::max();
  std::size_t stored = 0;

  // What does not fit is dropped.
  void Store(std::string_view piece) {
    const std::size_t count = std::min(piece.size(), most - stored);
    if (text != nullptr) std::memcpy(text + stored, piece.data(), count);
    stored += count;
  }
  void Finish(bool with_nul) {
    if (with_nul && text != nullptr) text[stored] = '\0';
    if (size != nullptr) *size = static_cast<int>(stored);
  }
};

class Reader {
 public:
  Reader(Args& args, ReadStream& in) : args_(args), in_(in) {}

  ViStatus Read(const char* format);

 private:
  static bool LeavesNumberOut(const char* format);
  template <class Element>
  bool TakeOneNumber();
  ViStatus Literal(ViByte wanted);
  ViStatus Convert(const ReadDirective& directive);
  ViStatus Discard(char code);
  ViStatus ConvertText(const ReadDirective& directive);
  ViStatus Collect(const ReadDirective& directive, TextTarget& target);
  ViStatus ConvertNumbers(const ReadDirective& directive);
  template <class Element>
  ViStatus Numbers(const ReadDirective& directive);
  ViStatus StoreCount(const ReadDirective& directive);
  ViStatus NoMatch() const { return in_.status() < 0 ? in_.status() : VI_ERROR_INV_FMT; }

  Args& args_;
  ReadStream& in_;
};

// "%lf%*t" and its like: a number, and the rest of the message away. Nearly every query reads with one of these.
bool IsNumberAndRest(const char* format) {
  return format[0] == '%' && format[1] == 'l' && (format[2] == 'f' || format[2] == 'd') && format[3] == '%' &&
         format[4] == '*' && (format[5] == 't' || format[5] == 'T') && format[6] == '\0';
}

ViStatus Reader::Read(const char* format) {
  if (IsNumberAndRest(format) && (format[2] == 'f' ? TakeOneNumber<double>() : TakeOneNumber<ViInt32>())) {
    return Discard(format[5]);
  }
  while (*format != '\0' && !in_.ended()) {
    const char c = *format++;
    ViStatus status = VI_SUCCESS;
    if (c == '%' && *format != '%') {
      ReadDirective directive;
      if (!ParseReadDirective(format, directive)) return VI_ERROR_INV_FMT;
      status = Convert(directive);
    } else {
      if (c == '%') ++format;
      const ViByte wanted = c == '\\' ? ParseEscape(format) : static_cast<ViByte>(c);
      if (!IsSpace(wanted)) status = Literal(wanted);
    }
    if (status < 0) return status;
  }
  return LeavesNumberOut(format) ? VI_ERROR_INV_FMT : VI_SUCCESS;
}

// What the message was too short for stays as it was. A text may do that; a number that never came must not pass for
// one.
bool Reader::LeavesNumberOut(const char* format) {
  while (*format != '\0') {
    if (*format++ != '%') continue;
    if (*format == '%') {
      ++format;
      continue;
    }
    ReadDirective directive;
    if (!ParseReadDirective(format, directive)) return false;
    if (IsNumber(directive.kind) && !directive.suppressed && directive.size.given == Given::kNot) return true;
  }
  return false;
}

ViStatus Reader::Literal(ViByte wanted) {
  const int next = in_.Peek();
  if (next < 0) return in_.ended() ? VI_SUCCESS : in_.status();
  // An answer with fewer fields than the format asks for has ended; it does not fail to match.
  if (next == wanted || in_.AtTerminator()) {
    in_.Take();
    return VI_SUCCESS;
  }
  return VI_ERROR_INV_FMT;
}

ViStatus Reader::Convert(const ReadDirective& directive) {
  switch (directive.kind) {
    case Kind::kInteger:
    case Kind::kReal:
      return ConvertNumbers(directive);
    case Kind::kBlock:
      return ReadBlock(directive, args_, in_);
    case Kind::kCount:
      return StoreCount(directive);
    default:
      return ConvertText(directive);
  }
}

// %*t and %*T: nearly every query ends with one of them.
ViStatus Reader::Discard(char code) {
  for (;;) {
    const std::string_view window = in_.Window();
    if (window.empty()) return in_.ended() ? VI_SUCCESS : in_.status();
    const std::size_t line_feed = code == 'T' ? window.find('\n') : std::string_view::npos;
    const bool done = line_feed != std::string_view::npos;
    in_.TakeMany(done ? line_feed + 1 : window.size());
    if (done || in_.ended()) return VI_SUCCESS;
  }
}

ViStatus Reader::ConvertText(const ReadDirective& directive) {
  if (directive.suppressed && (directive.code == 't' || directive.code == 'T')) return Discard(directive.code);
  const bool with_nul = directive.code != 'c';
  const std::size_t reserved = with_nul ? 1 : 0;
  TextTarget target;
  if (directive.width.given == Given::kAsArgument) {
    target.size = args_.Next<int*>();
    if (target.size == nullptr) return VI_ERROR_USER_BUF;
    if (*target.size < static_cast<int>(reserved)) return VI_ERROR_INV_FMT;
    target.most = static_cast<std::size_t>(*target.size) - reserved;
  } else if (directive.width.given == Given::kInFormat) {
    target.most = static_cast<std::size_t>(directive.width.value) - reserved;
  } else if (!with_nul) {
    target.most = 1;
  }
  if (!directive.suppressed) {
    target.text = args_.Next<char*>();
    if (target.text == nullptr) return VI_ERROR_USER_BUF;
  }
  if (directive.code == 's') {
    in_.SkipSpace();
    if (in_.ended()) return VI_SUCCESS;
  }
  const ViStatus status = Collect(directive, target);
  // With a failure the text is cut, but it is a text.
  target.Finish(with_nul);
  return status;
}

std::size_t LengthBefore(std::string_view text, bool (*stops)(char)) {
  return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), stops) - text.begin());
}

ViStatus Reader::Collect(const ReadDirective& directive, TextTarget& target) {
  std::optional<ScanSet> set;
  if (directive.code == '[') set.emplace(directive.set);
  // Of these two, what is beyond the size stays for the next directive; the others drop it.
  const bool leaves_surplus = directive.code == 'c' || directive.code == '[';
  for (;;) {
    if (leaves_surplus && target.stored == target.most) return VI_SUCCESS;
    const std::string_view window = in_.Window();
    if (window.empty()) return in_.ended() ? VI_SUCCESS : in_.status();
    std::size_t count = window.size();
    bool done = false;
    switch (directive.code) {
      case 'c':
        count = std::min(count, target.most - target.stored);
        break;
      case 's':
        count = LengthBefore(window, [](char c) { return IsSpace(static_cast<unsigned char>(c)); });
        done = count < window.size();
        break;
      case '[': {
        // The line feed that ended the message is no character of a field, whatever the set says.
        const std::size_t text = window.size() - (in_.WindowEndsWithTerminator() ? 1 : 0);
        const std::size_t most = std::min(text, target.most - target.stored);
        count = 0;
        while (count < most && set->Contains(static_cast<ViByte>(window[count]))) ++count;
        done = count < most || (count == text && text < window.size());
        break;
      }
      case 'T':
        count = std::min(LengthBefore(window, [](char c) { return c == '\n'; }) + 1, window.size());
        done = window[count - 1] == '\n';
        break;
      default:  // t: to the end of the message
        break;
    }
    target.Store(window.substr(0, count));
    in_.TakeMany(count);
    if (done || in_.ended()) return VI_SUCCESS;
  }
}

// A number in plain notation that is seen whole: no byte behind the window could go on with it. Most are so, and need
// no look at each byte by itself. False: nothing has been taken.
template <class Element>
bool TakePlainNumber(ReadStream& in, Element& value) {
  const std::string_view window = in.Window();
  const char* const last = window.data() + window.size();
  const char* const digit = window.data() + (window.starts_with('-') ? 1 : 0);
  if (digit == last || *digit < '0' || *digit > '9') return false;
  Element found{};
  const char* end = nullptr;
  if constexpr (std::is_same_v<Element, double>) end = ScanShortDecimal(window.data(), last, found);
  if (end == nullptr || (end != last && (*end == 'e' || *end == 'E'))) {
    const auto result = std::from_chars(window.data(), last, found);
    if (result.ec != std::errc()) return false;
    end = result.ptr;
  }
  if (end == last) return false;
  if (*end == 'e' || *end == 'E' || (std::is_integral_v<Element> && *end == '.')) return false;
  in.TakeMany(static_cast<std::size_t>(end - window.data()));
  value = found;
  return true;
}

// False: the directive has to be looked at, and nothing has been taken.
template <class Element>
bool Reader::TakeOneNumber() {
  Element* const target = args_.Peek<Element*>();
  return target != nullptr && TakePlainNumber(in_, *target);
}

template <class Element>
void Put(Element* target, std::size_t index, const ScannedNumber& number) {
  if constexpr (std::is_floating_point_v<Element>) {
    target[index] = number.As<Element>();
  } else if constexpr (std::is_signed_v<Element>) {
    using Limits = std::numeric_limits<Element>;
    target[index] = static_cast<Element>(number.Signed(Limits::min(), Limits::max()));
  } else {
    target[index] = static_cast<Element>(number.Unsigned(std::numeric_limits<Element>::max()));
  }
}

template <class Element>
ViStatus Reader::Numbers(const ReadDirective& directive) {
  int* const count_out = directive.size.given == Given::kAsArgument ? args_.Next<int*>() : nullptr;
  if (directive.size.given == Given::kAsArgument && count_out == nullptr) return VI_ERROR_USER_BUF;
  const int count = count_out != nullptr                       ? *count_out
                    : directive.size.given == Given::kInFormat ? directive.size.value
                                                               : 1;
  if (count < 0) return VI_ERROR_INV_FMT;
  Element* const target = directive.suppressed ? nullptr : args_.Next<Element*>();
  if (target == nullptr && !directive.suppressed) return VI_ERROR_USER_BUF;

  const int base = directive.code == 'x' || directive.code == 'X' ? 16 : directive.code == 'o' ? 8 : 10;
  const auto width = static_cast<std::size_t>(directive.width.value);
  int stored = 0;
  ViStatus status = VI_SUCCESS;
  while (stored < count) {
    if (stored > 0) {
      if (in_.Peek() != ',') break;
      in_.Take();
    }
    in_.SkipSpace(true);
    if (in_.ended()) {
      if (stored == 0 && directive.size.given == Given::kNot && !directive.suppressed) status = VI_ERROR_INV_FMT;
      break;
    }
    if (base == 10 && width == 0 && target != nullptr && TakePlainNumber(in_, target[stored])) {
      ++stored;
      continue;
    }
    ScannedNumber number;
    if (!number.Scan(in_, base, width)) {
      status = NoMatch();
      break;
    }
    if (in_.status() < 0) break;
    if (target != nullptr) Put(target, static_cast<std::size_t>(stored), number);
    ++stored;
  }
  if (count_out != nullptr) *count_out = stored;
  return status < 0 ? status : in_.status();
}

ViStatus Reader::ConvertNumbers(const ReadDirective& directive) {
  const Length length = directive.length;
  if (directive.kind == Kind::kReal) {
    if (length == Length::kLongDouble) return Numbers<long double>(directive);
    return length == Length::kL ? Numbers<double>(directive) : Numbers<float>(directive);
  }
  const bool is_signed = directive.code == 'd' || directive.code == 'i';
  switch (length) {
    case Length::kH:
      return is_signed ? Numbers<ViInt16>(directive) : Numbers<ViUInt16>(directive);
    case Length::kLL:
      return is_signed ? Numbers<ViInt64>(directive) : Numbers<ViUInt64>(directive);
    default:
      // A VISA long has 32 bits.
      return is_signed ? Numbers<ViInt32>(directive) : Numbers<ViUInt32>(directive);
  }
}

ViStatus Reader::StoreCount(const ReadDirective& directive) {
  if (directive.suppressed) return VI_SUCCESS;
  void* const target = args_.Next<void*>();
  if (target == nullptr) return VI_ERROR_USER_BUF;
  if (directive.length == Length::kH) {
    *static_cast<ViInt16*>(target) = static_cast<ViInt16>(in_.taken());
  } else if (directive.length == Length::kLL) {
    *static_cast<ViInt64*>(target) = static_cast<ViInt64>(in_.taken());
  } else {
    *static_cast<ViInt32*>(target) = static_cast<ViInt32>(in_.taken());
  }
  return VI_SUCCESS;
}

}  // namespace

ViStatus ReadFormat(const char* format, Args& args, ReadStream& in) { return Reader(args, in).Read(format); }

}  // namespace tvr::visa
