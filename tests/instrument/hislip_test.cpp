// One client over HiSLIP that keeps to the rules.
#include "hislip_client.h"

namespace siggen {
namespace {

class Hislip : public ::testing::Test {
 protected:
  void OverlapMode() {
    client_.async.Send(Frame("HS 13 00 00000000 0000000000000000"));
    EXPECT_HEARD(Frame("HS 17 00 00000000 0000000000000000"), client_.async);
    client_.sync.Send(Frame("HS 08 01 00000000 0000000000000000"));
    EXPECT_HEARD(Frame("HS 09 01 00000000 0000000000000000"), client_.sync);
  }
  void ExpectErrorQueue(std::string_view frame_of_question, std::string_view answer) {
    client_.sync.Send(frame_of_question);
    EXPECT_EQ(answer, ReceiveText(client_.sync));
  }

  LiveInstrument instrument_{HislipOnly()};
  HislipClient client_{instrument_.port()};
};

TEST(HislipGreeting, GivesEachClientASessionAndPrefersSynchronisedMode) {
  LiveInstrument instrument(HislipOnly());
  for (const char* id : {"0001", "0002"}) {
    Wire sync(instrument.port());
    sync.Send(Frame("HS 00 00 01004B56 0000000000000007", "hislip0"));
    EXPECT_HEARD(Frame("HS 01 00 0100" + std::string(id) + " 0000000000000000"), sync);
    Wire async(instrument.port());
    async.Send(Frame("HS 11 00 0000" + std::string(id) + " 0000000000000000"));
    EXPECT_HEARD(Frame("HS 12 00 00004B56 0000000000000000"), async);
    async.Send(Frame("HS 0F 00 00000000 0000000000000008") + std::string("\0\0\0\0\0\x10\0\0", 8));
    EXPECT_HEARD(Frame("HS 10 00 00000000 0000000000000008") + std::string("\0\0\0\0\0\x10\0\0", 8), async);
  }
}

TEST(HislipGreeting, ANewerClientIsAnsweredInVersionOne) {
  LiveInstrument instrument(HislipOnly());
  Wire sync(instrument.port());
  sync.Send(Frame("HS 00 00 02004B56 0000000000000007", "hislip0"));
  EXPECT_HEARD(Frame("HS 01 00 01000001 0000000000000000"), sync);
}

TEST_F(Hislip, AnswersWithTheIdOfTheQuestion) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000006", "*IDN?\n"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000021", "Kelvora,TD48142C,481000001,1.4.2\n"), client_.sync);
}

TEST_F(Hislip, EndStandsForTheLineFeed) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client_.sync);
}

TEST_F(Hislip, AMessageMayComeInParts) {
  client_.sync.Send(Frame("HS 06 00 FFFFFF00 0000000000000005", ":POW "));
  client_.sync.Send(Frame("HS 06 00 FFFFFF02 0000000000000000"));
  client_.sync.Send(Frame("HS 07 00 FFFFFF04 0000000000000008", "-3;:POW?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF04 0000000000000003", "-3\n"), client_.sync);
}

TEST_F(Hislip, AFrameMayComeByteByByte) {
  for (const char c : Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?")) client_.sync.Send({&c, 1});
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client_.sync);
}

TEST_F(Hislip, ALongAnswerIsCutToWhatTheClientTakes) {
  client_.async.Send(Frame("HS 0F 00 00000000 0000000000000008") + std::string("\0\0\0\0\0\0\0\x20", 8));
  client_.async.ReceiveBytes(24);
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000006", "*IDN?\n"));
  EXPECT_HEARD(Frame("HS 06 00 FFFFFF00 0000000000000010", "Kelvora,TD48142C"), client_.sync);
  EXPECT_HEARD(Frame("HS 06 00 FFFFFF00 0000000000000010", ",481000001,1.4.2"), client_.sync);
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000001", "\n"), client_.sync);
}

TEST_F(Hislip, AQuestionBeforeTheAnswerWasFetchedIsAQueryError) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client_.sync);
  // Without RMT-delivered: the client has not taken it.
  ExpectErrorQueue(Frame("HS 07 00 FFFFFF02 000000000000000A", ":SYST:ERR?"), "-410,\"Query INTERRUPTED\"\n");
}

TEST_F(Hislip, AFetchedAnswerIsNoError) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client_.sync);
  ExpectErrorQueue(Frame("HS 07 01 FFFFFF02 000000000000000A", ":SYST:ERR?"), "0,\"No error\"\n");
}

TEST_F(Hislip, MoreInputBeforeTheAnswerInterruptsOnBothChannels) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*IDN?") +
                    Frame("HS 07 00 FFFFFF02 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 0E 00 FFFFFF02 0000000000000000"), client_.async);
  EXPECT_HEARD(Frame("HS 0D 00 FFFFFF02 0000000000000000"), client_.sync);
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF02 0000000000000002", "1\n"), client_.sync);
  ExpectErrorQueue(Frame("HS 07 01 FFFFFF04 000000000000000A", ":SYST:ERR?"), "-410,\"Query INTERRUPTED\"\n");
}

TEST_F(Hislip, OverlapModeAnswersEverythingUnderItsOwnIds) {
  OverlapMode();
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000004", "*CLS") +
                    Frame("HS 07 00 FFFFFF02 0000000000000005", "*OPC?") +
                    Frame("HS 07 00 FFFFFF04 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client_.sync);
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF02 0000000000000002", "1\n"), client_.sync);
  // Message available: something was sent after what the client has had.
  client_.async.Send(Frame("HS 15 00 FFFFFF00 0000000000000000"));
  EXPECT_EQ(0x10, client_.async.ReceiveBytes(16).at(3) & 0x10);
  client_.async.Send(Frame("HS 15 01 FFFFFF02 0000000000000000"));
  EXPECT_EQ(0x00, client_.async.ReceiveBytes(16).at(3) & 0x10);
}

TEST_F(Hislip, MessageAvailableFollowsTheAnswer) {
  client_.async.Send(Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 00 00000000 0000000000000000"), client_.async);
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  client_.sync.ReceiveBytes(18);
  client_.async.Send(Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 00 00000000 0000000000000000"), client_.async) << "not for another message";
  client_.async.Send(Frame("HS 15 00 FFFFFF00 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 10 00000000 0000000000000000"), client_.async);
  client_.async.Send(Frame("HS 15 01 FFFFFF00 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 00 00000000 0000000000000000"), client_.async) << "the client has it";
}

TEST_F(Hislip, AServiceRequestIsToldOnceUntilTheStatusByteIsAskedFor) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000010", "*SRE 4;*ESE 0\n:X"));
  EXPECT_HEARD(Frame("HS 14 44 00000000 0000000000000000"), client_.async);
  client_.async.Send(Frame("HS 15 00 FFFFFF00 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 44 00000000 0000000000000000"), client_.async);
  client_.async.Send(Frame("HS 15 00 FFFFFF00 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 04 00000000 0000000000000000"), client_.async);
  client_.sync.Send(Frame("HS 07 00 FFFFFF02 0000000000000004", "*CLS"));
  client_.sync.Send(Frame("HS 07 00 FFFFFF04 0000000000000002", ":X"));
  EXPECT_HEARD(Frame("HS 14 44 00000000 0000000000000000"), client_.async);
}

TEST_F(Hislip, EachAnswerAsksForServiceAnew) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 000000000000000D", "*SRE 16;*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client_.sync);
  EXPECT_HEARD(Frame("HS 14 50 00000000 0000000000000000"), client_.async);
  client_.async.Send(Frame("HS 15 00 FFFFFF00 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 50 00000000 0000000000000000"), client_.async);
  // The next message tells that the client has the answer, or a status query does.
  client_.sync.Send(Frame("HS 07 01 FFFFFF02 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF02 0000000000000002", "1\n"), client_.sync);
  EXPECT_HEARD(Frame("HS 14 50 00000000 0000000000000000"), client_.async);
  client_.async.Send(Frame("HS 15 01 FFFFFF02 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 40 00000000 0000000000000000"), client_.async);
  client_.sync.Send(Frame("HS 07 00 FFFFFF04 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF04 0000000000000002", "1\n"), client_.sync);
  EXPECT_HEARD(Frame("HS 14 50 00000000 0000000000000000"), client_.async);
}

TEST_F(Hislip, OverlapModeAsksForServiceAnewToo) {
  OverlapMode();
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 000000000000000D", "*SRE 16;*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client_.sync);
  EXPECT_HEARD(Frame("HS 14 50 00000000 0000000000000000"), client_.async);
  client_.async.Send(Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 50 00000000 0000000000000000"), client_.async);
  client_.sync.Send(Frame("HS 07 00 FFFFFF02 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF02 0000000000000002", "1\n"), client_.sync);
  EXPECT_HEARD(Frame("HS 14 50 00000000 0000000000000000"), client_.async);
}

TEST_F(Hislip, InOverlapModeAFetchedAnswerIsNoReasonForService) {
  OverlapMode();
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 000000000000000D", "*SRE 20;*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client_.sync);
  EXPECT_HEARD(Frame("HS 14 50 00000000 0000000000000000"), client_.async);
  client_.async.Send(Frame("HS 15 00 FFFFFF00 0000000000000000"));
  EXPECT_HEARD(Frame("HS 16 40 00000000 0000000000000000"), client_.async);
  client_.sync.Send(Frame("HS 07 00 FFFFFF02 0000000000000002", ":X"));
  EXPECT_HEARD(Frame("HS 14 44 00000000 0000000000000000"), client_.async);
}

TEST_F(Hislip, AnEventAtTheBenchAsksForServiceToo) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 000000000000000B", "*SRE 4;*OPC"));
  client_.sync.Send(Frame("HS 07 00 FFFFFF02 0000000000000005", "*OPC?"));
  client_.sync.ReceiveBytes(18);
  instrument_.host().With(
      [](model::Instrument& instrument) { instrument.status().Report(scpi::Error::kDataOutOfRange); });
  EXPECT_HEARD(Frame("HS 14 54 00000000 0000000000000000"), client_.async);
}

TEST_F(Hislip, DeviceClearForgetsWhatIsUnderWayAndRestartsTheIds) {
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 000000000000000D", ":POW -7;:POW?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000003", "-7\n"), client_.sync);
  client_.sync.Send(Frame("HS 06 00 FFFFFF02 0000000000000007", ":POW -9"));
  client_.sync.Send(Frame("HS 06 00 FFFFFF04 0000000000100000", "the rest never comes before the clear"));
  client_.async.Send(Frame("HS 13 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 17 00 00000000 0000000000000000"), client_.async);
  client_.sync.Send(std::string(0x100000 - 37, '\n'));
  client_.sync.Send(Frame("HS 07 00 FFFFFF06 0000000000000005", "*IDN?"));
  client_.sync.Send(Frame("HS 08 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 09 00 00000000 0000000000000000"), client_.sync);
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", ":POW?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000003", "-7\n"), client_.sync);
}

TEST_F(Hislip, TriggerReachesTheInstrument) {
  client_.sync.Send(Frame("HS 0C 00 FFFFFF00 0000000000000000"));
  ExpectErrorQueue(Frame("HS 07 00 FFFFFF02 000000000000000A", ":SYST:ERR?"), "-211,\"Trigger ignored;*TRG\"\n");
}

TEST_F(Hislip, RemoteAndLocalAreAcknowledged) {
  for (const char* mode : {"00", "06"}) {
    client_.async.Send(Frame("HS 0A " + std::string(mode) + " FFFFFEFE 0000000000000000"));
    EXPECT_HEARD(Frame("HS 0B 00 00000000 0000000000000000"), client_.async);
  }
  client_.async.Send(Frame("HS 0A 07 FFFFFEFE 0000000000000000"));
  EXPECT_HEARD(Frame("HS 03 02 00000000 0000000000000000"), client_.async);
}

TEST_F(Hislip, FaultsReachTheAnswer) {
  instrument_.Inject("terminator@1");
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\r"), client_.sync);
  instrument_.Inject("delay:80@1");
  const auto begin = std::chrono::steady_clock::now();
  client_.sync.Send(Frame("HS 07 01 FFFFFF02 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF02 0000000000000002", "1\n"), client_.sync);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(80));
  instrument_.Inject("cut@1");
  client_.sync.Send(Frame("HS 07 01 FFFFFF04 0000000000000005", "*IDN?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF04 0000000000000021", "Kelvora,TD48142C"), client_.sync);
  EXPECT_EQ(0, client_.sync.WaitForEnd());
}

TEST_F(Hislip, DropEndsBothConnections) {
  instrument_.Inject("drop@1");
  client_.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  EXPECT_EQ(0, client_.sync.WaitForEnd());
  EXPECT_EQ(0, client_.async.WaitForEnd());
}

}  // namespace
}  // namespace siggen
