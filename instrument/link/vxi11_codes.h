// The numbers of VXI-11 that its calls carry, besides those of the calls themselves.
#pragma once

#include <cstddef>
#include <cstdint>

namespace siggen::link::vxi11 {

enum class Error : int {
  kNone = 0,
  kNotAccessible = 3,
  kInvalidLink = 4,
  kParameter = 5,
  kNoChannel = 6,
  kNotSupported = 8,
  kOutOfResources = 9,
  kLocked = 11,
  kNoLock = 12,
  kTimeout = 15,
  kInvalidAddress = 21,
  kAbort = 23,
  kChannelThere = 29,
};

enum Flag : int { kWaitLock = 0x01, kEnd = 0x08, kTermCharSet = 0x80 };
enum Reason : int { kRequestCount = 1, kCharacter = 2, kEndOfAnswer = 4 };

inline constexpr std::uint32_t kMaxRecvSize = 1 << 20;
inline constexpr std::size_t kMostReturned = 1 << 20;  // by one device_read
// What is longer than maxRecvSize is refused as a write, as far as it can be received at all.
inline constexpr std::size_t kLongestRecord = std::size_t{2} * kMaxRecvSize;

}  // namespace siggen::link::vxi11
