// Opening and closing a VXI-11 link, its attributes, and all but the data.
#include "vxi11.h"

#include <algorithm>
#include <utility>

#include "text_out.h"
#include "vxi11_port.h"

namespace tvr::visa::vxi11 {
namespace {

// Small answers come in one receive; of large ones this much is copied, the rest is not.
constexpr std::size_t kCoreBuffer = std::size_t{32} * 1024;
constexpr std::size_t kAbortBuffer = 512;
// For exchanges that a session without a timeout makes all the same.
constexpr ViUInt32 kOwnPatience = 2000;
constexpr ViUInt32 kAbortPatience = 250;
constexpr ViUInt32 kAbortPause = 20;
// A device that takes two calls at a time shows it at once. Of the time for opening this is a small share at most.
constexpr ViUInt32 kProbePatience = 250;
constexpr ViUInt32 kProbeShare = 8;
constexpr ViUInt32 kFarewellPatience = 100;
// For a reply behind the time that the device was given. A query has two, and may not be late by 100 ms.
constexpr ViUInt32 kOnTheWay = 40;
// Names this client in the device's lists, and nothing else.
constexpr int kClientId = ('T' << 8) | 'V';

// Of the modes of viGpibControlREN the two that concern this device alone.
constexpr ViUInt16 kAssertAddress = 3, kAddressGoToLocal = 6;

enum DeviceError {
  kNoError = 0,
  kSyntaxError = 1,
  kNotAccessible = 3,
  kInvalidLink = 4,
  kParameterError = 5,
  kNotSupported = 8,
  kOutOfResources = 9,
  kLockedByAnother = 11,
  kNoLockHeld = 12,
  kTimeout = 15,
  kInvalidAddress = 21,
  kAborted = 23,
};

ViStatus StatusOfCreateLink(int error) {
  switch (error) {
    case kNoError:
      return VI_SUCCESS;
    case kSyntaxError:
      return VI_ERROR_INV_RSRC_NAME;
    case kOutOfResources:
      return VI_ERROR_RSRC_BUSY;
    case kLockedByAnother:
      return VI_ERROR_RSRC_LOCKED;
    default:
      return VI_ERROR_RSRC_NFOUND;
  }
}

bool_t NoArguments(XDR*, int*) { return TRUE; }

// What a device takes at once. No limit, or one that leaves nothing, is the least that the protocol allows.
std::size_t DataWithin(ViUInt32 limit) {
  constexpr ViUInt32 kLeast = 1024;
  constexpr ViUInt32 kCeiling = 0x40000000;  // one system call carries that much
  return limit == 0 ? kLeast : std::min(limit, kCeiling);
}

}  // namespace

ViUInt32 TimeLeft(Deadline& deadline) {
  return deadline.Infinite() ? ViUInt32{VI_TMO_INFINITE} : static_cast<ViUInt32>(deadline.Remaining());
}

Deadline Patience(ViUInt32 told_ms) {
  return Deadline(told_ms > VI_TMO_INFINITE - kOnTheWay ? VI_TMO_INFINITE : told_ms + kOnTheWay);
}

Vxi11Transport::Vxi11Transport(const ResourceName& resource, Interruption& interruption)
    : InstrTransport(resource),
      interruption_(interruption),
      core_(interruption, DEVICE_CORE, DEVICE_CORE_VERSION, kCoreBuffer),
      abort_(interruption, DEVICE_ASYNC, DEVICE_ASYNC_VERSION, kAbortBuffer) {
  pieces_.reserve(8);
}

Vxi11Transport::~Vxi11Transport() {
  if (linked_) HangUp();
  if (interrupts_ != nullptr) interrupts_->Close();
}

ViStatus Vxi11Transport::Open(Deadline& deadline) {
  switch (const ViStatus status = Connect(deadline)) {
    case VI_SUCCESS:
    case VI_ERROR_TMO:
    case VI_ERROR_ALLOC:
    case VI_ERROR_ABORT:
    case VI_ERROR_RSRC_BUSY:
    case VI_ERROR_RSRC_LOCKED:
    case VI_ERROR_INV_RSRC_NAME:
      return status;
    default:
      return VI_ERROR_RSRC_NFOUND;  // somebody is there, but no such device
  }
}

ViStatus Vxi11Transport::Connect(Deadline& deadline) {
  ViUInt16 port = 0;
  if (const ViStatus status = FindCorePort(host_, kPortMapperPort, interruption_, deadline, port); status < 0) {
    return status;
  }
  if (const ViStatus status = core_.stream().Connect(host_, port, deadline); status < 0) return status;
  ViUInt16 abort_port = 0;
  if (const ViStatus status = CreateLink(deadline, abort_port); status < 0) return status;
  Deadline prompt(std::min(TimeLeft(deadline) / kProbeShare, kProbePatience));
  const ViStatus probed = core_.ProbeForTwo(prompt);
  if (probed == VI_ERROR_ABORT) return probed;
  takes_two_ = probed >= 0;
  if (probed == VI_ERROR_CONN_LOST) {
    // It does not stand the question. A link without an answer to it is a link still.
    linked_ = false;
    if (const ViStatus status = core_.Reconnect(host_, port, deadline); status < 0) return status;
    if (const ViStatus status = CreateLink(deadline, abort_port); status < 0) return status;
  }

  // Connected beforehand, so that giving up a call is one send. A device that cannot be told to give up is a device
  // still. A name may stand for several machines; both connections must go to the same one.
  const std::string peer = host_.find('%') == std::string::npos ? core_.stream().PeerAddress() : host_;
  Deadline share(std::min(TimeLeft(deadline), kOwnPatience / 4));
  abort_connected_ = abort_port != 0 && abort_.stream().Connect(peer, abort_port, share) >= 0;
  return VI_SUCCESS;
}

ViStatus Vxi11Transport::CreateLink(Deadline& deadline, ViUInt16& abort_port) {
  std::string name = device_name_;
  Create_LinkParms arguments{kClientId, FALSE, 0, name.data()};
  if (const ViStatus status = core_.Send(CREATE_LINK, xdr_Create_LinkParms, arguments, deadline); status < 0) {
    return status;
  }
  Create_LinkResp link{};
  if (const ViStatus status = core_.Receive(xdr_Create_LinkResp, link, deadline); status < 0) return status;
  if (link.error != kNoError) return StatusOfCreateLink(link.error);
  lid_ = link.lid;
  linked_ = true;
  most_data_ = DataWithin(link.max_recv_size);
  abort_port = link.abort_port;
  return VI_SUCCESS;
}

ViStatus Vxi11Transport::StatusOf(int error) {
  switch (error) {
    case kNoError:
      return VI_SUCCESS;
    case kNotAccessible:
    case kInvalidLink:
      return VI_ERROR_CONN_LOST;
    case kParameterError:
      return VI_ERROR_INV_PARAMETER;
    case kNotSupported:
      return VI_ERROR_NSUP_OPER;
    case kOutOfResources:
      return VI_ERROR_ALLOC;
    case kLockedByAnother:
      return VI_ERROR_RSRC_LOCKED;
    case kNoLockHeld:
      return VI_ERROR_SESN_NLOCKED;
    case kTimeout:
      return VI_ERROR_TMO;
    case kInvalidAddress:
      return VI_ERROR_RSRC_NFOUND;
    case kAborted:
      return VI_ERROR_ABORT;
    default:
      return VI_ERROR_IO;
  }
}

ViStatus Vxi11Transport::Prepare(Deadline& deadline) {
  if (hung_up_ || !linked_) return VI_ERROR_CONN_LOST;
  if (read_to_be_ended_) return AwaitEndOfCalls(deadline);
  return abort_unanswered_ ? AwaitAbort(deadline) : VI_SUCCESS;
}

// An abort that is still under way would hit the next call in place of the one it was meant for. A device that does not
// answer is not told to give up any more.
ViStatus Vxi11Transport::AwaitAbort(Deadline& deadline) {
  Deadline share(std::min(TimeLeft(deadline), kAbortPatience));
  Device_Error answer{};
  const ViStatus status = abort_.Receive(xdr_Device_Error, answer, share);
  if (status == VI_ERROR_ABORT) return status;
  abort_unanswered_ = false;
  if (status < 0) {
    abort_connected_ = false;
    abort_.stream().HangUp();
  }
  return VI_SUCCESS;
}

// An abort ends the one call that the device is at. A read that went along with a message begins when that is through,
// which may be behind the abort, and would keep the next call waiting for all of its time.
ViStatus Vxi11Transport::AwaitEndOfCalls(Deadline& deadline) {
  Deadline share(std::min(TimeLeft(deadline), kAbortPatience));
  for (;;) {
    if (abort_unanswered_) {
      if (const ViStatus status = AwaitAbort(share); status < 0) return status;
    }
    if (!abort_connected_) break;
    Deadline pause(kAbortPause);
    const ViStatus status = core_.AwaitReply(*read_to_be_ended_, pause);
    if (status == VI_ERROR_ABORT) return status;
    if (status == VI_ERROR_CONN_LOST || status == kMalformed) return Settle(status);
    if (status != VI_ERROR_TMO || share.Expired()) break;
    Abort();
  }
  // Without an abort channel it ends by its own time; in any case its reply is passed over by its number.
  read_to_be_ended_.reset();
  return VI_SUCCESS;
}

// Ends what cannot go on: the call at the device, or the link.
ViStatus Vxi11Transport::Settle(ViStatus status) {
  if (status == kMalformed) status = VI_ERROR_CONN_LOST;
  if (status == VI_ERROR_CONN_LOST || core_.SentInPart()) {
    Disconnect();
  } else if (status == VI_ERROR_TMO || status == VI_ERROR_ABORT) {
    // A device says itself when time is up. One that does not may have lost a call behind another.
    if (read_ahead_ && status == VI_ERROR_TMO) takes_two_ = false;
    read_to_be_ended_ = std::exchange(read_ahead_, {});
    Abort();
  }
  return status == VI_ERROR_ABORT && hung_up_ ? VI_ERROR_CONN_LOST : status;
}

void Vxi11Transport::Abort() {
  if (!abort_connected_) return;
  Deadline at_once(VI_TMO_IMMEDIATE);
  abort_unanswered_ = abort_.Send(DEVICE_ABORT, xdr_Device_Link, lid_, at_once) >= 0;
}

void Vxi11Transport::GiveUpReadAhead() {
  if (!read_ahead_) return;
  read_to_be_ended_ = std::exchange(read_ahead_, {});
  Abort();
}

void Vxi11Transport::Disconnect() {
  linked_ = false;
  read_ahead_.reset();
  read_to_be_ended_.reset();
  core_.stream().HangUp();
  abort_.stream().HangUp();
}

// The device forgets the link, its lock and its interrupt channel by itself when the connections end. Saying so first
// makes sure that it has done it before the next link is asked for.
void Vxi11Transport::Farewell() {
  if (!linked_) return;
  interruption_.BeginCall();
  Deadline deadline(kFarewellPatience);
  Device_Error answer{};
  GiveUpReadAhead();
  if (read_to_be_ended_) {
    AwaitEndOfCalls(deadline);
  } else if (abort_unanswered_) {
    AwaitAbort(deadline);
  }
  if (core_.Send(DESTROY_LINK, xdr_Device_Link, lid_, deadline) >= 0) {
    core_.Receive(xdr_Device_Error, answer, deadline);
  }
  Disconnect();
}

void Vxi11Transport::HangUp() {
  hung_up_ = true;
  interruption_.Request();
  const std::lock_guard after_the_last_call(busy_);
  Farewell();
}

ViStatus Vxi11Transport::TellGeneric(ViUInt32 procedure, Deadline& deadline) {
  const std::lock_guard busy(busy_);
  const ViUInt32 time = TimeLeft(deadline);
  Deadline patience = Patience(time);
  Device_GenericParms arguments{lid_, 0, 0, time};
  return Tell(procedure, xdr_Device_GenericParms, arguments, patience);
}

ViStatus Vxi11Transport::Clear(Deadline& deadline) { return TellGeneric(DEVICE_CLEAR, deadline); }

ViStatus Vxi11Transport::Trigger(ViUInt16 /*protocol*/, Deadline& deadline) {
  return TellGeneric(DEVICE_TRIGGER, deadline);
}

ViStatus Vxi11Transport::ReadStatusByte(ViUInt16 /*protocol*/, Deadline& deadline, ViUInt16& status_byte) {
  const std::lock_guard busy(busy_);
  const ViUInt32 time = TimeLeft(deadline);
  Deadline patience = Patience(time);
  Device_GenericParms arguments{lid_, 0, 0, time};
  Device_ReadStbResp answer{};
  ViStatus status = Ask(DEVICE_READSTB, xdr_Device_GenericParms, arguments, xdr_Device_ReadStbResp, answer, patience);
  if (status >= 0) status = StatusOf(answer.error);
  if (status >= 0) status_byte = answer.stb;
  return status;
}

ViStatus Vxi11Transport::RemoteLocal(ViUInt16 mode, Deadline& deadline) {
  switch (mode) {
    case kAssertAddress:
      return TellGeneric(DEVICE_REMOTE, deadline);
    case kAddressGoToLocal:
      return TellGeneric(DEVICE_LOCAL, deadline);
    default:
      // The protocol has no line that could be held for all devices, and no local lockout.
      return mode > kAddressGoToLocal ? VI_ERROR_INV_MODE : VI_ERROR_NSUP_OPER;
  }
}

// The protocol has the exclusive lock alone; the shared one stands inside this process.
ViStatus Vxi11Transport::LockDevice(const std::string& key, ViUInt32 timeout_ms) {
  if (!key.empty()) return VI_SUCCESS;
  const std::lock_guard busy(busy_);
  const bool waits = timeout_ms != VI_TMO_IMMEDIATE;
  Deadline patience = Patience(timeout_ms);
  Device_LockParms arguments{lid_, waits ? kWaitLock : 0, timeout_ms};
  const ViStatus status = Tell(DEVICE_LOCK, xdr_Device_LockParms, arguments, patience);
  if ((status == VI_ERROR_TMO || status == VI_ERROR_ABORT) && linked_) {
    // The device may grant it yet, and nobody would ever give it back. It takes calls in their order.
    Deadline at_once(VI_TMO_IMMEDIATE);
    core_.Send(DEVICE_UNLOCK, xdr_Device_Link, lid_, at_once);
  }
  return status == VI_ERROR_RSRC_LOCKED && waits ? VI_ERROR_TMO : status;
}

ViStatus Vxi11Transport::UnlockDevice(bool exclusive, ViUInt32 timeout_ms) {
  if (!exclusive) return VI_SUCCESS;
  const std::lock_guard busy(busy_);
  Deadline deadline = Patience(std::min(timeout_ms, kOwnPatience));
  return Tell(DEVICE_UNLOCK, xdr_Device_Link, lid_, deadline);
}

ViStatus Vxi11Transport::StartInterrupts(Deadline& deadline) {
  const auto own_address = core_.stream().OwnIpv4Address();
  if (!own_address) return VI_ERROR_INV_EVENT;  // the protocol has no other addresses
  if (interrupts_in_doubt_) {
    // There is room for one channel only.
    int none = 0;
    Tell(DESTROY_INTR_CHAN, NoArguments, none, deadline);
  }
  auto server = std::make_shared<InterruptServer>(core_.stream().PeerAddress());
  ViStatus status = server->Start(*own_address);
  if (status >= 0) {
    Device_RemoteFunc channel{ntohl(own_address->s_addr), server->port(), DEVICE_INTR, DEVICE_INTR_VERSION, DEVICE_TCP};
    status = Tell(CREATE_INTR_CHAN, xdr_Device_RemoteFunc, channel, deadline);
    interrupts_in_doubt_ = status == VI_ERROR_TMO || status == VI_ERROR_ABORT;
  }
  if (status < 0) {
    server->Close();
    return status;
  }
  interrupts_ = std::move(server);
  return VI_SUCCESS;
}

// Once there, the channel stays until the link ends.
ViStatus Vxi11Transport::DeliverServiceRequests(std::function<void()> sink, ViUInt32 timeout_ms) {
  const std::lock_guard busy(busy_);
  Deadline deadline = Patience(std::min(timeout_ms, kOwnPatience));
  const bool enable = sink != nullptr;
  if (interrupts_ == nullptr) {
    if (!enable) return VI_SUCCESS;
    const ViStatus status = StartInterrupts(deadline);
    if (status < 0) return status == VI_ERROR_NSUP_OPER ? VI_ERROR_INV_EVENT : status;
  }
  // The sink before the device when it begins, and after it when it ends: no request is lost in between.
  if (enable) interrupts_->SetSink(std::move(sink));
  std::vector<char> handle(interrupts_->handle().begin(), interrupts_->handle().end());
  Device_EnableSrqParms arguments{lid_, enable ? TRUE : FALSE, {static_cast<u_int>(handle.size()), handle.data()}};
  const ViStatus status = Tell(DEVICE_ENABLE_SRQ, xdr_Device_EnableSrqParms, arguments, deadline);
  if (!enable || status < 0) interrupts_->SetSink({});
  return status == VI_ERROR_NSUP_OPER ? VI_ERROR_INV_EVENT : status;
}

ViStatus Vxi11Transport::GetAttribute(ViAttr attribute, void* value) {
  if (attribute == VI_ATTR_TCPIP_IS_HISLIP) return PutNumber<ViBoolean>(value, VI_FALSE);
  return InstrTransport::GetAttribute(attribute, value);
}

}  // namespace tvr::visa::vxi11

namespace tvr::visa {

ViStatus OpenVxi11(const ResourceName& resource, Interruption& interruption, Deadline& deadline,
                   std::unique_ptr<Transport>& opened) {
  auto transport = std::make_unique<vxi11::Vxi11Transport>(resource, interruption);
  const ViStatus status = transport->Open(deadline);
  if (status >= 0) opened = std::move(transport);
  return status;
}

}  // namespace tvr::visa
