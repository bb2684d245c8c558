// The lock of the instrument, for which VXI-11 links compete with each other and with HiSLIP clients.
#include "hislip_client.h"
#include "vxi11_client.h"

namespace siggen {
namespace {

class Vxi11Locks : public ::testing::Test {
 protected:
  static link::HostOptions BothProtocols() {
    link::HostOptions options = Vxi11Only();
    options.hislip_port = std::uint16_t{0};
    return options;
  }
  std::uint16_t port() { return instrument_.host().listeners()[1].port; }
  std::uint16_t hislip_port() { return instrument_.host().listeners()[0].port; }

  LiveInstrument instrument_{BothProtocols()};
  Vxi11Client one_{port()};  // link 1
  Vxi11Client two_{port()};  // link 2
};

TEST_F(Vxi11Locks, ALinkLocksOnceAndUnlocksOnce) {
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
  one_.Send(Call("00000012", "00000001 00000001 00007530"));
  EXPECT_HEARD(Reply("0000000B"), one_);
  one_.Send(Call("00000013", "00000001"));
  EXPECT_HEARD(Reply("00000000"), one_);
  one_.Send(Call("00000013", "00000001"));
  EXPECT_HEARD(Reply("0000000C"), one_);
}

TEST_F(Vxi11Locks, OthersAreRefusedWhatTouchesTheDevice) {
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
  two_.Send(Call("0000000B", "00000002 000007D0 00007530 00000008 00000005 '*OPC?' 000000"));
  EXPECT_HEARD(Reply("0000000B 00000000"), two_);
  two_.Send(Call("0000000C", "00000002 00000400 000007D0 00007530 00000000 00000000"));
  EXPECT_HEARD(Reply("0000000B 00000000 00000000"), two_);
  two_.Send(Call("0000000D", "00000002 00000000 00007530 000007D0"));
  EXPECT_HEARD(Reply("0000000B 00000000"), two_);
  for (const char* procedure : {"0000000E", "0000000F", "00000010", "00000011"}) {
    two_.Send(Call(procedure, "00000002 00000000 00007530 000007D0"));
    EXPECT_HEARD(Reply("0000000B"), two_);
  }
  two_.Send(Call("00000012", "00000002 00000000 00007530"));
  EXPECT_HEARD(Reply("0000000B"), two_);
  two_.Send(Call("00000013", "00000002"));
  EXPECT_HEARD(Reply("0000000C"), two_);
  EXPECT_EQ("1\n", one_.Ask("00000001", "*OPC?"));
}

TEST_F(Vxi11Locks, AWaitForTheLockEndsWithItsTime) {
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
  const auto begin = std::chrono::steady_clock::now();
  two_.Send(Call("0000000B", "00000002 00007530 00000064 00000009 00000005 '*OPC?' 000000"));
  EXPECT_HEARD(Reply("0000000B 00000000"), two_);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(100));
  two_.Send(Call("00000012", "00000002 00000001 00000064"));
  EXPECT_HEARD(Reply("0000000B"), two_);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(200));
}

TEST_F(Vxi11Locks, AWaitingCallGoesOnWhenTheLockIsFree) {
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
  two_.Send(Call("0000000B", "00000002 000007D0 00007530 00000009 0000000D ':POW -5;:POW?' 000000"));
  EXPECT_EQ("0\n", one_.Ask("00000001", ":POW 0;:POW?"));
  one_.Send(Call("00000013", "00000001"));
  EXPECT_HEARD(Reply("00000000"), one_);
  EXPECT_HEARD(Reply("00000000 0000000D"), two_);
  two_.Send(Call("0000000C", "00000002 00000400 000007D0 00000000 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000 00000004 00000003 '-5\n' 00"), two_);
}

TEST_F(Vxi11Locks, AWaitingRequestIsGrantedByTheUnlock) {
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
  two_.Send(Call("00000012", "00000002 00000001 00007530"));
  one_.Send(Call("00000013", "00000001"));
  EXPECT_HEARD(Reply("00000000"), one_);
  EXPECT_HEARD(Reply("00000000"), two_);
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("0000000B"), one_);
}

TEST_F(Vxi11Locks, AnAbortEndsAWaitForTheLock) {
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
  Wire abort(one_.abort_port());
  for (const char* procedure : {"00000012", "0000000E"}) {
    // A call that fails at once and one that waits, in one piece: the answer to the first tells that both are there.
    two_.Send(
        Call("00000012", "00000002 00000000 00000000") +
        Call(procedure, procedure[7] == '2' ? "00000002 00000001 0000EA60" : "00000002 00000001 0000EA60 00000000"));
    EXPECT_HEARD(Reply("0000000B"), two_);
    abort.Send(Abort("00000002"));
    EXPECT_HEARD(Reply("00000000"), abort);
    EXPECT_HEARD(Reply("00000017"), two_);
  }
  one_.Send(Call("00000013", "00000001"));
  EXPECT_HEARD(Reply("00000000"), one_);
  // The aborted request is forgotten.
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
}

TEST_F(Vxi11Locks, AnAbortLeavesTheLockWithItsHolder) {
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
  Wire abort(one_.abort_port());
  abort.Send(Abort("00000001"));
  EXPECT_HEARD(Reply("00000000"), abort);
  one_.Send(Call("00000013", "00000001"));
  EXPECT_HEARD(Reply("00000000"), one_);
}

TEST_F(Vxi11Locks, ALinkCanBeCreatedWithTheLock) {
  Wire three(port());
  three.Send(Call("0000000A", "00000000 00000001 00000000 00000005 'inst0' 000000"));
  EXPECT_EQ(Bytes("00000000 00000003"), three.ReceiveBytes(44).substr(28, 8));
  one_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("0000000B 00000000"), one_);
  Wire four(port());
  four.Send(Call("0000000A", "00000000 00000001 00000032 00000005 'inst0' 000000"));
  EXPECT_HEARD(Reply("0000000B 00000000 00000000 00000000"), four);
  four.Send(Call("0000000A", "00000000 00000000 00000000 00000005 'inst0' 000000"));
  EXPECT_EQ(Bytes("00000000"), four.ReceiveBytes(44).substr(28, 4));
  four.Send(Call("0000000A", "00000000 00000001 00007530 00000005 'inst0' 000000"));
  three.Send(Call("00000017", "00000003"));
  EXPECT_HEARD(Reply("00000000"), three);
  EXPECT_EQ(Bytes("00000000"), four.ReceiveBytes(44).substr(28, 4));
}

TEST_F(Vxi11Locks, ALostConnectionLosesItsLockAndItsWaitForIt) {
  {
    Vxi11Client holder(port());
    holder.Send(Call("00000012", "00000003 00000000 00000000"));
    EXPECT_HEARD(Reply("00000000"), holder);
    Vxi11Client waiting(port());
    waiting.Send(Call("00000012", "00000004 00000001 0000EA60"));
    Wire creating(port());
    creating.Send(Call("0000000A", "00000000 00000001 0000EA60 00000005 'inst0' 000000"));
  }
  one_.Send(Call("00000012", "00000001 00000001 00002710"));
  EXPECT_HEARD(Reply("00000000"), one_);
}

// Closing the holder's connection grants the lock to links that are about to be closed themselves.
TEST(Vxi11LocksAtTheEnd, AnInstrumentEndsWhileClientsWaitForTheLock) {
  LiveInstrument instrument{Vxi11Only()};
  Vxi11Client holder(instrument.port());
  holder.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), holder);
  Wire creating(instrument.port());
  // A call that is answered at once and one that waits, in one piece: the answer tells that both are there.
  creating.Send(Call("0000000A", "00000000 00000000 00000000 00000005 'inst0' 000000") +
                Call("0000000A", "00000000 00000001 0000EA60 00000005 'inst0' 000000"));
  EXPECT_EQ(Bytes("00000000 00000002"), creating.ReceiveBytes(44).substr(28, 8));
  instrument.host().Stop();
  EXPECT_EQ(0, holder.WaitForEnd());
  EXPECT_EQ(0, creating.WaitForEnd());
}

TEST_F(Vxi11Locks, ALinkThatIsDestroyedFreesTheLock) {
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  one_.Send(Call("00000017", "00000001"));
  EXPECT_HEARD(Reply("00000000") + Reply("00000000"), one_);
  two_.Send(Call("00000012", "00000002 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), two_);
}

TEST_F(Vxi11Locks, HislipClientsCompeteForTheSameLock) {
  HislipClient hislip(hislip_port());
  one_.Send(Call("00000012", "00000001 00000000 00000000"));
  EXPECT_HEARD(Reply("00000000"), one_);
  hislip.async.Send(Frame("HS 04 01 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 05 00 00000000 0000000000000000"), hislip.async);
  hislip.async.Send(Frame("HS 04 01 00002710 0000000000000000"));
  hislip.async.Send(Frame("HS 18 00 00000000 0000000000000000"));
  EXPECT_HEARD(Frame("HS 19 01 00000001 0000000000000000"), hislip.async);
  one_.Send(Call("00000013", "00000001"));
  EXPECT_HEARD(Reply("00000000"), one_);
  EXPECT_HEARD(Frame("HS 05 01 00000000 0000000000000000"), hislip.async);
  one_.Send(Call("0000000D", "00000001 00000000 00000000 000007D0"));
  EXPECT_HEARD(Reply("0000000B 00000000"), one_);
}

}  // namespace
}  // namespace siggen
