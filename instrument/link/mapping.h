// What a port mapper tells of a program that is served over TCP.
#pragma once

#include <cstdint>

namespace siggen::link {

struct Mapping {
  std::uint32_t program = 0;
  std::uint32_t version = 0;
  std::uint16_t port = 0;
};

}  // namespace siggen::link
