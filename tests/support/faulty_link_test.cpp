#include "FaultyLink.h"

#include <gtest/gtest.h>
#include <sys/socket.h>

#include <cerrno>

#include "ScriptedInstrument.h"

namespace kvtd::test {
namespace {

class FaultyLinkTest : public testing::Test {
 protected:
  FaultyLinkTest() {
    instrument.AnswerAlways("A", "12345");
    client = ConnectTo(link.port());
  }

  void Ask() { EXPECT_TRUE(SendAll(client, "A\n")); }
  std::string Line() { return ReceiveUntil(client, '\n'); }

  ScriptedInstrument instrument;
  FaultyLink link{instrument.port()};
  Descriptor client;
};

TEST_F(FaultyLinkTest, HandsEverythingOnWhileItIsWell) {
  Ask();
  EXPECT_EQ("12345\n", Line());
  client.Close();
  EXPECT_EQ("", instrument.Finish());
}

TEST_F(FaultyLinkTest, DelaysEveryPiece) {
  link.Break({.kind = Fault::Kind::Delay, .pace = Milliseconds(50)});
  const Clock::time_point start = Clock::now();
  Ask();
  EXPECT_EQ("12345\n", Line());
  EXPECT_GE(Clock::now() - start, Milliseconds(50));
}

TEST_F(FaultyLinkTest, TricklesByteByByteAtItsPace) {
  link.Break({.kind = Fault::Kind::Trickle, .pace = Milliseconds(10)});
  const Clock::time_point start = Clock::now();
  Ask();
  EXPECT_EQ("12345\n", Line());
  EXPECT_GE(Clock::now() - start, Milliseconds(5 * 10));
}

TEST_F(FaultyLinkTest, ClosesInMidAnswer) {
  link.Break({.kind = Fault::Kind::Close, .after = 3});
  Ask();
  EXPECT_EQ("123", Line());
  EXPECT_EQ("", ReceiveSome(client));
}

TEST_F(FaultyLinkTest, SwallowsWhatComesAfterTheLimitAndStaysConnected) {
  link.Break({.kind = Fault::Kind::Swallow, .after = 2});
  Ask();
  EXPECT_EQ("12", ReceiveUntil(client, '\n', Milliseconds(50)));
  EXPECT_FALSE(ReceiveSome(client, Milliseconds(20)).has_value());
  link.Heal();
  Ask();
  EXPECT_EQ("12345\n", Line());
}

TEST_F(FaultyLinkTest, ResetsTheClient) {
  link.Break({.kind = Fault::Kind::Reset});
  Ask();
  ASSERT_TRUE(WaitReadable(client.get(), nullptr, kPatience));
  char byte = 0;
  EXPECT_EQ(-1, ::recv(client.get(), &byte, 1, 0));
  EXPECT_EQ(ECONNRESET, errno);
}

TEST_F(FaultyLinkTest, HalfClosesTowardsTheClientAndStillCarriesItsCommands) {
  link.Break({.kind = Fault::Kind::HalfClose});
  Ask();
  EXPECT_EQ("", ReceiveSome(client));
  link.Heal();
  instrument.Script("> B");
  EXPECT_TRUE(SendAll(client, "B\n"));
  client.Close();
  EXPECT_EQ("", instrument.Finish());
}

TEST_F(FaultyLinkTest, CutsACommandOnItsWayToTheInstrument) {
  link.Break({.kind = Fault::Kind::Close, .direction = Direction::ToInstrument, .after = 1});
  Ask();
  EXPECT_EQ("", ReceiveSome(client));
  EXPECT_NE("", instrument.Finish());
  EXPECT_EQ(std::vector<std::string>{"A"}, instrument.Received());
}

TEST_F(FaultyLinkTest, TakesTheNextConnectionAfterAFault) {
  link.Break({.kind = Fault::Kind::Close});
  Ask();
  EXPECT_EQ("", Line());
  link.Heal();
  client = ConnectTo(link.port());
  Ask();
  EXPECT_EQ("12345\n", Line());
}

TEST(FaultyLinkAlone, EndsAConnectionForWhichThereIsNoInstrument) {
  FaultyLink link(UnusedPort());
  const Descriptor client = ConnectTo(link.port());
  EXPECT_EQ("", ReceiveSome(client));
}

}  // namespace
}  // namespace kvtd::test
