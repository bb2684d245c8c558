#include <cerrno>
#include <future>

#include "client.h"

namespace siggen {
namespace {

class Socket : public ::testing::Test {
 protected:
  LiveInstrument instrument_;
  Client client_{instrument_.port()};
};

TEST_F(Socket, AnswersALineWithALine) {
  client_.Send("*IDN?\n");
  EXPECT_EQ("Kelvora,TD48142C,481000001,1.4.2\n", client_.Receive());
}

TEST_F(Socket, CommandsAnswerNothing) {
  client_.Send(":FREQ 2e9\n:POW -3\n:FREQ?\n");
  EXPECT_EQ("2000000000\n", client_.Receive());
}

TEST_F(Socket, MessagesSentAheadAreAnsweredInOrder) {
  std::string questions;
  std::string answers;
  for (int i = 0; i < 500; ++i) {
    questions += ":FREQ " + std::to_string(1000000 + i) + ";:FREQ?\n";
    answers += std::to_string(1000000 + i) + "\n";
  }
  client_.Send(questions);
  EXPECT_EQ(answers, client_.ReceiveBytes(answers.size()));
}

TEST_F(Socket, ALineMayComeInPieces) {
  for (const char c : std::string(":POW -4;:POW?\n")) client_.Send({&c, 1});
  EXPECT_EQ("-4\n", client_.Receive());
}

TEST_F(Socket, ClientsShareTheSettingsAndNotTheAnswers) {
  Client other(instrument_.port());
  other.Send(":POW -8\n:POW?\n");
  EXPECT_EQ("-8\n", other.Receive());
  EXPECT_EQ("-8", client_.Ask(":POW?"));
  client_.Send("*IDN?\n");
  EXPECT_EQ("1000000000", other.Ask(":FREQ?"));
}

TEST_F(Socket, AClientThatEndedItsSideStillGetsItsAnswer) {
  client_.Send("*OPC?\n");
  client_.EndSending();
  EXPECT_EQ("1\n", client_.Receive());
  EXPECT_EQ(0, client_.WaitForEnd());
}

TEST_F(Socket, ALostClientLeavesTheOthersAlone) {
  {
    Client gone(instrument_.port());
    gone.Send(":FREQ? MAX\n:MMEM:DATA \"a\",#9100000000");
  }
  EXPECT_EQ("1", client_.Ask("*OPC?"));
}

TEST_F(Socket, AnArmedListIsTriggeredAndPlayedInRealTime) {
  client_.Send(":INIT:CONT OFF;:LIST3:FREQ 1e9,2e9,3e9;DWEL 0.02;:FREQ:MODE LIST3;:TRIG:TYPE SINGle;:INIT\n");
  EXPECT_EQ("0", client_.Ask(":LIST3:IND?"));
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ("1;2", client_.Ask(":TRIG;*OPC?;:LIST3:IND?"));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(60));
}

TEST_F(Socket, OthersAreServedWhileOneWaits) {
  client_.Send(":INIT:CONT OFF;:TRIG:TYPE SINGle;:FREQ:MODE SWE;:INIT;*OPC?\n");
  Client other(instrument_.port());
  for (int tries = 0; other.Ask(":STAT:OPER:COND?") != "32" && tries < 10'000; ++tries) {
  }
  other.Send(":ABOR\n");
  EXPECT_EQ("1\n", client_.Receive());
}

TEST_F(Socket, ALargeFileGoesInAndComesOut) {
  std::string data(std::size_t{32} << 20, '\0');
  for (std::size_t i = 0; i < data.size(); ++i) data[i] = static_cast<char>(i * 31 + (i >> 12));
  client_.Send(":MMEM:DATA \"Internal\",\"big\",#833554432" + data + "\n:MMEM:DATA? \"Internal\",\"big\"\n");
  const std::string answer = client_.ReceiveBytes(data.size() + 11);
  ASSERT_EQ(data.size() + 11, answer.size());
  EXPECT_EQ("#833554432", answer.substr(0, 10));
  EXPECT_TRUE(std::string_view(answer).substr(10, data.size()) == data);
  EXPECT_EQ('\n', answer.back());
}

TEST_F(Socket, ARebootClosesTheLinksAndComesBackPreset) {
  client_.Send(":FREQ 2e9;:SYST:REB\n");
  EXPECT_EQ(0, client_.WaitForEnd());
  Client again(instrument_.port());
  EXPECT_EQ("1000000000", again.Ask(":FREQ?"));
}

TEST_F(Socket, DelayMakesTheAnswerLate) {
  instrument_.Inject("delay:150@1");
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ("1", client_.Ask("*OPC?"));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(150));
}

TEST_F(Socket, DropEndsTheLinkInPlaceOfTheAnswer) {
  instrument_.Inject("drop");
  EXPECT_EQ("", client_.Ask("*OPC?"));
  EXPECT_EQ(0, client_.WaitForEnd());
}

TEST_F(Socket, ResetBreaksTheLink) {
  instrument_.Inject("reset");
  client_.Send("*OPC?\n");
  EXPECT_EQ(ECONNRESET, client_.WaitForEnd());
}

TEST_F(Socket, CutSendsHalfOfTheChosenAnswer) {
  instrument_.Inject("cut@2");
  EXPECT_EQ("Kelvora,TD48142C,481000001,1.4.2", client_.Ask("*IDN?"));
  client_.Send("*IDN?\n");
  EXPECT_EQ("Kelvora,TD48142C", client_.Receive());
  EXPECT_EQ(0, client_.WaitForEnd());
}

TEST_F(Socket, GarbageMeansNothingAndEndsLikeALine) {
  instrument_.Inject("garbage@1");
  const std::string garbage = client_.Ask("*IDN?");
  EXPECT_EQ(64U, garbage.size());
  EXPECT_EQ(std::string::npos, garbage.find("Kelvora"));
  EXPECT_EQ("1", client_.Ask("*OPC?"));
}

TEST_F(Socket, TerminatorIsACarriageReturn) {
  instrument_.Inject("terminator@1");
  client_.Send("*OPC?\n");
  EXPECT_EQ("1\r", client_.Receive("\r"));
}

TEST_F(Socket, BlockAnnouncesMoreThanItHolds) {
  instrument_.Inject("block@1");
  client_.Send("*OPC?\n");
  EXPECT_EQ("#410021\n", client_.Receive());
}

TEST_F(Socket, ClearedFaultsAreGone) {
  instrument_.Inject("drop");
  instrument_.host().ClearFaults();
  EXPECT_EQ("1", client_.Ask("*OPC?"));
}

TEST(Faults, AreReadFromText) {
  EXPECT_EQ(std::chrono::milliseconds(250), link::ParseFault("delay:250")->delay);
  EXPECT_EQ(3U, link::ParseFault("cut@3")->answer);
  for (const char* wrong : {"", "delay", "delay:x", "cut:5", "cut@0", "cut@", "melt", "drop@-1"}) {
    EXPECT_FALSE(link::ParseFault(wrong)) << wrong;
  }
}

TEST(Listening, APortThatIsTakenIsAnError) {
  LiveInstrument first;
  link::HostOptions options;
  options.socket_port = first.port();
  EXPECT_THROW(link::Host second(options), std::system_error);
}

TEST(Listening, StopsWithAClientConnected) {
  auto instrument = std::make_unique<LiveInstrument>();
  Client client(instrument->port());
  EXPECT_EQ("1", client.Ask("*OPC?"));
  instrument.reset();
  EXPECT_EQ(0, client.WaitForEnd());
}

}  // namespace
}  // namespace siggen
