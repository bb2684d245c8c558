// A VXI-11 client without any wits of its own: literal calls on plain connections.
#pragma once

#include <string>
#include <string_view>

#include "wire.h"

namespace siggen {

// One record of one fragment.
inline std::string Record(const std::string& message) {
  char mark[9];
  std::snprintf(mark, sizeof mark, "80%06zX", message.size());
  return Bytes(mark) + message;
}

// A call, numbered 2A, of the program and the procedure given.
inline std::string CallOf(std::string_view program, std::string_view procedure, std::string_view arguments) {
  return Record(Bytes("0000002A 00000000 00000002" + std::string(program) + std::string(procedure) +
                      "00000000 00000000 00000000 00000000" + std::string(arguments)));
}
inline std::string Call(std::string_view procedure, std::string_view arguments) {
  return CallOf("000607AF 00000001", procedure, arguments);
}
inline std::string Abort(std::string_view link) { return CallOf("000607B0 00000001", "00000001", link); }

// What answers it when the call was carried out.
inline std::string Reply(std::string_view result) {
  return Record(Bytes("0000002A 00000001 00000000 00000000 00000000 00000000" + std::string(result)));
}

// One connection with one link: what creating it looks like is a test of its own.
class Vxi11Client : public Wire {
 public:
  explicit Vxi11Client(std::uint16_t port) : Wire(port) {
    Send(Call("0000000A", "00000000 00000000 00000000 00000005 'inst0' 000000"));
    const std::string response = ReceiveBytes(44);
    EXPECT_EQ(44U, response.size());
    if (response.size() == 44) {
      abort_port_ = static_cast<std::uint16_t>(static_cast<unsigned char>(response[38]) << 8 |
                                               static_cast<unsigned char>(response[39]));
    }
  }

  std::uint16_t abort_port() const { return abort_port_; }

  // For what a test needs and is not about; `link` in eight digits.
  void Write(std::string_view link, std::string_view text) {
    char length[9];
    std::snprintf(length, sizeof length, "%08zX", text.size());
    std::string call =
        Bytes("0000002A 00000000 00000002 000607AF 00000001 0000000B 00000000 00000000 00000000 00000000" +
              std::string(link) + "00002710 00000000 00000008" + length);
    call += text;
    Send(Record(call.append((4 - text.size() % 4) % 4, '\0')));
    EXPECT_HEARD(Reply("00000000" + std::string(length)), *this);
  }
  std::string Ask(std::string_view link, std::string_view text) {
    Write(link, text);
    Send(Call("0000000C", std::string(link) + "00000400 00002710 00000000 00000000 00000000"));
    const std::string head = ReceiveBytes(40);
    if (head.size() < 40) return head;
    const std::size_t length = static_cast<unsigned char>(head[39]);
    return ReceiveBytes((length + 3) / 4 * 4).substr(0, length);
  }

 private:
  std::uint16_t abort_port_ = 0;
};

inline link::HostOptions Vxi11Only() {
  link::HostOptions options;
  options.socket_port.reset();
  options.vxi11_port = std::uint16_t{0};
  options.map_port = false;
  return options;
}

}  // namespace siggen
