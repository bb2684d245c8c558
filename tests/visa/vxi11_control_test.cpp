// Status byte, trigger, device clear, remote and local, locks, and what the device's errors mean.
#include <future>

#include "vxi11_peer.h"

namespace tvr::visa::vxi11 {
namespace {

class Vxi11Control : public Vxi11Link {
 protected:
  Deadline soon_{2000};
};

TEST_F(Vxi11Control, EachOperationIsACallOfItsOwn) {
  // In these the time to wait for a lock stands before the time for the operation.
  const char* const kArguments = "00000007 00000000 00000000 FFFFFFFF";
  Deadline endless(VI_TMO_INFINITE);
  peer_.Says(kCore, Reply(2, "00000000 000000D1"));
  EXPECT_EQ(0xD1, StatusByte(VI_TMO_INFINITE));
  peer_.Hears(kCore, Call(2, 13, kArguments));
  peer_.Says(kCore, Reply(3, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->Trigger(VI_PROT_NORMAL, endless));
  peer_.Hears(kCore, Call(3, 14, kArguments));
  peer_.Says(kCore, Reply(4, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->Clear(endless));
  peer_.Hears(kCore, Call(4, 15, kArguments));
  peer_.Says(kCore, Reply(5, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->RemoteLocal(3, endless));
  peer_.Hears(kCore, Call(5, 16, kArguments));
  peer_.Says(kCore, Reply(6, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->RemoteLocal(6, endless));
  peer_.Hears(kCore, Call(6, 17, kArguments));
}

TEST_F(Vxi11Control, TheTimeoutIsTheTimeForTheOperation) {
  peer_.Says(kCore, Reply(2, "00000000 00000000"));
  StatusByte(1500);
  peer_.Hears(kCore, Call(2, 13, "00000007 00000000 00000000 000005DC"));
}

TEST_F(Vxi11Control, ModesThatTheProtocolCannotExpressAreRefused) {
  for (const ViUInt16 mode : std::initializer_list<ViUInt16>{0, 1, 2, 4, 5}) {
    EXPECT_EQ(VI_ERROR_NSUP_OPER, link_->RemoteLocal(mode, soon_)) << mode;
  }
  EXPECT_EQ(VI_ERROR_INV_MODE, link_->RemoteLocal(7, soon_));
  peer_.HearsNothingMore(kCore);
}

struct Meaning {
  const char* error;
  ViStatus status;
};

class Vxi11Errors : public Vxi11Link, public ::testing::WithParamInterface<Meaning> {};

TEST_P(Vxi11Errors, AreStatusesForEveryOperationAndTheLinkGoesOn) {
  const auto [error, status] = GetParam();
  Deadline deadline(2000);
  peer_.Says(kCore, Reply(2, std::string(error) + "00000000"));
  EXPECT_EQ(status, Write("A"));
  peer_.Says(kCore, Reply(3, std::string(error) + "00000000 00000000"));
  EXPECT_EQ("", Read());
  EXPECT_EQ(status, status_);
  peer_.Says(kCore, Reply(4, std::string(error) + "000000FF"));
  EXPECT_EQ(0xFFFF, StatusByte()) << "no status byte came";
  EXPECT_EQ(status, status_);
  peer_.Says(kCore, Reply(5, error));
  EXPECT_EQ(status, link_->Clear(deadline));
  peer_.Says(kCore, Reply(6, "00000000 00000004 00000002 'OK' 0000"));
  EXPECT_EQ("OK", Read());
}

INSTANTIATE_TEST_SUITE_P(Published, Vxi11Errors,
                         ::testing::Values(Meaning{"00000001", VI_ERROR_IO},             // syntax error
                                           Meaning{"00000003", VI_ERROR_CONN_LOST},      // device not accessible
                                           Meaning{"00000004", VI_ERROR_CONN_LOST},      // invalid link
                                           Meaning{"00000005", VI_ERROR_INV_PARAMETER},  // parameter error
                                           Meaning{"00000006", VI_ERROR_IO},             // channel not established
                                           Meaning{"00000008", VI_ERROR_NSUP_OPER},
                                           Meaning{"00000009", VI_ERROR_ALLOC},  // out of resources
                                           Meaning{"0000000B", VI_ERROR_RSRC_LOCKED},
                                           Meaning{"0000000C", VI_ERROR_SESN_NLOCKED},
                                           Meaning{"0000000F", VI_ERROR_TMO}, Meaning{"00000011", VI_ERROR_IO},
                                           Meaning{"00000015", VI_ERROR_RSRC_NFOUND},  // invalid address
                                           Meaning{"00000017", VI_ERROR_ABORT},
                                           Meaning{"0000001D", VI_ERROR_IO},   // channel established already
                                           Meaning{"FFFFFFFF", VI_ERROR_IO}),  // nothing published
                         [](const auto& test) { return "Error" + std::string(test.param.error); });

TEST_F(Vxi11Control, ACallThatTheServerRefusesIsAnErrorAndTheLinkGoesOn) {
  peer_.Says(kCore, Record("00000002 00000001 00000000 00000000 00000000 00000003"));  // procedure unavailable
  EXPECT_EQ(VI_ERROR_NSUP_OPER, link_->Trigger(VI_PROT_NORMAL, soon_));
  peer_.Says(kCore, Record("00000003 00000001 00000000 00000000 00000000 00000004"));  // garbage arguments
  EXPECT_EQ(VI_ERROR_IO, link_->Trigger(VI_PROT_NORMAL, soon_));
  peer_.Says(kCore, Record("00000004 00000001 00000001 00000001 00000005"));  // denied: credentials too weak
  EXPECT_EQ(VI_ERROR_IO, link_->Trigger(VI_PROT_NORMAL, soon_));
  peer_.Says(kCore, Reply(5, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->Trigger(VI_PROT_NORMAL, soon_));
}

TEST_F(Vxi11Control, TheExclusiveLockIsTheDevicesAndSaysHowLongItWaits) {
  peer_.Says(kCore, Reply(2, "00000000") + Reply(3, "00000000") + Reply(4, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->LockDevice("", 1500));
  EXPECT_EQ(VI_SUCCESS, link_->UnlockDevice(true, 2000));
  EXPECT_EQ(VI_SUCCESS, link_->LockDevice("", VI_TMO_IMMEDIATE));
  peer_.Hears(kCore, Call(2, 18, "00000007 00000001 000005DC"));
  peer_.Hears(kCore, Call(3, 19, "00000007"));
  peer_.Hears(kCore, Call(4, 18, "00000007 00000000 00000000"));
}

TEST_F(Vxi11Control, TheSharedLockIsNotKnownToTheDevice) {
  EXPECT_EQ(VI_SUCCESS, link_->LockDevice("bench", 1500));
  EXPECT_EQ(VI_SUCCESS, link_->UnlockDevice(false, 2000));
  peer_.HearsNothingMore(kCore);
}

TEST_F(Vxi11Control, ALockThatAnotherHasIsATimeoutAfterAWait) {
  peer_.Says(kCore, Reply(2, "0000000B") + Reply(3, "0000000B") + Reply(4, "0000000C"));
  EXPECT_EQ(VI_ERROR_TMO, link_->LockDevice("", 10));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, link_->LockDevice("", VI_TMO_IMMEDIATE));
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, link_->UnlockDevice(true, 2000));
}

TEST_F(Vxi11Control, ALockThatIsGrantedTooLateIsGivenBack) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, link_->LockDevice("", 50));
  EXPECT_LT(watch.OwnMilliseconds(), 150);
  peer_.Hears(kCore, Call(2, 18, "00000007 00000001 00000032"));
  peer_.Hears(kAbort, Call(1, 1, "00000007", "000607B0"));
  peer_.Hears(kCore, Call(3, 19, "00000007"));
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, Reply(2, "00000000") + Reply(3, "00000000") + Reply(4, "00000000 00000005"));
  EXPECT_EQ(0x05, StatusByte());
}

}  // namespace
}  // namespace tvr::visa::vxi11
