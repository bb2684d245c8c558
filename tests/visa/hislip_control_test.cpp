// Device clear, status byte, trigger, remote and local, locks, service requests.
#include <future>

#include "hislip_peer.h"

namespace tvr::visa::hislip {
namespace {

class HislipControl : public HislipLink {
 protected:
  ViStatus Clear(ViUInt32 timeout = 2000) {
    Deadline deadline(timeout);
    return link_->Clear(deadline);
  }
};

TEST_F(HislipControl, ClearGoesThroughBothChannelsAndRestartsTheIds) {
  Write("A?");
  Read(20);
  peer_.Next(kSync, 18);
  peer_.Says(kAsync, Frame("HS 17 00 00000000 0000000000000000"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000003", "old"));
  peer_.Says(kSync, Frame("HS 09 00 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, Clear());
  peer_.Hears(kAsync, Frame("HS 13 00 00000000 0000000000000000"));
  peer_.Hears(kSync, Frame("HS 08 00 00000000 0000000000000000"));
  Write("B?");
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "B?"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000002", "ok"));
  EXPECT_EQ("ok", Read());
}

TEST_F(HislipControl, AClearThatIsNotAcknowledgedEndsByTheTimeout) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, Clear(100));
  EXPECT_LT(watch.OwnMilliseconds(), 200);
  // Nothing may be sent before the device clear is through.
  peer_.Next(kAsync, 16);
  EXPECT_EQ(VI_ERROR_TMO, Write("A?", 50));
  peer_.HearsNothingMore(kSync);
}

// A link that would say "timeout" to each device clear from here on.
TEST_F(HislipControl, AClearWhoseAcknowledgeIsSwallowedByAMessageThatLiesEndsTheLink) {
  ASSERT_EQ(VI_SUCCESS, Write("A?"));
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000010000", "ok\n"));
  EXPECT_EQ("ok\n", Read(2000, 4096, ViByte{'\n'}));
  peer_.Says(kAsync, Frame("HS 17 00 00000000 0000000000000000"));
  peer_.Says(kSync, Frame("HS 09 00 00000000 0000000000000000"));
  EXPECT_EQ(VI_ERROR_CONN_LOST, Clear(100));
  EXPECT_EQ(VI_ERROR_CONN_LOST, Write("B?"));
}

TEST_F(HislipControl, AMessageThatWasGivenUpIsTakenBackByTheNextWrite) {
  const std::string long_message(32 << 20, 'x');
  ASSERT_EQ(VI_ERROR_TMO, Write(long_message, 100));
  std::size_t taken_by_device = 0;
  auto device = std::async(std::launch::async, [&] {
    peer_.Hears(kAsync, Frame("HS 13 00 00000000 0000000000000000"));
    peer_.Says(kAsync, Frame("HS 17 00 00000000 0000000000000000"));
    for (;;) {  // whole messages, up to DeviceClearComplete
      const std::string header = peer_.Next(kSync, 16);
      if (header == Frame("HS 08 00 00000000 0000000000000000")) break;
      if (header.substr(0, 3) != "HS\x06") return header;
      peer_.Next(kSync, 0x100000 - 16);
      ++taken_by_device;
    }
    peer_.Says(kSync, Frame("HS 09 00 00000000 0000000000000000"));
    return peer_.Next(kSync, 18);
  });
  EXPECT_EQ(VI_SUCCESS, Write("A?"));
  EXPECT_EQ(Frame("HS 07 00 FFFFFF00 0000000000000002", "A?"), device.get());
  EXPECT_GT(taken_by_device, 0u);
}

TEST_F(HislipControl, OverlapIsSwitchedByADeviceClear) {
  peer_.Says(kAsync, Frame("HS 17 00 00000000 0000000000000000"));
  peer_.Says(kSync, Frame("HS 09 01 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, link_->SetAttribute(VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, VI_TRUE, 2000));
  peer_.Hears(kAsync, Frame("HS 13 00 00000000 0000000000000000"));
  peer_.Hears(kSync, Frame("HS 08 01 00000000 0000000000000000"));
  ViBoolean overlap = VI_FALSE;
  EXPECT_EQ(VI_SUCCESS, link_->GetAttribute(VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, &overlap));
  EXPECT_EQ(VI_TRUE, overlap);
}

TEST_F(HislipControl, ADeviceWithoutOverlapSaysSo) {
  peer_.Says(kAsync, Frame("HS 17 00 00000000 0000000000000000"));
  peer_.Says(kSync, Frame("HS 09 00 00000000 0000000000000000"));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, link_->SetAttribute(VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, VI_TRUE, 2000));
}

TEST_F(HislipControl, AnAttributeThatIsAnExchangeTakesNoLongerThanTheTimeout) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, link_->SetAttribute(VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, VI_TRUE, 30));
  EXPECT_GE(watch.Milliseconds(), 30);
  EXPECT_LT(watch.OwnMilliseconds(), 130);
}

TEST_F(HislipControl, AStatusQueryTellsTheLastMessageAndTheDelivery) {
  peer_.Says(kAsync, Frame("HS 16 04 00000000 0000000000000000"));
  EXPECT_EQ(0x04, StatusByte());
  peer_.Hears(kAsync, Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  Write("A?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000001", "1"));
  EXPECT_EQ("1", Read());
  peer_.Says(kAsync, Frame("HS 16 10 00000000 0000000000000000"));
  EXPECT_EQ(0x10, StatusByte());
  peer_.Hears(kAsync, Frame("HS 15 01 FFFFFF00 0000000000000000"));
  Write("B");
  peer_.Next(kSync, 18);
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF02 0000000000000001", "B"));  // delivered, but told already
}

TEST_F(HislipControl, ALateStatusByteIsNotTheNextOne) {
  Deadline deadline(30);
  ViUInt16 byte = 0;
  EXPECT_EQ(VI_ERROR_TMO, link_->ReadStatusByte(VI_PROT_NORMAL, deadline, byte));
  peer_.Says(kAsync, Frame("HS 16 11 00000000 0000000000000000"));
  peer_.Says(kAsync, Frame("HS 16 22 00000000 0000000000000000"));
  EXPECT_EQ(0x22, StatusByte());
}

TEST_F(HislipControl, ADeviceClearMendsACountThatIsOut) {
  Deadline deadline(30);
  ViUInt16 byte = 0;
  EXPECT_EQ(VI_ERROR_TMO, link_->ReadStatusByte(VI_PROT_NORMAL, deadline, byte));  // and no answer ever comes
  peer_.Says(kAsync, Frame("HS 17 00 00000000 0000000000000000"));
  peer_.Says(kSync, Frame("HS 09 00 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, Clear());
  peer_.Says(kAsync, Frame("HS 16 22 00000000 0000000000000000"));
  EXPECT_EQ(0x22, StatusByte());
}

TEST_F(HislipControl, TriggerIsAMessageWithAnId) {
  Deadline deadline(2000);
  EXPECT_EQ(VI_SUCCESS, link_->Trigger(VI_PROT_NORMAL, deadline));
  peer_.Hears(kSync, Frame("HS 0C 00 FFFFFF00 0000000000000000"));
  Write("A?");
  peer_.Hears(kSync, Frame("HS 07 00 FFFFFF02 0000000000000002", "A?"));
}

TEST_F(HislipControl, RemoteLocalPassesTheModeOn) {
  for (const char* mode : {"00", "01", "02", "03", "04", "05", "06"}) {
    peer_.Says(kAsync, Frame("HS 0B 00 00000000 0000000000000000"));
    Deadline deadline(2000);
    EXPECT_EQ(VI_SUCCESS, link_->RemoteLocal(static_cast<ViUInt16>(std::stoi(mode)), deadline));
    peer_.Hears(kAsync, Frame("HS 0A " + std::string(mode) + " FFFFFEFE 0000000000000000"));
  }
  Deadline deadline(2000);
  EXPECT_EQ(VI_ERROR_INV_MODE, link_->RemoteLocal(7, deadline));
  peer_.HearsNothingMore(kAsync);
}

TEST_F(HislipControl, AnErrorInPlaceOfAnAnswerIsAnIoError) {
  peer_.Says(kAsync, Frame("HS 03 01 00000000 0000000000000007", "unknown"));
  Deadline deadline(2000);
  EXPECT_EQ(VI_ERROR_IO, link_->RemoteLocal(1, deadline));
}

TEST_F(HislipControl, LocksAreAskedForByKeyAndTime) {
  peer_.Says(kAsync, Frame("HS 05 01 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, link_->LockDevice("", 1500));
  peer_.Hears(kAsync, Frame("HS 04 01 000005DC 0000000000000000"));
  peer_.Says(kAsync, Frame("HS 05 01 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, link_->LockDevice("bench", 0));
  peer_.Hears(kAsync, Frame("HS 04 01 00000000 0000000000000005", "bench"));
  peer_.Says(kAsync, Frame("HS 05 02 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, link_->UnlockDevice(false, 2000));
  peer_.Hears(kAsync, Frame("HS 04 00 FFFFFEFE 0000000000000000"));
}

TEST_F(HislipControl, ALockThatIsNotHadIsATimeoutOrAnError) {
  peer_.Says(kAsync, Frame("HS 05 00 00000000 0000000000000000"));
  EXPECT_EQ(VI_ERROR_TMO, link_->LockDevice("", 10));
  peer_.Says(kAsync, Frame("HS 05 03 00000000 0000000000000000"));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, link_->LockDevice("", 10));
  peer_.Says(kAsync, Frame("HS 05 03 00000000 0000000000000000"));
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, link_->UnlockDevice(true, 2000));
}

TEST_F(HislipControl, ALockThatIsGrantedTooLateIsGivenBack) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, link_->LockDevice("", 50));
  EXPECT_LT(watch.OwnMilliseconds(), 150);
  peer_.Hears(kAsync, Frame("HS 04 01 00000032 0000000000000000"));
  peer_.Says(kAsync, Frame("HS 05 01 00000000 0000000000000000"));
  peer_.Says(kAsync, Frame("HS 16 00 00000000 0000000000000000"));
  StatusByte();
  peer_.Hears(kAsync, Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  peer_.Hears(kAsync, Frame("HS 04 00 FFFFFEFE 0000000000000000"));
}

TEST_F(HislipControl, ALateLockIsGivenBackAsOfTheLastMessage) {
  EXPECT_EQ(VI_ERROR_TMO, link_->LockDevice("", 20));
  EXPECT_EQ(VI_SUCCESS, Write("A"));
  EXPECT_EQ(VI_SUCCESS, Write("B"));
  peer_.Says(kAsync, Frame("HS 05 01 00000000 0000000000000000") + Frame("HS 16 00 00000000 0000000000000000"));
  StatusByte();
  peer_.Hears(kAsync, Frame("HS 04 01 00000014 0000000000000000") + Frame("HS 15 00 FFFFFF02 0000000000000000") +
                          Frame("HS 04 00 FFFFFF02 0000000000000000"));
  // The answer to that, and the lock that is wanted.
  peer_.Says(kAsync, Frame("HS 05 01 00000000 0000000000000000") + Frame("HS 05 01 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, link_->LockDevice("", 1500));
  peer_.Hears(kAsync, Frame("HS 04 01 000005DC 0000000000000000"));
  peer_.HearsNothingMore(kAsync);
}

TEST_F(HislipControl, AReleaseThatIsAnsweredTooLateIsNotTakenForALock) {
  peer_.Says(kAsync, Frame("HS 05 01 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, link_->LockDevice("", 1500));
  EXPECT_EQ(VI_ERROR_TMO, link_->UnlockDevice(true, 10));
  peer_.Says(kAsync, Frame("HS 05 01 00000000 0000000000000000") + Frame("HS 05 01 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, link_->LockDevice("", 1500));
  peer_.Hears(kAsync, Frame("HS 04 01 000005DC 0000000000000000") + Frame("HS 04 00 FFFFFEFE 0000000000000000") +
                          Frame("HS 04 01 000005DC 0000000000000000"));
  peer_.HearsNothingMore(kAsync);
}

TEST_F(HislipControl, ADeviceClearForgetsNoLockThatMayYetBeGranted) {
  EXPECT_EQ(VI_ERROR_TMO, link_->LockDevice("", 20));
  EXPECT_EQ(VI_SUCCESS, Write("A"));
  peer_.Says(kAsync, Frame("HS 17 00 00000000 0000000000000000"));
  peer_.Says(kSync, Frame("HS 09 00 00000000 0000000000000000"));
  EXPECT_EQ(VI_SUCCESS, Clear());
  peer_.Says(kAsync, Frame("HS 05 01 00000000 0000000000000000") + Frame("HS 16 00 00000000 0000000000000000"));
  StatusByte();
  peer_.Hears(kAsync, Frame("HS 04 01 00000014 0000000000000000") + Frame("HS 13 00 00000000 0000000000000000") +
                          Frame("HS 15 00 FFFFFEFE 0000000000000000") + Frame("HS 04 00 FFFFFEFE 0000000000000000"));
}

TEST_F(HislipControl, ServiceRequestsReachTheSinkOnlyOnceItIsThere) {
  std::promise<void> first;
  EXPECT_EQ(VI_SUCCESS, link_->DeliverServiceRequests([&] { first.set_value(); }, 2000));
  peer_.Says(kAsync, Frame("HS 14 50 00000000 0000000000000000"));
  EXPECT_EQ(std::future_status::ready, first.get_future().wait_for(std::chrono::seconds(5)));
  EXPECT_EQ(VI_SUCCESS, link_->DeliverServiceRequests({}, 2000));
  peer_.Says(kAsync, Frame("HS 14 50 00000000 0000000000000000"));
  auto status = std::async(std::launch::async, [&] { return StatusByte(); });
  peer_.Next(kAsync, 16);
  peer_.Says(kAsync, Frame("HS 16 07 00000000 0000000000000000"));
  EXPECT_EQ(0x07, status.get());  // a second call of the sink would throw
}

TEST_F(HislipControl, ASinkMayItselfAskForTheStatusByte) {
  std::promise<int> told;
  link_->DeliverServiceRequests([&] { told.set_value(StatusByte()); }, 2000);
  peer_.Says(kAsync, Frame("HS 14 44 00000000 0000000000000000"));
  peer_.Hears(kAsync, Frame("HS 15 00 FFFFFEFE 0000000000000000"));
  peer_.Says(kAsync, Frame("HS 16 44 00000000 0000000000000000"));
  EXPECT_EQ(0x44, told.get_future().get());
}

TEST_F(HislipControl, AServiceRequestBetweenQuestionAndAnswerIsNotLost) {
  std::promise<void> told;
  link_->DeliverServiceRequests([&] { told.set_value(); }, 2000);
  for (int i = 0; i < 50; ++i) {
    auto status = std::async(std::launch::async, [&] { return StatusByte(); });
    peer_.Next(kAsync, 16);
    if (i == 25) peer_.Says(kAsync, Frame("HS 14 44 00000000 0000000000000000"));
    peer_.Says(kAsync, Frame("HS 16 01 00000000 0000000000000000"));
    EXPECT_EQ(0x01, status.get());
  }
  EXPECT_EQ(std::future_status::ready, told.get_future().wait_for(std::chrono::seconds(5)));
}

TEST_F(HislipControl, HangingUpEndsAWaitAndTheThread) {
  link_->DeliverServiceRequests([] {}, 2000);
  Write("A?");
  auto reading = std::async(std::launch::async, [&] { return Read(60000); });
  peer_.Next(kSync, 18);
  link_->HangUp();
  EXPECT_EQ("", reading.get());
  EXPECT_EQ(VI_ERROR_CONN_LOST, status_);
}

TEST_F(HislipControl, AnInterruptionEndsAWaitAndTheLinkGoesOn) {
  auto asking = std::async(std::launch::async, [&] { return link_->LockDevice("", VI_TMO_INFINITE); });
  peer_.Hears(kAsync, Frame("HS 04 01 FFFFFFFF 0000000000000000"));
  interruption_.Request();
  EXPECT_EQ(VI_ERROR_ABORT, asking.get());
  interruption_.BeginCall();
  Write("A?");
  peer_.Says(kSync, Frame("HS 07 00 FFFFFF00 0000000000000001", "1"));
  EXPECT_EQ("1", Read());
}

}  // namespace
}  // namespace tvr::visa::hislip
