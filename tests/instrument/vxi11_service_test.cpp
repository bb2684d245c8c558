// Service requests: the instrument calls its client.
#include <netinet/in.h>
#include <sys/socket.h>

#include <memory>

#include "vxi11_client.h"

namespace siggen {
namespace {

// What a client listens on.
class Ear {
 public:
  Ear() : listener_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    EXPECT_EQ(0, ::bind(listener_, reinterpret_cast<const sockaddr*>(&address), size));
    EXPECT_EQ(0, ::listen(listener_, 1));
    EXPECT_EQ(0, ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size));
    std::snprintf(port_, sizeof port_, "%08X", unsigned{ntohs(address.sin_port)});
  }
  ~Ear() { StopListening(); }
  Ear(const Ear&) = delete;
  Ear& operator=(const Ear&) = delete;

  std::string_view port() const { return port_; }  // in eight digits
  Client::Accepted Accept() { return {::accept(listener_, nullptr, nullptr)}; }
  void StopListening() {
    if (listener_ >= 0) ::close(listener_);
    listener_ = -1;
  }

 private:
  int listener_;
  char port_[9];
};

class Vxi11Service : public ::testing::Test {
 protected:
  void CreateChannel() {
    client_.Send(Call("00000019", "7F000001" + std::string(ear_.port()) + "000607B1 00000001 00000000"));
    EXPECT_HEARD(Reply("00000000"), client_);
  }

  LiveInstrument instrument_{Vxi11Only()};
  Vxi11Client client_{instrument_.port()};
  Ear ear_;
};

TEST_F(Vxi11Service, AChannelOfAnotherFamilyIsNotSupportedWhateverItsNumber) {
  for (const char* const family : {"00000001", "FF000000"}) {
    client_.Send(Call("00000019", "7F000001" + std::string(ear_.port()) + "000607B1 00000001" + family));
    EXPECT_HEARD(Reply("00000008"), client_);
  }
}

TEST_F(Vxi11Service, TheClientIsCalledWithItsHandle) {
  CreateChannel();
  Wire called(ear_.Accept());
  client_.Send(Call("00000014", "00000001 00000001 00000006 'handle' 0000"));
  EXPECT_HEARD(Reply("00000000"), client_);
  client_.Write("00000001", "*SRE 32;*ESE 32;:NO:SUCH");
  EXPECT_HEARD(
      Bytes("80000034 00000001 00000000 00000002 000607B1 00000001 0000001E 00000000 00000000 00000000 00000000"
            "00000006 68616E64 6C650000"),
      called);
  called.Send(Bytes("80000018 00000001 00000001 00000000 00000000 00000000 00000000"));
  // Nothing further before the status byte was asked for, which tells who asked and takes the request back.
  client_.Write("00000001", "*CLS;:NO:SUCH");
  client_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("00000000 00000064"), client_);
  client_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("00000000 00000024"), client_);
  client_.Write("00000001", "*CLS");
  client_.Write("00000001", ":POW");
  EXPECT_HEARD(
      Bytes("80000034 00000002 00000000 00000002 000607B1 00000001 0000001E 00000000 00000000 00000000 00000000"
            "00000006 68616E64 6C650000"),
      called);
}

TEST_F(Vxi11Service, AnAnswerCanAskForService) {
  CreateChannel();
  Wire called(ear_.Accept());
  client_.Send(Call("00000014", "00000001 00000001 00000000"));
  EXPECT_HEARD(Reply("00000000"), client_);
  client_.Write("00000001", "*SRE 16");
  client_.Write("00000001", "*OPC?");
  EXPECT_HEARD(
      Bytes("8000002C 00000001 00000000 00000002 000607B1 00000001 0000001E 00000000 00000000 00000000 00000000"
            "00000000"),
      called);
}

TEST_F(Vxi11Service, ARequestFromBeforeIsToldWhenItIsEnabled) {
  client_.Write("00000001", "*SRE 32;*ESE 32;:NO:SUCH");
  CreateChannel();
  Wire called(ear_.Accept());
  client_.Send(Call("00000014", "00000001 00000001 00000001 7A000000"));
  EXPECT_HEARD(Reply("00000000"), client_);
  EXPECT_HEARD(
      Bytes("80000030 00000001 00000000 00000002 000607B1 00000001 0000001E 00000000 00000000 00000000 00000000"
            "00000001 7A000000"),
      called);
}

TEST_F(Vxi11Service, ADisabledLinkIsSilent) {
  CreateChannel();
  Wire called(ear_.Accept());
  client_.Send(Call("00000014", "00000001 00000001 00000001 7A000000"));
  client_.Send(Call("00000014", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000") + Reply("00000000"), client_);
  client_.Write("00000001", "*SRE 32;*ESE 32;:NO:SUCH");
  client_.Send(Call("0000001A", ""));
  EXPECT_HEARD(Reply("00000000"), client_);
  EXPECT_EQ(0, called.WaitForEnd());
}

TEST_F(Vxi11Service, ThereIsOneChannelForAClient) {
  client_.Send(Call("0000001A", ""));
  EXPECT_HEARD(Reply("00000006"), client_);
  CreateChannel();
  client_.Send(Call("00000019", "7F000001" + std::string(ear_.port()) + "000607B1 00000001 00000000"));
  EXPECT_HEARD(Reply("0000001D"), client_);
  client_.Send(Call("0000001A", ""));
  EXPECT_HEARD(Reply("00000000"), client_);
  CreateChannel();
}

TEST_F(Vxi11Service, AClientThatDoesNotListenIsToldSo) {
  ear_.StopListening();
  client_.Send(Call("00000019", "7F000001" + std::string(ear_.port()) + "000607B1 00000001 00000000"));
  EXPECT_HEARD(Reply("00000006"), client_);
  client_.Send(Call("00000014", "00000001 00000001 00000001 7A000000"));
  EXPECT_HEARD(Reply("00000000"), client_);
  client_.Write("00000001", "*SRE 32;*ESE 32;:NO:SUCH");
  EXPECT_EQ("1\n", client_.Ask("00000001", "*OPC?"));
}

TEST_F(Vxi11Service, WhereNobodyCanListenIsAnInvalidAddress) {
  for (const char* where : {"00000000 00001000", "E0000001 00001000", "7F000001 00000000", "7F000001 00010000"}) {
    client_.Send(Call("00000019", std::string(where) + "000607B1 00000001 00000000"));
    EXPECT_HEARD(Reply("00000015"), client_);
  }
}

TEST_F(Vxi11Service, DatagramsAreNotSupported) {
  client_.Send(Call("00000019", "7F000001" + std::string(ear_.port()) + "000607B1 00000001 00000001"));
  EXPECT_HEARD(Reply("00000008"), client_);
}

TEST_F(Vxi11Service, ItsCallsNeedNoAnswers) {
  CreateChannel();
  const Wire called(ear_.Accept());
  client_.Send(Call("00000014", "00000001 00000001 00000028 'a handle that is as long as handles go  '"));
  EXPECT_HEARD(Reply("00000000"), client_);
  for (int i = 0; i < 200; ++i) {
    client_.Write("00000001", "*CLS;*SRE 32;*ESE 32");
    client_.Write("00000001", ":NO:SUCH");
    client_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
    EXPECT_HEARD(Reply("00000000 00000064"), client_);
  }
  EXPECT_EQ("1\n", client_.Ask("00000001", "*OPC?"));
}

TEST_F(Vxi11Service, TheChannelEndsWithItsClient) {
  const auto client = std::make_unique<Vxi11Client>(instrument_.port());
  client->Send(Call("00000019", "7F000001" + std::string(ear_.port()) + "000607B1 00000001 00000000"));
  EXPECT_HEARD(Reply("00000000"), *client);
  Wire called(ear_.Accept());
  client->EndSending();
  EXPECT_EQ(0, called.WaitForEnd());
}

}  // namespace
}  // namespace siggen
