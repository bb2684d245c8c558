#include "FilePeer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string_view>

namespace bench {
namespace {

bool SendAll(int connection, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

}  // namespace

FilePeer::FilePeer(std::size_t file_size) : listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  if (listener_ < 0 || ::bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
      ::listen(listener_, 4) != 0 || ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    throw std::runtime_error("no loopback listener");
  }
  port_ = ntohs(address.sin_port);
  const std::string length = std::to_string(file_size);
  block_ = "#" + std::to_string(length.size()) + length;
  std::mt19937 random(3);
  std::generate_n(std::back_inserter(block_), file_size, [&random] { return static_cast<char>(random()); });
  block_ += '\n';
  thread_ = std::thread([this] { Serve(); });
}

FilePeer::~FilePeer() {
  ::shutdown(listener_, SHUT_RDWR);
  thread_.join();
  ::close(listener_);
}

void FilePeer::Serve() {
  std::vector<std::thread> connections;
  for (;;) {
    const int connection = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) break;
    const int on = 1;
    ::setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    connections.emplace_back([this, connection] {
      ServeOne(connection);
      ::close(connection);
    });
  }
  for (std::thread& connection : connections) connection.join();
}

void FilePeer::ServeOne(int connection) const {
  std::vector<char> buffer(std::size_t{1} << 20);
  std::string line;          // the beginning of a line, as much as tells what it is
  std::size_t in_block = 0;  // bytes of a block that are still to come
  for (;;) {
    const ssize_t got = ::recv(connection, buffer.data(), buffer.size(), 0);
    if (got <= 0) return;
    std::string_view bytes(buffer.data(), static_cast<std::size_t>(got));
    while (!bytes.empty()) {
      const std::size_t data = std::min(in_block, bytes.size());
      bytes.remove_prefix(data);
      in_block -= data;
      if (bytes.empty()) break;
      const char c = bytes.front();
      bytes.remove_prefix(1);
      if (c != '\n') {
        if (line.size() < 64) line += c;
        // A block's header is whole when its announced digits are.
        const std::size_t mark = line.find('#');
        if (mark != std::string::npos && line.size() == mark + 2 + static_cast<std::size_t>(line[mark + 1] - '0')) {
          in_block = std::stoul(line.substr(mark + 2));
        }
        if (line.size() == 64) {  // a list: only its end matters
          const std::size_t end = bytes.find('\n');
          bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end);
        }
        continue;
      }
      if (line.find('?') != std::string::npos) {
        const bool file = line.starts_with(":MMEM:DATA?");
        if (!SendAll(connection, file ? std::string_view(block_) : "1\n")) return;
      }
      line.clear();
    }
  }
}

}  // namespace bench
