#include "link/hislip_session.h"

#include <algorithm>

#include "scpi/answer.h"

namespace siggen::link::hislip {
namespace {

constexpr std::chrono::seconds kPatienceForSecondChannel{10};
constexpr std::uint8_t kHighestRemoteLocal = 6;
constexpr std::uint8_t kRequestService = 0x40;

std::uint64_t NumberIn(const std::string& bytes) {
  std::uint64_t number = 0;
  for (const char c : bytes) number = number << 8 | static_cast<unsigned char>(c);
  return number;
}

bool IsUnknown(const Header& header) { return header.message > Message::kAsyncLockInfoResponse; }

Problem UnknownProblem(const Header& header) {
  const bool vendor = static_cast<std::uint8_t>(header.message) >= kFirstVendorMessage;
  return vendor ? Problem::kUnknownVendorMessage : Problem::kUnknownMessage;
}

}  // namespace

Session::Session(Hall& hall, std::uint16_t id, std::shared_ptr<Channel> sync)
    : hall_(hall),
      services_(hall.services()),
      id_(id),
      sync_(std::move(sync)),
      timer_(services_.io(), kPatienceForSecondChannel),
      exchange_(services_.instrument()) {
  // What moved the instrument to ask for service before this client came is not news to it.
  scpi::Status& status = services_.instrument().status();
  reasons_ = static_cast<std::uint8_t>(status.Byte(false) & status.service_enable & ~kRequestService);
}

void Session::Start() {
  sync_->SetReceiver(shared_from_this());
  timer_.async_wait([weak = weak_from_this()](const asio::error_code& problem) {
    const auto self = weak.lock();
    if (self && !problem && !self->complete()) self->Close();
  });
}

void Session::Attach(std::shared_ptr<Channel> async) {
  async_ = std::move(async);
  timer_.cancel();
  async_->SetReceiver(shared_from_this());
}

bool Session::Ready(Channel& from) {
  if (&from != sync_.get() || clearing_ || !complete()) return true;
  return services_.locks().Admits(this) && !busy() && !exchange_.waiting();
}

// May this message come, at this place and in this size?
bool Session::BeginsWell(Channel& from, const Header& header) {
  const bool on_sync = &from == sync_.get();
  switch (header.message) {
    case Message::kFatalError:
    case Message::kError:
      return true;
    case Message::kData:
    case Message::kDataEnd:
    case Message::kTrigger:
    case Message::kDeviceClearComplete:
      return on_sync && header.length <= kLargestMessage;
    case Message::kAsyncLock:
      return !on_sync && header.control <= 1 && header.length <= kLongestText;
    case Message::kAsyncRemoteLocalControl:
      return !on_sync && header.control <= kHighestRemoteLocal;
    case Message::kAsyncMaximumMessageSize:
      return !on_sync && header.length == 8;
    case Message::kAsyncDeviceClear:
    case Message::kAsyncStatusQuery:
    case Message::kAsyncLockInfo:
      return !on_sync;
    default:
      return false;
  }
}

Payload Session::Begins(Channel& from, const Header& header) {
  const bool on_sync = &from == sync_.get();
  if (!BeginsWell(from, header)) {
    if (header.message == Message::kInitialize || header.message == Message::kAsyncInitialize) {
      Fail(Fatal::kInvalidInitialization);
    } else if (header.message == Message::kAsyncLock || header.message == Message::kAsyncRemoteLocalControl) {
      from.SendError(on_sync                        ? Problem::kUnknownMessage
                     : header.length > kLongestText ? Problem::kTooLarge
                                                    : Problem::kUnknownControl);
    } else if (on_sync && (header.message == Message::kData || header.message == Message::kDataEnd)) {
      from.SendError(Problem::kTooLarge);
    } else {
      from.SendError(IsUnknown(header) ? UnknownProblem(header) : Problem::kUnknownMessage);
    }
    return Payload::kDrop;
  }
  if (!on_sync) return header.length <= kLongestText ? Payload::kCollect : Payload::kDrop;
  if (!complete() && header.message != Message::kFatalError) {
    Fail(Fatal::kChannelsIncomplete);
    return Payload::kDrop;
  }
  if (clearing_) return Payload::kDrop;
  if (header.message == Message::kTrigger) Arrived(header);
  if (header.message != Message::kData && header.message != Message::kDataEnd) return Payload::kDrop;
  Arrived(header);
  return Payload::kStream;
}

void Session::Ends(Channel& from, const Header& header, const std::string& text) {
  if (header.message == Message::kFatalError) return Close();
  const bool dropped = header.message == Message::kError || !BeginsWell(from, header);
  if (&from != sync_.get()) {
    if (!dropped) EndsAsynchronous(header, text);
  } else if (dropped) {
    Pump();
  } else {
    EndsSynchronous(header);
  }
}

void Session::EndsSynchronous(const Header& header) {
  if (header.message == Message::kDeviceClearComplete) return DeviceCleared(header.control);
  if (clearing_) return;
  last_id_ = header.parameter;
  answer_id_ = header.parameter;
  if (header.message == Message::kDataEnd) framer_.End();
  if (header.message == Message::kTrigger) exchange_.Submit({scpi::Bytes::Copy("*TRG")});
  Pump();
  if (release_after_ && static_cast<std::int32_t>(last_id_ - *release_after_) >= 0) ReleaseLock();
}

void Session::EndsAsynchronous(const Header& header, const std::string& text) {
  switch (header.message) {
    case Message::kAsyncMaximumMessageSize: {
      const std::uint64_t limit = std::clamp<std::uint64_t>(NumberIn(text), 2 * kHeaderSize, kLargestMessage);
      most_payload_ = limit - kHeaderSize;
      const std::string own("\0\0\0\0\0\x10\0\0", 8);
      return async_->Send({Message::kAsyncMaximumMessageSizeResponse, 0, 0, own.size()}, {scpi::Bytes::Copy(own)});
    }
    case Message::kAsyncLock:
      return Lock(header, text);
    case Message::kAsyncLockInfo:
      return async_->Send({Message::kAsyncLockInfoResponse,
                           services_.locks().exclusive() ? std::uint8_t{1} : std::uint8_t{0},
                           static_cast<std::uint32_t>(services_.locks().holders())});
    case Message::kAsyncRemoteLocalControl:
      return async_->Send({Message::kAsyncRemoteLocalResponse});
    case Message::kAsyncDeviceClear:
      return DeviceClear();
    case Message::kAsyncStatusQuery:
      return StatusQuery(header);
    default:
      return;
  }
}

// The client has begun a message. In synchronised mode it must have fetched its answer, or wanted none.
void Session::Arrived(const Header& header) {
  const bool delivered = (header.control & kRmtDelivered) != 0;
  if (!overlap_) {
    if (owes_answer()) {
      Interrupted(header.parameter);
    } else if (rmt_expected_ != delivered) {
      services_.instrument().status().Report(scpi::Error::kQueryInterrupted);
    }
    NothingAvailable();
  }
  rmt_expected_ = false;
}

// So that the next answer is a new reason to ask for service.
void Session::NothingAvailable() {
  message_available_ = false;
  reasons_ = static_cast<std::uint8_t>(reasons_ & ~scpi::Status::kMessageAvailable);
}

void Session::Interrupted(std::uint32_t by) {
  if (exchange_.answer_ready()) {
    exchange_.Interrupt();
  } else {
    services_.instrument().status().Report(scpi::Error::kQueryInterrupted);
  }
  answer_.clear();
  async_->Send({Message::kAsyncInterrupted, 0, by});
  sync_->Send({Message::kInterrupted, 0, by});
}

void Session::Pump() {
  const auto self = shared_from_this();
  while (!busy()) {
    if (owes_answer()) {
      // More input before the answer is out: whether it interrupts, its header will tell. What is dropped does not.
      if (!overlap_ && sync_->InputQueued()) break;
      if (answer_.empty()) {
        BeginAnswer();
      } else {
        SendPart();
      }
      continue;
    }
    exchange_.Run();
    if (exchange_.answer_ready()) continue;
    if (exchange_.waiting()) break;
    auto message = framer_.Next();
    if (!message) break;
    exchange_.Submit(std::move(*message));
  }
  services_.Worked();
  if (!gone_) sync_->Resume();
}

void Session::BeginAnswer() {
  std::vector<scpi::Bytes> answer = exchange_.TakeAnswer();
  // In overlap mode nothing but a status query tells what the client has fetched: each answer is a new one.
  if (overlap_) NothingAvailable();
  const auto fault = services_.faults().Next();
  std::uint64_t whole = 0;
  for (const scpi::Bytes& part : answer) whole += part.view.size();
  if (fault) answer = Distort(fault->kind, std::move(answer));
  answer_.assign(answer.begin(), answer.end());
  if (!fault) return;
  switch (fault->kind) {
    case Fault::Kind::kDrop:
      return Close();
    case Fault::Kind::kReset:
      sync_->Reset();
      async_->Reset();
      return Close();
    case Fault::Kind::kCut:
      return SendBroken(whole);
    case Fault::Kind::kDelay:
      return Delay(fault->delay);
    default:
      return;
  }
}

void Session::Delay(std::chrono::milliseconds delay) {
  delayed_ = true;
  timer_.expires_after(delay);
  timer_.async_wait([self = shared_from_this()](const asio::error_code& problem) {
    if (problem || self->gone_ || !self->delayed_) return;
    self->delayed_ = false;
    self->Pump();
  });
}

void Session::SendPart() {
  std::vector<scpi::Bytes> parts;
  std::uint64_t length = 0;
  while (!answer_.empty() && length < most_payload_) {
    scpi::Bytes& front = answer_.front();
    const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(front.view.size(), most_payload_ - length));
    parts.push_back(front.Part(front.view.substr(0, count)));
    front.view.remove_prefix(count);
    length += count;
    if (front.view.empty()) answer_.pop_front();
  }
  const bool last = answer_.empty();
  if (overlap_) sent_id_ += 2;
  rmt_expected_ = last && !overlap_;
  message_available_ = true;
  sending_ = true;
  sync_->Send({last ? Message::kDataEnd : Message::kData, 0, overlap_ ? sent_id_ : answer_id_, length},
              std::move(parts), [self = shared_from_this()] {
                self->sending_ = false;
                if (!self->gone_) self->Pump();
              });
}

void Session::SendBroken(std::uint64_t announced) {
  std::vector<scpi::Bytes> half(answer_.begin(), answer_.end());
  answer_.clear();
  sending_ = true;
  sync_->Send({Message::kDataEnd, 0, answer_id_, announced}, std::move(half),
              [self = shared_from_this()] { self->Close(); });
}

// A part on its way is finished, so that the client finds the next header.
void Session::DeviceClear() {
  clearing_ = true;
  delayed_ = false;
  AwaitDeviceClearComplete();
  exchange_.Clear();
  framer_.Clear();
  answer_.clear();
  sync_->DropPayload();
  rmt_expected_ = false;
  NothingAvailable();
  if (release_after_) ReleaseLock();
  async_->Send({Message::kAsyncDeviceClearAcknowledge});
  sync_->Resume();
}

void Session::AwaitDeviceClearComplete() {
  timer_.expires_after(hall_.patience_for_clear());
  timer_.async_wait([weak = weak_from_this()](const asio::error_code& problem) {
    const auto self = weak.lock();
    if (self && !problem && self->clearing_) self->Fail(Fatal::kUnidentified);
  });
}

void Session::DeviceCleared(std::uint8_t features) {
  if (!clearing_) {
    sync_->SendError(Problem::kUnidentified);
    return Pump();
  }
  clearing_ = false;
  timer_.cancel();
  overlap_ = (features & kOverlap) != 0;
  last_id_ = answer_id_ = sent_id_ = kNoId;
  sync_->Send({Message::kDeviceClearAcknowledge, overlap_ ? kOverlap : std::uint8_t{0}});
  services_.Worked();
}

void Session::StatusQuery(const Header& header) {
  const bool fetched = overlap_ ? sent_id_ == header.parameter : (header.control & kRmtDelivered) != 0;
  if (fetched) {
    rmt_expected_ = false;
    NothingAvailable();
  }
  const bool available = overlap_ ? sent_id_ != header.parameter : message_available_ && last_id_ == header.parameter;
  unsigned byte = services_.instrument().status().Byte(available) & ~unsigned{kRequestService};
  if (requests_service_) byte |= kRequestService;
  requests_service_ = service_told_ = false;
  async_->Send({Message::kAsyncStatusResponse, static_cast<std::uint8_t>(byte)});
}

// Each reason that was not there before asks for service, as the status byte's service request enable allows.
void Session::StatusChanged() {
  if (!complete() || gone_) return;
  scpi::Status& status = services_.instrument().status();
  const auto byte = status.Byte(message_available_);
  const auto reasons = static_cast<std::uint8_t>(byte & status.service_enable & ~kRequestService);
  const bool news = (reasons & ~reasons_) != 0;
  reasons_ = reasons;
  if (!news) return;
  requests_service_ = true;
  if (service_told_) return;
  service_told_ = true;
  async_->Send({Message::kAsyncServiceRequest, static_cast<std::uint8_t>(byte | kRequestService)});
}

void Session::Lock(const Header& header, const std::string& key) {
  if (header.control == 0) {
    // The client's messages up to the one it names were still sent under the lock.
    const bool done = clearing_ || static_cast<std::int32_t>(last_id_ - header.parameter) >= 0;
    if (done || !services_.locks().Admits(this)) return ReleaseLock();
    release_after_ = header.parameter;
    return;
  }
  services_.locks().Request(this, key, std::chrono::milliseconds(header.parameter),
                            [weak = weak_from_this()](Locks::Outcome outcome) {
                              const auto self = weak.lock();
                              if (!self || self->gone_) return;
                              self->async_->Send({Message::kAsyncLockResponse, static_cast<std::uint8_t>(outcome)});
                              self->sync_->Resume();
                            });
}

void Session::ReleaseLock() {
  release_after_.reset();
  const Locks::Released released = services_.locks().Release(this);
  async_->Send({Message::kAsyncLockResponse, static_cast<std::uint8_t>(released)});
}

// False when that was done before.
bool Session::Forget() {
  if (gone_) return false;
  gone_ = true;
  timer_.cancel();
  exchange_.Clear();
  answer_.clear();
  services_.locks().Forget(this);
  hall_.Leave(*this);
  return true;
}

void Session::Fail(Fatal fatal) {
  const auto self = shared_from_this();
  if (!Forget()) return;
  sync_->SendFatal(fatal);
  if (async_) async_->SendFatal(fatal);
}

void Session::Close() {
  const auto self = shared_from_this();
  Forget();
  sync_->Close();
  if (async_) async_->Close();
}

}  // namespace siggen::link::hislip
