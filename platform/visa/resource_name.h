// Resource descriptors: "TCPIP[board]::host::port::SOCKET" and its relatives.
#pragma once

#include <visa.h>

#include <string>
#include <string_view>

namespace tvr::visa {

struct ResourceName {
  ViUInt16 interface_type = 0;  // VI_INTF_...
  ViUInt16 board = 0;
  std::string resource_class;  // "SOCKET", "INSTR", ...
  std::string host;            // TCPIP only, an IPv6 address without its brackets
  ViUInt16 port = 0;           // SOCKET, HiSLIP
  std::string device_name;     // "inst0", "hislip0", ...
  bool hislip = false;
  std::string canonical;  // keywords in upper case, board and class written out, the host as the caller spelt it
};

// VI_ERROR_INV_RSRC_NAME when the text is no descriptor, VI_ERROR_INV_PROT when it asks for a secure connection.
// Descriptors of interfaces that this library has not are recognised too.
ViStatus ParseResourceName(std::string_view text, ResourceName& name);

}  // namespace tvr::visa
