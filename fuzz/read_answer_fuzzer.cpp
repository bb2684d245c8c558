// Any answer, in any pieces, under the formats that the driver reads answers with. Every buffer is exactly as large as
// the driver says that it is. The input is queries: a byte for the format, one for the size of the buffers, and what
// the instrument says (InputPeer.h).

#include <visa.h>

#include <cstring>
#include <vector>

#include "Input.h"
#include "InputPeer.h"
#include "Require.h"
#include "VisaLink.h"
#include "fake_network.h"

namespace kvtd::fuzz {
namespace {

// What a text query is given, and how full it may come back.
class TextBuffer {
 public:
  explicit TextBuffer(std::size_t size) : text_(size, '?'), size_(static_cast<ViInt32>(size)) {}
  ViChar* text() { return text_.data(); }
  ViInt32* size() { return &size_; }
  void RequireText() {
    if (!text_.empty()) Require(std::memchr(text_.data(), '\0', text_.size()) != nullptr, "a text ends in its buffer");
  }
  void RequireWhole() {
    RequireText();
    Require(size_ >= 0 && static_cast<std::size_t>(size_) < text_.size(), "a text is counted without its end");
    Require(text_[static_cast<std::size_t>(size_)] == '\0', "a text ends where its count says");
  }

 private:
  std::vector<ViChar> text_;
  ViInt32 size_;
};

template <class Number>
void AskNumber(VisaLink& link, const char* format) {
  Number number = 77;
  link.Make([&](ViSession vi) { return viQueryf(vi, "X?\n", format, &number); });
}

void AskText(VisaLink& link, const char* format, std::size_t size) {
  TextBuffer buffer(size);
  const ViStatus status =
      link.Make([&](ViSession vi) { return viQueryf(vi, "X?\n", format, buffer.size(), buffer.text()); });
  if (status >= 0 && size > 0) buffer.RequireWhole();
}

void AskTwoTexts(VisaLink& link, std::size_t size) {
  TextBuffer first(size);
  TextBuffer second(size);
  const ViStatus status = link.Make([&](ViSession vi) {
    return viQueryf(vi, "X?\n", "%#[^\n,],%#[^\n]%*t", first.size(), first.text(), second.size(), second.text());
  });
  if (status >= 0 && size > 0) first.RequireWhole();
}

void AskIdentity(VisaLink& link) {
  ViChar fields[4][256] = {};
  link.Make([&](ViSession vi) {
    return viQueryf(vi, "*IDN?\n", "%256[^,],%256[^,],%256[^,],%256[^,]%*T", fields[0], fields[1], fields[2],
                    fields[3]);
  });
  for (const auto& field : fields) {
    Require(std::memchr(field, '\0', sizeof field) != nullptr, "a field ends in its buffer");
  }
}

void AskBlock(VisaLink& link, std::size_t size) {
  std::vector<ViByte> data(size);
  auto count = static_cast<ViInt32>(size);
  link.Make([&](ViSession vi) { return viQueryf(vi, "X?\n", "%#b", &count, data.data()); });
  Require(count >= 0 && static_cast<std::size_t>(count) <= size, "a block is counted within its buffer");
}

void AskThree(VisaLink& link) {
  ViInt32 numbers[3] = {7, 7, 7};
  link.Make(
      [&](ViSession vi) { return viQueryf(vi, "X?\n", "%ld,%ld,%ld%*t", &numbers[0], &numbers[1], &numbers[2]); });
}

void Ask(VisaLink& link, Input& input) {
  const std::size_t format = input.Choice(12);
  const std::size_t size = input.Byte();
  switch (format) {
    case 0:
      return AskNumber<ViInt32>(link, "%ld%*T");
    case 1:
      return AskNumber<ViInt32>(link, "%ld%*t");
    case 2:
      return AskNumber<ViReal64>(link, "%lf%*t");
    case 3:
      return AskNumber<ViInt16>(link, "%hd%*T");
    case 4:
      return AskText(link, "%#[^\n]%*t", size);
    case 5:
      return AskText(link, "%#[^\n]%*T", size);
    case 6:
      return AskTwoTexts(link, size);
    case 7:
      return AskIdentity(link);
    case 8:
      return AskBlock(link, size);
    case 9:
      return AskThree(link);
    case 10:
      link.Make([](ViSession vi) { return viClear(vi); });
      return;
    default: {
      std::vector<ViByte> bytes(size);
      ViUInt32 count = 0;
      link.Make([&](ViSession vi) { return viRead(vi, bytes.data(), static_cast<ViUInt32>(size), &count); });
      Require(count <= size, "a read is counted within its buffer");
    }
  }
}

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kvtd::fuzz;
  Input input(data, size);
  InputPeer peer(input);
  const FakeNetwork network({&peer});
  VisaLink link("TCPIP::127.0.0.1::5025::SOCKET");
  viSetAttribute(link.session(), VI_ATTR_TERMCHAR_EN, VI_TRUE);
  while (!input.empty()) Ask(link, input);
  return 0;
}
