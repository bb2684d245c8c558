#include "Sockets.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace kvtd::test {

namespace {

[[noreturn]] void ThrowErrno(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

struct Address {
  sockaddr_storage storage{};
  socklen_t length = 0;

  sockaddr* get() { return reinterpret_cast<sockaddr*>(&storage); }
};

Address Loopback(Family family, std::uint16_t port) {
  Address address;
  if (family == Family::V4) {
    auto* v4 = reinterpret_cast<sockaddr_in*>(&address.storage);
    v4->sin_family = AF_INET;
    v4->sin_port = htons(port);
    v4->sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.length = sizeof(sockaddr_in);
  } else {
    auto* v6 = reinterpret_cast<sockaddr_in6*>(&address.storage);
    v6->sin6_family = AF_INET6;
    v6->sin6_port = htons(port);
    v6->sin6_addr = in6addr_loopback;
    address.length = sizeof(sockaddr_in6);
  }
  return address;
}

std::uint16_t PortOf(int socket) {
  Address address;
  address.length = sizeof(address.storage);
  if (::getsockname(socket, address.get(), &address.length) != 0) ThrowErrno("getsockname");
  // The port stands in the same place in both families.
  return ntohs(reinterpret_cast<sockaddr_in*>(&address.storage)->sin_port);
}

Descriptor NewSocket(Family family) {
  Descriptor socket(::socket(family == Family::V4 ? AF_INET : AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!socket.open()) ThrowErrno("socket");
  return socket;
}

void SendAtOnce(int socket) {
  const int on = 1;
  ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
}

bool Wait(int descriptor, short events, const Alarm* alarm, Milliseconds timeout) {
  const Clock::time_point deadline = Clock::now() + timeout;
  std::array<pollfd, 2> waits{{{descriptor, events, 0}, {alarm != nullptr ? alarm->descriptor() : -1, POLLIN, 0}}};
  for (;;) {
    const auto left = std::chrono::ceil<Milliseconds>(deadline - Clock::now()).count();
    const int ready = ::poll(waits.data(), waits.size(), left > 0 ? static_cast<int>(left) : 0);
    if (ready < 0 && errno == EINTR) continue;
    if (ready < 0) ThrowErrno("poll");
    return waits[1].revents == 0 && waits[0].revents != 0;
  }
}

}  // namespace

Descriptor::Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  if (this != &other) {
    Close();
    fd_ = std::exchange(other.fd_, -1);
  }
  return *this;
}

void Descriptor::Close() {
  if (fd_ >= 0) ::close(std::exchange(fd_, -1));
}

Alarm::Alarm() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) ThrowErrno("pipe2");
  read_end_ = Descriptor(ends[0]);
  write_end_ = Descriptor(ends[1]);
}

void Alarm::Ring() {
  // A full pipe is an alarm that rings already.
  [[maybe_unused]] const ssize_t written = ::write(write_end_.get(), "!", 1);
}

Listener::Listener(Family family) : socket_(NewSocket(family)) {
  Address address = Loopback(family, 0);
  if (::bind(socket_.get(), address.get(), address.length) != 0) ThrowErrno("bind");
  if (::listen(socket_.get(), 16) != 0) ThrowErrno("listen");
  if (::fcntl(socket_.get(), F_SETFL, O_NONBLOCK) != 0) ThrowErrno("fcntl");
  port_ = PortOf(socket_.get());
}

Descriptor Listener::Accept() {
  Descriptor connection(::accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
  if (connection.open()) SendAtOnce(connection.get());
  return connection;
}

Descriptor ConnectTo(std::uint16_t port, Family family) {
  Descriptor socket = NewSocket(family);
  Address address = Loopback(family, port);
  if (::connect(socket.get(), address.get(), address.length) != 0) ThrowErrno("connect");
  if (::fcntl(socket.get(), F_SETFL, O_NONBLOCK) != 0) ThrowErrno("fcntl");
  SendAtOnce(socket.get());
  return socket;
}

std::uint16_t UnusedPort() { return Listener().port(); }

bool WaitReadable(int descriptor, const Alarm* alarm, Milliseconds timeout) {
  return Wait(descriptor, POLLIN, alarm, timeout);
}

bool WaitWritable(int descriptor, const Alarm* alarm, Milliseconds timeout) {
  return Wait(descriptor, POLLOUT, alarm, timeout);
}

std::optional<std::size_t> WaitAnyReadable(const std::array<int, 2>& descriptors, const Alarm* alarm) {
  std::array<pollfd, 3> waits{{{descriptors[0], POLLIN, 0},
                               {descriptors[1], POLLIN, 0},
                               {alarm != nullptr ? alarm->descriptor() : -1, POLLIN, 0}}};
  while (::poll(waits.data(), waits.size(), -1) < 0) {
    if (errno != EINTR) ThrowErrno("poll");
  }
  if (waits[2].revents != 0) return std::nullopt;
  return waits[0].revents != 0 ? 0 : 1;
}

bool SendAll(const Descriptor& socket, std::string_view bytes, const Alarm* alarm) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    } else if (errno == EAGAIN) {
      if (!WaitWritable(socket.get(), alarm, kPatience)) return false;
    } else if (errno != EINTR) {
      return false;
    }
  }
  return true;
}

std::optional<std::string> ReceiveSome(const Descriptor& socket, Milliseconds timeout) {
  if (!WaitReadable(socket.get(), nullptr, timeout)) return std::nullopt;
  std::string bytes(65536, '\0');
  const ssize_t count = ::recv(socket.get(), bytes.data(), bytes.size(), 0);
  // A reset ends the stream as well: who must tell them apart looks at errno himself.
  bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return bytes;
}

std::string ReceiveUntil(const Descriptor& socket, char delimiter, Milliseconds timeout) {
  const Clock::time_point deadline = Clock::now() + timeout;
  std::string bytes;
  char byte = 0;
  while (bytes.empty() || bytes.back() != delimiter) {
    const auto left = std::chrono::ceil<Milliseconds>(deadline - Clock::now());
    if (left.count() <= 0 || !WaitReadable(socket.get(), nullptr, left)) break;
    if (::recv(socket.get(), &byte, 1, 0) != 1) break;
    bytes += byte;
  }
  return bytes;
}

std::string ReceiveExactly(const Descriptor& socket, std::size_t count, const Alarm* alarm) {
  std::string bytes(count, '\0');
  std::size_t received = 0;
  while (received < count && WaitReadable(socket.get(), alarm, kPatience)) {
    const ssize_t got = ::recv(socket.get(), bytes.data() + received, count - received, 0);
    if (got < 0 && (errno == EAGAIN || errno == EINTR)) continue;
    if (got <= 0) break;
    received += static_cast<std::size_t>(got);
  }
  bytes.resize(received);
  return bytes;
}

void HalfClose(const Descriptor& socket) { ::shutdown(socket.get(), SHUT_WR); }

void CloseByReset(Descriptor& socket) {
  const linger at_once{.l_onoff = 1, .l_linger = 0};
  ::setsockopt(socket.get(), SOL_SOCKET, SO_LINGER, &at_once, sizeof(at_once));
  socket.Close();
}

}  // namespace kvtd::test
