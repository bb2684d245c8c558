// One client over VXI-11 that keeps to the rules. The first link of an instrument is number 1.
#include "vxi11_client.h"

namespace siggen {
namespace {

class Vxi11 : public ::testing::Test {
 protected:
  // A read without a question is an error at once, which tells that the read is under way.
  void WaitForRead() {
    for (bool begun = false; !begun;) {
      instrument_.host().With([&](model::Instrument& instrument) { begun = instrument.status().Byte(false) == 4; });
    }
  }

  LiveInstrument instrument_{Vxi11Only()};
  Vxi11Client client_{instrument_.port()};
};

TEST(Vxi11Opening, ALinkIsCreatedUsedAndDestroyed) {
  LiveInstrument instrument(Vxi11Only());
  Wire client(instrument.port());
  // Mark; xid, call, RPC 2, program, version, procedure, credential, verifier; client, lock, lock timeout, device.
  client.Send(
      Bytes("80000040 00000001 00000000 00000002 000607AF 00000001 0000000A 00000000 00000000 00000000 00000000"
            "12345678 00000000 00000000 00000005 696E7374 30000000"));
  EXPECT_HEARD(Bytes("80000028 00000001 00000001 00000000 00000000 00000000 00000000 00000000 00000001 0000"), client);
  EXPECT_NE(Bytes("0000"), client.ReceiveBytes(2));  // the abort channel's port
  EXPECT_HEARD(Bytes("00100000"), client);           // maxRecvSize
  client.Send(
      Bytes("80000044 00000002 00000000 00000002 000607AF 00000001 0000000B 00000000 00000000 00000000 00000000"
            "00000001 000007D0 00000000 00000008 00000005 2A4F5043 3F000000"));
  EXPECT_HEARD(Bytes("80000020 00000002 00000001 00000000 00000000 00000000 00000000 00000000 00000005"), client);
  client.Send(
      Bytes("80000040 00000003 00000000 00000002 000607AF 00000001 0000000C 00000000 00000000 00000000 00000000"
            "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(
      Bytes("80000028 00000003 00000001 00000000 00000000 00000000 00000000 00000000 00000004 00000002 310A0000"),
      client);
  client.Send(
      Bytes("8000002C 00000004 00000000 00000002 000607AF 00000001 00000017 00000000 00000000 00000000 00000000"
            "00000001"));
  EXPECT_HEARD(Bytes("8000001C 00000004 00000001 00000000 00000000 00000000 00000000 00000000"), client);
}

TEST(Vxi11Opening, AnotherDeviceIsNotAccessible) {
  LiveInstrument instrument(Vxi11Only());
  Wire client(instrument.port());
  for (const char* name : {"00000005 'inst1' 000000", "00000000", "00000008 'gpib0,22'"}) {
    client.Send(Call("0000000A", "00000000 00000000 00000000" + std::string(name)));
    EXPECT_HEARD(Reply("00000003 00000000 00000000 00000000"), client);
  }
  client.Send(Call("0000000A", "00000000 00000000 00000000 00000005 'INST0' 000000"));
  EXPECT_HEARD(Record(std::string(40, '\0')).substr(0, 4) +
                   Bytes("0000002A 00000001 00000000 00000000 00000000 00000000 00000000 00000001 0000"),
               client);
}

TEST(Vxi11Opening, OneConnectionHasSeveralLinks) {
  LiveInstrument instrument(Vxi11Only());
  Vxi11Client client(instrument.port());
  client.Send(Call("0000000A", "00000000 00000000 00000000 00000005 'inst0' 000000"));
  EXPECT_EQ(44U, client.ReceiveBytes(44).size());
  client.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000005 '*OPC?' 000000"));
  client.Send(Call("0000000B", "00000002 000007D0 00000000 00000008 00000006 '*STB?' 0A0000"));
  client.Send(Call("0000000C", "00000002 00000400 000007D0 00000000 00000000 00000000"));
  client.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000005") + Reply("00000000 00000006"), client);
  EXPECT_HEARD(Reply("00000000 00000004 00000002 '0\n' 0000"), client);
  EXPECT_HEARD(Reply("00000000 00000004 00000002 '1\n' 0000"), client);
}

TEST(Vxi11Opening, ThereIsAnEndToTheLinks) {
  LiveInstrument instrument(Vxi11Only());
  Vxi11Client client(instrument.port());
  for (int i = 1; i < 64; ++i) {
    client.Send(Call("0000000A", "00000000 00000000 00000000 00000005 'inst0' 000000"));
    EXPECT_EQ(44U, client.ReceiveBytes(44).size());
  }
  client.Send(Call("0000000A", "00000000 00000000 00000000 00000005 'inst0' 000000"));
  EXPECT_HEARD(Reply("00000009 00000000 00000000 00000000"), client);
  client.Send(Call("00000017", "00000001"));
  EXPECT_HEARD(Reply("00000000"), client);
  client.Send(Call("0000000A", "00000000 00000000 00000000 00000005 'inst0' 000000"));
  EXPECT_EQ(Bytes("80000028 0000002A 00000001 00000000 00000000 00000000 00000000 00000000 00000041"),
            client.ReceiveBytes(44).substr(0, 36));
}

TEST_F(Vxi11, CallsThatComeTogetherAreAnsweredInTheirOrder) {
  const std::string write = Call("0000000B", "00000001 000007D0 00000000 00000008 00000005 '*OPC?' 000000");
  const std::string read = Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000");
  client_.Send(write + read);
  EXPECT_HEARD(Reply("00000000 00000005") + Reply("00000000 00000004 00000002 '1\n' 0000"), client_);
  // More than are answered at a time.
  std::string calls;
  std::string replies;
  for (int i = 0; i < 100; ++i) {
    calls += write + read + Call("00000000", "");
    replies += Reply("00000000 00000005") + Reply("00000000 00000004 00000002 '1\n' 0000") + Reply("");
  }
  client_.Send(calls);
  EXPECT_HEARD(replies, client_);
}

TEST_F(Vxi11, AReadThatWaitsDoesNotKeepTheReplyToTheWriteBeforeIt) {
  client_.Send(Call("0000000B", "00000001 00000000 00000000 00000000 00000004 '*OPC'") +
               Call("0000000C", "00000001 00000400 0000EA60 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000004"), client_);
  Wire aborts(client_.abort_port());
  aborts.Send(Abort("00000001"));
  EXPECT_HEARD(Reply("00000000"), aborts);
  EXPECT_HEARD(Reply("00000017 00000000 00000000"), client_);
}

TEST_F(Vxi11, TheNullProcedureAnswersNothing) {
  client_.Send(Call("00000000", ""));
  EXPECT_HEARD(Reply(""), client_);
}

TEST_F(Vxi11, EachProcedureRefusesALinkThatDoesNotExist) {
  client_.Send(Call("0000000B", "00000007 000007D0 00000000 00000008 00000005 '*OPC?' 000000"));
  EXPECT_HEARD(Reply("00000004 00000000"), client_);
  client_.Send(Call("0000000C", "00000007 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000004 00000000 00000000"), client_);
  client_.Send(Call("0000000D", "00000007 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000004 00000000"), client_);
  for (const char* procedure : {"0000000E", "0000000F", "00000010", "00000011"}) {
    client_.Send(Call(procedure, "00000007 00000000 00000000 00000000"));
    EXPECT_HEARD(Reply("00000004"), client_);
  }
  client_.Send(Call("00000012", "00000007 00000000 00000000"));
  EXPECT_HEARD(Reply("00000004"), client_);
  client_.Send(Call("00000013", "00000007"));
  EXPECT_HEARD(Reply("00000004"), client_);
  client_.Send(Call("00000014", "00000007 00000001 00000000"));
  EXPECT_HEARD(Reply("00000004"), client_);
  client_.Send(Call("00000016", "00000007 00000000 00000000 00000000 00000000 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000004 00000000"), client_);
  client_.Send(Call("00000017", "00000007"));
  EXPECT_HEARD(Reply("00000004"), client_);
}

TEST_F(Vxi11, ALinkBelongsToItsConnection) {
  Vxi11Client other(instrument_.port());
  other.Send(Call("00000017", "00000001"));
  EXPECT_HEARD(Reply("00000004"), other);
}

TEST_F(Vxi11, AMessageMayComeInParts) {
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000000 00000005 ':POW ' 000000"));
  EXPECT_HEARD(Reply("00000000 00000005"), client_);
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000000"), client_);
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000008 '-3;:POW?'"));
  EXPECT_HEARD(Reply("00000000 00000008"), client_);
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000004 00000003 '-3\n' 00"), client_);
}

TEST_F(Vxi11, AReadGivesItsReasons) {
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000006 '*IDN?\n' 0000"));
  EXPECT_HEARD(Reply("00000000 00000006"), client_);
  // requestSize reached; nothing asked for; termChar, which is not looked for without its flag; and with it.
  client_.Send(Call("0000000C", "00000001 00000004 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000001 00000004 'Kelv'"), client_);
  client_.Send(Call("0000000C", "00000001 00000000 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000001 00000000"), client_);
  client_.Send(Call("0000000C", "00000001 00000006 000007D0 00000000 00000000 0000002C"));
  EXPECT_HEARD(Reply("00000000 00000001 00000006 'ora,TD' 0000"), client_);
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000080 0000002C"));
  EXPECT_HEARD(Reply("00000000 00000002 00000007 '48142C,' 00"), client_);
  // Both at once, and all three.
  client_.Send(Call("0000000C", "00000001 0000000A 000007D0 00000000 00000080 0000002C"));
  EXPECT_HEARD(Reply("00000000 00000003 0000000A '481000001,' 0000"), client_);
  client_.Send(Call("0000000C", "00000001 00000006 000007D0 00000000 00000080 0000000A"));
  EXPECT_HEARD(Reply("00000000 00000007 00000006 '1.4.2\n' 0000"), client_);
}

TEST_F(Vxi11, AReadWithoutAQuestionTimesOutAndIsAQueryError) {
  const auto begin = std::chrono::steady_clock::now();
  client_.Send(Call("0000000C", "00000001 00000400 00000064 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("0000000F 00000000 00000000"), client_);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(100));
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 0000000A ':SYST:ERR?' 0000"));
  EXPECT_HEARD(Reply("00000000 0000000A"), client_);
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000004 0000001A '-420,\"Query UNTERMINATED\"\n' 0000"), client_);
}

TEST_F(Vxi11, AQuestionBeforeTheAnswerWasReadCostsTheAnswer) {
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000005 '*IDN?' 000000"));
  EXPECT_HEARD(Reply("00000000 00000005"), client_);
  client_.Send(Call("0000000C", "00000001 00000007 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000001 00000007 'Kelvora' 00"), client_);
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 0000000A ':SYST:ERR?' 0000"));
  EXPECT_HEARD(Reply("00000000 0000000A"), client_);
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000004 00000019 '-410,\"Query INTERRUPTED\"\n' 000000"), client_);
}

TEST_F(Vxi11, AReadWaitsForTheInstrument) {
  client_.Write("00000001", ":INIT:CONT OFF;:TRIG:TYPE SINGle;:FREQ:MODE SWE;:INIT;*OPC?");
  client_.Send(Call("0000000C", "00000001 00000400 00000000 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("0000000F 00000000 00000000"), client_);
  client_.Send(Call("0000000C", "00000001 00000400 00007530 00000000 00000000 00000000"));
  instrument_.host().With([](model::Instrument& instrument) { instrument.generator().sweep.Abort(); });
  EXPECT_HEARD(Reply("00000000 00000004 00000002 '1\n' 0000"), client_);
}

TEST_F(Vxi11, WhatIsWrittenWhileTheInstrumentIsBusyWaitsInItsOrder) {
  client_.Write("00000001", ":INIT:CONT OFF;:TRIG:TYPE SINGle;:FREQ:MODE SWE;:INIT;*WAI");
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000007 ':POW -9' 00"));
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000005 ':POW?' 000000"));
  EXPECT_HEARD(Reply("00000000 00000007") + Reply("00000000 00000005"), client_);
  client_.Send(Call("0000000C", "00000001 00000400 00007530 00000000 00000000 00000000"));
  instrument_.host().With([](model::Instrument& instrument) { instrument.generator().sweep.Abort(); });
  EXPECT_HEARD(Reply("00000000 00000004 00000003 '-9\n' 00"), client_);
}

TEST_F(Vxi11, AWriteTimesOutWhenTheBusyInstrumentHasNoRoomForIt) {
  client_.Write("00000001", ":INIT:CONT OFF;:TRIG:TYPE SINGle;:FREQ:MODE SWE;:INIT;*WAI");
  client_.Write("00000001", std::string(0x10001, ' '));
  client_.Send(Call("0000000B", "00000001 0000000A 00000000 00000008 00000005 ':POW?' 000000"));
  EXPECT_HEARD(Reply("0000000F 00000000"), client_);
}

TEST_F(Vxi11, AWaitingReadHoldsNobodyUp) {
  Vxi11Client other(instrument_.port());
  client_.Send(Call("0000000C", "00000001 00000400 0000EA60 00000000 00000000 00000000"));
  WaitForRead();
  other.Send(Call("0000000B", "00000002 000007D0 00000000 00000008 00000005 '*OPC?' 000000"));
  EXPECT_HEARD(Reply("00000000 00000005"), other);
  other.Send(Call("0000000C", "00000002 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000004 00000002 '1\n' 0000"), other);
}

TEST_F(Vxi11, AWriteAsLongAsTheLimitIsTakenAndALongerOneIsNot) {
  const std::string blanks(0x100000, ' ');
  client_.Send(Record(Bytes("0000002A 00000000 00000002 000607AF 00000001 0000000B 00000000 00000000 00000000 00000000"
                            "00000001 000007D0 00000000 00000008 00100001") +
                      blanks + " " + Bytes("000000")));
  EXPECT_HEARD(Reply("00000005 00000000"), client_);
  client_.Send(Record(Bytes("0000002A 00000000 00000002 000607AF 00000001 0000000B 00000000 00000000 00000000 00000000"
                            "00000001 000007D0 00000000 00000008 00100000 '*OPC?'") +
                      blanks.substr(5)));
  EXPECT_HEARD(Reply("00000000 00100000"), client_);
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000004 00000002 '1\n' 0000"), client_);
}

TEST_F(Vxi11, ALongAnswerComesInReadsOfAtMostAMebibyte) {
  const std::string head = ":MMEM:DATA \"Internal\",\"long.bin\",#7";
  const std::string file(0x180000, 'f');
  const auto write = [this](std::string_view flags, const std::string& data) {
    char length[9];
    std::snprintf(length, sizeof length, "%08zX", data.size());
    client_.Send(
        Record(Bytes("0000002A 00000000 00000002 000607AF 00000001 0000000B 00000000 00000000 00000000 00000000"
                     "00000001 000007D0 00000000" +
                     std::string(flags) + length) +
               data + std::string((4 - data.size() % 4) % 4, '\0')));
    EXPECT_HEARD(Reply("00000000" + std::string(length)), client_);
  };
  write("00000000", head + "1572864");
  write("00000000", file.substr(0, 0x100000));
  write("00000008", file.substr(0x100000));
  write("00000008", ":MMEM:DATA? \"Internal\",\"long.bin\"");
  client_.Send(Call("0000000C", "00000001 FFFFFFFF 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Bytes("80100024 0000002A 00000001 00000000 00000000 00000000 00000000 00000000 00000000 00100000"),
               client_);
  EXPECT_TRUE("#71572864" + file.substr(0, 0x100000 - 9) == client_.ReceiveBytes(0x100000));
  client_.Send(Call("0000000C", "00000001 FFFFFFFF 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Bytes("80080030 0000002A 00000001 00000000 00000000 00000000 00000000 00000000 00000004 0008000A"),
               client_);
  EXPECT_TRUE(file.substr(0x100000 - 9) + "\n" + Bytes("0000") == client_.ReceiveBytes(0x8000C));
}

TEST_F(Vxi11, TheStatusByteTellsOfAnAnswerToBeRead) {
  client_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("00000000 00000000"), client_);
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000005 '*OPC?' 000000"));
  client_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("00000000 00000005") + Reply("00000000 00000010"), client_);
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  client_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("00000000 00000004 00000002 '1\n' 0000") + Reply("00000000 00000000"), client_);
}

TEST_F(Vxi11, ATriggerIsTheCommonCommand) {
  client_.Send(Call("0000000E", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("00000000"), client_);
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 0000000A ':SYST:ERR?' 0000"));
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 0000000A"), client_);
  EXPECT_HEARD(Reply("00000000 00000004 0000001C '-211,\"Trigger ignored;*TRG\"\n'"), client_);
}

TEST_F(Vxi11, AClearForgetsAHalfWrittenMessage) {
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000000 00000011 ':MMEM:DATA \"U\",#9' 000000"));
  client_.Send(Call("0000000F", "00000001 00000000 00000000 000007D0"));
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 0000000A ':SYST:ERR?' 0000"));
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000011") + Reply("00000000") + Reply("00000000 0000000A"), client_);
  EXPECT_HEARD(Reply("00000000 00000004 0000000D '0,\"No error\"\n' 000000"), client_);
}

TEST_F(Vxi11, AClearForgetsAHalfReadAnswer) {
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000005 '*IDN?' 000000"));
  client_.Send(Call("0000000C", "00000001 00000004 000007D0 00000000 00000000 00000000"));
  client_.Send(Call("0000000F", "00000001 00000000 00000000 000007D0"));
  client_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("00000000 00000005") + Reply("00000000 00000001 00000004 'Kelv'"), client_);
  EXPECT_HEARD(Reply("00000000") + Reply("00000000 00000000"), client_);
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000005 '*OPC?' 000000"));
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000005") + Reply("00000000 00000004 00000002 '1\n' 0000"), client_);
}

TEST_F(Vxi11, RemoteAndLocalAreAccepted) {
  client_.Send(Call("00000010", "00000001 00000000 00000000 000007D0"));
  client_.Send(Call("00000011", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("00000000") + Reply("00000000"), client_);
}

TEST_F(Vxi11, ThereAreNoDeviceCommands) {
  client_.Send(Call("00000016", "00000001 00000000 000007D0 00000000 00020000 00000001 00000001 00000001 2A000000"));
  EXPECT_HEARD(Reply("00000008 00000000"), client_);
}

TEST_F(Vxi11, AnAbortEndsTheReadUnderWay) {
  client_.Send(Call("0000000C", "00000001 00000400 0000EA60 00000000 00000000 00000000"));
  WaitForRead();
  Wire abort(client_.abort_port());
  abort.Send(Abort("00000001"));
  EXPECT_HEARD(Reply("00000000"), abort);
  EXPECT_HEARD(Reply("00000017 00000000 00000000"), client_);
  client_.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000005 '*OPC?' 000000"));
  client_.Send(Call("0000000C", "00000001 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000005") + Reply("00000000 00000004 00000002 '1\n' 0000"), client_);
}

TEST_F(Vxi11, AnAbortOfALinkThatDoesNotExistIsAnError) {
  Wire abort(client_.abort_port());
  abort.Send(Abort("00000007"));
  EXPECT_HEARD(Reply("00000004"), abort);
  abort.Send(Abort("00000001"));
  EXPECT_HEARD(Reply("00000000"), abort);
}

}  // namespace
}  // namespace siggen
