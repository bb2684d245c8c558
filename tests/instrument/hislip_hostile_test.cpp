// Clients over HiSLIP that do not keep to the protocol. The instrument outlives them, and serves the next one.
#include <memory>
#include <vector>

#include "hislip_client.h"

namespace siggen {
namespace {

void ExpectFatal(Wire& connection, std::string_view code) {
  EXPECT_HEARD(Frame("HS 02 " + std::string(code) + " 00000000 0000000000000000"), connection);
  EXPECT_NE(-1, connection.WaitForEnd());
}

class HislipHostile : public ::testing::Test {
 protected:
  ~HislipHostile() override {
    HislipClient next(instrument_.port());
    next.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
    EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), next.sync);
  }

  LiveInstrument instrument_{HislipOnly()};
};

TEST_F(HislipHostile, AWrongPrologueIsFatalOnBothChannels) {
  HislipClient client(instrument_.port());
  client.sync.Send("*IDN? and then some\n");
  ExpectFatal(client.sync, "01");
  ExpectFatal(client.async, "01");
}

TEST_F(HislipHostile, AStrangerIsToldSo) {
  Wire stranger(instrument_.port());
  stranger.Send("GET / HTTP/1.1\r\n\r\n");
  ExpectFatal(stranger, "01");
}

TEST_F(HislipHostile, TheFirstMessageIsAGreeting) {
  Wire hasty(instrument_.port());
  hasty.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*IDN?"));
  ExpectFatal(hasty, "03");
}

TEST_F(HislipHostile, DataBeforeTheSecondConnectionIsFatal) {
  Wire hasty(instrument_.port());
  hasty.Send(Frame("HS 00 00 01004B56 0000000000000007", "hislip0"));
  hasty.ReceiveBytes(16);
  hasty.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*IDN?"));
  ExpectFatal(hasty, "02");
}

TEST_F(HislipHostile, ASessionThatDoesNotExistIsRefused) {
  Wire stray(instrument_.port());
  stray.Send(Frame("HS 11 00 00001234 0000000000000000"));
  ExpectFatal(stray, "03");
}

TEST_F(HislipHostile, ASecondPartnerIsRefused) {
  HislipClient client(instrument_.port());
  Wire third(instrument_.port());
  third.Send(Frame("HS 11 00 00000001 0000000000000000"));
  ExpectFatal(third, "03");
}

TEST_F(HislipHostile, AnotherDeviceNameIsRefused) {
  Wire lost(instrument_.port());
  lost.Send(Frame("HS 00 00 01004B56 0000000000000007", "hislip7"));
  ExpectFatal(lost, "03");
}

TEST_F(HislipHostile, GreetingTwiceIsFatal) {
  HislipClient client(instrument_.port());
  client.sync.Send(Frame("HS 00 00 01004B56 0000000000000007", "hislip0"));
  ExpectFatal(client.sync, "03");
}

TEST_F(HislipHostile, TooManyClientsAreRefused) {
  std::vector<std::unique_ptr<HislipClient>> clients;
  for (int i = 0; i < 16; ++i) clients.push_back(std::make_unique<HislipClient>(instrument_.port()));
  Wire last(instrument_.port());
  last.Send(Frame("HS 00 00 01004B56 0000000000000007", "hislip0"));
  ExpectFatal(last, "04");
}

TEST_F(HislipHostile, UnknownMessagesAreErrorsAndWorkGoesOn) {
  HislipClient client(instrument_.port());
  client.sync.Send(Frame("HS 40 00 00000000 0000000000000003", "???"));
  EXPECT_HEARD(Frame("HS 03 01 00000000 0000000000000000"), client.sync);
  client.sync.Send(Frame("HS C8 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 03 03 00000000 0000000000000000"), client.sync);
  client.async.Send(Frame("HS 06 00 00000000 0000000000000001", "?"));
  EXPECT_HEARD(Frame("HS 03 01 00000000 0000000000000000"), client.async);
  client.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client.sync);
}

TEST_F(HislipHostile, AMessageBeyondTheLimitIsAnErrorAndIsDropped) {
  HislipClient client(instrument_.port());
  client.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000100001", std::string(0x100001, 'x')));
  EXPECT_HEARD(Frame("HS 03 04 00000000 0000000000000000"), client.sync);
  client.sync.Send(Frame("HS 07 00 FFFFFF02 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF02 0000000000000002", "1\n"), client.sync);
  client.async.Send(Frame("HS 04 01 00000000 0000000000000101", std::string(0x101, 'k')));
  EXPECT_HEARD(Frame("HS 03 04 00000000 0000000000000000"), client.async);
}

TEST_F(HislipHostile, WhatIsDroppedHoldsUpNoAnswer) {
  const std::string question = Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?");
  const std::string answer = Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n");
  struct Dropped {
    std::string frame;
    std::string reply;
  };
  const Dropped kinds[] = {
      {Frame("HS 40 00 00000000 0000000000000003", "???"), Frame("HS 03 01 00000000 0000000000000000")},
      {Frame("HS C8 00 00000000 0000000000000000"), Frame("HS 03 03 00000000 0000000000000000")},
      {Frame("HS 15 00 FFFFFF00 0000000000000000"), Frame("HS 03 01 00000000 0000000000000000")},
      {Frame("HS 08 00 00000000 0000000000000000"), Frame("HS 03 00 00000000 0000000000000000")},
      {Frame("HS 03 01 00000000 0000000000000004", "what"), ""},
      {Frame("HS 06 00 FFFFFF02 0000000000100001", std::string(0x100001, 'x')),
       Frame("HS 03 04 00000000 0000000000000000")},
  };
  Dropped all;
  for (const Dropped& each : kinds) {
    HislipClient client(instrument_.port());
    client.sync.Send(question + each.frame);
    EXPECT_HEARD(each.reply + answer, client.sync) << Readable(each.frame.substr(0, 16));
    all.frame += each.frame;
    all.reply += each.reply;
  }
  HislipClient client(instrument_.port());
  client.sync.Send(question + all.frame);
  EXPECT_HEARD(all.reply + answer, client.sync);
  client.sync.Send(Frame("HS 07 01 FFFFFF02 000000000000000A", ":SYST:ERR?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF02 000000000000000D", "0,\"No error\"\n"), client.sync);
}

TEST_F(HislipHostile, TheLargestLengthThereIsAsksForNoMemory) {
  HislipClient client(instrument_.port());
  client.sync.Send(Frame("HS 07 00 FFFFFF00 FFFFFFFFFFFFFFFF", "x"));
  EXPECT_HEARD(Frame("HS 03 04 00000000 0000000000000000"), client.sync);
  client.async.Send(Frame("HS 03 00 00000000 FFFFFFFFFFFFFFFF", std::string(100000, 'x')));
}

TEST_F(HislipHostile, AFloodOfMessagesGoesWithItsClient) {
  HislipClient client(instrument_.port());
  std::string flood;
  for (int i = 0; i < 512; ++i) flood += Frame("HS 0C 00 FFFFFF00 0000000000000000");
  for (int i = 0; i < 64; ++i) flood += Frame("HS 40 00 00000000 0000000000000000");
  client.sync.Send(flood);
  client.async.Send(Frame("HS 02 00 00000000 0000000000000004", "over"));
  EXPECT_NE(-1, client.async.WaitForEnd());
}

TEST_F(HislipHostile, HalfAConnectionIsNone) {
  HislipClient client(instrument_.port());
  client.async.EndSending();
  EXPECT_EQ(0, client.sync.WaitForEnd());
}

TEST(HislipPatience, ADeviceClearThatIsNotCompletedEndsTheLink) {
  link::HostOptions options = HislipOnly();
  options.patience_for_clear = std::chrono::milliseconds(300);
  LiveInstrument instrument(options);
  std::vector<std::unique_ptr<HislipClient>> clients;
  for (int i = 0; i < 16; ++i) clients.push_back(std::make_unique<HislipClient>(instrument.port()));
  HislipClient& idle = *clients.back();
  const auto begin = std::chrono::steady_clock::now();
  idle.async.Send(Frame("HS 13 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 17 00 00000000 0000000000000000"), idle.async);
  ExpectFatal(idle.sync, "00");
  ExpectFatal(idle.async, "00");
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(300));
  HislipClient next(instrument.port());
  next.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), next.sync);
}

TEST(HislipPatience, ADeviceClearThatIsCompletedIsForgotten) {
  link::HostOptions options = HislipOnly();
  options.patience_for_clear = std::chrono::milliseconds(300);
  LiveInstrument instrument(options);
  HislipClient client(instrument.port());
  client.async.Send(Frame("HS 13 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 17 00 00000000 0000000000000000"), client.async);
  client.sync.Send(Frame("HS 08 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 09 00 00000000 0000000000000000"), client.sync);
  std::this_thread::sleep_for(std::chrono::milliseconds(400));
  client.sync.Send(Frame("HS 07 00 FFFFFF00 0000000000000005", "*OPC?"));
  EXPECT_HEARD(Frame("HS 07 00 FFFFFF00 0000000000000002", "1\n"), client.sync);
}

TEST_F(HislipHostile, AnyTypeAnyControlCodeAnyParameterIsSurvived) {
  unsigned state = 481;
  const auto next = [&state] { return static_cast<char>((state = state * 1103515245U + 12345U) >> 16); };
  for (int round = 0; round < 60; ++round) {
    HislipClient client(instrument_.port());
    std::string frames;
    for (int i = 0; i < 40; ++i) {
      std::string frame = Frame("HS 00 00 00000000 0000000000000000");
      frame[2] = static_cast<char>(next() & 0x1F);
      frame[3] = static_cast<char>(next() & 0x03);
      for (std::size_t at = 4; at < 8; ++at) frame[at] = next();
      frame[15] = static_cast<char>(next() & 0x0F);
      frames += frame.append(static_cast<std::size_t>(frame[15]), next());
    }
    (round % 2 == 0 ? client.sync : client.async).Send(frames);
  }
}

}  // namespace
}  // namespace siggen
