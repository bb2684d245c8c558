// The header in front of every HiSLIP message (protocol 1.0), and the numbers that stand in it.
#pragma once

#include <visa.h>

#include <array>
#include <cstddef>

namespace tvr::visa::hislip {

enum class Type : ViByte {
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
};
constexpr ViByte kFirstVendorType = 128;

struct Header {
  Type type{};
  ViByte control = 0;
  ViUInt32 parameter = 0;
  ViUInt64 length = 0;  // of the payload
};

constexpr std::size_t kHeaderSize = 16;
using HeaderBytes = std::array<ViByte, kHeaderSize>;

HeaderBytes Encode(const Header& header);
// False when the bytes do not begin with the prologue.
bool Decode(const ViByte* bytes, Header& header);

constexpr ViUInt16 kVersion = 0x0100;
constexpr ViUInt16 kVendorId = ('T' << 8) | 'V';

// Message ids count from here in steps of two, so that an odd one is free to say "not told".
constexpr ViUInt32 kFirstId = 0xFFFFFF00;
constexpr ViUInt32 kIdStep = 2;
constexpr ViUInt32 kUntoldId = 0xFFFFFFFF;

constexpr ViByte kRmtDelivered = 1;  // control code of what a client sends
constexpr ViByte kOverlap = 1;       // in a set of features

constexpr ViByte kPoorlyFormedHeader = 1;  // FatalError
constexpr ViByte kUnrecognizedType = 1;    // Error
constexpr ViByte kUnrecognizedVendorType = 3;

// Never leaves this component: the peer does not speak HiSLIP, and the link cannot be used any more.
constexpr ViStatus kMalformed = VI_ERROR_INV_PROT;

}  // namespace tvr::visa::hislip
