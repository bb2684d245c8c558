// A client of a server that listens on the loopback interface of this machine.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Require.h"

namespace kvtd::fuzz {

class Client {
 public:
  // Not waiting: libFuzzer's timer would interrupt it.
  explicit Client(std::uint16_t port, int type = SOCK_STREAM)
      : socket_(::socket(AF_INET, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
    // Closed by a reset, so that no ports are used up.
    const linger at_once{1, 0};
    ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &at_once, sizeof at_once);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int result = ::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    Require(result == 0 || errno == EINPROGRESS, "the server takes connections");
  }
  ~Client() { ::close(socket_); }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  void Send(const std::string& bytes) {
    [[maybe_unused]] const auto sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
  }
  std::string Receive() {
    std::array<char, 4096> bytes;
    const auto count = ::recv(socket_, bytes.data(), bytes.size(), 0);
    return {bytes.data(), static_cast<std::size_t>(count > 0 ? count : 0)};
  }
  // On a busy machine the loopback interface takes a moment.
  void AwaitReadable() const {
    pollfd wait{socket_, POLLIN, 0};
    ::poll(&wait, 1, 10);
  }
  // Receives until there is nothing more to come; false when the other side does not come to an end.
  bool AwaitEnd() {
    for (int patience = 0; patience < 1000; ++patience) {
      std::array<char, 4096> bytes;
      const auto count = ::recv(socket_, bytes.data(), bytes.size(), 0);
      if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR)) return true;
      if (count < 0) AwaitReadable();
    }
    return false;
  }
  void EndSending() { ::shutdown(socket_, SHUT_WR); }

 private:
  int socket_;
};

}  // namespace kvtd::fuzz
