// A peer that does not keep to the protocol costs a call its result, and nothing else.
#include <atomic>
#include <future>
#include <thread>

#include "hislip_peer.h"

namespace tvr::visa::hislip {
namespace {

class HislipHostile : public HislipLink {};

TEST_F(HislipHostile, AWrongPrologueEndsTheLinkAndIsToldOnBothChannels) {
  Write("A?");
  peer_.Next(kSync, 18);
  peer_.Says(kSync, "HX" + std::string(14, '\0'));
  EXPECT_EQ("", Read());
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  peer_.Hears(kSync, Frame("HS 02 01 00000000 0000000000000000"));
  peer_.Hears(kAsync, Frame("HS 02 01 00000000 0000000000000000"));
  peer_.HearsTheEnd(kSync);
  peer_.HearsTheEnd(kAsync);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("B?"));
}

TEST_F(HislipHostile, AWrongPrologueOnTheOtherChannelEndsTheLinkToo) {
  peer_.Says(kAsync, "GET / HTTP/1.1\r\n\r\n");
  StatusByte();
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  peer_.Hears(kSync, Frame("HS 02 01 00000000 0000000000000000"));
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("B?"));
}

TEST_F(HislipHostile, TheThreadThatListensEndsTheLinkAtAWrongPrologue) {
  link_->DeliverServiceRequests([] {}, 2000);
  peer_.Says(kAsync, std::string(16, 'x'));
  peer_.Hears(kAsync, Frame("HS 02 01 00000000 0000000000000000"));
  peer_.HearsTheEnd(kAsync);
  StatusByte();
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
}

TEST_F(HislipHostile, FatalErrorEndsTheLink) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 02 00 00000000 0000000000000005", "fatal"));
  Read();
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  peer_.HearsTheEnd(kAsync);
}

TEST_F(HislipHostile, AnErrorEndsTheReadAndTheLinkGoesOn) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 03 04 00000000 0000000000000005", "large"));
  Read();
  EXPECT_EQ(VI_ERROR_IO, status_);
  Write("B?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipHostile, UnknownMessagesAreRefusedAndPassedOver) {
  Write("A?");
  peer_.Next(kSync, 18);
  peer_.Says(kSync, Frame("HS 40 00 00000000 0000000000000003", "???"));
  peer_.Says(kSync, Frame("HS C0 07 12345678 0000000000000003", "???"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
  peer_.Hears(kSync, Frame("HS 03 01 00000000 0000000000000000"));
  peer_.Hears(kSync, Frame("HS 03 03 00000000 0000000000000000"));
  peer_.Says(kAsync, Frame("HS 63 00 00000000 0000000000000001", "?"));
  peer_.Says(kAsync, Frame("HS 16 05 00000000 0000000000000000"));
  EXPECT_EQ(0x05, StatusByte());
}

TEST_F(HislipHostile, ALengthOfTwoToTheSixtyFourFillsTheRoomAndNoMore) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 FFFFFFFFFFFFFFFF", std::string(100, 'x')));
  EXPECT_EQ(std::string(64, 'x'), Read(2000, 64));
  EXPECT_EQ(VI_SUCCESS_MAX_CNT, status_);
  const Stopwatch watch;
  EXPECT_EQ(std::string(36, 'x'), Read(100, 64));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_LT(watch.OwnMilliseconds(), 200);
}

TEST_F(HislipHostile, NoMoreThanSixteenMegabytesAreHeldForAProof) {
  Write("A?");
  Read(10);
  Write("B?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFFFF 0000000001000001", "x"));
  EXPECT_EQ("", Read());
  EXPECT_EQ(VI_ERROR_OUTP_PROT_VIOL, status_);
  std::thread device([&] {
    peer_.Says(kSync, std::string(0x1000000, 'x'));
    peer_.Says(kSync, Frame("HS 07 00 FFFFFF02 0000000000000003", "end"));
    peer_.Says(kSync, Frame("HS 03 00 00000000 0000000000000000"));
  });
  EXPECT_EQ("", Read(20000)) << "the end of what was dropped is dropped too";
  EXPECT_EQ(VI_ERROR_IO, status_) << "what came behind it";
  device.join();
  Write("C?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF04 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipHostile, BytesInDropsDoNotStretchTheTimeout) {
  Write("A?");
  std::atomic<bool> stop{false};
  std::thread device([&] {
    peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000001000"));
    while (!stop) {
      peer_.Says(kSync, "x");
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
  });
  const Stopwatch watch;
  const std::string got = Read(150);
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_LT(watch.OwnMilliseconds(), 250);
  EXPECT_EQ(std::string(got.size(), 'x'), got);
  stop = true;
  device.join();
}

TEST_F(HislipHostile, AStreamOfForeignMessagesDoesNotStretchTheTimeout) {
  Write("A?");
  std::atomic<bool> stop{false};
  std::string flood;
  for (int i = 0; i < 64; ++i) flood += Frame("HS 07 00 00000002 0000000000000003", "no!");
  std::thread sync([&] {
    while (!stop && peer_.Offers(kSync, flood)) {
    }
  });
  const Stopwatch watch;
  EXPECT_EQ("", Read(150));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_LT(watch.OwnMilliseconds(), 250);
  stop = true;
  link_.reset();
  sync.join();
}

TEST_F(HislipHostile, AStreamOfServiceRequestsDoesNotStretchTheTimeout) {
  std::atomic<bool> stop{false};
  std::thread device([&] {
    while (!stop && peer_.Offers(kAsync, Frame("HS 14 40 00000000 0000000000000000"))) {
    }
  });
  const Stopwatch watch;
  Deadline deadline(150);
  ViUInt16 byte = 0;
  EXPECT_EQ(VI_ERROR_TMO, link_->ReadStatusByte(VI_PROT_NORMAL, deadline, byte));
  EXPECT_LT(watch.OwnMilliseconds(), 250);
  stop = true;
  link_.reset();
  device.join();
}

// The thread that listens has the channel when the stream begins, and must give it up for the question all the same.
TEST_F(HislipHostile, AnEndlessMessageToTheThreadThatListensDoesNotStretchTheTimeout) {
  ASSERT_EQ(VI_SUCCESS, link_->DeliverServiceRequests([] {}, 2000));
  peer_.Says(kAsync, Frame("HS 80 00 00000000 FFFFFFFFFFFFFFFF"));
  peer_.Hears(kAsync, Frame("HS 03 03 00000000 0000000000000000"));
  std::atomic<bool> stop{false};
  std::thread device([&] {
    const std::string payload(65536, 'x');
    while (!stop && peer_.Offers(kAsync, payload)) {
    }
  });
  const Stopwatch watch;
  Deadline deadline(150);
  ViUInt16 byte = 0;
  auto asking = std::async(std::launch::async, [&] { return link_->ReadStatusByte(VI_PROT_NORMAL, deadline, byte); });
  const bool ended = asking.wait_for(std::chrono::seconds(2)) == std::future_status::ready;
  EXPECT_TRUE(ended);
  EXPECT_LT(watch.OwnMilliseconds(), 250);
  if (!ended) link_->HangUp();
  EXPECT_EQ(VI_ERROR_TMO, asking.get());
  stop = true;
  link_.reset();
  device.join();
}

TEST_F(HislipHostile, AnInterruptionIsFeltInAStreamThatNeverPauses) {
  Write("A?");
  std::atomic<bool> stop{false};
  std::string flood;
  for (int i = 0; i < 64; ++i) flood += Frame("HS 07 00 00000002 0000000000000003", "no!");
  std::thread device([&] {
    while (!stop && peer_.Offers(kSync, flood)) {
    }
  });
  auto reading = std::async(std::launch::async, [this] { return Read(5000); });
  EXPECT_EQ(std::future_status::timeout, reading.wait_for(std::chrono::milliseconds(50)));
  interruption_.Request();
  EXPECT_EQ(std::future_status::ready, reading.wait_for(std::chrono::seconds(1)));
  EXPECT_EQ("", reading.get());
  EXPECT_EQ(VI_ERROR_ABORT, status_);
  stop = true;
  link_.reset();
  device.join();
}

TEST_F(HislipHostile, AClosedChannelIsALostConnection) {
  Write("A?");
  peer_.Says(kSync, Frame("HS 06 00 FFFFFF00 0000000000000002", "ab"));
  peer_.StopsSending(kSync);
  EXPECT_EQ("ab", Read());
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("B?"));
}

TEST_F(HislipHostile, AClosedAsynchronousChannelIsALostConnection) {
  peer_.StopsSending(kAsync);
  StatusByte();
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("B?"));
}

}  // namespace
}  // namespace tvr::visa::hislip
