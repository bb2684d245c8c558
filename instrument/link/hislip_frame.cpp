#include "link/hislip_frame.h"

namespace siggen::link::hislip {
namespace {

void Append(std::string& bytes, std::uint64_t value, unsigned count) {
  while (count-- > 0) bytes += static_cast<char>(value >> (8 * count) & 0xFF);
}

std::uint64_t Number(std::string_view bytes) {
  std::uint64_t value = 0;
  for (const char c : bytes) value = value << 8 | static_cast<unsigned char>(c);
  return value;
}

}  // namespace

std::string Encode(const Header& header) {
  std::string bytes = "HS";
  Append(bytes, static_cast<std::uint8_t>(header.message), 1);
  Append(bytes, header.control, 1);
  Append(bytes, header.parameter, 4);
  Append(bytes, header.length, 8);
  return bytes;
}

std::optional<Header> Decode(std::string_view bytes) {
  if (bytes.substr(0, 2) != "HS") return std::nullopt;
  return Header{static_cast<Message>(bytes[2]), static_cast<std::uint8_t>(bytes[3]),
                static_cast<std::uint32_t>(Number(bytes.substr(4, 4))), Number(bytes.substr(8, 8))};
}

}  // namespace siggen::link::hislip
