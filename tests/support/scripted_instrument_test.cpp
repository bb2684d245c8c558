// The scripted instrument as a client on a raw socket meets it.

#include "ScriptedInstrument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <cerrno>

#include "Bytes.h"

namespace kvtd::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Client {
 public:
  explicit Client(const ScriptedInstrument& instrument, Family family = Family::V4)
      : socket_(ConnectTo(instrument.port(), family)) {}

  void Send(std::string_view bytes) { EXPECT_TRUE(SendAll(socket_, bytes)); }
  std::string Line() { return ReceiveUntil(socket_, '\n'); }
  bool AtEnd() { return ReceiveSome(socket_) == ""; }
  void Close() { socket_.Close(); }
  const Descriptor& socket() const { return socket_; }

 private:
  Descriptor socket_;
};

TEST(ScriptedInstrument, AnswersByItsScript) {
  ScriptedInstrument instrument;
  instrument.Script(R"(
    > *IDN?
    < Kelvora,TD48142C,1,1.0
    > :FREQ 1 HZ
  )");
  Client client(instrument);
  client.Send("*IDN?\n");
  EXPECT_EQ("Kelvora,TD48142C,1,1.0\n", client.Line());
  client.Send(":FREQ 1 HZ\n");
  client.Close();
  EXPECT_EQ("", instrument.Finish());
  EXPECT_THAT(instrument.Received(), ElementsAre("*IDN?\n", ":FREQ 1 HZ\n"));
}

TEST(ScriptedInstrument, IsFoundUnderItsResourceName) {
  ScriptedInstrument v4;
  EXPECT_EQ("TCPIP0::127.0.0.1::" + std::to_string(v4.port()) + "::SOCKET", v4.ResourceName());
  ScriptedInstrument v6(Family::V6);
  EXPECT_EQ("TCPIP0::[::1]::" + std::to_string(v6.port()) + "::SOCKET", v6.ResourceName());
}

TEST(ScriptedInstrument, ServesTheLoopbackAddressOfVersionSix) {
  ScriptedInstrument instrument(Family::V6);
  instrument.Script("> A\n< 1");
  Client client(instrument, Family::V6);
  client.Send("A\n");
  EXPECT_EQ("1\n", client.Line());
}

TEST(ScriptedInstrument, TheScriptGoesOnInTheNextConnection) {
  ScriptedInstrument instrument;
  instrument.Script(R"(
    > A
    < 1
    ! close
    > B
    < 2
  )");
  Client first(instrument);
  first.Send("A\n");
  EXPECT_EQ("1\n", first.Line());
  EXPECT_TRUE(first.AtEnd());
  Client second(instrument);
  second.Send("B\n");
  EXPECT_EQ("2\n", second.Line());
  second.Close();
  EXPECT_EQ("", instrument.Finish());
  EXPECT_EQ(2, instrument.Connections());
}

TEST(ScriptedInstrument, ALineThatAConnectionLeftUnfinishedIsToldAndNotGluedToTheNext) {
  ScriptedInstrument instrument;
  instrument.Script("> B\n< 2");
  Client(instrument).Send("A");
  Client second(instrument);
  second.Send("B\n");
  EXPECT_EQ("2\n", second.Line());
  second.Close();
  EXPECT_THAT(instrument.Finish(), HasSubstr("+ > A\n"));
}

TEST(ScriptedInstrument, AClientThatCameAndWentAtOnceIsSeen) {
  ScriptedInstrument instrument;
  Client(instrument).Send("*CLS\n");
  EXPECT_THAT(instrument.Finish(), HasSubstr("+ > *CLS\\n"));
  EXPECT_EQ(1, instrument.Connections());
}

TEST(ScriptedInstrument, AConnectionThatStaysOpenIsToldAndCutOff) {
  ScriptedInstrument instrument;
  Client client(instrument);
  EXPECT_THAT(instrument.Finish(Milliseconds(20)), HasSubstr("left its connection open"));
  EXPECT_TRUE(client.AtEnd());
}

TEST(ScriptedInstrument, ASurpriseEndsTheClientsWaitAtOnce) {
  ScriptedInstrument instrument;
  Client client(instrument);
  client.Send(":FREQ?\n");
  EXPECT_TRUE(client.AtEnd());
  EXPECT_NE("", instrument.Finish());
}

TEST(ScriptedInstrument, AnswersInPartsWithNulsAndWithoutALineFeed) {
  ScriptedInstrument instrument;
  instrument.Sent("A\n");
  instrument.Answer(Literal("x\0"));
  instrument.Pause(Milliseconds(1));
  instrument.Answer("\r;");
  Client client(instrument);
  client.Send("A\n");
  EXPECT_EQ(Literal("x\0\r;"), ReceiveUntil(client.socket(), ';'));
}

TEST(ScriptedInstrument, AHalfClosedConnectionStillHears) {
  ScriptedInstrument instrument;
  instrument.Script(R"(
    > A
    ! half-close
    > B
  )");
  Client client(instrument);
  client.Send("A\n");
  EXPECT_TRUE(client.AtEnd());
  client.Send("B\n");
  client.Close();
  EXPECT_EQ("", instrument.Finish());
}

TEST(ScriptedInstrument, AResetIsSeenAsAReset) {
  ScriptedInstrument instrument;
  instrument.Script("> A\n! reset");
  Client client(instrument);
  client.Send("A\n");
  ASSERT_TRUE(WaitReadable(client.socket().get(), nullptr, kPatience));
  char byte = 0;
  EXPECT_EQ(-1, ::recv(client.socket().get(), &byte, 1, 0));
  EXPECT_EQ(ECONNRESET, errno);
}

}  // namespace
}  // namespace kvtd::test
