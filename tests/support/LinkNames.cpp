#include "LinkNames.h"

#include <cstdlib>

namespace kvtd::test {

const char* NameOf(LinkKind kind) {
  switch (kind) {
    case LinkKind::Hislip:
      return "HiSLIP";
    case LinkKind::Vxi11:
      return "VXI-11";
    default:
      return "socket";
  }
}

const char* LabelOf(LinkKind kind) {
  switch (kind) {
    case LinkKind::Hislip:
      return "hislip";
    case LinkKind::Vxi11:
      return "vxi11";
    default:
      return "socket";
  }
}

std::string ResourceOn(LinkKind kind, std::uint16_t port, Family family) {
  const std::string host = family == Family::V4 ? "TCPIP0::127.0.0.1::" : "TCPIP0::[::1]::";
  switch (kind) {
    case LinkKind::Hislip:
      return host + "hislip0," + std::to_string(port) + "::INSTR";
    case LinkKind::Vxi11:
      ::setenv("TVR_VISA_VXI11_PORT", std::to_string(port).c_str(), 1);
      return host + "inst0::INSTR";
    default:
      return host + std::to_string(port) + "::SOCKET";
  }
}

}  // namespace kvtd::test
