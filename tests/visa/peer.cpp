#include "peer.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace visa_test {
namespace {

constexpr timeval kPatience{10, 0};

int Listen(Family family, int& port) {
  sockaddr_storage storage{};
  socklen_t size = 0;
  if (family == Family::kIpv4) {
    auto& address = reinterpret_cast<sockaddr_in&>(storage);
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    size = sizeof address;
  } else {
    auto& address = reinterpret_cast<sockaddr_in6&>(storage);
    address.sin6_family = AF_INET6;
    address.sin6_addr = in6addr_loopback;
    size = sizeof address;
  }
  const int listener = ::socket(storage.ss_family, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (listener < 0 || ::bind(listener, reinterpret_cast<sockaddr*>(&storage), size) != 0 ||
      ::listen(listener, 64) != 0 || ::getsockname(listener, reinterpret_cast<sockaddr*>(&storage), &size) != 0) {
    if (listener >= 0) ::close(listener);
    throw std::runtime_error("no loopback listener");
  }
  port = ntohs(family == Family::kIpv4 ? reinterpret_cast<sockaddr_in&>(storage).sin_port
                                       : reinterpret_cast<sockaddr_in6&>(storage).sin6_port);
  return listener;
}

}  // namespace

Connection::~Connection() {
  if (socket_ >= 0) ::close(socket_);
}

bool Connection::Receive() {
  std::array<char, 65536> bytes;
  const ssize_t count = ::recv(socket_, bytes.data(), bytes.size(), 0);
  if (count > 0) received_.append(bytes.data(), static_cast<std::size_t>(count));
  return count > 0;
}

std::string Connection::Line() {
  std::size_t end = 0;
  while ((end = received_.find('\n')) == std::string::npos) {
    if (!Receive()) return std::exchange(received_, {});
  }
  std::string line = received_.substr(0, end + 1);
  received_.erase(0, end + 1);
  return line;
}

std::string Connection::Bytes(std::size_t count) {
  while (received_.size() < count && Receive()) {
  }
  std::string bytes = received_.substr(0, count);
  received_.erase(0, bytes.size());
  return bytes;
}

bool Connection::Silent() {
  pollfd wait{socket_, POLLIN, 0};
  return received_.empty() && ::poll(&wait, 1, 0) == 0;
}

void Connection::Send(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (count <= 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void Connection::WaitForClose() {
  while (Receive()) {
  }
}

void Connection::Reset() {
  const linger hard{1, 0};
  ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &hard, sizeof hard);
  ::close(std::exchange(socket_, -1));
}

Peer::Peer(Script script, Family family) : script_(std::move(script)), family_(family) {
  listener_ = Listen(family, port_);
  acceptor_ = std::thread([this] { Accept(); });
}

Peer::~Peer() {
  ::shutdown(listener_, SHUT_RDWR);
  acceptor_.join();
  ::close(listener_);
  for (std::thread& script : scripts_) script.join();
}

void Peer::Accept() {
  for (;;) {
    const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (socket < 0) return;
    const int on = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
    ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof kPatience);
    scripts_.emplace_back([this, socket] {
      Connection connection(socket);
      script_(connection);
    });
  }
}

std::string Peer::Descriptor() const {
  const std::string host = family_ == Family::kIpv4 ? "127.0.0.1" : "[::1]";
  return "TCPIP0::" + host + "::" + std::to_string(port_) + "::SOCKET";
}

int RefusedPort() {
  int port = 0;
  ::close(Listen(Family::kIpv4, port));
  return port;
}

}  // namespace visa_test
