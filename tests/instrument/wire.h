// A plain connection for literal bytes of a binary protocol.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "client.h"

namespace siggen {

inline std::string Readable(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    char shown[8];
    std::snprintf(shown, sizeof shown, c >= ' ' && c <= '~' ? "%c" : "\\x%02X", static_cast<unsigned char>(c));
    text += shown;
  }
  return text;
}

// Hexadecimal digits, with blanks where one likes; what stands in 'quotes' stands for itself.
inline std::string Bytes(std::string_view text) {
  std::string bytes;
  std::string digits;
  bool quoted = false;
  for (const char c : text) {
    if (c == '\'') {
      quoted = !quoted;
    } else if (quoted) {
      bytes += c;
    } else if (c != ' ') {
      digits += c;
      if (digits.size() < 2) continue;
      bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
      digits.clear();
    }
  }
  EXPECT_TRUE(digits.empty() && !quoted) << text;
  return bytes;
}

// A connection of which exactly as many bytes are taken as are asked for.
class Wire {
 public:
  explicit Wire(std::uint16_t port) : client_(port) {}
  explicit Wire(Client::Accepted accepted) : client_(accepted) {}

  void Send(std::string_view bytes) { client_.Send(bytes); }
  std::string ReceiveBytes(std::size_t count) {
    if (ahead_.size() < count) ahead_ += client_.ReceiveBytes(count - ahead_.size());
    std::string bytes = ahead_.substr(0, count);
    ahead_.erase(0, bytes.size());
    return bytes;
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

}  // namespace siggen
