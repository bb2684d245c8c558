// Any text as a resource descriptor: refused, or read; and what was read has one spelling that reads the same.

#include <string>

#include "Require.h"
#include "resource_name.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using kvtd::fuzz::Require;
  using tvr::visa::ParseResourceName;
  using tvr::visa::ResourceName;

  ResourceName name;
  if (ParseResourceName({reinterpret_cast<const char*>(data), size}, name) < 0) return 0;
  Require(!name.canonical.empty() && !name.resource_class.empty(), "what was read has a spelling and a class");
  if (name.interface_type == VI_INTF_TCPIP) {
    Require(!name.host.empty(), "there is a host");
    const bool has_port = name.resource_class == "SOCKET" || name.hislip;
    Require(has_port == (name.port != 0), "a port stands where one is needed and nowhere else");
  }

  ResourceName again;
  Require(ParseResourceName(name.canonical, again) >= 0, "the spelling can be read");
  Require(again.canonical == name.canonical && again.interface_type == name.interface_type &&
              again.board == name.board && again.resource_class == name.resource_class && again.host == name.host &&
              again.port == name.port && again.device_name == name.device_name && again.hislip == name.hislip,
          "the spelling means the same");
  return 0;
}
