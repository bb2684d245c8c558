#include "Listener.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <pthread.h>
#include <sched.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>
#include <vector>

namespace bench {

Listener::Listener(std::function<void(int)> serve, int core)
    : serve_(std::move(serve)), listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  if (listener_ < 0 || ::bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
      ::listen(listener_, SOMAXCONN) != 0 ||
      ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    throw std::runtime_error("no loopback listener");
  }
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this, core] { Accept(core); });
}

Listener::~Listener() {
  ::shutdown(listener_, SHUT_RDWR);
  thread_.join();
  ::close(listener_);
}

// A connection ends with its client; a client that outlives the listener would be a fault of the caller.
void Listener::Accept(int core) {
  if (core >= 0) PinTo(core);
  std::vector<std::thread> connections;
  for (;;) {
    const int connection = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) break;
    const int on = 1;
    ::setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    connections.emplace_back([this, connection, core] {
      if (core >= 0) PinTo(core);
      serve_(connection);
      ::close(connection);
    });
  }
  for (std::thread& connection : connections) connection.join();
}

bool SendAll(int connection, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

std::size_t ReceiveSome(int connection, char* into, std::size_t room) {
  const ssize_t got = ::recv(connection, into, room, 0);
  return got > 0 ? static_cast<std::size_t>(got) : 0;
}

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

}  // namespace bench
