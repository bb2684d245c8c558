#include "FilePeer.h"

#include <sys/socket.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace bench {

void FilePeer::Serve(int connection) const {
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
        if (!SendAll(connection, answers_.To(line))) return;
      }
      line.clear();
    }
  }
}

}  // namespace bench
