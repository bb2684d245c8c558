// The messages of HiSLIP 1.0 as they stand on the wire.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace siggen::link::hislip {

enum class Message : std::uint8_t {
  kInitialize = 0,
  kInitializeResponse = 1,
  kFatalError = 2,
  kError = 3,
  kAsyncLock = 4,
  kAsyncLockResponse = 5,
  kData = 6,
  kDataEnd = 7,
  kDeviceClearComplete = 8,
  kDeviceClearAcknowledge = 9,
  kAsyncRemoteLocalControl = 10,
  kAsyncRemoteLocalResponse = 11,
  kTrigger = 12,
  kInterrupted = 13,
  kAsyncInterrupted = 14,
  kAsyncMaximumMessageSize = 15,
  kAsyncMaximumMessageSizeResponse = 16,
  kAsyncInitialize = 17,
  kAsyncInitializeResponse = 18,
  kAsyncDeviceClear = 19,
  kAsyncServiceRequest = 20,
  kAsyncStatusQuery = 21,
  kAsyncStatusResponse = 22,
  kAsyncDeviceClearAcknowledge = 23,
  kAsyncLockInfo = 24,
  kAsyncLockInfoResponse = 25,
};
inline constexpr std::uint8_t kFirstVendorMessage = 128;

struct Header {
  Message message{};
  std::uint8_t control = 0;
  std::uint32_t parameter = 0;
  std::uint64_t length = 0;
};

inline constexpr std::size_t kHeaderSize = 16;

std::string Encode(const Header& header);
std::optional<Header> Decode(std::string_view bytes);  // nothing when the prologue is missing

enum class Fatal : std::uint8_t {
  kUnidentified = 0,
  kPoorHeader = 1,
  kChannelsIncomplete = 2,
  kInvalidInitialization = 3,
  kTooManyClients = 4,
};
enum class Problem : std::uint8_t {
  kUnidentified = 0,
  kUnknownMessage = 1,
  kUnknownControl = 2,
  kUnknownVendorMessage = 3,
  kTooLarge = 4,
};

inline constexpr std::uint16_t kVersion = 0x0100;
inline constexpr std::uint32_t kFirstId = 0xFFFFFF00;
inline constexpr std::uint32_t kNoId = kFirstId - 2;  // as if one had gone before the first
inline constexpr std::uint8_t kRmtDelivered = 1;
inline constexpr std::uint8_t kOverlap = 1;
inline constexpr std::uint64_t kLargestMessage = 1 << 20;
inline constexpr std::size_t kLongestText = 256;  // sub-addresses, lock strings

}  // namespace siggen::link::hislip
