// The bytes of HiSLIP messages and of RPC records, put together and taken apart without the library under test; and
// where in an answer its parts stand.

#ifndef KVTD_TESTS_PROOF_WIRE_H
#define KVTD_TESTS_PROOF_WIRE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Xdr.h"

namespace kvtd::test::wire {

using fuzz::NumberAt;
using fuzz::Opaque;
using fuzz::Record;
using fuzz::Word;

std::string BigEndian(std::uint64_t number, int bytes);
// The bytes with others in the place of those that stand there.
std::string Patched(std::string bytes, std::size_t place, const std::string& others);

// ---- HiSLIP ----

enum class HislipType : std::uint8_t {
  kInitialize = 0,
  kInitializeResponse = 1,
  kFatalError = 2,
  kError = 3,
  kData = 6,
  kDataEnd = 7,
  kDeviceClearComplete = 8,
  kDeviceClearAcknowledge = 9,
  kInterrupted = 13,
  kAsyncMaximumMessageSize = 15,
  kAsyncMaximumMessageSizeResponse = 16,
  kAsyncInitialize = 17,
  kAsyncInitializeResponse = 18,
  kAsyncDeviceClear = 19,
  kAsyncStatusQuery = 21,
  kAsyncStatusResponse = 22,
  kAsyncDeviceClearAcknowledge = 23,
};

struct HislipMessage {
  HislipType type;
  std::uint8_t control;
  std::uint32_t parameter;
  std::string payload;

  // The first of the bytes when it is there whole; it is taken out of them.
  static std::optional<HislipMessage> TakeFrom(std::string& bytes);
  std::string Bytes() const;
};

inline constexpr std::size_t kHislipType = 2, kHislipControl = 3, kHislipParameter = 4, kHislipLength = 8,
                             kHislipPayload = 16;

// ---- ONC RPC ----

struct RpcCall {
  std::uint32_t number;
  std::uint32_t program;
  std::uint32_t procedure;
  std::string arguments;

  static std::optional<RpcCall> TakeFrom(std::string& bytes);
  // The arguments are counted from 0, in words.
  std::uint32_t WordAt(std::size_t index) const { return NumberAt(arguments, 4 * index); }
  std::string OpaqueAt(std::size_t index) const { return arguments.substr(4 * index + 4, WordAt(index)); }
  std::string Reply(const std::string& results) const;
};

// In a reply, the record's mark in front included.
inline constexpr std::size_t kRpcMark = 0, kRpcNumber = 4, kRpcDirection = 8, kRpcReplyStatus = 12,
                             kRpcVerifierLength = 20, kRpcAcceptStatus = 24, kRpcResults = 28;
// In the results of a read, and of a write.
inline constexpr std::size_t kReadError = kRpcResults, kReadReason = kRpcResults + 4, kReadLength = kRpcResults + 8,
                             kReadData = kRpcResults + 12;
inline constexpr std::size_t kWriteError = kRpcResults, kWriteSize = kRpcResults + 4;

}  // namespace kvtd::test::wire

#endif
