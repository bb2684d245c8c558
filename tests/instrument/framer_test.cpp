#include "scpi/framer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace siggen::scpi {
namespace {

std::vector<std::string> All(Framer& framer) {
  std::vector<std::string> messages;
  while (const auto message = framer.Next()) messages.emplace_back(message->overlong ? "overlong" : message->text.view);
  return messages;
}

std::vector<std::string> Framed(std::string_view stream) {
  Framer framer;
  framer.Append(stream);
  return All(framer);
}

using Messages = std::vector<std::string>;

TEST(Framer, ALineFeedEndsAMessage) { EXPECT_EQ((Messages{":FREQ 1e9", "*IDN?"}), Framed(":FREQ 1e9\n*IDN?\n:POW")); }

TEST(Framer, AMessageThatArrivesByteByByteIsTheSameMessage) {
  const std::string stream = ":MMEM:DATA \"a\",#15a\nb\nc\n*OPC?\n";
  Framer framer;
  Messages messages;
  for (const char c : stream) {
    framer.Append({&c, 1});
    for (const auto& message : All(framer)) messages.push_back(message);
  }
  EXPECT_EQ((Messages{":MMEM:DATA \"a\",#15a\nb\nc", "*OPC?"}), messages);
}

TEST(Framer, LineFeedsInsideADefiniteBlockAreData) {
  EXPECT_EQ((Messages{":X #15\n\n\n\n\n;*OPC?", "*CLS"}), Framed(":X #15\n\n\n\n\n;*OPC?\n*CLS\n"));
}

TEST(Framer, ANumberSignInsideAStringBeginsNoBlock) {
  EXPECT_EQ((Messages{":X \"a #19\"", "*CLS"}), Framed(":X \"a #19\"\n*CLS\n"));
}

TEST(Framer, AQuoteInsideABlockOpensNoString) { EXPECT_EQ((Messages{":X #11\"", "*CLS"}), Framed(":X #11\"\n*CLS\n")); }

TEST(Framer, AStrayQuoteCostsOneMessageOnly) {
  EXPECT_EQ((Messages{":X \"a\"b\"", "*CLS"}), Framed(":X \"a\"b\"\n*CLS\n"));
}

TEST(Framer, AnIndefiniteBlockEndsWithTheMessage) { EXPECT_EQ((Messages{":X #0abc", "Y"}), Framed(":X #0abc\nY\n")); }

TEST(Framer, HexadecimalNumbersAreNoBlocks) { EXPECT_EQ((Messages{"*ESE #H1F", "Y"}), Framed("*ESE #H1F\nY\n")); }

TEST(Framer, TheTransportsEndMarkStandsForTheLineFeed) {
  Framer framer;
  framer.Append("*IDN?");
  EXPECT_FALSE(framer.Next());
  framer.End();
  EXPECT_EQ(Messages{"*IDN?"}, All(framer));
  framer.Append("*CLS\n");
  framer.End();
  EXPECT_EQ(Messages{"*CLS"}, All(framer)) << "line feed and mark together end one message, not two";
}

TEST(Framer, TheEndMarkLeavesWhatComesBehindIt) {
  Framer framer;
  framer.Append(":X #0a\nb");
  framer.End();
  framer.Append("*CLS\n");
  const auto messages = All(framer);
  ASSERT_FALSE(messages.empty());
  EXPECT_EQ("*CLS", messages.back());
}

TEST(Framer, AMessageBeyondTheLimitIsDroppedAndTheNextOneIsWhole) {
  Framer framer(100);
  framer.Append(":X " + std::string(200, 'a') + "\n*CLS\n");
  EXPECT_EQ((Messages{"overlong", "*CLS"}), All(framer));
}

TEST(Framer, ABlockThatAnnouncesMoreThanTheLimitTakesNoMemoryForIt) {
  Framer framer(100, 99'999);
  framer.Append(":X #6100000");
  EXPECT_FALSE(framer.Next());
  for (int i = 0; i < 100; ++i) {
    framer.Append(std::string(1000, '\n'));
    EXPECT_FALSE(framer.Next());
    EXPECT_EQ(0U, framer.backlog());
  }
  framer.Append("\n*CLS\n");
  EXPECT_EQ((Messages{"overlong", "*CLS"}), All(framer));
}

TEST(Framer, BlocksDoNotCountAsText) {
  Framer framer(100, 1000);
  const std::string message = ":X #3500" + std::string(500, '\n') + ",#3400" + std::string(400, 'b');
  framer.Append(message + "\n:X #3600" + std::string(600, 'c') + ",#3600" + std::string(600, 'd') + "\n*CLS\n");
  EXPECT_EQ((Messages{message, "overlong", "*CLS"}), All(framer));
}

TEST(Framer, AKnownBlockGetsItsRoomAtOnceAndStaysWhereItWasReceived) {
  constexpr std::size_t kLength = 1 << 20;
  Framer framer;
  framer.Append(":X #71048576");
  EXPECT_FALSE(framer.Next());
  const auto room = framer.Room();
  ASSERT_GE(room.size(), kLength + 1);
  const std::string data(kLength, '\n');
  data.copy(room.data(), kLength);
  room[kLength] = '\n';
  framer.Filled(kLength + 1);
  const auto message = framer.Next();
  ASSERT_TRUE(message);
  EXPECT_EQ(room.data(), message->text.view.data() + 12);
}

TEST(Framer, AMessageStaysReadableWhenMoreIsReceived) {
  Framer framer;
  framer.Append("first\n");
  const auto first = framer.Next();
  ASSERT_TRUE(first);
  for (int i = 0; i < 5000; ++i) {
    framer.Append("another line\n");
    EXPECT_EQ(Messages{"another line"}, All(framer));
  }
  EXPECT_EQ("first", first->text.view);
}

}  // namespace
}  // namespace siggen::scpi
