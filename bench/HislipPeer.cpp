#include "HislipPeer.h"

#include <algorithm>

#include "Input.h"

namespace bench {
namespace {

constexpr std::size_t kHeader = 16;
constexpr std::size_t kMostPayload = (std::size_t{1} << 20) - kHeader;

enum Type : unsigned char {
  kInitialize = 0,
  kInitializeResponse = 1,
  kData = 6,
  kDataEnd = 7,
  kMaximumMessageSize = 15,
  kMaximumMessageSizeResponse = 16,
  kAsyncInitialize = 17,
  kAsyncInitializeResponse = 18,
};

std::string Header(Type type, std::uint32_t parameter, std::uint64_t length) {
  std::string bytes = {'H', 'S', static_cast<char>(type), 0};
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(parameter >> shift);
  for (int shift = 56; shift >= 0; shift -= 8) bytes += static_cast<char>(length >> shift);
  return bytes;
}

bool SendAnswer(int connection, std::uint32_t id, std::string_view answer) {
  while (answer.size() > kMostPayload) {
    if (!SendAll(connection, Header(kData, id, kMostPayload)) || !SendAll(connection, answer.substr(0, kMostPayload))) {
      return false;
    }
    answer.remove_prefix(kMostPayload);
  }
  if (answer.size() > 4096)
    return SendAll(connection, Header(kDataEnd, id, answer.size())) && SendAll(connection, answer);
  return SendAll(connection, HislipPeer::Frame(id, answer));
}

}  // namespace

std::string HislipPeer::Frame(std::uint32_t id, std::string_view text) {
  return Header(kDataEnd, id, text.size()).append(text);
}

void HislipPeer::Serve(int connection) const {
  constexpr std::uint32_t kVersionAndSession = 0x01000001;
  constexpr std::size_t kLongestLine = 256;
  Input input(connection);
  std::string line;  // the beginning of the message under way
  std::string made;
  bool begins = true;
  for (;;) {
    const std::string_view header = input.Take(kHeader);
    if (header.empty()) return;
    const auto type = static_cast<Type>(header[2]);
    const auto parameter = static_cast<std::uint32_t>(Number(header.substr(4, 4)));
    const std::uint64_t length = Number(header.substr(8));
    const std::size_t seen = static_cast<std::size_t>(std::min<std::uint64_t>(length, kLongestLine));
    const std::string text(input.Take(seen));
    if (text.size() != seen || !input.Skip(length - seen)) return;
    if (begins) line = text;
    begins = type != kData;
    bool good = true;
    if (type == kInitialize) good = SendAll(connection, Header(kInitializeResponse, kVersionAndSession, 0));
    if (type == kAsyncInitialize) good = SendAll(connection, Header(kAsyncInitializeResponse, 0, 0));
    if (type == kMaximumMessageSize) {
      good = SendAll(connection, Header(kMaximumMessageSizeResponse, 0, 8) + std::string{0, 0, 0, 0, 0, 16, 0, 0});
    }
    if (type == kDataEnd && Answers::Asks(line)) good = SendAnswer(connection, parameter, answers_.To(line, made));
    if (!good) return;
  }
}

}  // namespace bench
