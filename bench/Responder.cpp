#include "Responder.h"

#include <sys/socket.h>

#include <array>
#include <string_view>

namespace bench {

void Responder::Serve(int connection) const {
  std::array<char, 65536> buffer;
  std::string line;
  std::string made;
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
        if (!SendAll(connection, answers_.To(line, made))) return;
      }
      line.clear();
    }
  }
}

}  // namespace bench
