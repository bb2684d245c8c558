// Faults on demand, in what a VXI-11 client reads.
#include <cerrno>

#include "vxi11_client.h"

namespace siggen {
namespace {

class Vxi11Faults : public ::testing::Test {
 protected:
  void Read(std::string_view io_timeout = "000007D0") {
    client_.Send(Call("0000000C", "00000001 00000400" + std::string(io_timeout) + "00000000 00000000 00000000"));
  }

  LiveInstrument instrument_{Vxi11Only()};
  Vxi11Client client_{instrument_.port()};
};

TEST_F(Vxi11Faults, DelayMakesTheAnswerLateAndLosesNothing) {
  instrument_.Inject("delay:200@1");
  client_.Write("00000001", "*OPC?");
  const auto begin = std::chrono::steady_clock::now();
  Read("00000000");
  EXPECT_HEARD(Reply("0000000F 00000000 00000000"), client_);
  Read();
  EXPECT_HEARD(Reply("00000000 00000004 00000002 '1\n' 0000"), client_);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(200));
}

TEST_F(Vxi11Faults, AClearForgetsADelayedAnswer) {
  instrument_.Inject("delay:60000@1");
  client_.Write("00000001", "*IDN?");
  Read("00000000");
  client_.Send(Call("0000000F", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("0000000F 00000000 00000000") + Reply("00000000"), client_);
  EXPECT_EQ("1\n", client_.Ask("00000001", "*OPC?"));
}

TEST_F(Vxi11Faults, DropEndsTheConnectionInPlaceOfTheAnswer) {
  instrument_.Inject("drop");
  client_.Write("00000001", "*OPC?");
  Read();
  EXPECT_EQ("", client_.ReceiveBytes(1));
  EXPECT_EQ(0, client_.WaitForEnd());
}

TEST_F(Vxi11Faults, ResetBreaksTheConnection) {
  instrument_.Inject("reset");
  client_.Write("00000001", "*OPC?");
  Read();
  EXPECT_EQ(ECONNRESET, client_.WaitForEnd());
}

TEST_F(Vxi11Faults, CutEndsTheRecordInTheMiddleOfTheAnswer) {
  instrument_.Inject("cut@2");
  EXPECT_EQ("1\n", client_.Ask("00000001", "*OPC?"));
  client_.Write("00000001", "*IDN?");
  Read();
  EXPECT_HEARD(Bytes("80000048 0000002A 00000001 00000000 00000000 00000000 00000000 00000000 00000004 00000021"
                     "'Kelvora,TD48142C'"),
               client_);
  EXPECT_EQ(0, client_.WaitForEnd());
}

TEST_F(Vxi11Faults, GarbageKeepsItsLineFeedAndTheProtocol) {
  instrument_.Inject("garbage@1");
  client_.Write("00000001", "*OPC?");
  Read();
  EXPECT_HEARD(Bytes("80000068 0000002A 00000001 00000000 00000000 00000000 00000000 00000000 00000004 00000041"),
               client_);
  const std::string garbage = client_.ReceiveBytes(68);
  EXPECT_EQ('\n', garbage[64]);
  EXPECT_EQ(std::string::npos, garbage.substr(0, 64).find('\n'));
}

TEST_F(Vxi11Faults, TheTerminatorIsACarriageReturn) {
  instrument_.Inject("terminator@1");
  EXPECT_EQ("1\r", client_.Ask("00000001", "*OPC?"));
}

TEST_F(Vxi11Faults, TheBlockHeaderLies) {
  instrument_.Inject("block@1");
  EXPECT_EQ("#410021\n", client_.Ask("00000001", "*OPC?"));
}

}  // namespace
}  // namespace siggen
