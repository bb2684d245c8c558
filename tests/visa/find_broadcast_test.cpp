// viFindRsrc where nobody names addresses: the interfaces of the machine are asked. The calls of the system are wrapped
// by the linker: the interfaces are the test's, and nothing is sent.
#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <visa.h>

#include <array>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

sockaddr_in Address(const char* digits) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  ::inet_pton(AF_INET, digits, &address.sin_addr);
  return address;
}
sockaddr* Generic(sockaddr_in& address) { return reinterpret_cast<sockaddr*>(&address); }

struct Interface {
  unsigned flags;
  sockaddr_in own;
  sockaddr_in broadcast;
};

// As the system lists them.
class Interfaces {
 public:
  explicit Interfaces(std::vector<Interface> interfaces)
      : interfaces_(std::move(interfaces)), list_(interfaces_.size()) {
    for (std::size_t i = 0; i < list_.size(); ++i) {
      list_[i].ifa_flags = interfaces_[i].flags;
      list_[i].ifa_addr = interfaces_[i].own.sin_family == AF_UNSPEC ? nullptr : Generic(interfaces_[i].own);
      list_[i].ifa_broadaddr = Generic(interfaces_[i].broadcast);
      if (i > 0) list_[i - 1].ifa_next = &list_[i];
    }
  }
  ifaddrs* first() { return list_.data(); }

 private:
  std::vector<Interface> interfaces_;
  std::vector<ifaddrs> list_;
};

ifaddrs* listed = nullptr;
int freed = 0;
std::vector<std::string> asked;  // "address:port", or what is wrong with the socket

}  // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names
extern "C" {
int __wrap_getifaddrs(ifaddrs** list) {
  *list = listed;
  return listed == nullptr ? -1 : 0;
}
void __wrap_freeifaddrs(ifaddrs* /*list*/) { ++freed; }
ssize_t __wrap_sendto(int socket, const void* /*bytes*/, size_t size, int /*flags*/, const sockaddr* to, socklen_t) {
  int broadcast = 0;
  socklen_t length = sizeof broadcast;
  if (::getsockopt(socket, SOL_SOCKET, SO_BROADCAST, &broadcast, &length) != 0 || broadcast == 0) {
    asked.emplace_back("a socket that may not broadcast");
    return -1;
  }
  const auto& address = *reinterpret_cast<const sockaddr_in*>(to);
  std::array<char, INET_ADDRSTRLEN> digits{};
  ::inet_ntop(AF_INET, &address.sin_addr, digits.data(), digits.size());
  asked.push_back(std::string(digits.data()) + ":" + std::to_string(ntohs(address.sin_port)));
  return static_cast<ssize_t>(size);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace visa_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FindByBroadcast : public testing::Test {
 protected:
  void SetUp() override {
    ::unsetenv("TVR_VISA_FIND_ADDRESSES");
    asked.clear();
    freed = 0;
    ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager_));
  }
  ~FindByBroadcast() override {
    viClose(manager_);
    listed = nullptr;
  }
  ViStatus Search() { return viFindRsrc(manager_, "?*INSTR", nullptr, nullptr, nullptr); }

  ViSession manager_ = VI_NULL;
};

TEST_F(FindByBroadcast, EveryInterfaceThatIsUpIsAskedByBroadcastAndTheLoopbackByItsAddress) {
  const sockaddr_in none{};
  sockaddr_in other_family = Address("10.6.0.1");
  other_family.sin_family = AF_PACKET;
  Interfaces interfaces({
      {IFF_UP | IFF_LOOPBACK, Address("127.0.0.1"), none},
      {IFF_UP | IFF_BROADCAST, Address("10.1.0.1"), Address("10.1.255.255")},
      {IFF_BROADCAST, Address("10.2.0.1"), Address("10.2.255.255")},         // down
      {IFF_UP | IFF_POINTOPOINT, Address("10.3.0.1"), Address("10.3.0.2")},  // knows no broadcast
      {IFF_UP | IFF_BROADCAST, none, Address("10.4.255.255")},               // without an address
      {IFF_UP | IFF_BROADCAST, other_family, Address("10.6.255.255")},
      {IFF_UP | IFF_BROADCAST, Address("192.168.5.7"), Address("192.168.5.255")},
  });
  listed = interfaces.first();
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, Search());
  EXPECT_THAT(asked, ElementsAre("127.0.0.1:111", "10.1.255.255:111", "192.168.5.255:111"));
  EXPECT_EQ(1, freed);
}

TEST_F(FindByBroadcast, WithoutAListOfInterfacesNobodyIsAsked) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, Search());
  EXPECT_THAT(asked, IsEmpty());
  EXPECT_EQ(0, freed);
}

TEST_F(FindByBroadcast, NamedAddressesTakeThePlaceOfTheInterfaces) {
  Interfaces interfaces({{IFF_UP | IFF_LOOPBACK, Address("127.0.0.1"), {}}});
  listed = interfaces.first();
  ::setenv("TVR_VISA_FIND_ADDRESSES", "10.9.0.255", 1);
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, Search());
  ::unsetenv("TVR_VISA_FIND_ADDRESSES");
  EXPECT_THAT(asked, ElementsAre("10.9.0.255:111"));
}

}  // namespace
}  // namespace visa_test
