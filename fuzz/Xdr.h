// The bytes of ONC RPC, put together without the library that both sides use.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kvtd::fuzz {

inline std::string Word(std::uint32_t number) {
  std::string bytes;
  for (int i = 24; i >= 0; i -= 8) bytes += static_cast<char>(number >> i);
  return bytes;
}

inline std::uint32_t NumberAt(std::string_view bytes, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t i = place; i < place + 4 && i < bytes.size(); ++i) {
    number = number << 8 | static_cast<std::uint8_t>(bytes[i]);
  }
  return number;
}

inline std::string Opaque(const std::string& bytes) {
  const auto size = static_cast<std::uint32_t>(bytes.size());
  return Word(size) + bytes + std::string((4 - bytes.size() % 4) % 4, '\0');
}

// One record of one fragment.
inline std::string Record(const std::string& message) {
  return Word(0x80000000U | static_cast<std::uint32_t>(message.size())) + message;
}

// A call without credentials, as a message.
inline std::string RpcCall(std::uint32_t number, std::uint32_t program, std::uint32_t version, std::uint32_t procedure,
                           const std::string& arguments) {
  return Word(number) + Word(0) + Word(2) + Word(program) + Word(version) + Word(procedure) + Word(0) + Word(0) +
         Word(0) + Word(0) + arguments;
}

}  // namespace kvtd::fuzz
