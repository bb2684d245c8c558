#include "link/vxi11_session.h"

#include <utility>

#include "link/device_name.h"

namespace siggen::link::vxi11 {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

}  // namespace

Session::Session(Hall& hall, std::shared_ptr<rpc::Channel> channel)
    : hall_(hall), services_(hall.services()), channel_(std::move(channel)), timer_(services_.io()) {}

void Session::Start() {
  channel_->SetReceiver(shared_from_this());
  channel_->Resume();
}

void Session::Received(rpc::Channel&, std::string_view record) {
  const auto call = rpc::ParseCall(record);
  if (!call) return Close();
  busy_ = true;
  xid_ = call->xid;
  if (auto answer = rpc::AnswerInGeneral(*call, DEVICE_CORE, DEVICE_CORE_VERSION)) return Answer(std::move(*answer));
  Dispatch(*call);
}

void Session::Dispatch(const rpc::Call& call) {
  switch (call.procedure) {
    case create_link:
      return With(call, xdr_Create_LinkParms, &Session::CreateLink);
    case device_write:
      return With(call, xdr_Device_WriteParms, &Session::Write);
    case device_read:
      return With(call, xdr_Device_ReadParms, &Session::Read);
    case device_readstb:
      return With(call, xdr_Device_GenericParms, &Session::ReadStatusByte);
    case device_trigger:
      return With(call, xdr_Device_GenericParms, &Session::Simple, &DeviceLink::Trigger);
    case device_clear:
      return With(call, xdr_Device_GenericParms, &Session::Simple, &DeviceLink::Clear);
    case device_remote:
    case device_local:
      return With(call, xdr_Device_GenericParms, &Session::Simple, &DeviceLink::ChangeControl);
    case device_lock:
      return With(call, xdr_Device_LockParms, &Session::Lock);
    case device_unlock:
      return With(call, xdr_Device_Link, &Session::Unlock);
    case device_enable_srq:
      return With(call, xdr_Device_EnableSrqParms, &Session::EnableService);
    case device_docmd:
      return With(call, xdr_Device_DocmdParms, &Session::DoCommand);
    case destroy_link:
      return With(call, xdr_Device_Link, &Session::DestroyLink);
    case create_intr_chan:
      return With(call, xdr_Device_RemoteFunc, &Session::CreateInterruptChannel);
    case destroy_intr_chan:
      return DestroyInterruptChannel();
    default:
      return Answer(rpc::ProcedureUnavailable(call));
  }
}

template <class Parms, class... Rest>
void Session::With(const rpc::Call& call, rpc::Coder<Parms> coder, void (Session::*procedure)(const Parms&, Rest...),
                   Rest... rest) {
  const rpc::Arguments<Parms> parms(call, coder);
  if (!parms.good()) return Answer(rpc::GarbageArguments(call));
  (this->*procedure)(*parms, rest...);
}

void Session::CreateLink(const Create_LinkParms& parms) {
  if (!IsDeviceName(parms.device, "inst0")) return LinkCreated(Error::kNotAccessible, nullptr);
  const auto id = hall_.NewLinkId();
  if (!id) return LinkCreated(Error::kOutOfResources, nullptr);
  const auto link = std::make_shared<DeviceLink>(services_, *this, *id);
  if (!parms.lockDevice) return LinkCreated(Error::kNone, link);
  RequestLock(link, milliseconds(parms.lock_timeout), [this, link](Locks::Outcome outcome) {
    LinkCreated(outcome == Locks::Outcome::kGranted ? Error::kNone : Error::kLocked, link);
  });
}

void Session::LinkCreated(Error error, const LinkPointer& link) {
  Create_LinkResp response{};
  response.error = static_cast<int>(error);
  if (error == Error::kNone) {
    links_.emplace(link->id(), link);
    response.lid = link->id();
    response.abortPort = hall_.abort_port();
    response.maxRecvSize = kMaxRecvSize;
  }
  Answer(rpc::Reply(xid_, xdr_Create_LinkResp, response));
}

void Session::DestroyLink(const Device_Link& id) {
  const auto link = Find(id);
  if (!link) return Answer(Error::kInvalidLink);
  links_.erase(id);
  link->Retire();
  services_.locks().Forget(link.get());
  Answer(Error::kNone);
}

void Session::Write(const Device_WriteParms& parms) {
  const auto fail = [this](Error error) { AnswerWrite(error, 0); };
  const auto link = Find(parms.lid);
  if (!link) return fail(Error::kInvalidLink);
  if (parms.data.data_len > kMaxRecvSize) return fail(Error::kParameter);
  const bool end = (parms.flags & kEnd) != 0;
  const auto write = [this, link, end](std::string_view data) {
    if (!link->Write(data, end)) return false;
    if (!gone_) AnswerWrite(Error::kNone, data.size());
    return true;
  };
  const std::string_view data(parms.data.data_val, parms.data.data_len);
  // The bytes need to be kept only for a call that has to wait.
  if (services_.locks().Admits(link.get()) && write(data)) return;
  Begin({link, true, milliseconds(parms.io_timeout), [write, kept = std::string(data)] { return write(kept); }, fail},
        parms.flags, parms.lock_timeout);
}

void Session::Read(const Device_ReadParms& parms) {
  const auto fail = [this](Error error) { Answer(ReadReply(error, 0, {})); };
  const auto link = Find(parms.lid);
  if (!link) return fail(Error::kInvalidLink);
  const std::size_t most = parms.requestSize;
  std::optional<char> last;
  if ((parms.flags & kTermCharSet) != 0) last = parms.termChar;
  const auto read = [this, link, most, last, first = true]() mutable {
    if (most == 0) return Deliver({{}, kRequestCount, {}}), true;
    if (std::exchange(first, false)) link->ExpectAnswer();
    const auto portion = link->Read(most, last);
    if (portion && !gone_) Deliver(*portion);
    return portion.has_value();
  };
  Begin({link, true, milliseconds(parms.io_timeout), read, fail}, parms.flags, parms.lock_timeout);
}

void Session::Deliver(const DeviceLink::Portion& portion) {
  if (portion.fault == Fault::Kind::kReset) channel_->Reset();
  if (portion.fault == Fault::Kind::kReset || portion.fault == Fault::Kind::kDrop) return Close();
  std::string reply = ReadReply(Error::kNone, portion.reason, portion.data);
  if (portion.fault != Fault::Kind::kCut) return Answer(std::move(reply));
  const std::size_t padded = (portion.data.size() + 3) / 4 * 4;
  const std::size_t half = reply.size() - padded + portion.data.size() / 2;
  channel_->SendBroken(std::move(reply), half);
}

void Session::ReadStatusByte(const Device_GenericParms& parms) {
  const auto fail = [this](Error error) { AnswerStatusByte(error, 0); };
  const auto link = Find(parms.lid);
  if (!link) return fail(Error::kInvalidLink);
  const auto read = [this, link] {
    AnswerStatusByte(Error::kNone, link->TakeStatusByte());
    return true;
  };
  Begin({link, true, milliseconds(parms.io_timeout), read, fail}, parms.flags, parms.lock_timeout);
}

void Session::Simple(const Device_GenericParms& parms, void (DeviceLink::*work)()) {
  const auto fail = [this](Error error) { Answer(error); };
  const auto link = Find(parms.lid);
  if (!link) return fail(Error::kInvalidLink);
  const auto run = [this, link, work] {
    (link.get()->*work)();
    if (!gone_) Answer(Error::kNone);
    return true;
  };
  Begin({link, true, milliseconds(parms.io_timeout), run, fail}, parms.flags, parms.lock_timeout);
}

void Session::Lock(const Device_LockParms& parms) {
  const auto link = Find(parms.lid);
  if (!link) return Answer(Error::kInvalidLink);
  const milliseconds patience((parms.flags & kWaitLock) != 0 ? parms.lock_timeout : 0);
  RequestLock(link, patience, [this](Locks::Outcome outcome) {
    Answer(outcome == Locks::Outcome::kGranted ? Error::kNone : Error::kLocked);
  });
}

// While the request waits it is the task under way, so that it can be aborted.
void Session::RequestLock(const LinkPointer& link, milliseconds patience, std::function<void(Locks::Outcome)> done) {
  task_ = Task{link, false, {}, [] { return false; }, [this](Error error) { Answer(error); }};
  services_.locks().Request(link.get(), {}, patience,
                            [weak = weak_from_this(), done = std::move(done)](Locks::Outcome outcome) {
                              const auto self = weak.lock();
                              if (!self || self->gone_) return;
                              self->task_.reset();
                              done(outcome);
                            });
}

void Session::Unlock(const Device_Link& id) {
  const auto link = Find(id);
  if (!link) return Answer(Error::kInvalidLink);
  const bool held = services_.locks().Release(link.get()) != Locks::Released::kError;
  Answer(held ? Error::kNone : Error::kNoLock);
}

void Session::EnableService(const Device_EnableSrqParms& parms) {
  const auto link = Find(parms.lid);
  if (!link) return Answer(Error::kInvalidLink);
  std::optional<std::string> handle;
  if (parms.enable) handle.emplace(parms.handle.handle_val, parms.handle.handle_len);
  link->EnableService(std::move(handle));
  Answer(Error::kNone);
}

void Session::DoCommand(const Device_DocmdParms& parms) {
  Device_DocmdResp response{};
  response.error = static_cast<int>(Find(parms.lid) ? Error::kNotSupported : Error::kInvalidLink);
  Answer(rpc::Reply(xid_, xdr_Device_DocmdResp, response));
}

void Session::CreateInterruptChannel(const Device_RemoteFunc& parms) {
  if (interrupt_ && interrupt_->open()) return Answer(Error::kChannelThere);
  if (parms.progFamily != DEVICE_TCP) return Answer(Error::kNotSupported);
  const asio::ip::address_v4 address(parms.hostAddr);
  if (address.is_unspecified() || address.is_multicast() || parms.hostPort == 0 || parms.hostPort > 0xFFFF) {
    return Answer(Error::kInvalidAddress);
  }
  interrupt_ = std::make_shared<InterruptChannel>(services_.io(), parms.progNum, parms.progVers);
  interrupt_->Open({address, static_cast<std::uint16_t>(parms.hostPort)}, [weak = weak_from_this()](bool well) {
    const auto self = weak.lock();
    if (self && !self->gone_) self->Answer(well ? Error::kNone : Error::kNoChannel);
  });
}

void Session::DestroyInterruptChannel() {
  if (!interrupt_ || !interrupt_->open()) return Answer(Error::kNoChannel);
  interrupt_->Close();
  interrupt_.reset();
  Answer(Error::kNone);
}

bool Session::RequestService(const std::string& handle) {
  if (!interrupt_ || !interrupt_->open()) return false;
  interrupt_->RequestService(handle);
  return true;
}

Session::LinkPointer Session::Find(int id) const {
  const auto found = links_.find(id);
  return found == links_.end() ? nullptr : found->second;
}

void Session::Begin(Task task, int flags, std::uint32_t lock_timeout) {
  task_ = std::move(task);
  timer_.expires_after(milliseconds((flags & kWaitLock) != 0 ? lock_timeout : 0));
  Proceed();
  if (task_ && task_->before_lock) Watch();
}

// Goes on with the task under way, as far as the lock and the device let it.
void Session::Proceed() {
  if (!task_ || gone_) return;
  const auto self = shared_from_this();
  Task task = *std::exchange(task_, {});
  const bool admitted = task.before_lock && services_.locks().Admits(task.link.get());
  if (admitted) {
    task.before_lock = false;
    timer_.expires_after(task.io_timeout);
  }
  if (!task.before_lock && task.attempt()) return;
  task_ = std::move(task);
  if (admitted) Watch();
}

// Fails the task when its time is up.
void Session::Watch() {
  timer_.async_wait([weak = weak_from_this()](const asio::error_code& problem) {
    const auto self = weak.lock();
    if (problem || !self || !self->task_ || self->timer_.expiry() > Clock::now()) return;
    const Task task = *std::exchange(self->task_, {});
    task.fail(task.before_lock ? Error::kLocked : Error::kTimeout);
  });
}

bool Session::Abort(int id) {
  const auto link = Find(id);
  if (!link) return false;
  if (!task_ || task_->link != link) return true;
  services_.locks().Withdraw(link.get());
  const Task task = *std::exchange(task_, {});
  task.fail(Error::kAbort);
  return true;
}

void Session::StatusChanged() {
  for (const auto& [id, link] : std::map(links_)) link->StatusChanged();
}

void Session::Answer(std::string reply) {
  timer_.expires_at(Clock::time_point::max());
  busy_ = false;
  channel_->Send(std::move(reply));
  channel_->Resume();
}

void Session::Answer(Error error) { Answer(rpc::Reply(xid_, xdr_Device_Error, Device_Error{static_cast<int>(error)})); }

void Session::AnswerWrite(Error error, std::size_t size) {
  Answer(rpc::Reply(xid_, xdr_Device_WriteResp,
                    Device_WriteResp{static_cast<int>(error), static_cast<std::uint32_t>(size)}));
}

void Session::AnswerStatusByte(Error error, std::uint8_t byte) {
  Answer(rpc::Reply(xid_, xdr_Device_ReadStbResp, Device_ReadStbResp{static_cast<int>(error), byte}));
}

std::string Session::ReadReply(Error error, int reason, std::string_view data) const {
  Device_ReadResp response{};
  response.error = static_cast<int>(error);
  response.reason = reason;
  response.data.data_val = const_cast<char*>(data.data());
  response.data.data_len = static_cast<u_int>(data.size());
  return rpc::Reply(xid_, xdr_Device_ReadResp, response, data.size());
}

void Session::Close() {
  if (gone_) return;
  const auto self = shared_from_this();
  gone_ = true;
  timer_.cancel();
  hall_.Leave(*this);
  channel_->Close();
  if (interrupt_) interrupt_->Close();
  auto links = std::exchange(links_, {});
  if (task_) links.emplace(task_->link->id(), task_->link);  // one that waits for the lock to be created
  task_.reset();
  for (const auto& [id, link] : links) link->Retire();
  for (const auto& [id, link] : links) services_.locks().Forget(link.get());
}

}  // namespace siggen::link::vxi11
