#include "vxi11_interrupts.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <system_error>

#include "vxi11_rpc.h"
#include "xdr/vxi11.h"

namespace tvr::visa::vxi11 {
namespace {

// A device needs one connection. When it lost the former without a word it comes with a new one.
constexpr std::size_t kMostCallers = 4;
// A call is small and arrives in one go.
constexpr std::size_t kBufferSize = 1024;
constexpr ViUInt32 kPatience = 500;

std::array<ViByte, 16> NewHandle() {
  std::random_device random;
  std::array<std::random_device::result_type, 4> words;
  std::generate(words.begin(), words.end(), std::ref(random));
  std::array<ViByte, 16> handle;
  static_assert(sizeof words == sizeof handle);
  std::memcpy(handle.data(), words.data(), sizeof handle);
  return handle;
}

}  // namespace

InterruptServer::InterruptServer(std::string device) : device_(std::move(device)), handle_(NewHandle()) {}

InterruptServer::~InterruptServer() {
  if (listener_ >= 0) ::close(listener_);
}

ViStatus InterruptServer::Start(in_addr own_address) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr = own_address;
  socklen_t size = sizeof address;
  auto* const generic = reinterpret_cast<sockaddr*>(&address);
  listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (listener_ < 0 || ::bind(listener_, generic, size) != 0 || ::listen(listener_, kMostCallers) != 0 ||
      ::getsockname(listener_, generic, &size) != 0) {
    return VI_ERROR_ALLOC;
  }
  if (wake_.Descriptor() < 0) return VI_ERROR_ALLOC;
  port_ = ntohs(address.sin_port);
  try {
    thread_ = std::thread([self = shared_from_this()] { self->Run(); });
  } catch (const std::system_error&) {
    return VI_ERROR_ALLOC;
  }
  return VI_SUCCESS;
}

void InterruptServer::SetSink(std::function<void()> sink) {
  const std::lock_guard lock(guard_);
  sink_ = std::move(sink);
}

void InterruptServer::CallSink() {
  std::function<void()> sink;
  {
    const std::lock_guard lock(guard_);
    sink = sink_;
  }
  if (sink) sink();
}

void InterruptServer::Run() {
  std::vector<pollfd> waits;
  while (!closing_) {
    waits.assign({{wake_.Descriptor(), POLLIN, 0}, {listener_, POLLIN, 0}});
    for (const auto& caller : callers_) waits.push_back({caller->stream().Descriptor(), POLLIN, 0});
    if (::poll(waits.data(), waits.size(), -1) < 0) continue;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < callers_.size() && !closing_; ++i) {
      if (waits[i + 2].revents != 0 && !Serve(*callers_[i])) continue;
      std::swap(callers_[kept++], callers_[i]);
    }
    if (closing_) break;
    callers_.resize(kept);
    if (waits[1].revents != 0) Admit();
  }
  callers_.clear();
}

void InterruptServer::Admit() {
  const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
  if (socket < 0) {
    // Without a free descriptor the connection stays where it is, and would be announced without a pause.
    pollfd wait{wake_.Descriptor(), POLLIN, 0};
    ::poll(&wait, 1, 50);
    return;
  }
  auto caller = std::make_unique<RecordStream>(wake_, kBufferSize);
  caller->stream().Adopt(socket);
  if (caller->stream().PeerAddress() != device_) return;
  if (callers_.size() == kMostCallers) callers_.erase(callers_.begin());
  callers_.push_back(std::move(caller));
}

bool InterruptServer::Serve(RecordStream& caller) {
  do {
    Deadline deadline(kPatience);
    if (caller.Next(deadline) < 0) return false;
    std::array<char, MAX_AUTH_BYTES> credential;
    std::array<char, MAX_AUTH_BYTES> verifier;
    rpc_msg call{};
    call.rm_call.cb_cred.oa_base = credential.data();
    call.rm_call.cb_verf.oa_base = verifier.data();
    if (caller.Decode(xdr_callmsg, call, deadline) < 0) return false;
    if (call.rm_call.cb_prog != DEVICE_INTR) {
      if (!Answer(caller, call, PROG_UNAVAIL)) return false;
    } else if (call.rm_call.cb_proc != DEVICE_INTR_SRQ) {
      if (!Answer(caller, call, call.rm_call.cb_proc == NULLPROC ? SUCCESS : PROC_UNAVAIL)) return false;
    } else {
      std::array<char, 40> bytes;
      Device_SrqParms request{};
      request.handle.handle_val = bytes.data();
      if (caller.Decode(xdr_Device_SrqParms, request, deadline) < 0) return false;
      if (!Answer(caller, call, SUCCESS)) return false;
      const std::span handle(bytes.data(), request.handle.handle_len);
      const auto same = [](char one, ViByte other) { return static_cast<ViByte>(one) == other; };
      if (std::equal(handle.begin(), handle.end(), handle_.begin(), handle_.end(), same)) CallSink();
    }
  } while (caller.HasMore() && !closing_);
  return true;
}

bool InterruptServer::Answer(RecordStream& caller, const rpc_msg& call, int accept_status) {
  rpc_msg reply{};
  reply.rm_xid = call.rm_xid;
  reply.rm_direction = REPLY;
  reply.rm_reply.rp_stat = MSG_ACCEPTED;
  reply.acpted_rply.ar_stat = static_cast<accept_stat>(accept_status);
  reply.acpted_rply.ar_results.proc = NoResults;
  std::array<ViByte, 64> bytes{};
  XDR xdr;
  xdrmem_create(&xdr, reinterpret_cast<char*>(bytes.data() + RecordStream::kMarkSize),
                static_cast<u_int>(bytes.size() - RecordStream::kMarkSize), XDR_ENCODE);
  if (xdr_replymsg(&xdr, &reply) == FALSE) return false;
  // A device that never reads the answers fills the connection with them one day, and must call anew then.
  Deadline at_once(VI_TMO_IMMEDIATE);
  caller.Add(std::span(bytes).first(RecordStream::kMarkSize + XDR_GETPOS(&xdr)));
  return caller.Send(at_once) >= 0;
}

void InterruptServer::Close() {
  closing_ = true;
  if (!thread_.joinable()) return;
  wake_.Request();
  SetSink({});
  if (thread_.get_id() == std::this_thread::get_id()) {
    thread_.detach();
  } else {
    thread_.join();
  }
}

}  // namespace tvr::visa::vxi11
