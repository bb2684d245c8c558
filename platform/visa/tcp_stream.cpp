#include "tcp_stream.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "host_lookup.h"

namespace tvr::visa {
namespace {

// Short enough for an interruption to be felt at once, long enough for most answers to come within it.
constexpr int kSliceMilliseconds = 4;

// The kernel takes no more than this many pieces at a time.
constexpr std::size_t kMostPieces = 64;
constexpr std::size_t kSmall = 1024;

ViStatus StatusOf(int error) {
  switch (error) {
    case ECONNRESET:
    case ECONNABORTED:
    case EPIPE:
    case ENOTCONN:
    case ETIMEDOUT:
    case EHOSTUNREACH:
    case ENETUNREACH:
    case ENETDOWN:
      return VI_ERROR_CONN_LOST;
    case ENOMEM:
    case ENOBUFS:
      return VI_ERROR_ALLOC;
    case EFAULT:
      return VI_ERROR_USER_BUF;
    default:
      return VI_ERROR_IO;
  }
}

ViStatus StatusOfConnect(int error) {
  switch (error) {
    case EMFILE:
    case ENFILE:
    case ENOMEM:
    case ENOBUFS:
      return VI_ERROR_ALLOC;
    case ETIMEDOUT:
      return VI_ERROR_TMO;
    default:
      return VI_ERROR_RSRC_NFOUND;
  }
}

bool SetOption(int socket, int level, int option, bool on) {
  const int value = on ? 1 : 0;
  return ::setsockopt(socket, level, option, &value, sizeof value) == 0;
}

bool Option(int socket, int level, int option) {
  int value = 0;
  socklen_t size = sizeof value;
  return ::getsockopt(socket, level, option, &value, &size) == 0 && value != 0;
}

}  // namespace

TcpStream::~TcpStream() {
  if (socket_ >= 0) ::close(socket_);
}

ViStatus TcpStream::Connect(const std::string& host, ViUInt16 port, Deadline& deadline) {
  HostAddresses addresses;
  if (const ViStatus status = LookUpHost(host, port, deadline, addresses); status < 0) return status;

  ViStatus status = VI_ERROR_RSRC_NFOUND;
  int addresses_left = addresses.Count();
  for (const addrinfo* address = addresses.First(); address != nullptr; address = address->ai_next, --addresses_left) {
    socket_ = ::socket(address->ai_family, SOCK_STREAM | SOCK_CLOEXEC, IPPROTO_TCP);
    if (socket_ < 0) {
      status = StatusOfConnect(errno);
      continue;
    }
    PrepareConnection();
    int error = ::connect(socket_, address->ai_addr, address->ai_addrlen) == 0 ? 0 : errno;
    if (error == EINPROGRESS || error == EINTR) {
      // A first address that swallows everything must leave time for the second.
      const int remaining = deadline.Remaining();
      const int part = remaining / addresses_left;
      Deadline share(remaining < 0 ? ViUInt32{VI_TMO_INFINITE} : static_cast<ViUInt32>(part));
      const ViStatus waited = Wait(POLLOUT, share);
      socklen_t size = sizeof error;
      if (waited == VI_ERROR_TMO) {
        error = ETIMEDOUT;
      } else if (waited < 0) {
        return waited;
      } else if (::getsockopt(socket_, SOL_SOCKET, SO_ERROR, &error, &size) != 0) {
        error = errno;
      }
    }
    if (error == 0) return VI_SUCCESS;
    status = StatusOfConnect(error);
    ::close(socket_);
    socket_ = -1;
  }
  return status;
}

void TcpStream::Adopt(int socket) {
  socket_ = socket;
  PrepareConnection();
}

void TcpStream::PrepareConnection() {
  SetOption(socket_, IPPROTO_TCP, TCP_NODELAY, true);
  const timeval slice{0, suseconds_t{kSliceMilliseconds} * 1000};
  ::setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &slice, sizeof slice);
  ::setsockopt(socket_, SOL_SOCKET, SO_SNDTIMEO, &slice, sizeof slice);
}

ViStatus TcpStream::Reconnect(const std::string& host, ViUInt16 port, Deadline& deadline) {
  TcpStream fresh(interruption_);
  if (const ViStatus status = fresh.Connect(host, port, deadline); status < 0) return status;
  fresh.SetNoDelay(NoDelay());
  fresh.SetKeepAlive(KeepAlive());
  // Under the old number: another thread may be about to hang up.
  if (::dup3(fresh.socket_, socket_, O_CLOEXEC) < 0) return VI_ERROR_SYSTEM_ERROR;
  if (hung_up_) HangUp();
  return VI_SUCCESS;
}

ssize_t TcpStream::SendOnce(std::span<iovec> pieces, int flags) {
  // The common cases are sent as one piece: the kernel need not fetch a description, which takes it longer than it
  // takes us to copy a few small ones together.
  if (pieces.size() == 1) return ::send(socket_, pieces.front().iov_base, pieces.front().iov_len, flags);
  std::array<ViByte, kSmall> whole;
  std::size_t size = 0;
  for (const iovec& piece : pieces) {
    if (piece.iov_len > whole.size() - size) return SendGathered(pieces, flags);
    std::copy_n(static_cast<const ViByte*>(piece.iov_base), piece.iov_len, whole.data() + size);
    size += piece.iov_len;
  }
  return ::send(socket_, whole.data(), size, flags);
}

ssize_t TcpStream::SendGathered(std::span<iovec> pieces, int flags) {
  msghdr message{};
  message.msg_iov = pieces.data();
  message.msg_iovlen = std::min(pieces.size(), kMostPieces);
  return ::sendmsg(socket_, &message, flags);
}

ViStatus TcpStream::Send(std::span<iovec> pieces, Deadline& deadline, std::size_t& sent) {
  sent = 0;
  bool first = true;
  while (!pieces.empty()) {
    if (!first && deadline.Expired()) return VI_ERROR_TMO;
    first = false;
    const int flags = MSG_NOSIGNAL | (deadline.ShorterThan(kSliceMilliseconds) ? MSG_DONTWAIT : 0);
    const ssize_t count = SendOnce(pieces, flags);
    if (count < 0) {
      if (const ViStatus status = AfterFailure(POLLOUT, deadline); status < 0) return status;
      continue;
    }
    auto gone = static_cast<std::size_t>(count);
    sent += gone;
    while (!pieces.empty() && gone >= pieces.front().iov_len) {
      gone -= pieces.front().iov_len;
      pieces = pieces.subspan(1);
    }
    if (!pieces.empty()) {
      pieces.front().iov_base = static_cast<ViByte*>(pieces.front().iov_base) + gone;
      pieces.front().iov_len -= gone;
      if (interruption_.Requested()) return VI_ERROR_ABORT;
    }
  }
  return VI_SUCCESS;
}

ViStatus TcpStream::Receive(ViByte* into, std::size_t room, std::size_t at_least, Deadline& deadline,
                            std::size_t& received) {
  received = 0;
  for (;;) {
    // A peer that never pauses lets nobody wait, and must not keep an interruption from being felt.
    if (interruption_.Requested()) return VI_ERROR_ABORT;
    if (deadline.ExpiredAtNextWait()) return VI_ERROR_TMO;
    // With a count that must be met in full the kernel collects it, and wakes nobody for a part of it.
    const int flags =
        (at_least == room ? MSG_WAITALL : 0) | (deadline.ShorterThan(kSliceMilliseconds) ? MSG_DONTWAIT : 0);
    const ssize_t count = ::recv(socket_, into + received, room - received, flags);
    if (count > 0) {
      received += static_cast<std::size_t>(count);
      if (received >= at_least) return VI_SUCCESS;
    } else if (count == 0) {
      return VI_ERROR_CONN_LOST;
    } else if (const ViStatus status = AfterFailure(POLLIN, deadline); status < 0) {
      return status;
    }
  }
}

ViStatus TcpStream::DiscardArrived(Deadline& deadline) {
  std::array<ViByte, 16384> scrap;
  for (;;) {
    const ssize_t count = ::recv(socket_, scrap.data(), scrap.size(), MSG_DONTWAIT);
    if (count == 0) return VI_ERROR_CONN_LOST;
    if (count < 0 && errno != EINTR) {
      return errno == EAGAIN || errno == EWOULDBLOCK ? VI_SUCCESS : StatusOf(errno);
    }
    if (deadline.Expired()) return VI_ERROR_TMO;
  }
}

ViStatus TcpStream::AfterFailure(short events, Deadline& deadline) {
  if (errno == EAGAIN || errno == EWOULDBLOCK) return Wait(events, deadline);
  if (errno == EINTR) return deadline.Expired() ? VI_ERROR_TMO : VI_SUCCESS;
  return StatusOf(errno);
}

ViStatus TcpStream::Wait(short events, Deadline& deadline) {
  for (;;) {
    if (interruption_.Requested()) return VI_ERROR_ABORT;
    std::array<pollfd, 2> waits{pollfd{socket_, events, 0}, pollfd{interruption_.Descriptor(), POLLIN, 0}};
    const int remaining = deadline.Remaining();
    const int count = ::poll(waits.data(), waits.size(), remaining);
    if (count < 0 && errno != EINTR) return StatusOf(errno);
    if (count > 0 && waits[0].revents != 0) return VI_SUCCESS;
    if (count == 0 || remaining == 0) return VI_ERROR_TMO;
  }
}

void TcpStream::HangUp() {
  hung_up_ = true;
  if (socket_ >= 0) ::shutdown(socket_, SHUT_RDWR);
}

bool TcpStream::NoDelay() const { return Option(socket_, IPPROTO_TCP, TCP_NODELAY); }
bool TcpStream::KeepAlive() const { return Option(socket_, SOL_SOCKET, SO_KEEPALIVE); }
bool TcpStream::SetNoDelay(bool on) { return SetOption(socket_, IPPROTO_TCP, TCP_NODELAY, on); }
bool TcpStream::SetKeepAlive(bool on) { return SetOption(socket_, SOL_SOCKET, SO_KEEPALIVE, on); }

std::optional<in_addr> TcpStream::OwnIpv4Address() const {
  sockaddr_storage own{};
  socklen_t size = sizeof own;
  if (::getsockname(socket_, reinterpret_cast<sockaddr*>(&own), &size) != 0 || own.ss_family != AF_INET) return {};
  return reinterpret_cast<const sockaddr_in&>(own).sin_addr;
}

std::string TcpStream::PeerAddress() const {
  sockaddr_storage peer{};
  socklen_t size = sizeof peer;
  if (::getpeername(socket_, reinterpret_cast<sockaddr*>(&peer), &size) != 0) return {};
  std::array<char, INET6_ADDRSTRLEN> digits{};
  const void* address = peer.ss_family == AF_INET6
                            ? static_cast<const void*>(&reinterpret_cast<const sockaddr_in6*>(&peer)->sin6_addr)
                            : &reinterpret_cast<const sockaddr_in*>(&peer)->sin_addr;
  return ::inet_ntop(peer.ss_family, address, digits.data(), digits.size()) != nullptr ? digits.data() : "";
}

}  // namespace tvr::visa
