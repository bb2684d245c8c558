#include "discovery.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <memory>
#include <random>
#include <set>
#include <span>
#include <string_view>

#include "deadline.h"

namespace tvr::visa {
namespace {

constexpr ViUInt32 kPatience = 500;
constexpr std::size_t kMostInstruments = 4096;
constexpr std::uint16_t kPortMapper = 111;

sockaddr_in AddressOf(in_addr host, std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr = host;
  address.sin_port = htons(port);
  return address;
}

std::vector<sockaddr_in> AddressesOfInterfaces() {
  std::vector<sockaddr_in> addresses;
  ifaddrs* first = nullptr;
  if (::getifaddrs(&first) != 0) return addresses;
  const std::unique_ptr<ifaddrs, void (*)(ifaddrs*)> list(first, ::freeifaddrs);
  for (const ifaddrs* each = first; each != nullptr; each = each->ifa_next) {
    if ((each->ifa_flags & IFF_UP) == 0 || each->ifa_addr == nullptr || each->ifa_addr->sa_family != AF_INET) continue;
    const sockaddr* asked = nullptr;
    if ((each->ifa_flags & IFF_LOOPBACK) != 0) {
      asked = each->ifa_addr;
    } else if ((each->ifa_flags & IFF_BROADCAST) != 0) {
      asked = each->ifa_broadaddr;
    }
    if (asked == nullptr) continue;
    addresses.push_back(AddressOf(reinterpret_cast<const sockaddr_in*>(asked)->sin_addr, kPortMapper));
  }
  return addresses;
}

std::vector<sockaddr_in> AddressesFrom(std::string_view list) {
  std::vector<sockaddr_in> addresses;
  while (!list.empty()) {
    std::string_view entry = list.substr(0, list.find(','));
    list.remove_prefix(std::min(list.size(), entry.size() + 1));
    while (entry.starts_with(' ')) entry.remove_prefix(1);
    while (entry.ends_with(' ')) entry.remove_suffix(1);

    const std::string host(entry.substr(0, entry.find(':')));
    std::uint16_t port = kPortMapper;
    if (host.size() < entry.size()) {
      const auto [rest, error] = std::from_chars(entry.data() + host.size() + 1, entry.data() + entry.size(), port);
      if (error != std::errc() || rest != entry.data() + entry.size()) continue;
    }
    in_addr address{};
    if (::inet_pton(AF_INET, host.c_str(), &address) == 1) addresses.push_back(AddressOf(address, port));
  }
  return addresses;
}

using Word = std::uint32_t;

constexpr Word kReply = 1, kAccepted = 0, kSuccess = 0;

// A call of the port mapper: which port has DEVICE_CORE, version 1, over TCP?
std::array<Word, 14> Question(Word id) {
  constexpr Word kCall = 0, kRpcVersion = 2, kPortMapperProgram = 100000, kPortMapperVersion = 2, kGetPort = 3;
  constexpr Word kDeviceCore = 395183, kCoreVersion = 1;
  std::array<Word, 14> words{id, kCall, kRpcVersion, kPortMapperProgram, kPortMapperVersion, kGetPort,    0,
                             0,  0,     0,           kDeviceCore,        kCoreVersion,       IPPROTO_TCP, 0};
  for (Word& word : words) word = htonl(word);
  return words;
}

// Is this the answer to the question, with a port in it? Anybody may have sent it.
bool TellsAPort(std::span<const Word> words, Word id) {
  constexpr std::size_t kVerifierLength = 4;  // and behind the verifier: the status, the port
  constexpr Word kLongestVerifier = 400;
  const auto at = [words](std::size_t i) { return ntohl(words[i]); };
  if (words.size() <= kVerifierLength) return false;
  if (at(0) != id || at(1) != kReply || at(2) != kAccepted || at(kVerifierLength) > kLongestVerifier) return false;
  const std::size_t status = kVerifierLength + 1 + (at(kVerifierLength) + 3) / 4;
  if (words.size() < status + 2 || at(status) != kSuccess) return false;
  return at(status + 1) >= 1 && at(status + 1) <= 0xFFFF;
}

class DatagramSocket {
 public:
  DatagramSocket() : descriptor_(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
    const int on = 1;
    ::setsockopt(descriptor_, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
  }
  ~DatagramSocket() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  DatagramSocket(const DatagramSocket&) = delete;
  DatagramSocket& operator=(const DatagramSocket&) = delete;

  int get() const { return descriptor_; }

 private:
  const int descriptor_;
};

// The hosts that answer, in host byte order.
std::set<Word> Collect(const DatagramSocket& socket, Word id) {
  std::set<Word> hosts;
  Deadline deadline(kPatience);
  while (!deadline.Expired() && hosts.size() < kMostInstruments) {
    pollfd wait{socket.get(), POLLIN, 0};
    if (::poll(&wait, 1, deadline.Remaining()) <= 0) continue;
    std::array<Word, 128> words;
    sockaddr_in from{};
    socklen_t size = sizeof from;
    const ssize_t count =
        ::recvfrom(socket.get(), words.data(), sizeof words, 0, reinterpret_cast<sockaddr*>(&from), &size);
    if (count <= 0 || from.sin_family != AF_INET) continue;
    if (TellsAPort({words.data(), static_cast<std::size_t>(count) / sizeof(Word)}, id)) {
      hosts.insert(ntohl(from.sin_addr.s_addr));
    }
  }
  return hosts;
}

}  // namespace

ViStatus FindInstruments(std::vector<std::string>& descriptors) {
  const char* const chosen = std::getenv("TVR_VISA_FIND_ADDRESSES");
  const std::vector<sockaddr_in> addresses = chosen == nullptr ? AddressesOfInterfaces() : AddressesFrom(chosen);
  const DatagramSocket socket;
  if (socket.get() < 0) return VI_ERROR_ALLOC;

  const Word id = std::random_device{}();
  const auto question = Question(id);
  bool asked = false;
  for (const sockaddr_in& address : addresses) {
    const auto* const to = reinterpret_cast<const sockaddr*>(&address);
    asked |= ::sendto(socket.get(), question.data(), sizeof question, 0, to, sizeof address) > 0;
  }
  if (!asked) return VI_SUCCESS;

  for (const Word host : Collect(socket, id)) {
    const in_addr address{htonl(host)};
    std::array<char, INET_ADDRSTRLEN> digits;
    ::inet_ntop(AF_INET, &address, digits.data(), digits.size());
    descriptors.push_back("TCPIP0::" + std::string(digits.data()) + "::inst0::INSTR");
  }
  return VI_SUCCESS;
}

}  // namespace tvr::visa
