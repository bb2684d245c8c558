// A peer that does not keep to the protocol costs a call its result, and nothing else.
#include <atomic>
#include <thread>

#include "vxi11_peer.h"

namespace tvr::visa::vxi11 {
namespace {

class Vxi11Hostile : public Vxi11Link {
 protected:
  void ExpectLost(const std::string& reply) {
    peer_.Says(kCore, reply);
    Read(500);
    EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
    EXPECT_EQ(VI_ERROR_CONN_LOST, Write("A?"));
    peer_.Closes(kCore);
    link_.reset();
    Open();
  }
};

TEST_F(Vxi11Hostile, ARecordThatIsNoReplyEndsTheLink) {
  ExpectLost(Bytes("80000000"));
  ExpectLost(Record("00000002"));
  ExpectLost(Record("00000002 00000000 00000002 000607AF 00000001 0000000C"));  // a call
  ExpectLost(Record("00000002 00000001 00000002 00000000 00000000 00000000"));  // neither accepted nor denied
  ExpectLost(Record("00000002 00000001 00000000 00000000 00000000"));           // no accept status
  ExpectLost(Record("00000002 00000001 00000000 00000001 00000191" + std::string(802, '0')));  // verifier of 401
  ExpectLost(Record("00000002 00000001 00000000 00000001 FFFFFFFF 00000000"));
  ExpectLost(Reply(2, ""));
  ExpectLost(Reply(2, "00000000 00000004"));
}

TEST_F(Vxi11Hostile, DataThatTheRecordHasNotEndTheLinkAndWhatCameIsDelivered) {
  peer_.Says(kCore, Reply(2, "00000000 00000004 00000009 'ABCDEFGH'"));
  EXPECT_EQ("ABCDEFGH", Read());
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("A?"));
}

TEST_F(Vxi11Hostile, MoreDataThanWasAskedForFillTheRoomAndNoMore) {
  peer_.Says(kCore,
             Reply(2, "00000000 00000004 0000000C 'ABCDEFGHIJKL'") + Reply(3, "00000000 00000004 00000002 'OK' 0000"));
  EXPECT_EQ("ABCDEFGH", Read(2000, 8));
  EXPECT_EQ(VI_ERROR_OUTP_PROT_VIOL, status_);
  EXPECT_EQ("OK", Read(2000, 8));
}

TEST_F(Vxi11Hostile, AFragmentOfTwoGigabytesCostsNoMemoryAndNoTimeAndEndsTheLink) {
  peer_.Says(kCore, Bytes("FFFFFFFF 00000002 00000001 00000000 00000000 00000000 00000000"
                          "00000000 00000004 FFFFFFFF 'ABCDEFGHIJ'"));
  EXPECT_EQ("ABCDEFGH", Read(2000, 8));
  EXPECT_EQ(VI_ERROR_OUTP_PROT_VIOL, status_);
  const Stopwatch watch;
  EXPECT_EQ("", Read(50, 8)) << "the rest of the record never comes";
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  EXPECT_LT(watch.OwnMilliseconds(), 150);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("A?"));
}

TEST_F(Vxi11Hostile, TheRestOfARecordThatIsOnItsWayIsWaitedFor) {
  peer_.Says(kCore, Bytes("80002028 00000002 00000001 00000000 00000000 00000000 00000000"
                          "00000000 00000004 00002004 'ABCD'"));
  EXPECT_EQ("ABCD", Read(50));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Says(kCore, std::string(0x1800, 'x'));
  Read(50);
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Says(kCore, std::string(0x800, 'x') + Reply(4, "00000000 00000004 00000002 'OK' 0000"));
  EXPECT_EQ("OK", Read());
}

TEST_F(Vxi11Hostile, ARecordThatLiesAboutItsLengthEndsTheLink) {
  std::string lie = Reply(2, "00000000 00000004 00000002 'OK' 0000");
  lie[3] = '\x7F';
  peer_.Says(kCore, lie);
  EXPECT_EQ("OK", Read()) << "the reply itself is whole";
  peer_.Says(kCore, Reply(3, "00000000 00000001"));
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("A", 50)) << "it was taken for the rest of the one before";
  EXPECT_LT(watch.OwnMilliseconds(), 150);
}

TEST_F(Vxi11Hostile, ADeviceThatAlwaysHasMoreDoesNotStretchTheTimeout) {
  std::thread device([&] {
    for (unsigned number = 2; !peer_.Next(kCore, 68).empty(); ++number) {
      if (!peer_.Offers(kCore, Reply(number, "00000000 00000000 00000001 'x' 000000"))) break;
    }
  });
  const Stopwatch watch;
  // The reads of one call of formatted I/O.
  Deadline deadline(100);
  ViStatus status = VI_SUCCESS;
  while (status >= 0 && watch.Milliseconds() < 1000) {
    ViByte byte = 0;
    std::size_t received = 0;
    status = link_->Read({&byte, 1, 1, {}}, deadline, received);
  }
  EXPECT_EQ(VI_ERROR_TMO, status);
  EXPECT_LT(watch.OwnMilliseconds(), 200);
  link_->HangUp();
  device.join();
}

TEST_F(Vxi11Hostile, BytesInDropsDoNotStretchTheTimeout) {
  std::atomic<bool> stop{false};
  std::thread device([&] {
    peer_.Says(kCore, Bytes("80001024 00000002 00000001 00000000 00000000 00000000 00000000"
                            "00000000 00000004 00001000"));
    while (!stop && peer_.Offers(kCore, "x")) std::this_thread::sleep_for(std::chrono::milliseconds(2));
  });
  const Stopwatch watch;
  const std::string got = Read(150);
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_LT(watch.OwnMilliseconds(), 250);
  EXPECT_EQ(std::string(got.size(), 'x'), got);
  stop = true;
  device.join();
}

class Vxi11Flood : public Vxi11Link, public ::testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(Vxi11Flood, DoesNotStretchTheTimeout) {
  std::atomic<bool> stop{false};
  std::string flood;
  for (int i = 0; i < 64; ++i) flood += Bytes(GetParam().second);
  std::thread device([&] {
    while (!stop && peer_.Offers(kCore, flood)) {
    }
  });
  const Stopwatch watch;
  EXPECT_EQ("", Read(150));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_LT(watch.OwnMilliseconds(), 250);
  stop = true;
  link_.reset();
  device.join();
}

INSTANTIATE_TEST_SUITE_P(
    Of, Vxi11Flood,
    ::testing::Values(std::pair{"EmptyFragments", "00000000"},
                      std::pair{"ForeignReplies", "80000018 00000099 00000001 00000000 00000000 00000000 00000000"},
                      std::pair{"EndlessRecord", "00000018 00000099 00000001 00000000 00000000 00000000 00000000"}),
    [](const auto& test) { return test.param.first; });

TEST_F(Vxi11Hostile, ADeviceThatReadsNothingForEverIsATimeout) {
  std::atomic<bool> stop{false};
  std::thread device([&] {  // replies without data and without a reason
    for (unsigned number = 2; !stop; ++number) {
      if (peer_.Next(kCore, 68).size() < 68) break;
      peer_.Offers(kCore, Reply(number, "00000000 00000000 00000000"));
    }
  });
  const Stopwatch watch;
  EXPECT_EQ("", Read(100));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  EXPECT_LT(watch.OwnMilliseconds(), 200);
  stop = true;
  link_.reset();
  device.join();
}

TEST_F(Vxi11Hostile, AClosedConnectionIsALostOne) {
  peer_.Says(kCore, Bytes("80000028 00000002 00000001 00000000 00000000 00000000 00000000"
                          "00000000 00000004 00000003 'ab'"));
  peer_.StopsSending(kCore);
  EXPECT_EQ("ab", Read());
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("B?"));
  StatusByte();
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
}

TEST_F(Vxi11Hostile, AClosedAbortChannelIsNoLossOfTheLink) {
  peer_.Closes(kAbort);
  EXPECT_EQ("", Read(20));
  EXPECT_EQ(VI_ERROR_TMO, status_);
  peer_.Says(kCore, Reply(3, "00000000 00000004 00000002 'OK' 0000"));
  EXPECT_EQ("OK", Read());
}

}  // namespace
}  // namespace tvr::visa::vxi11
