#include "Wire.h"

#include "Require.h"

namespace kvtd::test::wire {
namespace {

constexpr std::uint32_t kLastFragment = 0x80000000;
// Number, direction, version of RPC, program, its version, procedure, and the empty credential and verifier.
constexpr std::size_t kCallHead = 40;

}  // namespace

std::string BigEndian(std::uint64_t number, int bytes) {
  std::string text;
  for (int i = bytes - 1; i >= 0; --i) text += static_cast<char>(number >> (8 * i));
  return text;
}

std::string Patched(std::string bytes, std::size_t place, const std::string& others) {
  return bytes.replace(place, others.size(), others);
}

std::optional<HislipMessage> HislipMessage::TakeFrom(std::string& bytes) {
  if (bytes.size() < kHislipPayload || !bytes.starts_with("HS")) return std::nullopt;
  const std::uint64_t length = std::uint64_t{NumberAt(bytes, kHislipLength)} << 32 | NumberAt(bytes, kHislipLength + 4);
  if (bytes.size() - kHislipPayload < length) return std::nullopt;
  HislipMessage message{static_cast<HislipType>(bytes[kHislipType]), static_cast<std::uint8_t>(bytes[kHislipControl]),
                        NumberAt(bytes, kHislipParameter), bytes.substr(kHislipPayload, length)};
  bytes.erase(0, kHislipPayload + length);
  return message;
}

std::string HislipMessage::Bytes() const {
  return std::string("HS") + static_cast<char>(type) + static_cast<char>(control) + BigEndian(parameter, 4) +
         BigEndian(payload.size(), 8) + payload;
}

std::optional<RpcCall> RpcCall::TakeFrom(std::string& bytes) {
  if (bytes.size() < 4) return std::nullopt;
  const std::uint32_t mark = NumberAt(bytes, 0);
  const std::size_t length = mark & ~kLastFragment;
  fuzz::Require((mark & kLastFragment) != 0, "the client sends a record in one fragment");
  if (bytes.size() - 4 < length) return std::nullopt;
  fuzz::Require(length >= kCallHead && NumberAt(bytes, 8) == 0, "the client sends calls");
  RpcCall call{NumberAt(bytes, 4), NumberAt(bytes, 16), NumberAt(bytes, 24),
               bytes.substr(4 + kCallHead, length - kCallHead)};
  bytes.erase(0, 4 + length);
  return call;
}

std::string RpcCall::Reply(const std::string& results) const {
  return Record(Word(number) + Word(1) + Word(0) + Word(0) + Word(0) + Word(0) + results);
}

}  // namespace kvtd::test::wire
