// Opening a HiSLIP link, its attributes, and what is asked on the asynchronous connection.
#include "hislip.h"

#include <algorithm>

#include "big_endian.h"
#include "text_out.h"

namespace tvr::visa::hislip {
namespace {

// Small answers come with their header in one receive; of large ones this much is copied, the rest is not.
constexpr std::size_t kBufferSize = std::size_t{32} * 1024;
// For exchanges that a session without a timeout, or one in a hurry, makes all the same.
constexpr ViUInt32 kOwnPatience = 2000;
constexpr ViUInt32 kOnTheWay = 50;
constexpr ViUInt32 kLargestKilobytes = 0xFFFFFFFF;
constexpr std::size_t kLongestKey = 256;

constexpr ViByte kRelease = 0, kRequest = 1;                      // AsyncLock
constexpr ViByte kFailed = 0, kGranted = 1, kReleasedShared = 2;  // AsyncLockResponse
constexpr ViUInt16 kHighestRemoteLocalMode = 6;

// Payload that fits a device's limit. Whether the header counts is not told, so it does; a limit that leaves nothing
// is no limit anybody can keep.
std::size_t PayloadWithin(ViUInt64 limit) {
  constexpr ViUInt64 kFloor = 240;
  constexpr ViUInt64 kCeiling = 0x40000000;  // one system call carries that much
  return static_cast<std::size_t>(std::clamp(limit > kHeaderSize ? limit - kHeaderSize : 0, kFloor, kCeiling));
}

iovec PieceOf(const void* bytes, std::size_t size) { return {const_cast<void*>(bytes), size}; }

}  // namespace

HislipTransport::HislipTransport(const ResourceName& resource, Interruption& interruption)
    : InstrTransport(resource),
      port_(resource.port),
      sync_(interruption, kBufferSize),
      async_(std::make_shared<AsyncChannel>(interruption)),
      most_payload_(PayloadWithin(0)) {
  pieces_.reserve(8);
}

HislipTransport::~HislipTransport() { async_->Close(); }

ViStatus HislipTransport::Open(Deadline& deadline) {
  const ViStatus status = Settle(Initialize(deadline));
  if (status >= 0 || status == VI_ERROR_TMO || status == VI_ERROR_ALLOC || status == VI_ERROR_ABORT) return status;
  return VI_ERROR_RSRC_NFOUND;  // somebody is there, but no such device
}

ViStatus HislipTransport::Initialize(Deadline& deadline) {
  if (const ViStatus status = sync_.stream().Connect(host_, port_, deadline); status < 0) return status;
  const iovec name = PieceOf(device_name_.data(), device_name_.size());
  std::size_t sent = 0;
  const ViUInt32 greeting = ViUInt32{kVersion} << 16 | kVendorId;
  if (const ViStatus status = sync_.Send({Type::kInitialize, 0, greeting}, {&name, 1}, deadline, sent); status < 0) {
    return status;
  }
  Header response;
  if (const ViStatus status = AwaitSynchronous(Type::kInitializeResponse, deadline, response); status < 0) {
    return status;
  }
  version_ = static_cast<ViUInt16>(response.parameter >> 16);
  if (version_ != kVersion) return VI_ERROR_RSRC_NFOUND;
  overlap_ = (response.control & kOverlap) != 0;

  // A name may stand for several machines; both connections must go to the same one.
  const std::string peer = host_.find('%') == std::string::npos ? sync_.stream().PeerAddress() : host_;
  if (const ViStatus status = async_->Connect(peer, port_, deadline); status < 0) return status;
  AsyncChannel::Answer answer;
  const Header greeting_async{Type::kAsyncInitialize, 0, response.parameter & 0xFFFF};
  if (const ViStatus status = AskAsync(greeting_async, Type::kAsyncInitializeResponse, deadline, answer); status < 0) {
    return status;
  }
  return AgreeOnMessageSize(largest_kilobytes_, deadline);
}

// During opening and device clear nothing but the answer counts.
ViStatus HislipTransport::AwaitSynchronous(Type wanted, Deadline& deadline, Header& header) {
  for (;;) {
    if (const ViStatus status = sync_.Next(deadline, header); status < 0) return status;
    if (header.type == wanted) return VI_SUCCESS;
    if (header.type == Type::kFatalError) return VI_ERROR_CONN_LOST;
    if (deadline.Expired()) return VI_ERROR_TMO;
  }
}

ViStatus HislipTransport::AgreeOnMessageSize(ViUInt32 kilobytes, Deadline& deadline) {
  const ViUInt64 largest = ViUInt64{kilobytes} * 1024;
  std::array<ViByte, 8> bytes;
  PutBigEndian(bytes.data(), largest);
  const iovec piece = PieceOf(bytes.data(), bytes.size());
  AsyncChannel::Answer answer;
  const ViStatus status =
      AskAsync({Type::kAsyncMaximumMessageSize}, Type::kAsyncMaximumMessageSizeResponse, deadline, answer, {&piece, 1});
  if (status < 0) return status;
  most_payload_ = PayloadWithin(answer.number);
  largest_kilobytes_ = kilobytes;
  return VI_SUCCESS;
}

ViStatus HislipTransport::AskAsync(const Header& header, Type answer_type, Deadline& deadline,
                                   AsyncChannel::Answer& answer, std::span<const iovec> payload) {
  return async_->Ask({.header = header, .payload = payload, .answer = answer_type}, deadline, answer);
}

ViStatus HislipTransport::Settle(ViStatus status) {
  if (status == kMalformed) {
    Deadline at_once(VI_TMO_IMMEDIATE);
    if (sync_.Debt() == 0) sync_.Send({Type::kFatalError, kPoorlyFormedHeader}, at_once);
    async_->TellMalformed();
    status = VI_ERROR_CONN_LOST;
  }
  if (status == VI_ERROR_CONN_LOST) HangUp();
  return status;
}

void HislipTransport::HangUp() {
  sync_.stream().HangUp();
  async_->HangUp();
}

void HislipTransport::DropArrived() {
  Deadline briefly(2);
  Header header;
  while (sync_.Next(briefly, header) >= 0 && !briefly.Expired()) {
  }
}

// The device stops what it does on the word of the asynchronous channel. Until then it may be unable to take what it is
// sent because we do not take what it sends: so that is read away all the while.
ViStatus HislipTransport::ClearInto(bool overlap, Deadline& deadline) {
  unfinished_ = true;
  ForgetAnswer();
  const std::function<void()> drop = [this] { DropArrived(); };
  AsyncChannel::Answer preferred;
  const AsyncChannel::Question question{.header = {Type::kAsyncDeviceClear},
                                        .payload = {},
                                        .answer = Type::kAsyncDeviceClearAcknowledge,
                                        .meanwhile = &drop};
  if (const ViStatus status = async_->Ask(question, deadline, preferred); status < 0) {
    // Messages here are so small that one which stays open was shorter than it told, and will swallow all that comes.
    if (status == VI_ERROR_TMO && async_->IsAmidMessage()) return VI_ERROR_CONN_LOST;
    return status;
  }
  async_->ForgetUnanswered();

  // The rest of a message that was given up half-way; the device ignores it.
  while (sync_.Debt() > 0) {
    Deadline slice(20);
    const ViStatus status = sync_.PayDebt(slice);
    if (status < 0 && status != VI_ERROR_TMO) return status;
    DropArrived();
    if (sync_.Debt() > 0 && deadline.Expired()) return VI_ERROR_TMO;
  }
  const ViByte features = overlap ? kOverlap : 0;
  if (const ViStatus status = sync_.Send({Type::kDeviceClearComplete, features}, deadline); status < 0) return status;
  Header acknowledge;
  if (const ViStatus status = AwaitSynchronous(Type::kDeviceClearAcknowledge, deadline, acknowledge); status < 0) {
    // The device has ended what it was saying; so it is here.
    if (status == VI_ERROR_TMO && sync_.PayloadLeft() > 0) return VI_ERROR_CONN_LOST;
    return status;
  }
  overlap_ = (acknowledge.control & kOverlap) != 0;
  Restart();
  return VI_SUCCESS;
}

ViStatus HislipTransport::ReadStatusByte(ViUInt16 /*protocol*/, Deadline& deadline, ViUInt16& status_byte) {
  AsyncChannel::Answer answer;
  const ViByte rmt = rmt_delivered_ ? kRmtDelivered : 0;
  const Header query{Type::kAsyncStatusQuery, rmt, overlap_ ? delivered_id_ : LastId()};
  rmt_delivered_ = false;
  const ViStatus status = AskAsync(query, Type::kAsyncStatusResponse, deadline, answer);
  if (status < 0) return Settle(status);
  status_byte = answer.control;
  return VI_SUCCESS;
}

ViStatus HislipTransport::RemoteLocal(ViUInt16 mode, Deadline& deadline) {
  if (mode > kHighestRemoteLocalMode) return VI_ERROR_INV_MODE;
  AsyncChannel::Answer answer;
  const Header control{Type::kAsyncRemoteLocalControl, static_cast<ViByte>(mode), LastId()};
  return Settle(AskAsync(control, Type::kAsyncRemoteLocalResponse, deadline, answer));
}

ViStatus HislipTransport::LockDevice(const std::string& key, ViUInt32 timeout_ms) {
  if (key.size() > kLongestKey) return VI_ERROR_INV_ACCESS_KEY;
  // The device does the waiting; its answer needs a moment more.
  Deadline deadline(timeout_ms > VI_TMO_INFINITE - kOnTheWay ? VI_TMO_INFINITE : timeout_ms + kOnTheWay);
  const iovec piece = PieceOf(key.data(), key.size());
  AsyncChannel::Answer answer;
  const ViStatus status =
      AskAsync({Type::kAsyncLock, kRequest, timeout_ms}, Type::kAsyncLockResponse, deadline, answer, {&piece, 1});
  if (status < 0) return Settle(status);
  if (answer.control == kGranted) return VI_SUCCESS;
  return answer.control == kFailed ? VI_ERROR_TMO : VI_ERROR_RSRC_LOCKED;
}

ViStatus HislipTransport::UnlockDevice(bool exclusive, ViUInt32 timeout_ms) {
  Deadline deadline(std::min(timeout_ms, kOwnPatience) + kOnTheWay);
  AsyncChannel::Answer answer;
  const ViStatus status = AskAsync({Type::kAsyncLock, kRelease, LastId()}, Type::kAsyncLockResponse, deadline, answer);
  if (status < 0) return Settle(status);
  return answer.control == (exclusive ? kGranted : kReleasedShared) ? VI_SUCCESS : VI_ERROR_SESN_NLOCKED;
}

ViStatus HislipTransport::DeliverServiceRequests(std::function<void()> sink, ViUInt32 /*timeout_ms*/) {
  return async_->DeliverServiceRequests(std::move(sink));
}

ViStatus HislipTransport::GetAttribute(ViAttr attribute, void* value) {
  const auto put = [value](bool on) { return PutNumber<ViBoolean>(value, on ? VI_TRUE : VI_FALSE); };
  switch (attribute) {
    case VI_ATTR_TCPIP_PORT:
      return PutNumber<ViUInt16>(value, port_);
    case VI_ATTR_TCPIP_NODELAY:
      return put(stream().NoDelay());
    case VI_ATTR_TCPIP_KEEPALIVE:
      return put(stream().KeepAlive());
    case VI_ATTR_TCPIP_IS_HISLIP:
      return put(true);
    case VI_ATTR_TCPIP_HISLIP_OVERLAP_EN:
      return put(overlap_);
    case VI_ATTR_TCPIP_HISLIP_VERSION:
      return PutNumber<ViVersion>(value, ViVersion{version_} >> 8 << 20 | (ViVersion{version_} & 0xFF) << 8);
    case VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB:
      return PutNumber<ViUInt32>(value, largest_kilobytes_);
    default:
      return InstrTransport::GetAttribute(attribute, value);
  }
}

bool HislipTransport::ClearsWhenSet(ViAttr attribute, ViAttrState value) const {
  return attribute == VI_ATTR_TCPIP_HISLIP_OVERLAP_EN && value <= VI_TRUE && (value == VI_TRUE) != overlap_;
}

ViStatus HislipTransport::SetAttribute(ViAttr attribute, ViAttrState value, ViUInt32 timeout_ms) {
  Deadline deadline(timeout_ms);
  const bool on = value == VI_TRUE;
  const bool boolean = value <= VI_TRUE;
  switch (attribute) {
    case VI_ATTR_TCPIP_PORT:
    case VI_ATTR_TCPIP_HISLIP_VERSION:
      return VI_ERROR_ATTR_READONLY;
    case VI_ATTR_TCPIP_NODELAY:
      return boolean && sync_.stream().SetNoDelay(on) && async_->stream().SetNoDelay(on) ? VI_SUCCESS
                                                                                         : VI_ERROR_NSUP_ATTR_STATE;
    case VI_ATTR_TCPIP_KEEPALIVE:
      return boolean && sync_.stream().SetKeepAlive(on) && async_->stream().SetKeepAlive(on) ? VI_SUCCESS
                                                                                             : VI_ERROR_NSUP_ATTR_STATE;
    case VI_ATTR_TCPIP_HISLIP_OVERLAP_EN: {
      if (!boolean) return VI_ERROR_NSUP_ATTR_STATE;
      if (!ClearsWhenSet(attribute, value)) return VI_SUCCESS;
      const ViStatus status = Settle(ClearInto(on, deadline));
      if (status < 0) return status;
      return on == overlap_ ? VI_SUCCESS : VI_ERROR_NSUP_ATTR_STATE;
    }
    case VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB:
      if (value == 0 || value > kLargestKilobytes) return VI_ERROR_NSUP_ATTR_STATE;
      return Settle(AgreeOnMessageSize(static_cast<ViUInt32>(value), deadline));
    default:
      return InstrTransport::SetAttribute(attribute, value, timeout_ms);
  }
}

}  // namespace tvr::visa::hislip

namespace tvr::visa {

ViStatus OpenHislip(const ResourceName& resource, Interruption& interruption, Deadline& deadline,
                    std::unique_ptr<Transport>& opened) {
  auto transport = std::make_unique<hislip::HislipTransport>(resource, interruption);
  const ViStatus status = transport->Open(deadline);
  if (status >= 0) opened = std::move(transport);
  return status;
}

}  // namespace tvr::visa
