// A HiSLIP client without any wits of its own: literal frames on two plain connections.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "client.h"

namespace siggen {

// "HS" stands for itself, hexadecimal digits follow; blanks separate. The payload comes behind.
inline std::string Frame(std::string_view header, std::string_view payload = {}) {
  std::string bytes(header.substr(0, 2));
  std::string digits;
  for (const char c : header.substr(2)) {
    if (c == ' ') continue;
    digits += c;
    if (digits.size() < 2) continue;
    bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
    digits.clear();
  }
  EXPECT_EQ(16U, bytes.size()) << header;
  return bytes + std::string(payload);
}

inline std::string Readable(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    char shown[8];
    std::snprintf(shown, sizeof shown, c >= ' ' && c <= '~' ? "%c" : "\\x%02X", static_cast<unsigned char>(c));
    text += shown;
  }
  return text;
}

// A connection of which exactly as many bytes are taken as are asked for.
class Wire {
 public:
  explicit Wire(std::uint16_t port) : client_(port) {}

  void Send(std::string_view bytes) { client_.Send(bytes); }
  std::string ReceiveBytes(std::size_t count) {
    if (ahead_.size() < count) ahead_ += client_.ReceiveBytes(count - ahead_.size());
    std::string bytes = ahead_.substr(0, count);
    ahead_.erase(0, bytes.size());
    return bytes;
  }
  // The payload of a message whose header is not what matters.
  std::string ReceiveText() {
    const std::string header = ReceiveBytes(16);
    return header.size() == 16 ? ReceiveBytes(static_cast<unsigned char>(header[15])) : "";
  }
  void EndSending() { client_.EndSending(); }
  int WaitForEnd() { return client_.WaitForEnd(); }

 private:
  Client client_;
  std::string ahead_;
};

// A macro for the sake of the line numbers.
#define EXPECT_HEARD(frame, connection) \
  EXPECT_EQ(Readable(frame), Readable((connection).ReceiveBytes(std::string(frame).size())))

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
