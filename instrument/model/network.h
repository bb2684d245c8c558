// The instrument's own network and GPIB settings. They are kept and checked; the links of this program do not move.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace siggen::model {

enum class LineEnd { kCarriageReturn, kCarriageReturnLineFeed, kLineFeed };

struct NetworkSettings {
  int gpib_address = 5;
  LineEnd line_end = LineEnd::kLineFeed;
  bool dhcp = true;
  std::string host_name = "td481x2c";
  std::string address = "192.168.0.48";
  std::string mask = "255.255.255.0";
  std::string gateway = "192.168.0.1";
  std::vector<std::string> name_servers;
  std::string domain;
};

inline constexpr std::size_t kMostNameServers = 8;

bool IsAddress(std::string_view text);   // four numbers with dots
bool IsMask(std::string_view text);      // an address whose ones stand on the left
bool IsHostName(std::string_view text);  // labels of letters, digits and hyphens

}  // namespace siggen::model
