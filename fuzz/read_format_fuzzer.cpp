// Read formats with all that a directive can hold, each with arguments of exactly the size that it asks for, over any
// answer. The input is a number of directives, each in a few bytes, then what the instrument says (InputPeer.h).

#include <visa.h>

#include <array>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "Input.h"
#include "InputPeer.h"
#include "VisaLink.h"
#include "fake_network.h"

namespace kvtd::fuzz {
namespace {

// Without a width a text is as long as the answer is; no input is longer than this.
constexpr std::size_t kUnbounded = 1 << 20;
constexpr std::size_t kMostArguments = 12;

// A read format takes pointers alone, so that a call with more of them than it takes is a call with the right ones.
class Arguments {
 public:
  bool Full() const { return places_.size() + 2 > kMostArguments; }
  void Count(int value) {
    auto place = std::make_unique<std::byte[]>(sizeof value);
    std::memcpy(place.get(), &value, sizeof value);
    places_.push_back(std::move(place));
  }
  void Room(std::size_t size) { places_.push_back(std::make_unique<std::byte[]>(size)); }
  void* operator[](std::size_t index) const { return index < places_.size() ? places_[index].get() : nullptr; }

 private:
  std::vector<std::unique_ptr<std::byte[]>> places_;
};

std::size_t ElementSize(char code, const std::string& length) {
  const bool real = std::strchr("feEgG", code) != nullptr;
  if (length == "h") return 2;
  if (length == "l") return real ? 8 : 4;
  if (length == "ll" || length == "Z") return 8;
  if (length == "z") return 4;
  if (length == "L") return sizeof(long double);
  return code == 'b' || code == 'y' ? 1 : 4;
}

// Appends one directive and its arguments. Many are none that there is: then the call must stop there, and take
// nothing.
void AddDirective(Input& input, std::string& format, Arguments& arguments) {
  constexpr std::string_view kCodes = "diouxXfeEgGcsntTby[q";
  constexpr std::array<const char*, 7> kLengths = {"", "h", "l", "ll", "L", "z", "Z"};
  constexpr std::array<const char*, 8> kSets = {"^,]", "^\n]", "a-z]", "]x]", "^]]", "\\]0-9]", "-z]", "9-0]"};
  constexpr std::array<const char*, 3> kOrders = {"", "!ob", "!ol"};
  const char code = kCodes[input.Choice(kCodes.size())];
  const bool number = std::strchr("diouxXfeEgG", code) != nullptr;
  const std::size_t parts = input.Byte();
  const bool suppressed = (parts & 1) != 0;
  const bool has_amount = (parts & 2) != 0;
  const bool as_argument = (parts & 4) != 0;
  const auto amount = static_cast<std::size_t>(has_amount || code == 'b' || code == 'y' ? input.Byte() : 0);
  const std::string length = (parts & 8) != 0 ? kLengths[input.Choice(kLengths.size())] : "";

  format += '%';
  if (suppressed) format += '*';
  std::size_t room = code == 'c' ? 1 : kUnbounded;
  if (number) room = 1;
  if (has_amount || code == 'b' || code == 'y') {
    // A width in a number bounds its characters; its elements stand behind a comma.
    if (number && (parts & 16) != 0) format += std::to_string(input.Byte());
    if (number) format += ',';
    format += as_argument ? "#" : std::to_string(amount);
    if (as_argument && !suppressed) arguments.Count(static_cast<int>(amount));
    room = amount;
  }
  if (code == 'y') format += kOrders[input.Choice(kOrders.size())];
  format += length + code;
  if (code == '[') format += kSets[input.Choice(kSets.size())];
  const bool counted = number || code == 'b' || code == 'y' || code == 'n';
  if (code == 'n') room = 1;
  if (!suppressed) arguments.Room(room * (counted ? ElementSize(code, length) : 1));
}

std::string TakeFormat(Input& input, Arguments& arguments) {
  constexpr std::array<const char*, 8> kBetween = {"", ",", " ", "\\n", "%%", "x", "\\101", "\\\\"};
  std::string format;
  for (std::size_t left = 1 + input.Choice(4); left > 0 && !arguments.Full(); --left) {
    AddDirective(input, format, arguments);
    format += kBetween[input.Choice(kBetween.size())];
  }
  return format;
}

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kvtd::fuzz;
  Input input(data, size);
  InputPeer peer(input);
  const FakeNetwork network({&peer});
  VisaLink link("TCPIP::127.0.0.1::5025::SOCKET");
  viSetAttribute(link.session(), VI_ATTR_TERMCHAR_EN, input.Bool() ? VI_TRUE : VI_FALSE);
  viSetBuf(link.session(), VI_READ_BUF, 1 + input.Byte());
  for (int calls = 0; calls < 8 && !input.empty(); ++calls) {
    Arguments to;
    const std::string format = TakeFormat(input, to);
    link.Make([&](ViSession vi) {
      return viScanf(vi, format.c_str(), to[0], to[1], to[2], to[3], to[4], to[5], to[6], to[7], to[8], to[9], to[10],
                     to[11]);
    });
  }
  return 0;
}
