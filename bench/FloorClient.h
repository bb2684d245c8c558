// The floor: the same bytes through a plain socket, with nothing around them.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace bench {

class FloorClient {
 public:
  explicit FloorClient(std::uint16_t port) : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int on = 1;
    if (::connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
      throw std::runtime_error("the responder is not there");
    }
    ::setsockopt(socket_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  }
  ~FloorClient() { ::close(socket_); }
  FloorClient(const FloorClient&) = delete;
  FloorClient& operator=(const FloorClient&) = delete;

  void Send(std::string_view text) {
    while (!text.empty()) {
      const ssize_t sent = ::send(socket_, text.data(), text.size(), MSG_NOSIGNAL);
      if (sent <= 0) throw std::runtime_error("no send");
      text.remove_prefix(static_cast<std::size_t>(sent));
    }
  }

  void Receive(char* into, std::size_t count) {
    while (count > 0) {
      const ssize_t got = ::recv(socket_, into, count, MSG_WAITALL);
      if (got <= 0) throw std::runtime_error("no answer");
      into += got;
      count -= static_cast<std::size_t>(got);
    }
  }

  void Query(std::string_view text) {
    Send(text);
    std::array<char, 256> answer;
    if (::recv(socket_, answer.data(), answer.size(), 0) <= 0) throw std::runtime_error("no answer");
  }

 private:
  int socket_;
};

}  // namespace bench
