// The search for instruments, against answers by UDP from anybody. The system calls end here, and so does the clock.
//
// The input: a byte whose lowest bit says that a line with the addresses to ask follows, then what comes back while it
// waits, each a byte and what belongs to it: see __wrap_poll.

#include "discovery.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Input.h"
#include "Require.h"
#include "Xdr.h"

namespace kvtd::fuzz {
namespace {

using std::chrono::milliseconds;

constexpr int kSocket = 1 << 20;  // above all that the system gives out
constexpr milliseconds kPatience{500};

struct Network {
  Input* input = nullptr;
  std::chrono::steady_clock::time_point now{std::chrono::hours(1)};
  bool open = false;
  std::string question;  // the last that was sent
  std::string datagram;  // on its way
  std::uint32_t host = 0;
  bool fails = false;
  std::set<std::uint32_t> owed;   // hosts that answered as they should
  std::set<std::uint32_t> heard;  // hosts that sent the question's number at least
};
Network g_network;

// Of an accepted reply, to the question whose number is so much higher.
std::string Head(std::uint32_t off = 0) {
  return Word(NumberAt(g_network.question, 0) + off) + Word(1) + Word(0) + Word(0);
}

void Arrive(Input& input, std::uint8_t what) {
  Network& net = g_network;
  net.host = input.Number<std::uint32_t>();
  net.fails = false;
  switch (what % 8) {
    case 0: {
      const std::uint32_t port = 1U + input.Byte();
      net.datagram = Head() + Word(0) + Word(0) + Word(port);
      net.owed.insert(net.host);
      break;
    }
    case 1:  // what answers another question
      net.datagram = Head(1U + input.Byte()) + Word(0) + Word(0) + Word(1024);
      return;
    case 2:  // an accepted reply with any verifier and result
      net.datagram = Head() + input.Text();
      break;
    case 3: {  // a verifier whose length may be a lie
      const auto length = input.Number<std::uint32_t>();
      net.datagram = Head() + Word(length) + input.Text();
      break;
    }
    case 4:
      net.datagram = Word(NumberAt(net.question, 0)) + input.Text();
      break;
    case 5:
      net.datagram = input.Text();
      return;
    default:
      net.fails = true;
      return;
  }
  net.heard.insert(net.host);
}

void Find(Input& input) {
  g_network = Network{};
  g_network.input = &input;
  ::setenv("TVR_VISA_FIND_ADDRESSES", input.Bool() ? input.Line().c_str() : "127.0.0.1", 1);
  const auto begin = g_network.now;
  std::vector<std::string> descriptors;
  Require(tvr::visa::FindInstruments(descriptors) >= 0, "a search is no failure");
  Require(g_network.now - begin <= kPatience + milliseconds(1), "a search ends in time");
  Require(!g_network.open, "the socket is closed");

  std::vector<std::uint32_t> found;
  for (const std::string& descriptor : descriptors) {
    constexpr std::string_view kHead = "TCPIP0::", kTail = "::inst0::INSTR";
    Require(descriptor.starts_with(kHead) && descriptor.ends_with(kTail), "what is found is a descriptor");
    const std::string host = descriptor.substr(kHead.size(), descriptor.size() - kHead.size() - kTail.size());
    in_addr address{};
    Require(::inet_pton(AF_INET, host.c_str(), &address) == 1, "an instrument has an address");
    found.push_back(ntohl(address.s_addr));
  }
  Require(std::is_sorted(found.begin(), found.end(), std::less_equal<>()), "each once, in the order of the addresses");
  const auto& owed = g_network.owed;
  const auto& heard = g_network.heard;
  Require(std::includes(found.begin(), found.end(), owed.begin(), owed.end()), "who answers is found");
  Require(std::includes(heard.begin(), heard.end(), found.begin(), found.end()), "who is silent is not");
}

int Fail(int error) {
  errno = error;
  return -1;
}

}  // namespace
}  // namespace kvtd::fuzz

using kvtd::fuzz::g_network;
using kvtd::fuzz::kSocket;

std::chrono::steady_clock::time_point FakeNow() noexcept asm("__wrap__ZNSt6chrono3_V212steady_clock3nowEv");
std::chrono::steady_clock::time_point FakeNow() noexcept { return g_network.now; }

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names
#pragma GCC visibility push(default)
extern "C" {

int __real_close(int descriptor);
int __real_poll(pollfd* waits, nfds_t count, int timeout);
int __real_setsockopt(int descriptor, int level, int option, const void* value, socklen_t size);

int __wrap_socket(int, int, int) {
  g_network.open = true;
  return kSocket;
}

int __wrap_close(int descriptor) {
  if (descriptor != kSocket) return __real_close(descriptor);
  kvtd::fuzz::Require(g_network.open, "the socket is closed once");
  g_network.open = false;
  return 0;
}

int __wrap_setsockopt(int descriptor, int level, int option, const void* value, socklen_t size) {
  return descriptor == kSocket ? 0 : __real_setsockopt(descriptor, level, option, value, size);
}

ssize_t __wrap_sendto(int, const void* bytes, size_t size, int, const sockaddr*, socklen_t) {
  g_network.question.assign(static_cast<const char*>(bytes), size);
  return static_cast<ssize_t>(size);
}

int __wrap_poll(pollfd* waits, nfds_t count, int timeout) {
  using kvtd::fuzz::milliseconds;
  if (waits[0].fd != kSocket) return __real_poll(waits, count, timeout);
  kvtd::fuzz::Input& input = *g_network.input;
  const milliseconds patience(timeout);
  const std::uint8_t what = input.Byte();
  if (input.empty() || what % 8 == 6) {  // silence
    const milliseconds silence = input.empty() ? patience : milliseconds(input.Byte());
    g_network.now += std::min(silence, patience);
    return 0;
  }
  // Whatever comes takes its time, so that even an endless input ends.
  g_network.now += std::min(milliseconds(1), patience);
  if (what == 0xFF) return kvtd::fuzz::Fail(EINTR);
  kvtd::fuzz::Arrive(input, what);
  waits[0].revents = POLLIN;
  return 1;
}

ssize_t __wrap_recvfrom(int, void* into, size_t room, int, sockaddr* from, socklen_t* size) {
  if (g_network.fails) return kvtd::fuzz::Fail(ECONNREFUSED);
  sockaddr_in sender{};
  sender.sin_family = AF_INET;
  sender.sin_addr.s_addr = htonl(g_network.host);
  *size = std::min<socklen_t>(*size, sizeof sender);
  std::memcpy(from, &sender, *size);
  const std::size_t count = std::min(room, g_network.datagram.size());
  std::memcpy(into, g_network.datagram.data(), count);
  return static_cast<ssize_t>(count);
}

}  // extern "C"
#pragma GCC visibility pop
// NOLINTEND(bugprone-reserved-identifier)

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kvtd::fuzz::Input input(data, size);
  kvtd::fuzz::Find(input);
  return 0;
}
