// Finding instruments: the port mapper's question and answers, byte by byte.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

#include "session_fixture.h"

namespace visa_test {
namespace {

std::string Bytes(std::string_view digits) {
  std::string bytes;
  std::string pair;
  for (const char c : digits) {
    if (c == ' ') continue;
    pair += c;
    if (pair.size() < 2) continue;
    bytes += static_cast<char>(std::stoi(pair, nullptr, 16));
    pair.clear();
  }
  return bytes;
}

// What comes behind the four bytes that number the question.
const std::string kQuestion = Bytes(
    "00000000 00000002 000186A0 00000002 00000003"  // call, RPC 2, port mapper 2, GETPORT
    "00000000 00000000 00000000 00000000"           // no credentials, no verifier
    "000607AF 00000001 00000006 00000000");         // DEVICE_CORE 1, over TCP
const std::string kPort1024 = Bytes("00000001 00000000 00000000 00000000 00000000 00000400");

// A port mapper on the loopback interface, which gives the answers to the first question it hears.
class PortMapper {
 public:
  // `answers` go out behind the number of the question.
  explicit PortMapper(std::vector<std::string> answers, const char* host = "127.0.0.1")
      : host_(host), socket_(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)), answers_(std::move(answers)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    ::inet_pton(AF_INET, host, &address.sin_addr);
    socklen_t size = sizeof address;
    if (::bind(socket_, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
      throw std::runtime_error("no port for a port mapper");
    }
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { Answer(); });
  }
  ~PortMapper() {
    thread_.join();
    ::close(socket_);
  }
  PortMapper(const PortMapper&) = delete;
  PortMapper& operator=(const PortMapper&) = delete;

  std::string Address() const { return std::string(host_) + ":" + std::to_string(port_); }

 private:
  void Answer() {
    pollfd wait{socket_, POLLIN, 0};
    ASSERT_EQ(1, ::poll(&wait, 1, 10000)) << "nobody asks";
    char question[100];
    sockaddr_in from{};
    socklen_t size = sizeof from;
    const ssize_t count = ::recvfrom(socket_, question, sizeof question, 0, reinterpret_cast<sockaddr*>(&from), &size);
    ASSERT_EQ(56, count);
    EXPECT_TRUE(kQuestion == std::string(question + 4, 52));
    const std::string number(question, 4);
    for (const std::string& answer : answers_) {
      const std::string bytes = number + answer;
      ::sendto(socket_, bytes.data(), bytes.size(), 0, reinterpret_cast<sockaddr*>(&from), size);
    }
  }

  const char* host_;
  const int socket_;
  const std::vector<std::string> answers_;
  std::uint16_t port_ = 0;
  std::thread thread_;
};

class Find : public testing::Test {
 protected:
  Find() {
    Ask("");
    EXPECT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager_));
  }
  ~Find() override {
    viClose(manager_);
    ::unsetenv("TVR_VISA_FIND_ADDRESSES");
  }
  static void Ask(const std::string& addresses) { ::setenv("TVR_VISA_FIND_ADDRESSES", addresses.c_str(), 1); }
  ViStatus Search(const char* expression) { return viFindRsrc(manager_, expression, &list_, &count_, first_); }
  // One port mapper with these answers.
  ViStatus SearchAmong(std::vector<std::string> answers, const char* expression = "?*INSTR") {
    const PortMapper mapper(std::move(answers));
    Ask(mapper.Address());
    return Search(expression);
  }

  ViSession manager_ = VI_NULL;
  ViFindList list_ = 5;
  ViUInt32 count_ = 5;
  char first_[VI_FIND_BUFLEN] = "x";
};

TEST_F(Find, WhoHasTheCoreChannelIsFound) {
  const Stopwatch watch;
  EXPECT_EQ(VI_SUCCESS, SearchAmong({kPort1024}));
  EXPECT_GE(watch.Milliseconds(), 490) << "others may be slower";
  EXPECT_LT(watch.OwnMilliseconds(), 1000);
  EXPECT_STREQ("TCPIP0::127.0.0.1::inst0::INSTR", first_);
  EXPECT_EQ(1u, count_);
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, viFindNext(list_, first_));
  EXPECT_EQ(VI_SUCCESS, viClose(list_));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viFindNext(list_, first_));
}

TEST_F(Find, SeveralAreToldOneByOneAndEachOnce) {
  const PortMapper second({kPort1024, kPort1024}, "127.0.0.2");
  const PortMapper first({kPort1024});
  const PortMapper first_again({kPort1024});
  Ask(second.Address() + ", " + first.Address() + "," + first_again.Address());
  EXPECT_EQ(VI_SUCCESS, Search("TCPIP?*"));
  EXPECT_EQ(2u, count_);
  EXPECT_STREQ("TCPIP0::127.0.0.1::inst0::INSTR", first_);
  char next[VI_FIND_BUFLEN] = "";
  EXPECT_EQ(VI_ERROR_USER_BUF, viFindNext(list_, nullptr));
  EXPECT_EQ(VI_SUCCESS, viFindNext(list_, next));
  EXPECT_STREQ("TCPIP0::127.0.0.2::inst0::INSTR", next);
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, viFindNext(list_, next));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viFindNext(manager_, next));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viRead(list_, nullptr, 0, nullptr));
}

TEST_F(Find, OnlyAnAnswerThatTellsAPortCounts) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND,
            SearchAmong({
                "",
                Bytes("00000001 00000000"),
                Bytes("00000001 00000000 00000000 00000000"),                    // no status
                Bytes("00000001 00000000 00000000 00000000 00000000"),           // no port
                Bytes("00000001 00000000 00000000 00000000 00000000 0000"),      // half a port
                Bytes("00000001 00000000 00000000 00000000 00000000 00000000"),  // not registered
                Bytes("00000001 00000000 00000000 00000000 00000000 00010000"),  // no port number
                Bytes("00000001 00000000 00000000 00000000 00000001 00000400"),  // program unavailable
                Bytes("00000001 00000001 00000000 00000000 00000000 00000400"),  // denied
                Bytes("00000000 00000000 00000000 00000000 00000000 00000400"),  // a call
                Bytes("00000001 00000000 00000000 FFFFFFFF 00000000 00000400"),  // verifier of 4 GiB
                Bytes("00000001 00000000 00000000 00000008 00000000 00000400"),  // longer than the rest
                Bytes("00000001 00000000 00000000 FFFFFFFD 00000000 00000400"),
                std::string(60000, '\xFF'),
            }));
  EXPECT_EQ(VI_NULL, static_cast<int>(list_));
  EXPECT_EQ(0u, count_);
  EXPECT_STREQ("", first_);
}

TEST_F(Find, AVerifierIsSteppedOver) {
  EXPECT_EQ(VI_SUCCESS,
            SearchAmong({Bytes("00000001 00000000 00000001 00000005 AAAAAAAA AA000000 00000000 0000FFFF")}));
}

TEST_F(Find, TheExpressionChoosesAmongThem) {
  EXPECT_EQ(VI_ERROR_RSRC_NFOUND, SearchAmong({kPort1024}, "?*SOCKET"));
  EXPECT_EQ(VI_SUCCESS, SearchAmong({kPort1024}, "tcpip[0-9]::127.0.0.1::?*{VI_ATTR_INTF_TYPE == 6}"));
}

TEST_F(Find, NothingIsAskedWhereThereIsNoAddress) {
  for (const char* addresses : {"", ",", "host", "127.0.0.1:", "127.0.0.1:x", "127.0.0.1:70000", "127.0.0", "::1"}) {
    Ask(addresses);
    const Stopwatch watch;
    EXPECT_EQ(VI_ERROR_RSRC_NFOUND, Search("?*")) << addresses;
    EXPECT_LT(watch.OwnMilliseconds(), 400) << addresses;
  }
}

TEST_F(Find, OutputsNeedNotBeWantedAndExpressionsAreChecked) {
  const PortMapper mapper({kPort1024});
  Ask(mapper.Address());
  EXPECT_EQ(VI_SUCCESS, viFindRsrc(manager_, "?*", nullptr, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_INV_EXPR, Search("GPIB[0-9"));
  EXPECT_EQ(VI_NULL, static_cast<int>(list_));
  EXPECT_EQ(VI_ERROR_INV_EXPR, Search(nullptr));
}

TEST_F(Find, AListGoesWithItsManager) {
  EXPECT_EQ(VI_SUCCESS, SearchAmong({kPort1024}));
  EXPECT_EQ(VI_SUCCESS, viClose(manager_));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viClose(list_));
}

}  // namespace
}  // namespace visa_test
