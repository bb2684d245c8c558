// The scripted instrument as a client that makes VXI-11's calls in literal records meets it.

#include <gtest/gtest.h>

#include "Bytes.h"
#include "ScriptedInstrument.h"

namespace kvtd::test {
namespace {

// The record's mark, then transaction 1, a call of RPC 2, the core program's version 1; neither credential nor
// verifier.
std::string Call(std::string_view mark, std::string_view procedure, std::string_view arguments) {
  return FromHex(mark) + FromHex("00000001 00000000 00000002 000607AF 00000001") + FromHex(procedure) +
         FromHex("00000000 00000000 00000000 00000000") + std::string(arguments);
}

// Transaction 1 is answered, accepted and has succeeded.
std::string Reply(std::string_view mark, std::string_view results) {
  return FromHex(mark) + FromHex("00000001 00000001 00000000 00000000 00000000 00000000") + std::string(results);
}

class Vxi11LinkTest : public testing::Test {
 protected:
  void SetUp() override {
    client = ConnectTo(instrument.port());
    Send(Call("80000040", "0000000A", FromHex("00000005 00000000 00000000 00000005") + Literal("inst0\0\0\0")));
    Hear(Reply("80000028", FromHex("00000000 00000007 00000000 00010000")));
  }
  void TearDown() override {
    client.Close();
    EXPECT_EQ("", instrument.Finish());
  }

  void Send(std::string_view bytes) { EXPECT_TRUE(SendAll(client, bytes)); }
  void Hear(std::string_view bytes) { EXPECT_EQ(Visible(bytes), Visible(ReceiveExactly(client, bytes.size()))); }
  void HearTheEnd() { EXPECT_EQ("", ReceiveSome(client)); }
  // device_write with END, and its answer.
  void Write() {
    Send(Call("80000040", "0000000B", FromHex("00000007 000007D0 00000000 00000008 00000003") + Literal("A?\n\0")));
    Hear(Reply("80000020", FromHex("00000000 00000003")));
  }
  // device_read of so many bytes within so many milliseconds.
  void Read(std::string_view size, std::string_view time) {
    Send(Call("80000040", "0000000C",
              FromHex("00000007") + FromHex(size) + FromHex(time) + FromHex("00000000 00000000 00000000")));
  }

  ScriptedInstrument instrument{Family::V4, LinkKind::Vxi11};
  Descriptor client;
};

TEST_F(Vxi11LinkTest, ACommandIsAnsweredWhenTheAnswerIsRead) {
  instrument.Script("> A?\n< 1.5");
  Write();
  Read("00000400", "000007D0");
  Hear(Reply("80000028", FromHex("00000000 00000004 00000004") + "1.5\n"));
}

TEST_F(Vxi11LinkTest, ACommandIsWholeWithTheWriteThatEndsIt) {
  instrument.Script("> :A?\n< 1");
  Send(Call("80000040", "0000000B", FromHex("00000007 000007D0 00000000 00000000 00000001") + Literal(":\0\0\0")));
  Hear(Reply("80000020", FromHex("00000000 00000001")));
  Write();
  Read("00000400", "000007D0");
  Hear(Reply("80000028", FromHex("00000000 00000004 00000002") + Literal("1\n\0\0")));
}

TEST_F(Vxi11LinkTest, AnAnswerIsReadInPiecesAndEndsOnce) {
  instrument.Script("> A?\n< 1.5");
  Write();
  Read("00000002", "000007D0");
  Hear(Reply("80000028", FromHex("00000000 00000001 00000002") + Literal("1.\0\0")));
  Read("00000002", "000007D0");
  Hear(Reply("80000028", FromHex("00000000 00000005 00000002") + Literal("5\n\0\0")));
}

TEST_F(Vxi11LinkTest, AnAnswerWithoutALineFeedDoesNotEnd) {
  instrument.Sent("A?\n");
  instrument.Answer("12");
  Write();
  Read("00000400", "000007D0");
  Hear(Reply("80000028", FromHex("00000000 00000000 00000002") + Literal("12\0\0")));
}

TEST_F(Vxi11LinkTest, WhatIsNotThereInTimeIsATimeout) {
  instrument.Script("> A?\n! pause 100\n< 1");
  Write();
  Read("00000400", "0000000A");
  Hear(Reply("80000024", FromHex("0000000F 00000000 00000000")));
  Read("00000400", "000007D0");
  Hear(Reply("80000028", FromHex("00000000 00000004 00000002") + Literal("1\n\0\0")));
  Read("00000400", "0000000A");
  Hear(Reply("80000024", FromHex("0000000F 00000000 00000000")));
}

TEST_F(Vxi11LinkTest, ANextCommandDropsWhatNobodyRead) {
  instrument.Script("> A?\n< 1\n> A?\n< 2");
  Write();
  Write();
  Read("00000400", "000007D0");
  Hear(Reply("80000028", FromHex("00000000 00000004 00000002") + Literal("2\n\0\0")));
}

TEST_F(Vxi11LinkTest, TheInstrumentEndsTheConnectionBehindItsAnswer) {
  instrument.Script("> A?\n< 1\n! close");
  Write();
  Read("00000400", "000007D0");
  Hear(Reply("80000028", FromHex("00000000 00000004 00000002") + Literal("1\n\0\0")));
  HearTheEnd();
}

TEST_F(Vxi11LinkTest, OtherCallsAreNotAvailable) {
  Send(Call("80000038", "0000000F", FromHex("00000007 00000000 00000000 000007D0")));
  Hear(FromHex("80000018 00000001 00000001 00000000 00000000 00000000 00000003"));
}

TEST_F(Vxi11LinkTest, IsFoundAtThePortOfTheEnvironment) {
  EXPECT_EQ("TCPIP0::127.0.0.1::inst0::INSTR", instrument.ResourceName());
  EXPECT_EQ(std::to_string(instrument.port()), std::getenv("TVR_VISA_VXI11_PORT"));
}

}  // namespace
}  // namespace kvtd::test
