// The port mapper that the instrument brings with it, over TCP and UDP.
#include "vxi11_client.h"

namespace siggen {
namespace {

class Datagrams {
 public:
  explicit Datagrams(std::uint16_t port) : socket_(::socket(AF_INET, SOCK_DGRAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(0, ::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address));
  }
  ~Datagrams() { ::close(socket_); }
  Datagrams(const Datagrams&) = delete;
  Datagrams& operator=(const Datagrams&) = delete;

  void Send(const std::string& message) {
    EXPECT_EQ(static_cast<ssize_t>(message.size()), ::send(socket_, message.data(), message.size(), 0));
  }
  std::string Receive() {
    char answer[1024];
    pollfd entry{socket_, POLLIN, 0};
    const ssize_t count = ::poll(&entry, 1, 5000) == 1 ? ::recv(socket_, answer, sizeof answer, 0) : 0;
    return count > 0 ? std::string(answer, static_cast<std::size_t>(count)) : "";
  }

 private:
  int socket_;
};

class PortMapper : public ::testing::Test {
 protected:
  static link::HostOptions WithPortMapper() {
    link::HostOptions options = Vxi11Only();
    options.map_port = true;
    options.port_mapper = std::uint16_t{0};
    return options;
  }
  static std::string Eight(unsigned number) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08X", number);
    return digits;
  }
  std::uint16_t port() { return instrument_.host().listeners()[1].port; }
  std::string core_port() { return Eight(instrument_.port()); }

  LiveInstrument instrument_{WithPortMapper()};
  Wire client_{port()};
};

TEST_F(PortMapper, TellsThePortOfTheCoreChannelOverTcp) {
  client_.Send(
      Bytes("80000038 00000007 00000000 00000002 000186A0 00000002 00000003 00000000 00000000 00000000 00000000"
            "000607AF 00000001 00000006 00000000"));
  EXPECT_HEARD(Bytes("8000001C 00000007 00000001 00000000 00000000 00000000 00000000" + core_port()), client_);
}

TEST_F(PortMapper, TellsThePortOfTheCoreChannelOverUdp) {
  Datagrams datagrams(port());
  datagrams.Send(
      Bytes("00000007 00000000 00000002 000186A0 00000002 00000003 00000000 00000000 00000000 00000000"
            "000607AF 00000001 00000006 00000000"));
  EXPECT_EQ(Readable(Bytes("00000007 00000001 00000000 00000000 00000000 00000000" + core_port())),
            Readable(datagrams.Receive()));
}

TEST_F(PortMapper, KnowsNothingElse) {
  for (const char* unknown :
       {"000607B0 00000001 00000006", "000607AF 00000002 00000006", "000607AF 00000001 00000011"}) {
    client_.Send(CallOf("000186A0 00000002", "00000003", std::string(unknown) + "00000000"));
    EXPECT_HEARD(Reply("00000000"), client_);
  }
}

TEST_F(PortMapper, KnowsItself) {
  for (const char* protocol : {"00000006", "00000011"}) {
    client_.Send(CallOf("000186A0 00000002", "00000003", "000186A0 00000002" + std::string(protocol) + "00000000"));
    EXPECT_HEARD(Reply(Eight(port())), client_);
  }
}

TEST_F(PortMapper, ListsWhatItKnows) {
  client_.Send(CallOf("000186A0 00000002", "00000004", ""));
  EXPECT_HEARD(Reply("00000001 000186A0 00000002 00000006" + Eight(port()) + "00000001 000186A0 00000002 00000011" +
                     Eight(port()) + "00000001 000607AF 00000001 00000006" + core_port() + "00000000"),
               client_);
}

TEST_F(PortMapper, AnswersTheNullProcedure) {
  client_.Send(CallOf("000186A0 00000002", "00000000", ""));
  EXPECT_HEARD(Reply(""), client_);
}

TEST_F(PortMapper, LetsNobodyRegister) {
  client_.Send(CallOf("000186A0 00000002", "00000001", "000607AF 00000001 00000006 00000001"));
  EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000003"), client_);
  client_.Send(CallOf("000186A0 00000002", "00000005", "000607AF 00000001 00000000 00000000"));
  EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000003"), client_);
}

TEST_F(PortMapper, LaterVersionsAreAMismatch) {
  client_.Send(CallOf("000186A0 00000004", "00000003", ""));
  EXPECT_HEARD(Bytes("80000020 0000002A 00000001 00000000 00000000 00000000 00000002 00000002 00000002"), client_);
}

TEST_F(PortMapper, OutlivesWhatIsNoCall) {
  client_.Send(CallOf("000186A0 00000002", "00000003", "000607AF"));
  EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000004"), client_);
  client_.Send(Bytes("FFFFFFFF"));
  EXPECT_NE(-1, client_.WaitForEnd());
  Datagrams datagrams(port());
  datagrams.Send("?");
  datagrams.Send(std::string(4096, '?'));
  datagrams.Send("");
  datagrams.Send(Bytes("00000007 00000000 00000002 000186A0 00000002 00000000 00000000 00000000 00000000 00000000"));
  EXPECT_EQ(Readable(Bytes("00000007 00000001 00000000 00000000 00000000 00000000")), Readable(datagrams.Receive()));
}

TEST_F(PortMapper, APortThatIsTakenStopsNobody) {
  // The port of this one is taken over TCP as well; the other over UDP alone.
  const int datagrams = ::socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  EXPECT_EQ(0, ::bind(datagrams, reinterpret_cast<const sockaddr*>(&address), size));
  EXPECT_EQ(0, ::getsockname(datagrams, reinterpret_cast<sockaddr*>(&address), &size));
  for (const std::uint16_t taken : {port(), std::uint16_t{ntohs(address.sin_port)}}) {
    link::HostOptions options = WithPortMapper();
    options.port_mapper = taken;
    testing::internal::CaptureStderr();
    LiveInstrument second(options);
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(1U, second.host().listeners().size());
    EXPECT_EQ("no port mapper tells VXI-11 clients of port " + std::to_string(second.port()) +
                  ": bind: Address already in use\n",
              said);
    EXPECT_EQ("1\n", Vxi11Client(second.port()).Ask("00000001", "*OPC?"));
  }
  ::close(datagrams);
}

}  // namespace
}  // namespace siggen
