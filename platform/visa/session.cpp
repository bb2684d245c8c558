#include "session.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "format/read_format.h"
#include "format/write_format.h"

namespace tvr::visa {
namespace {

// Larger buffers are refused: a wrong number should not eat the memory.
constexpr std::size_t kLargestBuffer = std::size_t{64} * 1024 * 1024;
constexpr ViUInt32 kDefaultOpenTimeout = 2000;

bool MoreThanOne(unsigned flags) { return std::popcount(flags) > 1; }

}  // namespace

Session::Session(ViSession resource_manager, ResourceName resource)
    : resource_manager_(resource_manager),
      resource_(std::move(resource)),
      lock_(ResourceLock::Of(resource_.canonical)) {}

Session::~Session() { lock_->Withdraw(holder_); }

ViStatus Session::Open(ViAccessMode mode, ViUInt32 timeout_ms) {
  Deadline deadline(timeout_ms == 0 ? kDefaultOpenTimeout : timeout_ms);
  std::unique_ptr<Transport> transport;
  const bool socket = resource_.interface_type == VI_INTF_TCPIP && resource_.resource_class == "SOCKET";
  // The other kinds of resources are well-formed, and this library has no interface for them.
  if (resource_.interface_type != VI_INTF_TCPIP) return VI_ERROR_INTF_NUM_NCONFIG;
  const auto open = socket ? OpenSocket : resource_.hislip ? OpenHislip : OpenVxi11;
  if (const ViStatus status = open(resource_, interruption_, deadline, transport); status < 0) return status;
  link_.Attach(std::move(transport));
  if (this->transport().HasServiceRequests()) {
    events_ = std::make_shared<EventQueue>(resource_manager_, [this](bool on) { return SwitchServiceRequests(on); });
  }
  if ((mode & VI_EXCLUSIVE_LOCK) == 0) return VI_SUCCESS;
  // What connecting has left of the time, and a moment at least.
  std::string no_key;
  const auto left = static_cast<ViUInt32>(std::max(1, deadline.Remaining()));
  return Lock(VI_EXCLUSIVE_LOCK, timeout_ms == 0 || deadline.Infinite() ? timeout_ms : left, {}, no_key);
}

void Session::SetHandle(ViSession handle) {
  handle_ = handle;
  link_.SetSession(handle);
  if (events_ != nullptr) events_->SetSession(handle);
  if (trace::kOn) [[unlikely]] {
    const std::string text = "open " + resource_.canonical;
    const iovec piece{const_cast<char*>(text.data()), text.size()};
    trace::Message(handle_, trace::Direction::kEvent, {&piece, 1}, text.size(), VI_SUCCESS);
  }
}

void Session::OnClose() {
  closing_.store(true, std::memory_order_relaxed);
  if (events_ != nullptr) events_->Close();
  // First at the device: who waits in this process for the lock asks there next.
  transport().HangUp();
  lock_->Withdraw(holder_);
  if (const Pinned manager(resource_manager_); manager) {
    if (auto* const owner = manager.As<ResourceManager>()) owner->Forget(handle_);
  }
}

ViStatus Session::Read(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received) {
  if (count == 0) return VI_SUCCESS_MAX_CNT;
  return link_.Read({into, count, count, settings_.Termchar()}, deadline, received);
}

ViStatus Session::Write(const ViByte* from, std::size_t count, bool end, Deadline& deadline, std::size_t& sent) {
  if (count == 0) return VI_SUCCESS;
  iovec piece{const_cast<ViByte*>(from), count};
  return link_.Write({&piece, 1}, end, deadline, sent);
}

ViStatus Session::Clear(Deadline& deadline) {
  DiscardBuffers();
  return transport().Clear(deadline);
}

void Session::DiscardBuffers() {
  output_.Discard();
  input_.Discard();
}

ViStatus Session::Printf(const char* format, Args& args, Deadline& deadline) {
  output_.BeginCall(deadline);
  const ViStatus status = WriteFormat(format, args, output_);
  if (status >= 0 && settings_[Settings::kWriteBufferMode] == VI_FLUSH_ON_ACCESS) output_.Flush(true);
  return output_.FinishCall(status);
}

ViStatus Session::Scanf(const char* format, Args& args, Deadline& deadline) {
  input_.BeginCall(deadline);
  return Scan(format, args, deadline);
}

ViStatus Session::Scan(const char* format, Args& args, Deadline& deadline) {
  const ViStatus status = ReadFormat(format, args, input_);
  if (status < 0 || settings_[Settings::kReadBufferMode] != VI_FLUSH_ON_ACCESS) return status;
  const ViStatus flushed = input_.DiscardMessage(deadline);
  return flushed < 0 ? flushed : status;
}

ViStatus Session::Queryf(const char* write_format, const char* read_format, Args& args, Deadline& deadline) {
  // What an earlier answer left behind must not be taken for this one's.
  if (const ViStatus status = input_.DiscardMessage(deadline); status < 0) return status;
  // The read may go to the device along with the question when the question is one message and is read from at all.
  const bool ahead = transport().ReadsAhead() && IsOneMessage(write_format) && *read_format != '\0';
  if (ahead) transport().ExpectRead(input_.Room(), settings_.Termchar());
  output_.BeginCall(deadline);
  ViStatus status = WriteFormat(write_format, args, output_);
  if (status >= 0) output_.Flush(true);
  status = output_.FinishCall(status);
  if (status < 0) {
    if (ahead) transport().ExpectNoRead();
    return status;
  }
  input_.BeginCall(deadline);
  if (ahead) input_.Fetch();
  return Scan(read_format, args, deadline);
}

ViStatus Session::FlushWrites(Deadline& deadline) {
  output_.BeginCall(deadline);
  output_.Flush(true);
  return output_.FinishCall(VI_SUCCESS);
}

ViStatus Session::Flush(ViUInt16 mask, Deadline& deadline) {
  constexpr unsigned kRead = VI_READ_BUF | VI_READ_BUF_DISCARD;
  constexpr unsigned kWrite = VI_WRITE_BUF | VI_WRITE_BUF_DISCARD;
  constexpr unsigned kIn = VI_IO_IN_BUF | VI_IO_IN_BUF_DISCARD;
  constexpr unsigned kOut = VI_IO_OUT_BUF | VI_IO_OUT_BUF_DISCARD;
  const unsigned flags = mask;
  if (flags == 0 || (flags & ~(kRead | kWrite | kIn | kOut)) != 0) return VI_ERROR_INV_MASK;
  if (MoreThanOne(flags & kRead) || MoreThanOne(flags & kWrite) || MoreThanOne(flags & kIn) ||
      MoreThanOne(flags & kOut)) {
    return VI_ERROR_INV_MASK;
  }
  ViStatus status = VI_SUCCESS;
  if ((flags & VI_WRITE_BUF) != 0) status = FlushWrites(deadline);
  if ((flags & VI_WRITE_BUF_DISCARD) != 0) output_.Discard();
  if ((flags & VI_READ_BUF_DISCARD) != 0) input_.Discard();
  if (status >= 0 && (flags & VI_READ_BUF) != 0) status = input_.DiscardMessage(deadline);
  // Nothing of ours waits in the transport on its way out: what was written is with the kernel.
  if ((flags & kIn) != 0) transport().DiscardInput();
  return status;
}

ViStatus Session::SetBuffer(ViUInt16 mask, std::size_t size, Deadline& deadline) {
  constexpr unsigned kFormatted = VI_READ_BUF | VI_WRITE_BUF;
  constexpr unsigned kTransport = VI_IO_IN_BUF | VI_IO_OUT_BUF;
  const unsigned flags = mask;
  if (flags == 0 || (flags & ~(kFormatted | kTransport)) != 0) return VI_ERROR_INV_MASK;
  if (size > kLargestBuffer) return VI_ERROR_ALLOC;
  if ((flags & kTransport) != 0 || size == 0) return VI_WARN_NSUP_BUF;
  if ((flags & VI_WRITE_BUF) != 0) {
    if (const ViStatus status = FlushWrites(deadline); status < 0) return status;
    output_.SetSize(size);
  }
  if ((flags & VI_READ_BUF) != 0) input_.SetSize(size);
  return VI_SUCCESS;
}

ViStatus Session::BufferedRead(ViByte* into, std::size_t count, Deadline& deadline, std::size_t& received) {
  if (count == 0) return VI_SUCCESS_MAX_CNT;
  input_.BeginCall(deadline);
  return input_.Read(into, count, received);
}

ViStatus Session::BufferedWrite(const ViByte* from, std::size_t count, Deadline& deadline, std::size_t& written) {
  output_.BeginCall(deadline);
  output_.Append({reinterpret_cast<const char*>(from), count});
  const ViStatus status = output_.FinishCall(output_.status());
  if (status >= 0) written = count;
  return status;
}

// The lock inside this process comes first and goes last: who has it finds the device free of this process's other
// sessions.
ViStatus Session::Lock(ViAccessMode type, ViUInt32 timeout_ms, const std::string& requested_key, std::string& key) {
  Deadline deadline(timeout_ms);
  deadline.Remaining();  // the time counts from here
  const bool exclusive = type == VI_EXCLUSIVE_LOCK;
  const ViStatus status = exclusive ? lock_->LockExclusive(holder_, timeout_ms)
                                    : lock_->LockShared(holder_, timeout_ms, requested_key, key);
  if (status < 0 || !transport().HasDeviceLocks()) return status;

  const std::lock_guard one_at_a_time(call_);
  bool& held = exclusive ? device_exclusive_ : device_shared_;
  if (held) return status;
  interruption_.BeginCall();
  const ViUInt32 left = deadline.Infinite() ? VI_TMO_INFINITE : static_cast<ViUInt32>(deadline.Remaining());
  const ViStatus refused = transport().LockDevice(exclusive ? "" : key, left);
  held = refused >= 0;
  if (held) return status;
  if (closing_) return VI_ERROR_INV_OBJECT;
  lock_->Unlock(holder_, type);
  // Who would not wait has not waited in vain.
  if (refused == VI_ERROR_TMO && timeout_ms == VI_TMO_IMMEDIATE) return VI_ERROR_RSRC_LOCKED;
  return refused;
}

ViStatus Session::Unlock() {
  if (!transport().HasDeviceLocks()) return lock_->Unlock(holder_);
  const std::lock_guard one_at_a_time(call_);
  const ViAccessMode last = lock_->LastLevel(holder_);
  ViStatus failed = VI_SUCCESS;
  if (last != VI_NO_LOCK) {
    bool& held = last == VI_EXCLUSIVE_LOCK ? device_exclusive_ : device_shared_;
    interruption_.BeginCall();
    if (std::exchange(held, false)) failed = transport().UnlockDevice(last == VI_EXCLUSIVE_LOCK, settings_.Timeout());
  }
  // Also when the device did not do it: a lock that nobody can give up would shut out this process for good.
  const ViStatus status = lock_->Unlock(holder_);
  return failed < 0 ? failed : status;
}

ViStatus Session::SwitchServiceRequests(bool on) {
  const std::lock_guard one_at_a_time(call_);
  if (closing_) return VI_ERROR_INV_OBJECT;
  interruption_.BeginCall();
  if (!on) return transport().DeliverServiceRequests({}, settings_.Timeout());
  events_->SetLength(static_cast<ViUInt32>(settings_[Settings::kMaxQueueLength]));
  // It may still be at work when the session is gone.
  return transport().DeliverServiceRequests([events = events_] { events->Raise(); }, settings_.Timeout());
}

}  // namespace tvr::visa
