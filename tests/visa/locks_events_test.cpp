// viLock between the sessions of this process, and the events that a byte stream does not have.
#include <cstring>
#include <thread>

#include "session_fixture.h"

namespace visa_test {
namespace {

class Locks : public SessionTest {
 protected:
  void SetUp() override {
    Open([](Connection& c) { c.WaitForClose(); });
    ASSERT_EQ(VI_SUCCESS, viOpen(manager, peer->Descriptor().c_str(), VI_NULL, 2000, &other));
  }
  ViAccessMode State(ViSession session) {
    ViAccessMode state = 9;
    EXPECT_EQ(VI_SUCCESS, viGetAttribute(session, VI_ATTR_RSRC_LOCK_STATE, &state));
    return state;
  }
  ViSession other = VI_NULL;
};

TEST_F(Locks, AnExclusiveLockKeepsOtherSessionsOut) {
  EXPECT_EQ(VI_SUCCESS, viLock(vi, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  EXPECT_EQ(static_cast<ViAccessMode>(VI_EXCLUSIVE_LOCK), State(other));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "x\n"));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viPrintf(other, "x\n"));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viClear(other));
  EXPECT_EQ(VI_SUCCESS, viSetAttribute(other, VI_ATTR_TMO_VALUE, 100)) << "local attributes are never locked";
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viLock(other, VI_EXCLUSIVE_LOCK, VI_TMO_IMMEDIATE, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_TMO, viLock(other, VI_SHARED_LOCK, 20, "key", nullptr));
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi));
  EXPECT_EQ(static_cast<ViAccessMode>(VI_NO_LOCK), State(other));
  EXPECT_EQ(VI_SUCCESS, viPrintf(other, "x\n"));
}

TEST_F(Locks, LocksNest) {
  EXPECT_EQ(VI_SUCCESS, viLock(vi, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr));
  EXPECT_EQ(VI_SUCCESS_NESTED_EXCLUSIVE, viLock(vi, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr));
  EXPECT_EQ(VI_SUCCESS_NESTED_EXCLUSIVE, viUnlock(vi));
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi));
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, viUnlock(vi));
  EXPECT_EQ(VI_ERROR_SESN_NLOCKED, viUnlock(other));
}

TEST_F(Locks, SharedLocksAreSharedByTheirKey) {
  char key[VI_FIND_BUFLEN] = "";
  EXPECT_EQ(VI_SUCCESS, viLock(vi, VI_SHARED_LOCK, 0, nullptr, key));
  EXPECT_GT(std::strlen(key), 0u);
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viPrintf(other, "x\n"));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viLock(other, VI_SHARED_LOCK, 0, "another", nullptr));
  EXPECT_EQ(VI_SUCCESS, viLock(other, VI_SHARED_LOCK, 0, key, nullptr));
  EXPECT_EQ(VI_SUCCESS, viPrintf(other, "x\n"));
  EXPECT_EQ(VI_SUCCESS_NESTED_SHARED, viLock(other, VI_SHARED_LOCK, 0, key, nullptr));
  EXPECT_EQ(VI_ERROR_INV_ACCESS_KEY, viLock(other, VI_SHARED_LOCK, 0, "another", nullptr));
  EXPECT_EQ(VI_SUCCESS, viLock(other, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr)) << "on top of the shared one";
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viPrintf(vi, "x\n"));
  EXPECT_EQ(VI_SUCCESS_NESTED_SHARED, viUnlock(other));
  EXPECT_EQ(VI_SUCCESS, viPrintf(vi, "x\n"));
}

TEST_F(Locks, AWaitingLockIsGrantedWhenItsOwnerCloses) {
  ASSERT_EQ(VI_SUCCESS, viLock(other, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr));
  std::thread closer([this] {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    viClose(other);
  });
  EXPECT_EQ(VI_SUCCESS, viLock(vi, VI_EXCLUSIVE_LOCK, 5000, nullptr, nullptr));
  closer.join();
}

TEST_F(Locks, OpeningWithALockWaitsForItAndGivesUp) {
  ASSERT_EQ(VI_SUCCESS, viLock(vi, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr));
  ViSession third = VI_NULL;
  EXPECT_EQ(VI_ERROR_TMO, viOpen(manager, peer->Descriptor().c_str(), VI_EXCLUSIVE_LOCK, 30, &third));
  EXPECT_EQ(VI_NULL, static_cast<int>(third));
  EXPECT_EQ(VI_SUCCESS, viUnlock(vi));
  EXPECT_EQ(VI_SUCCESS, viOpen(manager, peer->Descriptor().c_str(), VI_EXCLUSIVE_LOCK, 30, &third));
  EXPECT_EQ(VI_ERROR_RSRC_LOCKED, viPrintf(vi, "x\n"));
}

TEST_F(Locks, WrongTypesAndKeysAreRefused) {
  EXPECT_EQ(VI_ERROR_INV_LOCK_TYPE, viLock(vi, VI_NO_LOCK, 0, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_INV_LOCK_TYPE, viLock(vi, 3, 0, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_INV_ACCESS_KEY, viLock(vi, VI_SHARED_LOCK, 0, std::string(256, 'k').c_str(), nullptr));
  EXPECT_EQ(VI_ERROR_NSUP_OPER, viLock(manager, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr));
}

TEST_F(Locks, AByteStreamHasNoEvents) {
  const ViHndlr handler = [](ViSession, ViEventType, ViEvent, ViAddr) -> ViStatus { return VI_SUCCESS; };
  EXPECT_EQ(VI_ERROR_INV_EVENT, viEnableEvent(vi, VI_EVENT_SERVICE_REQ, VI_QUEUE, VI_NULL));
  EXPECT_EQ(VI_ERROR_INV_MECH, viEnableEvent(vi, VI_EVENT_SERVICE_REQ, 0, VI_NULL));
  EXPECT_EQ(VI_ERROR_INV_MECH, viEnableEvent(vi, VI_EVENT_SERVICE_REQ, 64, VI_NULL));
  EXPECT_EQ(VI_ERROR_INV_CONTEXT, viEnableEvent(vi, VI_EVENT_SERVICE_REQ, VI_QUEUE, 1));
  EXPECT_EQ(VI_SUCCESS_EVENT_DIS, viDisableEvent(vi, VI_ALL_ENABLED_EVENTS, VI_ALL_MECH));
  EXPECT_EQ(VI_SUCCESS_QUEUE_EMPTY, viDiscardEvents(vi, VI_ALL_ENABLED_EVENTS, VI_QUEUE));
  EXPECT_EQ(VI_ERROR_INV_EVENT, viDisableEvent(vi, VI_EVENT_CLEAR, VI_QUEUE));
  EXPECT_EQ(VI_ERROR_INV_MECH, viDiscardEvents(vi, VI_ALL_ENABLED_EVENTS, 0));
  EXPECT_EQ(VI_ERROR_NENABLED, viWaitOnEvent(vi, VI_ALL_ENABLED_EVENTS, 1000, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_INV_EVENT, viWaitOnEvent(vi, VI_EVENT_SERVICE_REQ, 1000, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_INV_EVENT, viInstallHandler(vi, VI_EVENT_SERVICE_REQ, handler, nullptr));
  EXPECT_EQ(VI_ERROR_INV_HNDLR_REF, viInstallHandler(vi, VI_EVENT_SERVICE_REQ, nullptr, nullptr));
  EXPECT_EQ(VI_ERROR_INV_EVENT, viUninstallHandler(vi, VI_EVENT_SERVICE_REQ, handler, nullptr));
}

}  // namespace
}  // namespace visa_test
