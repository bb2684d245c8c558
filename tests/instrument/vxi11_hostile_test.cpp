// Clients over VXI-11 that do not keep to the protocol. The instrument outlives them, and serves the next one.
#include <memory>
#include <vector>

#include "vxi11_client.h"

namespace siggen {
namespace {

class Vxi11Hostile : public ::testing::Test {
 protected:
  ~Vxi11Hostile() override {
    Wire next(instrument_.port());
    next.Send(Call("0000000A", "00000000 00000000 00000000 00000005 'inst0' 000000"));
    EXPECT_EQ(Bytes("00000000"), next.ReceiveBytes(44).substr(28, 4));
  }

  LiveInstrument instrument_{Vxi11Only()};
};

TEST_F(Vxi11Hostile, AnotherRpcVersionIsDenied) {
  Wire client(instrument_.port());
  client.Send(
      Bytes("80000028 0000002A 00000000 00000003 000607AF 00000001 00000000 00000000 00000000 00000000 00000000"));
  EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000001 00000000 00000002 00000002"), client);
}

TEST_F(Vxi11Hostile, AnotherProgramIsUnavailable) {
  Vxi11Client client(instrument_.port());
  client.Send(CallOf("000186A0 00000002", "00000000", ""));
  EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000001"), client);
  client.Send(Abort("00000001"));
  EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000001"), client);
  Wire abort(client.abort_port());
  abort.Send(Call("00000000", ""));
  EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000001"), abort);
}

TEST_F(Vxi11Hostile, AnotherVersionIsAMismatch) {
  Wire client(instrument_.port());
  client.Send(CallOf("000607AF 00000002", "00000000", ""));
  EXPECT_HEARD(Bytes("80000020 0000002A 00000001 00000000 00000000 00000000 00000002 00000001 00000001"), client);
}

TEST_F(Vxi11Hostile, AnotherProcedureIsUnavailable) {
  Vxi11Client client(instrument_.port());
  for (const char* procedure : {"00000001", "00000015", "00000018", "0000001B", "FFFFFFFF"}) {
    client.Send(Call(procedure, ""));
    EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000003"), client);
  }
  Wire abort(client.abort_port());
  abort.Send(CallOf("000607B0 00000001", "00000002", "00000001"));
  EXPECT_HEARD(Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000003"), abort);
}

TEST_F(Vxi11Hostile, ArgumentsThatCannotBeAreGarbage) {
  Vxi11Client client(instrument_.port());
  const std::string garbage = Bytes("80000018 0000002A 00000001 00000000 00000000 00000000 00000004");
  // Nothing at all; a length beyond the record; the greatest lengths there are; a handle of 41 bytes.
  for (const char* procedure : {"0000000A", "0000000B", "0000000C", "0000000D", "0000000E", "0000000F", "00000010",
                                "00000011", "00000012", "00000013", "00000014", "00000016", "00000017", "00000019"}) {
    client.Send(Call(procedure, ""));
    EXPECT_HEARD(garbage, client);
  }
  client.Send(Call("0000000B", "00000001 000007D0 00000000 00000008 00000010 '*OPC?' 000000"));
  EXPECT_HEARD(garbage, client);
  for (const char* length : {"FFFFFFFF", "FFFFFFFC", "80000000", "7FFFFFFF", "00200000"}) {
    client.Send(Call("0000000B", "00000001 000007D0 00000000 00000008" + std::string(length) + "'*OPC?' 000000"));
    EXPECT_HEARD(garbage, client);
    client.Send(Call("0000000A", "00000000 00000000 00000000" + std::string(length) + "'inst0' 000000"));
    EXPECT_HEARD(garbage, client);
  }
  client.Send(Call("00000014", "00000001 00000001 00000029" + std::string(88, '0')));
  EXPECT_HEARD(garbage, client);
  Wire abort(client.abort_port());
  abort.Send(Abort(""));
  EXPECT_HEARD(garbage, abort);
  EXPECT_EQ("1\n", client.Ask("00000001", "*OPC?"));
}

TEST_F(Vxi11Hostile, CredentialsAreTakenAndNotLookedAt) {
  Wire client(instrument_.port());
  client.Send(
      Bytes("80000030 0000002A 00000000 00000002 000607AF 00000001 00000000 00000001 00000008 0102030405060708"
            "00000000 00000000"));
  EXPECT_HEARD(Reply(""), client);
}

TEST_F(Vxi11Hostile, ARecordMayComeInAnyPieces) {
  Vxi11Client client(instrument_.port());
  const std::string call = Call("0000000D", "00000001 00000000 00000000 000007D0").substr(4);
  for (const char c : Record(call)) client.Send({&c, 1});
  EXPECT_HEARD(Reply("00000000 00000000"), client);
  std::string fragments = Bytes("00000000");  // an empty one is one
  for (const char c : call) fragments += Bytes("00000001") + c;
  client.Send(fragments + Bytes("80000000"));
  EXPECT_HEARD(Reply("00000000 00000000"), client);
}

TEST_F(Vxi11Hostile, ARecordBeyondAllBoundsEndsTheConnection) {
  for (const char* mark : {"FFFFFFFF", "7FFFFFFF", "80200001", "'GET '"}) {
    Vxi11Client client(instrument_.port());
    client.Send(Bytes(mark) + "x");
    EXPECT_NE(-1, client.WaitForEnd()) << mark;
  }
  // Together too.
  Vxi11Client client(instrument_.port());
  client.Send(Bytes("00100000") + std::string(0x100000, 'x') + Bytes("80100001"));
  EXPECT_NE(-1, client.WaitForEnd());
}

TEST_F(Vxi11Hostile, WhatIsNoCallEndsTheConnection) {
  for (const char* record :
       {"80000000", "80000004 0000002A", "8000000C 0000002A 00000001 00000002",
        "80000018 0000002A 00000001 00000000 00000000 00000000 00000000",
        "80000028 0000002A 00000000 00000002 000607AF 00000001 00000000 00000000 FFFFFFFF 00000000 "
        "00000000",
        "80000020 0000002A 00000000 00000002 000607AF 00000001 00000000 00000000 00000000"}) {
    Wire client(instrument_.port());
    client.Send(Bytes(record));
    EXPECT_NE(-1, client.WaitForEnd()) << record;
  }
}

TEST_F(Vxi11Hostile, WhatWasAskedBeforeTheEndIsAnswered) {
  Vxi11Client client(instrument_.port());
  client.Send(Call("0000000D", "00000001 00000000 00000000 000007D0") + Call("00000000", ""));
  client.EndSending();
  EXPECT_HEARD(Reply("00000000 00000000") + Reply(""), client);
  EXPECT_EQ(0, client.WaitForEnd());
}

TEST_F(Vxi11Hostile, HalfARecordAndTheEndIsTheEnd) {
  Vxi11Client client(instrument_.port());
  client.Send(Call("0000000D", "00000001 00000000 00000000 000007D0").substr(0, 30));
  client.EndSending();
  EXPECT_EQ(0, client.WaitForEnd());
}

TEST_F(Vxi11Hostile, AClientThatEndsWhileItsCallIsUnderWayIsForgotten) {
  Vxi11Client client(instrument_.port());
  client.Send(Call("0000000C", "00000001 00000400 FFFFFFFF 00000000 00000000 00000000"));
  client.EndSending();
  EXPECT_EQ(0, client.WaitForEnd());
  Vxi11Client other(instrument_.port());
  Wire abort(other.abort_port());
  abort.Send(Abort("00000001"));
  EXPECT_HEARD(Reply("00000004"), abort);
}

TEST_F(Vxi11Hostile, AClientThatTakesNoAnswersHoldsNobodyUp) {
  constexpr std::size_t kFile = 0x80000;
  // More than the connection holds on its way.
  constexpr std::size_t kAnswers = 64;
  Vxi11Client deaf(instrument_.port());
  Vxi11Client other(instrument_.port());
  deaf.Write("00000001", ":MMEM:DATA \"Internal\",\"f\",#6" + std::to_string(kFile) + std::string(kFile, 'f'));
  std::string calls;
  for (std::size_t i = 0; i < kAnswers; ++i) {
    calls += Call("0000000B", "00000001 000007D0 00000000 00000008 0000001A ':MMEM:DATA? \"Internal\",\"f\"' 0000");
    calls += Call("0000000C", "00000001 FFFFFFFF 000007D0 00000000 00000000 00000000");
  }
  deaf.Send(calls);
  EXPECT_EQ("1\n", other.Ask("00000002", "*OPC?"));
  // Two replies, the block with its header and line feed, and what fills up its last word.
  constexpr std::size_t kReplies = 36 + 40 + kFile + 8 + 1 + 3;
  EXPECT_EQ(kAnswers * kReplies, deaf.ReceiveBytes(kAnswers * kReplies).size()) << "when he takes them after all";
}

TEST_F(Vxi11Hostile, ThereIsAnEndToTheConnections) {
  std::vector<std::unique_ptr<Wire>> clients;
  for (int i = 0; i < 32; ++i) {
    clients.push_back(std::make_unique<Wire>(instrument_.port()));
    clients.back()->Send(Call("00000000", ""));
    EXPECT_HEARD(Reply(""), *clients.back());
  }
  Wire last(instrument_.port());
  EXPECT_NE(-1, last.WaitForEnd());
  clients.pop_back();
  // That it has gone is seen in a moment.
  for (bool served = false; !served;) {
    Wire next(instrument_.port());
    next.Send(Call("00000000", ""));
    served = !next.ReceiveBytes(28).empty();
  }
}

TEST_F(Vxi11Hostile, AnyProcedureWithAnyArgumentsIsSurvived) {
  unsigned state = 481;
  const auto next = [&state] { return static_cast<unsigned char>((state = state * 1103515245U + 12345U) >> 16); };
  for (int round = 0; round < 60; ++round) {
    Vxi11Client client(instrument_.port());
    std::string calls;
    for (int i = 0; i < 40; ++i) {
      char procedure[9];
      std::snprintf(procedure, sizeof procedure, "%08X", 9U + next() % 16U);
      std::string arguments;
      for (unsigned words = next() % 10U; words > 0; --words) {
        char word[9];
        std::snprintf(word, sizeof word, "0000%02X%02X", next() % 4U == 0 ? unsigned{next()} : 0U, next() % 16U);
        arguments += word;
      }
      calls += Call(procedure, arguments);
    }
    client.Send(calls);
    client.EndSending();
    EXPECT_NE(-1, client.WaitForEnd());
  }
}

}  // namespace
}  // namespace siggen
