// :SYSTem:COMMunicate.
#include "model/network.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include "model/bind.h"
#include "model/instrument.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Commands;
using scpi::Error;
using scpi::kNothing;
using scpi::kOne;
using scpi::Refusal;

constexpr scpi::Word<LineEnd> kLineEnds[] = {{"CRETurn", LineEnd::kCarriageReturn},
                                             {"CRLFeed", LineEnd::kCarriageReturnLineFeed},
                                             {"LFEed", LineEnd::kLineFeed}};

std::optional<std::uint32_t> ParseAddress(std::string_view text) {
  std::uint32_t address = 0;
  for (int part = 0; part < 4; ++part) {
    unsigned number = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto digits = static_cast<std::size_t>(end - text.data());
    if (problem != std::errc() || number > 255 || digits > 3 || (digits > 1 && text[0] == '0')) return std::nullopt;
    address = address << 8 | number;
    text.remove_prefix(digits);
    if (part == 3) break;
    if (!text.starts_with('.')) return std::nullopt;
    text.remove_prefix(1);
  }
  if (!text.empty()) return std::nullopt;
  return address;
}

std::string ReadChecked(Call& call, bool (*valid)(std::string_view)) {
  std::string text = call.Text();
  if (!valid(text)) throw Refusal(Error::kIllegalParameter, text);
  return text;
}

std::vector<std::string> ReadServers(Call& call) {
  std::vector<std::string> servers;
  while (call.left() != 0) servers.push_back(ReadChecked(call, IsAddress));
  return servers;
}

void Append(std::vector<std::string>& servers, const std::vector<std::string>& more) {
  for (const std::string& server : more) {
    if (std::find(servers.begin(), servers.end(), server) == servers.end()) servers.push_back(server);
  }
  if (servers.size() > kMostNameServers) throw Refusal(Error::kTooMuchData);
}

void AddConfiguration(Commands& commands, NetworkSettings& network) {
  // Address, mask and gateway; a mask or gateway that is not sent stays.
  commands.Do("SYSTem:COMMunicate:LAN:CONFig", {1, 3}, [&network](Call& call) {
    const std::string address = ReadChecked(call, IsAddress);
    const std::string mask = call.left() != 0 ? ReadChecked(call, IsMask) : network.mask;
    const std::string gateway = call.left() != 0 ? ReadChecked(call, IsAddress) : network.gateway;
    network.address = address;
    network.mask = mask;
    network.gateway = gateway;
  });
  commands.Ask("SYSTem:COMMunicate:LAN:CONFig", kNothing, [&network](Call& call) {
    for (const std::string* text : {&network.address, &network.mask, &network.gateway}) call.answer.Plain(*text);
  });
  // With DHCP it is what a small network's server would have given.
  commands.Ask("SYSTem:COMMunicate:LAN:CONFig:CURRent", kNothing, [&network](Call& call) {
    call.answer.Plain(network.dhcp ? "192.168.0.117" : network.address);
    call.answer.Plain(network.dhcp ? "255.255.255.0" : network.mask);
    call.answer.Plain(network.dhcp ? "192.168.0.1" : network.gateway);
  });
}

void AddNameServers(Commands& commands, NetworkSettings& network) {
  std::vector<std::string>& servers = network.name_servers;
  constexpr scpi::Arity kServers{1, kMostNameServers};

  // First and second server and the domain, each of which may be empty.
  commands.Do("SYSTem:COMMunicate:LAN:DNS", {3, 3}, [&network](Call& call) {
    std::vector<std::string> given;
    for (int i = 0; i < 2; ++i) {
      const std::string server = call.Text();
      if (server.empty()) continue;
      if (!IsAddress(server)) throw Refusal(Error::kIllegalParameter, server);
      given.push_back(server);
    }
    const std::string domain = call.Text();
    if (!domain.empty() && !IsHostName(domain)) throw Refusal(Error::kIllegalParameter, domain);
    network.name_servers = std::move(given);
    network.domain = domain;
  });
  commands.Ask("SYSTem:COMMunicate:LAN:DNS", kNothing, [&network](Call& call) {
    for (std::size_t i = 0; i < 2; ++i) {
      call.answer.Plain(i < network.name_servers.size() ? network.name_servers[i] : std::string());
    }
    call.answer.Plain(network.domain);
  });

  commands.Do("SYSTem:COMMunicate:LAN:DNSServer:LIST", {0, kMostNameServers}, [&servers](Call& call) {
    std::vector<std::string> list;
    Append(list, ReadServers(call));
    servers = std::move(list);
  });
  commands.Ask("SYSTem:COMMunicate:LAN:DNSServer:LIST", kNothing, [&servers](Call& call) {
    if (servers.empty()) call.answer.Plain("");
    for (const std::string& server : servers) call.answer.Plain(server);
  });
  commands.Do("SYSTem:COMMunicate:LAN:DNSServer:APPend", kServers, [&servers](Call& call) {
    std::vector<std::string> list = servers;
    Append(list, ReadServers(call));
    servers = std::move(list);
  });
  commands.Do("SYSTem:COMMunicate:LAN:DNSServer:DELete", kServers, [&servers](Call& call) {
    std::vector<std::string> list = servers;
    for (const std::string& server : ReadServers(call)) {
      if (std::erase(list, server) == 0) throw Refusal(Error::kIllegalParameter, server);
    }
    servers = std::move(list);
  });
}

}  // namespace

bool IsAddress(std::string_view text) { return ParseAddress(text).has_value(); }

bool IsMask(std::string_view text) {
  const auto mask = ParseAddress(text);
  return mask && (~*mask & (~*mask + 1)) == 0;
}

bool IsHostName(std::string_view text) {
  if (text.empty() || text.size() > 253) return false;
  while (true) {
    const std::string_view label = text.substr(0, text.find('.'));
    const auto allowed = [](char c) {
      return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
    };
    if (label.empty() || label.size() > 63 || label.front() == '-' || label.back() == '-') return false;
    if (!std::all_of(label.begin(), label.end(), allowed)) return false;
    if (label.size() == text.size()) return true;
    text.remove_prefix(label.size() + 1);
  }
}

void AddNetwork(Commands& commands, NetworkSettings& network) {
  BindInteger(commands, "SYSTem:COMMunicate:GPIB:ADDRess[:PRIMary]", 0, 30, 5, network.gpib_address);
  BindChoice(commands, "SYSTem:COMMunicate:GPIB:TERMinator:OUTPut", kLineEnds, network.line_end);
  BindBoolean(commands, "SYSTem:COMMunicate:LAN:DHCP", network.dhcp);
  commands.Do("SYSTem:COMMunicate:LAN:HOSTname", kOne,
              [&network](Call& call) { network.host_name = ReadChecked(call, IsHostName); });
  commands.Ask("SYSTem:COMMunicate:LAN:HOSTname", kNothing,
               [&network](Call& call) { call.answer.Plain(network.host_name); });
  AddConfiguration(commands, network);
  AddNameServers(commands, network);
}

}  // namespace siggen::model
