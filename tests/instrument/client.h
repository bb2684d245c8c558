// A plain TCP client with a deadline on everything, and a host running in the background.
#pragma once

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <string_view>
#include <thread>

#include "link/host.h"

namespace siggen {

class Client {
 public:
  explicit Client(std::uint16_t port) : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    connected_ = ::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  }
  struct Accepted {
    int socket;
  };
  explicit Client(Accepted accepted) : socket_(accepted.socket), connected_(accepted.socket >= 0) {}
  ~Client() { ::close(socket_); }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  bool connected() const { return connected_; }

  void Send(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      ASSERT_GT(sent, 0);
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
  }

  // Up to and with `until`, or what came before the link ended or the time was up.
  std::string Receive(std::string_view until = "\n", std::chrono::milliseconds time = std::chrono::seconds(5)) {
    return ReceiveWhile([until](const std::string& got) { return !got.ends_with(until); }, time);
  }

  std::string ReceiveBytes(std::size_t count) {
    return ReceiveWhile([count](const std::string& got) { return got.size() < count; }, std::chrono::seconds(20));
  }

  std::string Ask(std::string_view line) {
    Send(std::string(line) + "\n");
    std::string answer = Receive();
    if (answer.ends_with('\n')) answer.pop_back();
    return answer;
  }

  void EndSending() { ::shutdown(socket_, SHUT_WR); }

  // 0 after an orderly end, an errno otherwise; -1 when the link still stands after five seconds.
  int WaitForEnd() {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (Readable(deadline)) {
      char byte;
      const ssize_t got = ::recv(socket_, &byte, 1, 0);
      if (got == 0) return 0;
      if (got < 0) return errno;
    }
    return -1;
  }

 private:
  bool Readable(std::chrono::steady_clock::time_point deadline) const {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now()).count();
    pollfd entry{socket_, POLLIN, 0};
    return left > 0 && ::poll(&entry, 1, static_cast<int>(left)) == 1;
  }

  template <typename More>
  std::string ReceiveWhile(More more, std::chrono::milliseconds time) {
    const auto deadline = std::chrono::steady_clock::now() + time;
    std::string got;
    std::string chunk(1 << 16, '\0');
    while (more(got) && Readable(deadline)) {
      const ssize_t count = ::recv(socket_, chunk.data(), chunk.size(), 0);
      if (count <= 0) break;
      got.append(chunk, 0, static_cast<std::size_t>(count));
    }
    return got;
  }

  int socket_;
  bool connected_ = false;
};

class LiveInstrument {
 public:
  explicit LiveInstrument(link::HostOptions options = {})
      : host_(std::move(options)), thread_([this] { host_.Run(); }) {}
  ~LiveInstrument() {
    host_.Stop();
    thread_.join();
  }

  link::Host& host() { return host_; }
  std::uint16_t port() const { return host_.listeners().front().port; }
  void Inject(std::string_view fault) { host_.Inject(*link::ParseFault(fault)); }

 private:
  link::Host host_;
  std::thread thread_;
};

}  // namespace siggen
