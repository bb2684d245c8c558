#include "Responder.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <pthread.h>
#include <sched.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace bench {
namespace {

constexpr std::string_view AnswerTo(std::string_view line) {
  if (line.starts_with("*IDN?")) return "Kelvora,TD48142C,1,1.0\n";
  if (line.starts_with("*ESR?")) return "0\n";
  return "1000000000\n";
}

}  // namespace

void PinTo(int core) {
  cpu_set_t cores;
  CPU_ZERO(&cores);
  if (core >= 0) {
    CPU_SET(static_cast<std::size_t>(core), &cores);
  } else {
    for (unsigned i = 0; i < std::thread::hardware_concurrency(); ++i) CPU_SET(i, &cores);
  }
  pthread_setaffinity_np(pthread_self(), sizeof cores, &cores);
}

Responder::Responder(int core) : listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)), port_(0) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  if (listener_ < 0 || ::bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
      ::listen(listener_, 16) != 0 || ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    throw std::runtime_error("no loopback listener");
  }
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this, core] { Serve(core); });
}

Responder::~Responder() {
  stop_ = true;
  ::shutdown(listener_, SHUT_RDWR);
  thread_.join();
  ::close(listener_);
}

void Responder::Serve(int core) {
  if (core >= 0) PinTo(core);
  std::vector<std::thread> connections;
  while (!stop_) {
    const int connection = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) break;
    const int on = 1;
    ::setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    connections.emplace_back([this, connection, core] {
      if (core >= 0) PinTo(core);
      ServeOne(connection);
      ::close(connection);
    });
  }
  for (std::thread& connection : connections) connection.join();
}

// Ends with the client's connection; a client that outlives its responder would be a fault of the caller.
void Responder::ServeOne(int connection) {
  std::array<char, 65536> buffer;
  std::string line;
  for (;;) {
    const ssize_t got = ::recv(connection, buffer.data(), buffer.size(), 0);
    if (got <= 0) return;
    std::string_view bytes(buffer.data(), static_cast<std::size_t>(got));
    while (!bytes.empty()) {
      const std::size_t end = bytes.find('\n');
      if (end == std::string_view::npos) {
        if (line.size() < 256) line.append(bytes.substr(0, 256));
        break;
      }
      if (line.empty()) {
        line.assign(bytes.substr(0, end < 256 ? end : 256));
      } else if (line.size() < 256) {
        line.append(bytes.substr(0, end));
      }
      bytes.remove_prefix(end + 1);
      if (line.find('?') != std::string::npos) {
        const std::string_view answer = AnswerTo(line);
        if (::send(connection, answer.data(), answer.size(), MSG_NOSIGNAL) < 0) return;
      }
      line.clear();
    }
  }
}

}  // namespace bench
