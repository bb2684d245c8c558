// A HiSLIP client without any wits of its own: literal frames on two plain connections.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "wire.h"

namespace siggen {

// "HS" stands for itself, hexadecimal digits follow; blanks separate. The payload comes behind.
inline std::string Frame(std::string_view header, std::string_view payload = {}) {
  const std::string bytes = std::string(header.substr(0, 2)) + Bytes(header.substr(2));
  EXPECT_EQ(16U, bytes.size()) << header;
  return bytes + std::string(payload);
}

// The payload of a message whose header is not what matters.
inline std::string ReceiveText(Wire& connection) {
  const std::string header = connection.ReceiveBytes(16);
  return header.size() == 16 ? connection.ReceiveBytes(static_cast<unsigned char>(header[15])) : "";
}

// Both connections, greeted: what each message of that looks like is a test of its own.
class HislipClient {
 public:
  explicit HislipClient(std::uint16_t port) : sync(port), async(port) {
    sync.Send(Frame("HS 00 00 01004B56 0000000000000007", "hislip0"));
    const std::string response = sync.ReceiveBytes(16);
    EXPECT_EQ(16U, response.size());
    async.Send(Frame("HS 11 00 00000000 0000000000000000").replace(6, 2, response.substr(6, 2)));
    EXPECT_EQ(16U, async.ReceiveBytes(16).size());
  }

  Wire sync;
  Wire async;
};

inline link::HostOptions HislipOnly() {
  link::HostOptions options;
  options.socket_port.reset();
  options.hislip_port = std::uint16_t{0};
  return options;
}

}  // namespace siggen
