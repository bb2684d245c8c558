// TCPIP ... SOCKET: a bare byte stream. It has no END; the termchar alone can end a message.
#include <tvrvisa.h>

#include <algorithm>
#include <atomic>
#include <charconv>
#include <cstring>
#include <string_view>
#include <vector>

#include "tcp_stream.h"
#include "text_out.h"
#include "transport.h"

namespace tvr::visa {
namespace {

// With a termchar to look for, no more than this is received at a time: what lies behind the termchar has to be kept.
constexpr std::size_t kMostAhead = std::size_t{128} * 1024;

class SocketTransport final : public Transport {
 public:
  SocketTransport(const ResourceName& resource, Interruption& interruption)
      : host_(resource.host), port_(resource.port), stream_(interruption) {}

  ViStatus Connect(Deadline& deadline) { return stream_.Connect(host_, port_, deadline); }

  bool CarriesEnd() const override { return false; }
  bool HasDeviceLocks() const override { return false; }
  bool HasServiceRequests() const override { return false; }
  ViStatus Read(const ReadRequest& request, Deadline& deadline, std::size_t& received) override;
  ViStatus Write(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent) override;
  ViStatus Clear(Deadline& deadline) override;
  void DiscardInput() override { ahead_.clear(), ahead_taken_ = 0; }
  ViStatus ReadStatusByte(ViUInt16 protocol, Deadline& deadline, ViUInt16& status_byte) override;
  ViStatus Trigger(ViUInt16 protocol, Deadline& deadline) override;
  ViStatus GetAttribute(ViAttr attribute, void* value) override;
  ViStatus SetAttribute(ViAttr attribute, ViAttrState value, ViUInt32 timeout_ms) override;
  void HangUp() override { stream_.HangUp(); }

 private:
  ViStatus Receive(const ReadRequest& request, Deadline& deadline, std::size_t& received);
  ViStatus ReadToTermchar(const ReadRequest& request, Deadline& deadline, std::size_t& received);
  bool TakeAhead(const ReadRequest& request, std::size_t& received);
  ViStatus Send(std::string_view line, Deadline& deadline);

  const std::string host_;
  const ViUInt16 port_;
  TcpStream stream_;
  // Received, but behind the termchar at which a read ended.
  std::vector<ViByte> ahead_;
  std::size_t ahead_taken_ = 0;
  bool late_possible_ = false;  // the last read failed, and its answer may still come
  std::atomic<bool> reconnect_{false};
};

// Bytes from `begin` up to and including the termchar, or all of them.
std::size_t ThroughTermchar(const ViByte* begin, std::size_t count, std::optional<ViByte> termchar, bool& found) {
  const void* const hit = termchar ? std::memchr(begin, *termchar, count) : nullptr;
  found = hit != nullptr;
  return found ? static_cast<std::size_t>(static_cast<const ViByte*>(hit) - begin) + 1 : count;
}

bool SocketTransport::TakeAhead(const ReadRequest& request, std::size_t& received) {
  const ViByte* const next = ahead_.data() + ahead_taken_;
  bool found = false;
  received = ThroughTermchar(next, std::min(request.room, ahead_.size() - ahead_taken_), request.termchar, found);
  std::copy_n(next, received, request.into);
  ahead_taken_ += received;
  if (ahead_taken_ == ahead_.size()) DiscardInput();
  return found;
}

ViStatus SocketTransport::Read(const ReadRequest& request, Deadline& deadline, std::size_t& received) {
  const ViStatus status = Receive(request, deadline, received);
  late_possible_ = status < 0;
  return status;
}

ViStatus SocketTransport::Receive(const ReadRequest& request, Deadline& deadline, std::size_t& received) {
  received = 0;
  if (!ahead_.empty()) {
    if (TakeAhead(request, received)) return VI_SUCCESS_TERM_CHAR;
    if (received >= request.at_least) return VI_SUCCESS_MAX_CNT;
  }
  if (request.termchar) return ReadToTermchar(request, deadline, received);
  std::size_t count = 0;
  const ViStatus status =
      stream_.Receive(request.into + received, request.room - received, request.at_least - received, deadline, count);
  received += count;
  return status < 0 ? status : VI_SUCCESS_MAX_CNT;
}

ViStatus SocketTransport::ReadToTermchar(const ReadRequest& request, Deadline& deadline, std::size_t& received) {
  while (received < request.at_least) {
    ViByte* const next = request.into + received;
    std::size_t count = 0;
    const ViStatus status = stream_.Receive(next, std::min(request.room - received, kMostAhead), 1, deadline, count);
    bool found = false;
    const std::size_t wanted = ThroughTermchar(next, count, request.termchar, found);
    if (wanted < count) ahead_.insert(ahead_.end(), next + wanted, next + count);
    received += wanted;
    if (found) return VI_SUCCESS_TERM_CHAR;
    if (status < 0) return status;
  }
  return VI_SUCCESS_MAX_CNT;
}

ViStatus SocketTransport::Write(std::span<iovec> pieces, bool /*end*/, Deadline& deadline, std::size_t& sent) {
  if (late_possible_ && reconnect_) [[unlikely]] {
    sent = 0;
    const ViStatus status = stream_.Reconnect(host_, port_, deadline);
    if (status < 0) return status == VI_ERROR_RSRC_NFOUND ? VI_ERROR_CONN_LOST : status;
    DiscardInput();
    late_possible_ = false;
  }
  return stream_.Send(pieces, deadline, sent);
}

ViStatus SocketTransport::Clear(Deadline& deadline) {
  DiscardInput();
  return stream_.DiscardArrived(deadline);
}

ViStatus SocketTransport::Send(std::string_view line, Deadline& deadline) {
  iovec piece{const_cast<char*>(line.data()), line.size()};
  std::size_t sent = 0;
  return Write({&piece, 1}, true, deadline, sent);
}

// A byte stream has no status byte of its own; an IEEE 488.2 device answers the common query.
ViStatus SocketTransport::ReadStatusByte(ViUInt16 protocol, Deadline& deadline, ViUInt16& status_byte) {
  if (protocol != VI_PROT_4882_STRS) return VI_ERROR_INV_SETUP;
  if (const ViStatus status = Send("*STB?\n", deadline); status < 0) return status;
  std::array<char, 32> answer;
  std::size_t received = 0;
  const ReadRequest request{reinterpret_cast<ViByte*>(answer.data()), answer.size(), answer.size(), ViByte{'\n'}};
  if (const ViStatus status = Read(request, deadline, received); status < 0) return status;
  const char* begin = answer.data();
  const char* const end = begin + received;
  while (begin != end && (*begin == ' ' || *begin == '+')) ++begin;
  ViUInt16 value = 0;
  const auto [rest, error] = std::from_chars(begin, end, value);
  if (error != std::errc() || value > 0xFF) return VI_ERROR_OUTP_PROT_VIOL;
  status_byte = value;
  return VI_SUCCESS;
}

ViStatus SocketTransport::Trigger(ViUInt16 protocol, Deadline& deadline) {
  return protocol == VI_PROT_4882_STRS ? Send("*TRG\n", deadline) : VI_ERROR_INV_SETUP;
}

ViStatus SocketTransport::GetAttribute(ViAttr attribute, void* value) {
  switch (attribute) {
    case VI_ATTR_TCPIP_ADDR:
      return PutText(value, stream_.PeerAddress());
    case VI_ATTR_TCPIP_HOSTNAME:
      return PutText(value, host_ == stream_.PeerAddress() ? "" : host_);
    case VI_ATTR_TCPIP_PORT:
      return PutNumber<ViUInt16>(value, port_);
    case VI_ATTR_TCPIP_NODELAY:
      return PutNumber<ViBoolean>(value, stream_.NoDelay() ? VI_TRUE : VI_FALSE);
    case VI_ATTR_TCPIP_KEEPALIVE:
      return PutNumber<ViBoolean>(value, stream_.KeepAlive() ? VI_TRUE : VI_FALSE);
    case TVR_ATTR_SOCKET_RECONNECT:
      return PutNumber<ViBoolean>(value, reconnect_ ? VI_TRUE : VI_FALSE);
    default:
      return VI_ERROR_NSUP_ATTR;
  }
}

ViStatus SocketTransport::SetAttribute(ViAttr attribute, ViAttrState value, ViUInt32 /*timeout_ms*/) {
  switch (attribute) {
    case VI_ATTR_TCPIP_ADDR:
    case VI_ATTR_TCPIP_HOSTNAME:
    case VI_ATTR_TCPIP_PORT:
      return VI_ERROR_ATTR_READONLY;
    case VI_ATTR_TCPIP_NODELAY:
      return value > VI_TRUE || !stream_.SetNoDelay(value == VI_TRUE) ? VI_ERROR_NSUP_ATTR_STATE : VI_SUCCESS;
    case VI_ATTR_TCPIP_KEEPALIVE:
      return value > VI_TRUE || !stream_.SetKeepAlive(value == VI_TRUE) ? VI_ERROR_NSUP_ATTR_STATE : VI_SUCCESS;
    case TVR_ATTR_SOCKET_RECONNECT:
      if (value > VI_TRUE) return VI_ERROR_NSUP_ATTR_STATE;
      reconnect_ = value == VI_TRUE;
      return VI_SUCCESS;
    default:
      return VI_ERROR_NSUP_ATTR;
  }
}

}  // namespace

ViStatus OpenSocket(const ResourceName& resource, Interruption& interruption, Deadline& deadline,
                    std::unique_ptr<Transport>& opened) {
  auto transport = std::make_unique<SocketTransport>(resource, interruption);
  const ViStatus status = transport->Connect(deadline);
  if (status >= 0) opened = std::move(transport);
  return status;
}

}  // namespace tvr::visa
