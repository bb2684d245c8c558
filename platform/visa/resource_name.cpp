#include "resource_name.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <vector>

#include "ascii.h"

namespace tvr::visa {
namespace {

constexpr std::size_t kLongestHost = 253;
constexpr ViUInt16 kHislipPort = 4880;

std::optional<ViUInt16> Number(std::string_view text) {
  ViUInt16 number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

// Splits at "::", but not inside the brackets of an IPv6 address.
std::vector<std::string_view> Split(std::string_view text) {
  std::vector<std::string_view> parts;
  std::size_t begin = 0;
  bool inside = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '[') inside = true;
    if (text[i] == ']') inside = false;
    if (!inside && text.substr(i, 2) == "::") {
      parts.push_back(text.substr(begin, i - begin));
      begin = i + 2;
      ++i;
    }
  }
  parts.push_back(text.substr(begin));
  return parts;
}

struct Interface {
  std::string_view keyword;
  ViUInt16 type;
  std::size_t fewest_parts;  // behind the keyword, without the class
  std::size_t most_parts;
  std::array<std::string_view, 4> classes;  // the first is the default
};

// Longer keywords before those that they begin with.
constexpr std::array<Interface, 7> kInterfaces{{
    {"TCPIP", VI_INTF_TCPIP, 1, 2, {"INSTR", "SOCKET"}},
    {"GPIB-VXI", VI_INTF_GPIB_VXI, 0, 1, {"INSTR", "MEMACC", "BACKPLANE"}},
    {"GPIB", VI_INTF_GPIB, 0, 2, {"INSTR", "INTFC", "SERVANT"}},
    {"ASRL", VI_INTF_ASRL, 0, 0, {"INSTR"}},
    {"USB", VI_INTF_USB, 3, 4, {"INSTR", "RAW"}},
    {"VXI", VI_INTF_VXI, 0, 1, {"INSTR", "MEMACC", "BACKPLANE", "SERVANT"}},
    {"PXI", VI_INTF_PXI, 0, 4, {"INSTR", "MEMACC", "BACKPLANE"}},
}};

const Interface* FindInterface(std::string_view head) {
  for (const Interface& each : kInterfaces) {
    const std::string_view rest = head.substr(std::min(each.keyword.size(), head.size()));
    if (Upper(head.substr(0, each.keyword.size())) == each.keyword && std::all_of(rest.begin(), rest.end(), IsDigit)) {
      return &each;
    }
  }
  return nullptr;
}

// Visible characters, and none of those that hold a descriptor together.
bool IsPlain(std::string_view part) {
  return std::all_of(part.begin(), part.end(),
                     [](char c) { return c > ' ' && c <= '~' && c != ':' && c != '[' && c != ']'; });
}

bool IsClassOf(const Interface& interface, std::string_view text) {
  const std::string upper = Upper(text);
  return !text.empty() &&
         std::find(interface.classes.begin(), interface.classes.end(), upper) != interface.classes.end();
}

// A host name, a dotted address, or an IPv6 address in brackets.
bool TakeHost(std::string_view text, std::string& host) {
  if (text.size() > 2 && text.front() == '[' && text.back() == ']') {
    text = text.substr(1, text.size() - 2);
    const bool plausible = std::all_of(text.begin(), text.end(), [](char c) {
      const char upper = Upper(c);
      return IsDigit(c) || (upper >= 'A' && upper <= 'Z') || c == ':' || c == '.' || c == '%' || c == '-' || c == '_';
    });
    if (!plausible || text.find(':') == std::string_view::npos) return false;
  } else {
    const bool plausible = std::all_of(text.begin(), text.end(), [](char c) {
      const char upper = Upper(c);
      return IsDigit(c) || (upper >= 'A' && upper <= 'Z') || c == '.' || c == '-' || c == '_';
    });
    if (!plausible || text.empty() || text.size() > kLongestHost) return false;
  }
  host = text;
  return true;
}

// "inst0", "gpib0,5", "hislip0", "hislip0,4880".
bool TakeDevice(std::string_view text, ResourceName& name) {
  const std::size_t comma = text.find(',');
  const std::string_view device = text.substr(0, comma);
  const bool plausible = !device.empty() && std::all_of(device.begin(), device.end(), [](char c) {
    return IsDigit(c) || (Upper(c) >= 'A' && Upper(c) <= 'Z') || c == '_';
  });
  if (!plausible) return false;
  name.hislip = Upper(device.substr(0, 6)) == "HISLIP";
  if (!name.hislip) {
    name.device_name = text;
    const std::string_view suffix = comma == std::string_view::npos ? "" : text.substr(comma);
    return std::all_of(suffix.begin(), suffix.end(), [](char c) { return IsDigit(c) || c == ','; });
  }
  name.device_name = device;
  name.port = kHislipPort;
  if (comma == std::string_view::npos) return true;
  const auto port = Number(text.substr(comma + 1));
  name.port = port.value_or(0);
  return port.has_value() && *port != 0;
}

ViStatus ParseTcpip(std::vector<std::string_view> parts, ResourceName& name) {
  const std::string_view host = parts[1];
  if (host.find('@') != std::string_view::npos) return VI_ERROR_INV_PROT;
  if (!TakeHost(host, name.host)) return VI_ERROR_INV_RSRC_NAME;
  const std::string head = "TCPIP" + std::to_string(name.board) + "::" + std::string(host) + "::";

  if (name.resource_class == "SOCKET") {
    const auto port = parts.size() == 3 ? Number(parts[2]) : std::nullopt;
    if (!port || *port == 0) return VI_ERROR_INV_RSRC_NAME;
    name.port = *port;
    name.canonical = head + std::to_string(name.port) + "::SOCKET";
    return VI_SUCCESS;
  }
  if (!TakeDevice(parts.size() == 3 ? parts[2] : "inst0", name)) return VI_ERROR_INV_RSRC_NAME;
  const bool port_shown = name.hislip && name.port != kHislipPort;
  name.canonical = head + name.device_name + (port_shown ? "," + std::to_string(name.port) : "") + "::INSTR";
  return VI_SUCCESS;
}

}  // namespace

ViStatus ParseResourceName(std::string_view text, ResourceName& name) {
  name = ResourceName{};
  std::vector<std::string_view> parts = Split(text);
  const Interface* const interface = FindInterface(parts.front());
  if (interface == nullptr) return VI_ERROR_INV_RSRC_NAME;
  name.interface_type = interface->type;

  const std::string_view board = parts.front().substr(interface->keyword.size());
  if (!board.empty()) {
    const auto number = Number(board);
    if (!number) return VI_ERROR_INV_RSRC_NAME;
    name.board = *number;
  }
  name.resource_class = interface->classes.front();
  if (parts.size() > 1 && IsClassOf(*interface, parts.back())) {
    name.resource_class = Upper(parts.back());
    parts.pop_back();
  }
  const std::size_t count = parts.size() - 1;
  const bool blank = std::any_of(parts.begin(), parts.end(), [](std::string_view part) { return part.empty(); });
  if (blank || count < interface->fewest_parts || count > interface->most_parts) return VI_ERROR_INV_RSRC_NAME;
  if (interface->type == VI_INTF_TCPIP) return ParseTcpip(parts, name);
  if (!std::all_of(parts.begin() + 1, parts.end(), IsPlain)) return VI_ERROR_INV_RSRC_NAME;

  name.canonical = std::string(interface->keyword) + std::to_string(name.board);
  for (std::size_t i = 1; i < parts.size(); ++i) name.canonical += "::" + std::string(parts[i]);
  name.canonical += "::" + name.resource_class;
  return VI_SUCCESS;
}

}  // namespace tvr::visa
