// Service requests through the exported operations: queue, handlers, event contexts.
#include <atomic>
#include <future>
#include <vector>

#include "hislip_session.h"

namespace tvr::visa::hislip {
namespace {

const std::string kServiceRequest = Frame("HS 14 50 00000000 0000000000000000");

// Counts its calls, and knows how to wait for them.
struct Calls {
  std::atomic<int> count{0};
  ViSession session = VI_NULL;
  ViEventType type = 0;
  ViEventType type_of_context = 0;
  ViEvent context = VI_NULL;

  bool Reach(int wanted) const {
    const Stopwatch watch;
    while (count < wanted && watch.Milliseconds() < 5000) std::this_thread::yield();
    return count == wanted;
  }
};

ViStatus _VI_FUNCH Count(ViSession vi, ViEventType type, ViEvent context, ViAddr user) {
  auto& calls = *static_cast<Calls*>(user);
  calls.session = vi;
  calls.type = type;
  calls.context = context;
  viGetAttribute(context, VI_ATTR_EVENT_TYPE, &calls.type_of_context);
  ++calls.count;
  return VI_SUCCESS;
}

ViStatus _VI_FUNCH CountAndStop(ViSession vi, ViEventType type, ViEvent context, ViAddr user) {
  Count(vi, type, context, user);
  return VI_SUCCESS_NCHAIN;
}

class HislipEvents : public HislipSession {
 protected:
  ViStatus Enable(ViUInt16 mechanism) { return viEnableEvent(vi_, VI_EVENT_SERVICE_REQ, mechanism, VI_NULL); }
  ViStatus Disable(ViUInt16 mechanism) { return viDisableEvent(vi_, VI_EVENT_SERVICE_REQ, mechanism); }
  ViStatus Discard(ViUInt16 mechanism) { return viDiscardEvents(vi_, VI_EVENT_SERVICE_REQ, mechanism); }
  ViStatus Wait(ViUInt32 timeout = VI_TMO_IMMEDIATE) {
    return viWaitOnEvent(vi_, VI_EVENT_SERVICE_REQ, timeout, nullptr, nullptr);
  }
  ViStatus Install(ViHndlr handler, Calls& calls) {
    return viInstallHandler(vi_, VI_EVENT_SERVICE_REQ, handler, &calls);
  }
  ViStatus Uninstall(ViHndlr handler, Calls& calls) {
    return viUninstallHandler(vi_, VI_EVENT_SERVICE_REQ, handler, &calls);
  }
  // Into the queue, which is enabled; they are there when this returns, for the handler is told after the queue.
  void Arrive(int requests) {
    Calls calls;
    ASSERT_EQ(VI_SUCCESS, Install(Count, calls));
    ASSERT_EQ(VI_SUCCESS, Enable(VI_HNDLR));
    for (int i = 0; i < requests; ++i) peer_.Says(kAsync, kServiceRequest);
    EXPECT_TRUE(calls.Reach(requests));
    ASSERT_EQ(VI_SUCCESS, Disable(VI_HNDLR));
    ASSERT_EQ(VI_SUCCESS, Uninstall(Count, calls));
  }
};

TEST_F(HislipEvents, AServiceRequestIsWaitedForAndHasAContext) {
  EXPECT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  EXPECT_EQ(VI_SUCCESS_EVENT_EN, Enable(VI_QUEUE));
  peer_.Says(kAsync, kServiceRequest);
  ViEventType type = 0;
  ViEvent context = VI_NULL;
  EXPECT_EQ(VI_SUCCESS, viWaitOnEvent(vi_, VI_ALL_ENABLED_EVENTS, 5000, &type, &context));
  EXPECT_EQ(0x3FFF200Bu, type);
  type = 0;
  EXPECT_EQ(VI_SUCCESS, viGetAttribute(context, 0x3FFF4010, &type));
  EXPECT_EQ(0x3FFF200Bu, type);
  EXPECT_EQ(VI_ERROR_ATTR_READONLY, viSetAttribute(context, VI_ATTR_EVENT_TYPE, 1));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR, viGetAttribute(context, VI_ATTR_TMO_VALUE, &type));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viRead(context, nullptr, 0, nullptr));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viEnableEvent(context, VI_EVENT_SERVICE_REQ, VI_QUEUE, VI_NULL));
  EXPECT_EQ(VI_SUCCESS, viClose(context));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viClose(context));
}

TEST_F(HislipEvents, ARequestFromBeforeItIsEnabledWaitsForThatWhateverElseIsAskedMeanwhile) {
  for (const char* const before : {"the first time", "once more"}) {
    peer_.Says(kAsync, kServiceRequest);
    auto asking = std::async(std::launch::async, [this] { return viGpibControlREN(vi_, 1); });
    peer_.Next(kAsync, 16);
    peer_.Says(kAsync, Frame("HS 0B 00 00000000 0000000000000000"));
    ASSERT_EQ(VI_SUCCESS, asking.get());
    ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
    EXPECT_EQ(VI_SUCCESS, Wait(5000)) << before;
    EXPECT_EQ(VI_ERROR_TMO, Wait(50)) << before;
    ASSERT_EQ(VI_SUCCESS, Disable(VI_QUEUE));
  }
}

TEST_F(HislipEvents, ARequestFromBeforeItIsEnabledIsOverWhenTheStatusByteHasBeenAskedFor) {
  peer_.Says(kAsync, kServiceRequest);
  AnswersStatusQuery("50");
  ViUInt16 status = 0;
  ASSERT_EQ(VI_SUCCESS, viReadSTB(vi_, &status));
  EXPECT_EQ(0x50, status);
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  EXPECT_EQ(VI_ERROR_TMO, Wait(50));
  peer_.Says(kAsync, kServiceRequest);
  EXPECT_EQ(VI_SUCCESS, Wait(5000));
}

TEST_F(HislipEvents, AContextThatNobodyClosedGoesWithTheManager) {
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  peer_.Says(kAsync, kServiceRequest);
  ViEvent context = VI_NULL;
  ASSERT_EQ(VI_SUCCESS, viWaitOnEvent(vi_, VI_EVENT_SERVICE_REQ, 5000, nullptr, &context));
  EXPECT_EQ(VI_SUCCESS, viClose(vi_));
  EXPECT_EQ(VI_SUCCESS, viClose(manager_));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viClose(context));
}

TEST_F(HislipEvents, AWaitThatWantsNoContextLeavesNoneBehind) {
  constexpr int kMoreThanThereAreHandles = 70000;
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_MAX_QUEUE_LENGTH, kMoreThanThereAreHandles));
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  std::string many;
  for (int i = 0; i < kMoreThanThereAreHandles; ++i) many += kServiceRequest;
  auto device = std::async(std::launch::async, [&] { peer_.Says(kAsync, many); });
  for (int i = 0; i < kMoreThanThereAreHandles; ++i) ASSERT_LE(VI_SUCCESS, Wait(5000)) << i;
  EXPECT_EQ(VI_ERROR_TMO, Wait());
}

TEST_F(HislipEvents, TheQueueTellsWhetherMoreIsInIt) {
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  Arrive(3);
  EXPECT_EQ(VI_SUCCESS_QUEUE_NEMPTY, Wait());
  EXPECT_EQ(VI_SUCCESS_QUEUE_NEMPTY, Wait());
  EXPECT_EQ(VI_SUCCESS, Wait());
  EXPECT_EQ(VI_ERROR_TMO, Wait());
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, Wait(50));
  EXPECT_GE(watch.Milliseconds(), 50);
  EXPECT_LT(watch.OwnMilliseconds(), 150);
}

TEST_F(HislipEvents, AFullQueueLosesWhatComesAndSaysSoOnce) {
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_MAX_QUEUE_LENGTH, 1));
  EXPECT_EQ(VI_ERROR_NSUP_ATTR_STATE, viSetAttribute(vi_, VI_ATTR_MAX_QUEUE_LENGTH, 0));
  ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_MAX_QUEUE_LENGTH, 2));
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  EXPECT_EQ(VI_ERROR_ATTR_READONLY, viSetAttribute(vi_, VI_ATTR_MAX_QUEUE_LENGTH, 10));
  Arrive(1);
  Arrive(1);
  Arrive(1);
  EXPECT_EQ(VI_WARN_QUEUE_OVERFLOW, Wait());
  EXPECT_EQ(VI_SUCCESS, Wait());
  EXPECT_EQ(VI_ERROR_TMO, Wait());
  Arrive(1);
  EXPECT_EQ(VI_SUCCESS, Wait());
}

TEST_F(HislipEvents, WhatIsNotEnabledIsNotWaitedFor) {
  EXPECT_EQ(VI_ERROR_NENABLED, Wait(5000));
  EXPECT_EQ(VI_ERROR_INV_EVENT, viWaitOnEvent(vi_, VI_EVENT_CLEAR, 5000, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_INV_EVENT, viEnableEvent(vi_, VI_EVENT_CLEAR, VI_QUEUE, VI_NULL));
  EXPECT_EQ(VI_ERROR_INV_EVENT, viEnableEvent(vi_, VI_ALL_ENABLED_EVENTS, VI_QUEUE, VI_NULL)) << "none is";
  EXPECT_EQ(VI_ERROR_INV_CONTEXT, viEnableEvent(vi_, VI_EVENT_SERVICE_REQ, VI_QUEUE, 1));
  EXPECT_EQ(VI_ERROR_INV_MECH, Enable(0));
  EXPECT_EQ(VI_ERROR_INV_MECH, Enable(8));
  EXPECT_EQ(VI_ERROR_INV_MECH, Enable(VI_HNDLR | VI_SUSPEND_HNDLR));
  EXPECT_EQ(VI_ERROR_HNDLR_NINSTALLED, Enable(VI_HNDLR));
  EXPECT_EQ(VI_ERROR_NENABLED, Wait(5000));
}

TEST_F(HislipEvents, DisablingKeepsWhatCameAndDiscardingDoesNot) {
  EXPECT_EQ(VI_SUCCESS_EVENT_DIS, Disable(VI_QUEUE));
  EXPECT_EQ(VI_SUCCESS_QUEUE_EMPTY, Discard(VI_QUEUE));
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  Arrive(2);
  EXPECT_EQ(VI_SUCCESS, Disable(VI_ALL_MECH));
  EXPECT_EQ(VI_SUCCESS_EVENT_DIS, Disable(VI_ALL_MECH));
  EXPECT_EQ(VI_SUCCESS_QUEUE_NEMPTY, Wait());
  EXPECT_EQ(VI_SUCCESS, Discard(VI_QUEUE));
  EXPECT_EQ(VI_ERROR_NENABLED, Wait());
  EXPECT_EQ(VI_ERROR_INV_MECH, Discard(VI_HNDLR));
}

TEST_F(HislipEvents, DisablingAndClosingEndAWait) {
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  const auto wait = [this] { return Wait(VI_TMO_INFINITE); };
  auto first = std::async(std::launch::async, wait);
  auto second = std::async(std::launch::async, wait);
  EXPECT_EQ(std::future_status::timeout, first.wait_for(std::chrono::milliseconds(20)));
  EXPECT_EQ(VI_SUCCESS, Disable(VI_QUEUE));
  EXPECT_EQ(VI_ERROR_NENABLED, first.get());
  EXPECT_EQ(VI_ERROR_NENABLED, second.get());
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  first = std::async(std::launch::async, wait);
  EXPECT_EQ(std::future_status::timeout, first.wait_for(std::chrono::milliseconds(20)));
  EXPECT_EQ(VI_SUCCESS, viClose(vi_));
  EXPECT_EQ(VI_ERROR_INV_OBJECT, first.get());
}

TEST_F(HislipEvents, AWaitBlocksNoOtherCallOfTheSession) {
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  auto waiting = std::async(std::launch::async, [this] { return Wait(10000); });
  for (int i = 0; i < 20; ++i) {
    ViUInt16 status = 0;
    auto asking = std::async(std::launch::async, [&] { return viReadSTB(vi_, &status); });
    peer_.Hears(kAsync, Frame("HS 15 00 FFFFFEFE 0000000000000000"));
    AnswersStatusQuery("07");
    ASSERT_EQ(VI_SUCCESS, asking.get());
    EXPECT_EQ(0x07, status);
  }
  peer_.Says(kAsync, kServiceRequest);
  EXPECT_EQ(VI_SUCCESS, waiting.get());
}

TEST_F(HislipEvents, HandlersAreCalledLastInstalledFirstUntilOneEndsTheChain) {
  Calls first, second;
  ASSERT_EQ(VI_SUCCESS, Install(Count, first));
  ASSERT_EQ(VI_SUCCESS, Install(Count, second));
  ASSERT_EQ(VI_SUCCESS, Enable(VI_HNDLR));
  peer_.Says(kAsync, kServiceRequest);
  EXPECT_TRUE(first.Reach(1));
  EXPECT_TRUE(second.Reach(1));
  EXPECT_EQ(vi_, first.session);
  EXPECT_EQ(0x3FFF200Bu, first.type);
  EXPECT_EQ(0x3FFF200Bu, first.type_of_context);
  EXPECT_EQ(first.context, second.context);

  Calls third;
  ASSERT_EQ(VI_SUCCESS, Install(CountAndStop, third));
  peer_.Says(kAsync, kServiceRequest);
  EXPECT_TRUE(third.Reach(1));
  ASSERT_EQ(VI_SUCCESS, Uninstall(CountAndStop, third));
  peer_.Says(kAsync, kServiceRequest);
  EXPECT_TRUE(first.Reach(2)) << "not by the one that was ended";
  EXPECT_EQ(1, third.count);
  ViUInt32 value = 0;
  EXPECT_EQ(VI_ERROR_INV_OBJECT, viGetAttribute(third.context, VI_ATTR_EVENT_TYPE, &value)) << "closed behind them";
}

TEST_F(HislipEvents, HandlersGoByFunctionAndUserHandle) {
  Calls one, other;
  EXPECT_EQ(VI_ERROR_HNDLR_NINSTALLED, Uninstall(Count, one));
  EXPECT_EQ(VI_ERROR_INV_HNDLR_REF, Install(nullptr, one));
  EXPECT_EQ(VI_ERROR_INV_EVENT, viInstallHandler(vi_, VI_EVENT_CLEAR, Count, nullptr));
  ASSERT_EQ(VI_SUCCESS, Install(Count, one));
  ASSERT_EQ(VI_SUCCESS, Install(CountAndStop, one));
  ASSERT_EQ(VI_SUCCESS, Install(Count, other));
  EXPECT_EQ(VI_ERROR_INV_HNDLR_REF, Uninstall(CountAndStop, other));
  EXPECT_EQ(VI_SUCCESS, Uninstall(VI_ANY_HNDLR, one)) << "both of them";
  EXPECT_EQ(VI_ERROR_INV_HNDLR_REF, Uninstall(VI_ANY_HNDLR, one));
  EXPECT_EQ(VI_SUCCESS, Uninstall(Count, other));
  EXPECT_EQ(VI_ERROR_HNDLR_NINSTALLED, Uninstall(Count, other));
}

TEST_F(HislipEvents, SuspendedHandlersAreCalledWhenTheyAreLetGo) {
  Calls calls;
  ASSERT_EQ(VI_SUCCESS, Install(Count, calls));
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE | VI_SUSPEND_HNDLR));
  peer_.Says(kAsync, kServiceRequest + kServiceRequest);
  ASSERT_LE(VI_SUCCESS, Wait(5000));
  ASSERT_LE(VI_SUCCESS, Wait(5000));
  EXPECT_EQ(0, calls.count);
  EXPECT_EQ(VI_SUCCESS, viEnableEvent(vi_, VI_ALL_ENABLED_EVENTS, VI_HNDLR, VI_NULL));
  EXPECT_TRUE(calls.Reach(2));
  EXPECT_EQ(VI_SUCCESS, Enable(VI_SUSPEND_HNDLR));
  peer_.Says(kAsync, kServiceRequest);
  ASSERT_EQ(VI_SUCCESS, Wait(5000));
  while (Discard(VI_SUSPEND_HNDLR) == VI_SUCCESS_QUEUE_EMPTY) std::this_thread::yield();
  EXPECT_EQ(VI_SUCCESS, Enable(VI_HNDLR));
  EXPECT_EQ(2, calls.count);
}

TEST_F(HislipEvents, AHandlerMayAskForTheStatusByteAroundAReadOfAnotherThread) {
  struct Asked {
    std::promise<ViUInt16> status;
  } asked;
  const ViHndlr handler = [](ViSession vi, ViEventType, ViEvent, ViAddr user) -> ViStatus {
    ViUInt16 status = 0;
    viReadSTB(vi, &status);
    static_cast<Asked*>(user)->status.set_value(status);
    return VI_SUCCESS;
  };
  ASSERT_EQ(VI_SUCCESS, viInstallHandler(vi_, VI_EVENT_SERVICE_REQ, handler, &asked));
  ASSERT_EQ(VI_SUCCESS, Enable(VI_HNDLR));
  auto reading = std::async(std::launch::async, [this] {
    ViByte byte = 0;
    return viRead(vi_, &byte, 1, nullptr);
  });
  peer_.Says(kAsync, kServiceRequest);
  peer_.Says(kSync, Frame("HS 07 00 FFFFFEFE 0000000000000001", "1"));
  peer_.Next(kAsync, 16);
  AnswersStatusQuery("50");
  EXPECT_EQ(0x50, asked.status.get_future().get());
  EXPECT_EQ(VI_SUCCESS, reading.get());
}

TEST_F(HislipEvents, AHandlerMayCloseItsOwnSession) {
  std::promise<ViStatus> closed;
  const ViHndlr handler = [](ViSession vi, ViEventType, ViEvent, ViAddr user) -> ViStatus {
    static_cast<std::promise<ViStatus>*>(user)->set_value(viClose(vi));
    return VI_SUCCESS;
  };
  ASSERT_EQ(VI_SUCCESS, viInstallHandler(vi_, VI_EVENT_SERVICE_REQ, handler, &closed));
  ASSERT_EQ(VI_SUCCESS, Enable(VI_HNDLR));
  peer_.Says(kAsync, kServiceRequest + kServiceRequest);
  EXPECT_EQ(VI_SUCCESS, closed.get_future().get());
  peer_.HearsTheEnd(kSync);
  EXPECT_EQ(VI_ERROR_INV_OBJECT, Enable(VI_QUEUE));
}

TEST_F(HislipEvents, ALostLinkRefusesNothingThatIsHereAlready) {
  ASSERT_EQ(VI_SUCCESS, Enable(VI_QUEUE));
  Arrive(1);
  peer_.Closes(kAsync);
  EXPECT_EQ(VI_SUCCESS, Wait());
  EXPECT_EQ(VI_SUCCESS, Disable(VI_ALL_MECH));
}

}  // namespace
}  // namespace tvr::visa::hislip
