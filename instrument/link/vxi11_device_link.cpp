#include "link/vxi11_device_link.h"

#include <algorithm>
#include <utility>

#include "link/vxi11_codes.h"

namespace siggen::link::vxi11 {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kReadAhead = std::size_t{64} * 1024;
constexpr std::uint8_t kRequestService = 0x40;

}  // namespace

DeviceLink::DeviceLink(Services& services, LinkOwner& owner, int id)
    : services_(services), owner_(&owner), id_(id), exchange_(services.instrument()), delay_(services.io()) {
  // What moved the instrument to ask for service before this link was there is not news to it.
  reasons_ = Reasons();
}

bool DeviceLink::Write(std::string_view data, bool end) {
  if (data.empty()) return true;
  ahead_ = exchange_.waiting() ? ahead_ : 0;
  if (ahead_ > kReadAhead) return false;
  ahead_ += data.size();
  if (owes_answer()) Interrupt();
  framer_.Append(data);
  if (end) framer_.End();
  Pump();
  return true;
}

void DeviceLink::Trigger() {
  if (owes_answer()) Interrupt();
  exchange_.Submit({scpi::Bytes::Copy("*TRG")});
  Pump();
}

void DeviceLink::Clear() {
  exchange_.Clear();
  framer_.Clear();
  DropAnswer();
  services_.Worked();
}

std::uint8_t DeviceLink::TakeStatusByte() {
  unsigned byte = services_.instrument().status().Byte(owes_answer()) & ~unsigned{kRequestService};
  if (requests_service_) byte |= kRequestService;
  requests_service_ = service_told_ = false;
  return static_cast<std::uint8_t>(byte);
}

// A message that comes before the answer to the one before was read costs that answer.
void DeviceLink::Interrupt() {
  if (exchange_.answer_ready()) {
    exchange_.Interrupt();
  } else {
    services_.instrument().status().Report(scpi::Error::kQueryInterrupted);
  }
  DropAnswer();
}

void DeviceLink::DropAnswer() {
  delay_.cancel();
  delayed_ = false;
  answer_.clear();
  fault_.reset();
}

void DeviceLink::Pump() {
  if (owner_ == nullptr) return;
  const auto self = shared_from_this();
  while (auto message = framer_.Next()) exchange_.Submit(std::move(*message));
  for (;;) {
    exchange_.Run();
    if (!exchange_.answer_ready() || exchange_.idle()) break;
    Interrupt();
  }
  services_.Worked();
  if (owner_ != nullptr) owner_->Proceed();
}

void DeviceLink::ExpectAnswer() {
  if (!owes_answer() && exchange_.idle()) exchange_.ReadWithoutAnswer();
}

std::optional<DeviceLink::Portion> DeviceLink::Read(std::size_t most, std::optional<char> last) {
  if (!owes_answer() || delayed_) return {};
  if (answer_.empty()) BeginAnswer();
  if (delayed_) return {};
  Portion portion = Take(most, last);
  services_.Worked();
  return portion;
}

void DeviceLink::BeginAnswer() {
  std::vector<scpi::Bytes> answer = exchange_.TakeAnswer();
  const auto fault = services_.faults().Next();
  if (fault) {
    switch (fault->kind) {
      case Fault::Kind::kDrop:
      case Fault::Kind::kReset:
      case Fault::Kind::kCut:
        fault_ = fault->kind;
        break;
      default:
        answer = Distort(fault->kind, std::move(answer));
    }
  }
  answer_.assign(answer.begin(), answer.end());
  if (!fault || fault->kind != Fault::Kind::kDelay) return;
  delayed_ = true;
  delay_.expires_after(fault->delay);
  delay_.async_wait([weak = weak_from_this()](const asio::error_code& problem) {
    const auto self = weak.lock();
    if (problem || !self || self->owner_ == nullptr || self->delay_.expiry() > Clock::now()) return;
    self->delayed_ = false;
    self->owner_->Proceed();
  });
}

DeviceLink::Portion DeviceLink::Take(std::size_t most, std::optional<char> last) {
  Portion portion;
  portion.fault = std::exchange(fault_, {});
  const std::size_t room = std::min(most, kMostReturned);
  while (!answer_.empty() && portion.data.size() < room && (portion.reason & kCharacter) == 0) {
    std::string_view& front = answer_.front().view;
    std::string_view piece = front.substr(0, room - portion.data.size());
    if (const std::size_t at = last ? piece.find(*last) : std::string_view::npos; at != std::string_view::npos) {
      piece = piece.substr(0, at + 1);
      portion.reason |= kCharacter;
    }
    portion.data += piece;
    front.remove_prefix(piece.size());
    if (front.empty()) answer_.pop_front();
  }
  if (portion.data.size() == most) portion.reason |= kRequestCount;
  if (answer_.empty()) portion.reason |= kEndOfAnswer;
  return portion;
}

std::uint8_t DeviceLink::Reasons() const {
  scpi::Status& status = services_.instrument().status();
  return static_cast<std::uint8_t>(status.Byte(owes_answer()) & status.service_enable & ~kRequestService);
}

void DeviceLink::EnableService(std::optional<std::string> handle) {
  handle_ = std::move(handle);
  TellService();
}

// Each reason that was not there before asks for service, as the status byte's service request enable allows.
void DeviceLink::StatusChanged() {
  const std::uint8_t before = std::exchange(reasons_, Reasons());
  if ((reasons_ & ~before) == 0) return;
  requests_service_ = true;
  TellService();
}

void DeviceLink::TellService() {
  if (!requests_service_ || service_told_ || !handle_) return;
  service_told_ = owner_->RequestService(*handle_);
}

void DeviceLink::Close() {
  if (owner_ != nullptr) owner_->Close();
}

void DeviceLink::Retire() {
  owner_ = nullptr;
  exchange_.Clear();
  DropAnswer();
}

}  // namespace siggen::link::vxi11
