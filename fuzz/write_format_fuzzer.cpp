// Write formats with all that a directive can hold, and any value. Where C has the same directive, both must print the
// same. The input is directives, each in a few bytes, with their values.

#include <visa.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "Input.h"
#include "Require.h"
#include "VisaLink.h"
#include "fake_network.h"

namespace kvtd::fuzz {
namespace {

class Listener : public Peer {
 public:
  void Hear(std::string_view bytes) override { heard_ += bytes; }
  Speech Speak() override { return {Speech::Kind::kClose, {}, {}}; }
  std::string Take() { return std::exchange(heard_, {}); }

 private:
  std::string heard_;
};

// The numbers that a star takes from the arguments, in front of the value.
struct Stars {
  std::array<int, 2> values{};
  std::size_t count = 0;
};

template <class Call, class... Values>
auto WithStars(const Stars& stars, Call call, Values... values) {
  switch (stars.count) {
    case 0:
      return call(values...);
    case 1:
      return call(stars.values[0], values...);
    default:
      return call(stars.values[0], stars.values[1], values...);
  }
}

template <class... Values>
ViStatus Print(VisaLink& link, const std::string& format, const Stars& stars, Values... values) {
  return WithStars(
      stars, [&](auto... all) { return link.Make([&](ViSession vi) { return viPrintf(vi, format.c_str(), all...); }); },
      values...);
}

#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"

template <class... Values>
std::string InC(const std::string& format, const Stars& stars, Values... values) {
  std::vector<char> text(8192);
  const int length = WithStars(
      stars, [&](auto... all) { return std::snprintf(text.data(), text.size(), format.c_str(), all...); }, values...);
  Require(length >= 0 && static_cast<std::size_t>(length) < text.size(), "what C prints fits");
  return {text.data(), static_cast<std::size_t>(length)};
}

// "-12", "*" or nothing. The largest field is small enough for a run to be quick.
std::string TakeAmount(Input& input, Stars& stars) {
  switch (input.Choice(4)) {
    case 0:
      return std::to_string(input.Byte());
    case 1:
      stars.values[stars.count++] = static_cast<std::int8_t>(input.Byte());
      return "*";
    default:
      return "";
  }
}

struct Directive {
  std::string head;  // percent sign, flags, width, precision
  Stars stars;
  bool has_form = false;
};

Directive TakeHead(Input& input) {
  constexpr std::array<const char*, 8> kFlags = {"", "-", "+", " ", "0", "#", "@1", "@H"};
  constexpr std::array<const char*, 4> kForms = {"@2", "@3", "@Q", "@B"};
  Directive directive;
  directive.head = "%";
  const std::size_t flags = input.Byte();
  for (std::size_t bit = 1; bit < kFlags.size() - 2; ++bit) {
    if ((flags >> bit & 1) != 0) directive.head += kFlags[bit];
  }
  directive.has_form = (flags & 0xC0) == 0xC0;
  if (directive.has_form) {
    const std::size_t form = input.Choice(6);
    directive.head += form < 4 ? kForms[form] : kFlags[form + 2];
  }
  directive.head += TakeAmount(input, directive.stars);
  if (input.Bool()) directive.head += "." + TakeAmount(input, directive.stars);
  return directive;
}

// A directive with one number. C is asked where the form is its own.
template <class Value>
void PrintNumber(VisaLink& link, Listener& listener, const Directive& directive, const std::string& code,
                 const std::string& code_in_c, Value value) {
  const ViStatus status = Print(link, directive.head + code + "\n", directive.stars, value);
  const std::string sent = listener.Take();
  if (directive.has_form || status < 0) return;
  const std::string expected = InC(directive.head + code_in_c, directive.stars, value) + "\n";
  if (sent != expected) std::fprintf(stderr, "%s: C has %s", sent.c_str(), expected.c_str());
  Require(sent == expected, "a number is printed as C prints it");
}

template <class Value>
void PrintArray(VisaLink& link, Listener& listener, Input& input, const Directive& directive, const std::string& code) {
  std::vector<Value> values(input.Choice(100));
  for (Value& value : values) value = input.Number<Value>();
  const std::string format = directive.head + "," + std::to_string(values.size()) + code + "\n";
  Print(link, format, directive.stars, values.data());
  listener.Take();
}

template <class Real>
void PrintReals(VisaLink& link, Listener& listener, Input& input, const Directive& directive, const std::string& code) {
  std::vector<Real> values(input.Choice(100));
  for (Real& value : values) {
    const auto bits = input.Number<std::uint64_t>();
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    value = static_cast<Real>(std::fabs(number) > 1e30 ? 1.5 : number);
  }
  const std::string format = directive.head + "," + std::to_string(values.size()) + code + "\n";
  Print(link, format, directive.stars, values.data());
  listener.Take();
}

void PrintBlock(VisaLink& link, Listener& listener, Input& input) {
  constexpr std::array<const char*, 6> kCodes = {"b", "B", "y", "hb", "!oly", "!obly"};
  constexpr std::array<std::size_t, 6> kElements = {1, 1, 1, 2, 1, 4};
  const std::size_t kind = input.Choice(kCodes.size());
  std::string bytes = input.Text();
  bytes.resize(bytes.size() / kElements[kind] * kElements[kind]);
  const std::vector<char> exactly(bytes.begin(), bytes.end());
  const auto count = static_cast<int>(bytes.size() / kElements[kind]);
  const std::string format = std::string("%*") + kCodes[kind];
  const ViStatus status = link.Make([&](ViSession vi) { return viPrintf(vi, format.c_str(), count, exactly.data()); });
  Require(status >= 0, "a block can be written");
  link.Make([](ViSession vi) { return viFlush(vi, VI_WRITE_BUF); });
  const std::string sent = listener.Take();
  if (kind == 0) {
    const std::string digits = std::to_string(bytes.size());
    Require(sent == "#" + std::to_string(digits.size()) + digits + bytes, "a block stands behind its header");
  }
}

void PrintOne(VisaLink& link, Listener& listener, Input& input) {
  const std::size_t kind = input.Choice(12);
  if (kind == 0) return PrintBlock(link, listener, input);
  const Directive directive = TakeHead(input);
  switch (kind) {
    case 1: {
      const auto value = input.Number<std::uint64_t>();
      double number = 0;
      std::memcpy(&number, &value, sizeof number);
      constexpr std::string_view kCodes = "feEgG";
      const std::string code(1, kCodes[input.Choice(kCodes.size())]);
      if (std::isnan(number)) return;  // C prints the sign of a NaN
      return PrintNumber(link, listener, directive, "l" + code, code, number);
    }
    case 2:
    case 3: {
      constexpr std::string_view kCodes = "dioxXu";
      const std::string code(1, kCodes[input.Choice(kCodes.size())]);
      if (kind == 2) return PrintNumber(link, listener, directive, "l" + code, code, input.Number<int>());
      return PrintNumber(link, listener, directive, "ll" + code, "ll" + code, input.Number<long long>());
    }
    case 4: {
      const std::string text = input.Text();
      return PrintNumber(link, listener, directive, "s", "s", std::string(text.c_str()).c_str());
    }
    case 5:
      return PrintArray<ViInt16>(link, listener, input, directive, "hd");
    case 6:
      return PrintArray<ViInt32>(link, listener, input, directive, "lx");
    case 7:
      return PrintArray<ViInt64>(link, listener, input, directive, "llu");
    case 8:
      return PrintReals<float>(link, listener, input, directive, "f");
    case 9:
      return PrintReals<double>(link, listener, input, directive, "lf");
    case 10:
      return PrintReals<long double>(link, listener, input, directive, "Lg");
    default: {
      // No directive, or none that there is: nothing is taken, nothing sent.
      std::string text = input.Text();
      for (char& c : text) c = c == '%' || c == '\\' ? '$' : c;
      const ViStatus status =
          link.Make([&](ViSession vi) { return viPrintf(vi, (std::string(text.c_str()) + "%q\n").c_str()); });
      Require(status == VI_ERROR_INV_FMT, "a bad directive is refused");
      listener.Take();
    }
  }
}

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kvtd::fuzz;
  Input input(data, size);
  Listener listener;
  const FakeNetwork network({&listener});
  VisaLink link("TCPIP::127.0.0.1::5025::SOCKET");
  for (int calls = 0; calls < 16 && !input.empty(); ++calls) PrintOne(link, listener, input);
  return 0;
}
