// The scripted instrument as a client that speaks HiSLIP in literal frames meets it.

#include <gtest/gtest.h>

#include "Bytes.h"
#include "ScriptedInstrument.h"

namespace kvtd::test {
namespace {

// "HS" and the fourteen bytes behind it, in hexadecimal digits with blanks.
std::string Frame(std::string_view digits, std::string_view payload = {}) {
  return "HS" + FromHex(digits) + std::string(payload);
}

class HislipClient {
 public:
  explicit HislipClient(const ScriptedInstrument& instrument) : sync(ConnectTo(instrument.port())) {
    Send(sync, Frame("00 00 01005858 0000000000000007", "hislip0"));
    Hear(sync, Frame("01 00 01000007 0000000000000000"));
    async = ConnectTo(instrument.port());
    Send(async, Frame("11 00 00000007 0000000000000000"));
    Hear(async, Frame("12 00 00005858 0000000000000000"));
  }

  static void Send(const Descriptor& to, std::string_view bytes) { EXPECT_TRUE(SendAll(to, bytes)); }
  static void Hear(const Descriptor& from, std::string_view bytes) {
    EXPECT_EQ(Visible(bytes), Visible(ReceiveExactly(from, bytes.size())));
  }
  static void HearTheEnd(const Descriptor& from) { EXPECT_EQ("", ReceiveSome(from)); }

  Descriptor sync;
  Descriptor async;
};

class HislipLinkTest : public testing::Test {
 protected:
  ScriptedInstrument instrument{Family::V4, LinkKind::Hislip};
};

TEST_F(HislipLinkTest, AnswersEachCommandUnderTheIdOfItsMessage) {
  instrument.Script(R"(
    > :FREQ 1 HZ
    > *IDN?
    < Kelvora
  )");
  {
    HislipClient client(instrument);
    client.Send(client.sync, Frame("07 00 FFFFFF00 000000000000000B", ":FREQ 1 HZ\n"));
    client.Send(client.sync, Frame("07 00 FFFFFF02 0000000000000006", "*IDN?\n"));
    client.Hear(client.sync, Frame("07 00 FFFFFF02 0000000000000008", "Kelvora\n"));
  }
  EXPECT_EQ("", instrument.Finish());
  EXPECT_EQ(1, instrument.Connections());
}

TEST_F(HislipLinkTest, IsFoundUnderItsResourceName) {
  EXPECT_EQ("TCPIP0::127.0.0.1::hislip0," + std::to_string(instrument.port()) + "::INSTR", instrument.ResourceName());
}

TEST_F(HislipLinkTest, ACommandIsWholeWithTheMessageThatEndsIt) {
  instrument.Script("> A?\n< 1");
  HislipClient client(instrument);
  client.Send(client.sync, Frame("06 00 FFFFFF00 0000000000000001", "A"));
  client.Send(client.sync, Frame("07 00 FFFFFF02 0000000000000002", "?\n"));
  client.Hear(client.sync, Frame("07 00 FFFFFF02 0000000000000002", "1\n"));
}

TEST_F(HislipLinkTest, AnAnswerWithoutALineFeedDoesNotEnd) {
  instrument.Sent("A?\n");
  instrument.Answer("1");
  HislipClient client(instrument);
  client.Send(client.sync, Frame("07 00 FFFFFF00 0000000000000003", "A?\n"));
  client.Hear(client.sync, Frame("06 00 FFFFFF00 0000000000000001", "1"));
}

TEST_F(HislipLinkTest, TellsTheLargestMessageAndRefusesOtherRequests) {
  HislipClient client(instrument);
  client.Send(client.async, Frame("0F 00 00000000 0000000000000008", Literal("\0\0\0\0\0\x10\0\0")));
  client.Hear(client.async, Frame("10 00 00000000 0000000000000008", Literal("\0\0\0\0\0\x10\0\0")));
  client.Send(client.async, Frame("04 01 00000000 0000000000000000"));
  client.Hear(client.async, Frame("03 01 00000000 0000000000000000"));
}

TEST_F(HislipLinkTest, AMessageOutOfItsOrderEndsTheLink) {
  HislipClient client(instrument);
  client.Send(client.sync, Frame("07 00 FFFFFF02 0000000000000002", "A\n"));
  client.Hear(client.sync, Frame("02 01 00000000 0000000000000000"));
  client.Hear(client.async, Frame("02 01 00000000 0000000000000000"));
  client.HearTheEnd(client.sync);
  client.HearTheEnd(client.async);
}

TEST_F(HislipLinkTest, ASurpriseEndsBothConnectionsAndIsTold) {
  {
    HislipClient client(instrument);
    client.Send(client.sync, Frame("07 00 FFFFFF00 0000000000000002", "A\n"));
    client.HearTheEnd(client.sync);
    client.HearTheEnd(client.async);
  }
  EXPECT_NE("", instrument.Finish());
}

}  // namespace
}  // namespace kvtd::test
