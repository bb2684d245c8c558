#include "Reading.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <limits>
#include <map>
#include <optional>
#include <string_view>
#include <type_traits>

namespace kvtd::test {
namespace {

constexpr std::string_view kBlanks = " \t\r\v\f\n";
constexpr std::string_view kBlanksOfALine = kBlanks.substr(0, kBlanks.size() - 1);

// These ask for something else than their outputs tell.
const std::map<std::string_view, Reading> kOthers = {
    {"error_query", Reading::kOther},                  // a number and a text, taken apart by the driver
    {"CheckForFirmwareUpdates", Reading::kOther},      // a text and a boolean
    {"self_test", Reading::kOther},                    // a short integer, and a text of the driver's
    {"WaitForOperationComplete", Reading::kOther},     // an integer that must be 1
    {"ReadFile", Reading::kOther},                     // a block that is taken apart by the driver
    {"TakeScreenshotAndReturnData", Reading::kOther},  // a block
    {"GetSystemDate", Reading::kNumbers},
    {"GetSystemTime", Reading::kNumbers},
    // Whether single steps are on.
    {"ResetFrequencyStep", Reading::kBoolean},
    {"ResetPowerStep", Reading::kBoolean},
};

struct Expected {
  ViStatus status;
  // Of what is given out; nothing where a reading that was broken off leaves it open.
  std::optional<std::string> outputs;
};

template <class T>
std::string BytesOf(T value) {
  return {reinterpret_cast<const char*>(&value), sizeof value};
}

std::string Untouched(std::size_t size) { return std::string(size, static_cast<char>(GuardedMemory::kUntouched)); }

std::string Trimmed(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  text.remove_prefix(begin);
  return std::string(text.substr(0, text.find_last_not_of(kBlanks) + 1));
}

// Goes through the bytes as a conversion does.
class Scan {
 public:
  Scan(const std::string& bytes, End end) : rest_(bytes), end_(end) {}

  // VI_SUCCESS, or why there is no number. Empty lines are passed over as long as nothing else has come.
  ViStatus Number(double& value) {
    const std::string_view blanks = has_begun_ ? kBlanksOfALine : kBlanks;
    rest_.remove_prefix(std::min(rest_.find_first_not_of(blanks), rest_.size()));
    if (rest_.empty()) return BehindTheEnd();
    has_begun_ = true;
    const std::string number(rest_.substr(0, LengthOfNumber()));
    if (number.empty()) return kVisaInvalidFormat;
    rest_.remove_prefix(number.size());
    value = std::strtod(number.c_str(), nullptr);
    return VI_SUCCESS;
  }
  ViStatus Comma() {
    if (rest_.empty()) return BehindTheEnd();
    if (!rest_.starts_with(',')) return kVisaInvalidFormat;
    rest_.remove_prefix(1);
    return VI_SUCCESS;
  }
  // What is left of the line.
  ViStatus Line(std::string& line) {
    const std::size_t end = rest_.find('\n');
    line = rest_.substr(0, end);
    return end == std::string_view::npos && end_ == End::kOpen ? kVisaTimeout : VI_SUCCESS;
  }

 private:
  ViStatus BehindTheEnd() const { return end_ == End::kOpen ? kVisaTimeout : kVisaInvalidFormat; }

  // Of decimal notation, with or without an exponent.
  std::size_t LengthOfNumber() const {
    const auto digits_from = [this](std::size_t place) {
      return std::min(rest_.find_first_not_of("0123456789", place), rest_.size());
    };
    const std::size_t begin = rest_.find_first_of("+-") == 0 ? 1 : 0;
    std::size_t end = digits_from(begin);
    std::size_t digits = end - begin;
    if (rest_.substr(end).starts_with('.')) {
      const std::size_t behind = digits_from(end + 1);
      digits += behind - end - 1;
      end = behind;
    }
    if (digits == 0) return 0;
    if (end < rest_.size() && std::toupper(rest_[end]) == 'E') {
      const std::size_t sign = rest_.find_first_of("+-", end) == end + 1 ? 1 : 0;
      const std::size_t behind = digits_from(std::min(end + 1 + sign, rest_.size()));
      if (behind > end + 1 + sign) end = behind;
    }
    return end;
  }

  std::string_view rest_;
  const End end_;
  bool has_begun_ = false;
};

ViInt32 Whole(double value) {
  constexpr double kLeast = std::numeric_limits<ViInt32>::min();
  constexpr double kMost = std::numeric_limits<ViInt32>::max();
  return static_cast<ViInt32>(std::clamp(value, kLeast, kMost));
}

Expected OfNumber(Reading reading, Scan scan, std::size_t size) {
  double value = 0;
  if (const ViStatus status = scan.Number(value); status < 0) return {status, Untouched(size)};
  std::string rest;
  if (const ViStatus status = scan.Line(rest); status < 0) return {status, {}};
  if (reading == Reading::kReal) return {VI_SUCCESS, BytesOf<ViReal64>(value)};
  if (reading == Reading::kNumber) return {VI_SUCCESS, {}};
  return {VI_SUCCESS, BytesOf<ViInt32>(Whole(value))};
}

Expected OfNumbers(Scan scan) {
  for (int i = 0; i < 3; ++i) {
    double value = 0;
    if (i > 0) {
      if (const ViStatus status = scan.Comma(); status < 0) return {status, {}};
    }
    if (const ViStatus status = scan.Number(value); status < 0) return {status, {}};
  }
  std::string rest;
  return {scan.Line(rest), {}};
}

// A word that stands for no value may leave one that is none.
Expected OfWord(const Subject& subject, bool is_boolean, Scan scan) {
  std::string line;
  if (const ViStatus status = scan.Line(line); status < 0) return {status, Untouched(subject.ordinary.outputs.size())};
  // A word ends with a character of value 0.
  const std::string word = Trimmed(line.c_str());
  if (is_boolean && (word == "1" || word == "0")) {
    return {VI_SUCCESS, BytesOf<ViBoolean>(word == "1" ? VI_TRUE : VI_FALSE)};
  }
  if (!is_boolean && word == Trimmed(subject.answer)) return {*subject.ordinary.status, subject.ordinary.outputs};
  return {kUnexpectedResponse, {}};
}

bool IsLeftOrNoValue(const std::string& outputs) {
  return std::all_of(outputs.begin(), outputs.end(), [&](char c) {
    return c == outputs.front() && (c == '\xFF' || c == static_cast<char>(GuardedMemory::kUntouched));
  });
}

// The size to offer, in the place of the status of an attribute's text that was cut.
constexpr ViStatus kCut = 4096;

Expected OfText(Scan scan) {
  std::string line;
  if (const ViStatus status = scan.Line(line); status < 0) return {status, {}};
  const std::string text = line.substr(0, Arguments::kRoom - 1) + '\0';
  return {line.size() < Arguments::kRoom ? ViStatus{VI_SUCCESS} : kCut,
          text + Untouched(Arguments::kRoom - text.size())};
}

Expected ExpectedOf(const Subject& subject, Reading reading, Scan scan) {
  switch (reading) {
    case Reading::kNumbers:
      return OfNumbers(scan);
    case Reading::kBoolean:
    case Reading::kWord:
      return OfWord(subject, reading == Reading::kBoolean, scan);
    case Reading::kText:
      return OfText(scan);
    default:
      return OfNumber(reading, scan, subject.ordinary.outputs.size());
  }
}

}  // namespace

Reading ReadingOf(const Subject& subject) {
  const auto other = kOthers.find(subject.call.function);
  if (other != kOthers.end()) return other->second;
  // Nothing suits what asks for a word first and for a number then.
  const bool suits = subject.ordinary.status && *subject.ordinary.status >= 0;
  if (!suits || std::isupper(static_cast<unsigned char>(subject.answer.front())) != 0) return Reading::kWord;
  switch (subject.call.output) {
    case Output::kReal:
      return Reading::kReal;
    case Output::kInteger:
      return Reading::kInteger;
    case Output::kBoolean:
      return Reading::kBoolean;
    case Output::kText:
      return Reading::kText;
    default:
      return Reading::kNumber;
  }
}

testing::AssertionResult IsRight(const Subject& subject, const std::string& bytes, End end, const Outcome& outcome) {
  const Reading reading = ReadingOf(subject);
  if (reading == Reading::kOther) {
    // A message of the error queue begins with a number; what does not leaves as the conversion's exception.
    const bool left = !outcome.status && subject.call.is("error_query");
    return left || outcome.IsOneOf({VI_SUCCESS, kVisaTimeout, kVisaInvalidFormat, kUnexpectedResponse})
               ? testing::AssertionSuccess()
               : testing::AssertionFailure() << testing::PrintToString(outcome);
  }
  const Expected expected = ExpectedOf(subject, reading, Scan(bytes, end));
  bool is_right = outcome.IsOneOf({expected.status});
  // A text that no attribute is fills its buffer and says nothing of it.
  if (expected.status == kCut && !subject.call.is_generic()) is_right = outcome.IsOneOf({VI_SUCCESS, kCut});
  // Of several questions the first may be answered, and the next not.
  if (subject.ordinary.exchanges == 1) {
    if (expected.outputs) is_right = is_right && outcome.outputs == *expected.outputs;
    if (expected.status == kUnexpectedResponse) is_right = is_right && IsLeftOrNoValue(outcome.outputs);
  }
  if (is_right) return testing::AssertionSuccess();
  return testing::AssertionFailure() << testing::PrintToString(outcome) << "\n  in place of " << std::hex
                                     << expected.status << std::dec << " with "
                                     << Visible(expected.outputs.value_or("whatever").substr(0, 40));
}

Integer ReadInteger(const std::string& bytes, End end) {
  Scan scan(bytes, end);
  double value = 0;
  ViStatus status = scan.Number(value);
  std::string rest;
  if (status >= 0) status = scan.Line(rest);
  return {status, Whole(value)};
}

const std::vector<std::string>& FalseAnswers() {
  static const std::vector<std::string> kAnswers = {"\n",
                                                    " \n",
                                                    "\r\n",
                                                    "1\r\n",
                                                    "noise 1\n",
                                                    "-\n",
                                                    "+\n",
                                                    ".\n",
                                                    "1e\n",
                                                    "0x10\n",
                                                    "NAN\n",
                                                    "INF\n",
                                                    "-INF\n",
                                                    "9.91E37\n",
                                                    "1E999\n",
                                                    "-1E-999\n",
                                                    "99999999999999999999\n",
                                                    Literal("\0\n"),
                                                    Literal("1\0\n"),
                                                    Literal("\0\0\0\0\0\0\0\0"
                                                            "1\n"),
                                                    "\xFF\xFE\n",
                                                    ",,,,\n",
                                                    ";\n",
                                                    "\"\n",
                                                    "\"\"\"\n",
                                                    "1,\n",
                                                    ",1\n",
                                                    "%s%n%d\n",
                                                    "#\n",
                                                    "#0\n",
                                                    "#0abc\n",
                                                    "#1\n",
                                                    "#15ab\n",
                                                    "#12abcdef\n",
                                                    "#210abc\n",
                                                    "#2-5abc\n",
                                                    "#2 5abc\n",
                                                    "#9999999999\n",
                                                    "#:1\n",
                                                    std::string(5000, '7') + "\n",
                                                    std::string(5000, 'A') + "\n",
                                                    std::string(5000, ' ') + "\n",
                                                    std::string(5000, ',') + "\n",
                                                    std::string(2500, '"') + std::string(2500, '0') + "\n"};
  return kAnswers;
}

}  // namespace kvtd::test
