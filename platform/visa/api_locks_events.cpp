// Exported: locks and events.
#include <cstring>
#include <string>

#include "api.h"
#include "text_out.h"

using namespace tvr::visa;

ViStatus viLock(ViSession vi, ViAccessMode type, ViUInt32 timeout, ViConstKeyId requestedKey, ViChar accessKey[]) {
  return On<Session>(vi, [&](Session& session) -> ViStatus {
    if (type != VI_EXCLUSIVE_LOCK && type != VI_SHARED_LOCK) return VI_ERROR_INV_LOCK_TYPE;
    const bool named = type == VI_SHARED_LOCK && requestedKey != nullptr;
    if (named && ::strnlen(requestedKey, VI_FIND_BUFLEN) == VI_FIND_BUFLEN) return VI_ERROR_INV_ACCESS_KEY;
    std::string key;
    const ViStatus status = session.Lock(type, timeout, named ? requestedKey : "", key);
    if (status >= 0 && type == VI_SHARED_LOCK && accessKey != nullptr) PutText(accessKey, key);
    return status;
  });
}

ViStatus viUnlock(ViSession vi) {
  return On<Session>(vi, [](Session& session) { return session.Unlock(); });
}

namespace {

// No transport of this library raises events, so every type is one that the session does not support. What is wrong
// apart from that is told first.
ViStatus CheckMechanism(ViUInt16 mechanism, bool all_allowed) {
  constexpr unsigned kKnown = VI_QUEUE | VI_HNDLR | VI_SUSPEND_HNDLR;
  if (mechanism == VI_ALL_MECH && all_allowed) return VI_SUCCESS;
  return mechanism == 0 || (mechanism & ~kKnown) != 0 ? VI_ERROR_INV_MECH : VI_SUCCESS;
}

ViStatus RefuseEvent(ViSession vi, ViUInt16 mechanism, bool all_allowed) {
  return On<AttributeOwner>(vi, [&](AttributeOwner&) -> ViStatus {
    const ViStatus status = CheckMechanism(mechanism, all_allowed);
    return status < 0 ? status : VI_ERROR_INV_EVENT;
  });
}

// Switching off what cannot be on succeeds, and says that there was nothing to do.
ViStatus NothingEnabled(ViSession vi, ViEventType type, ViUInt16 mechanism, ViStatus answer) {
  return On<AttributeOwner>(vi, [&](AttributeOwner&) -> ViStatus {
    if (const ViStatus status = CheckMechanism(mechanism, true); status < 0) return status;
    return type == VI_ALL_ENABLED_EVENTS ? answer : VI_ERROR_INV_EVENT;
  });
}

}  // namespace

ViStatus viEnableEvent(ViSession vi, ViEventType, ViUInt16 mechanism, ViEventFilter context) {
  if (Pinned(vi) && context != VI_NULL) return VI_ERROR_INV_CONTEXT;
  return RefuseEvent(vi, mechanism, false);
}

ViStatus viDisableEvent(ViSession vi, ViEventType type, ViUInt16 mechanism) {
  return NothingEnabled(vi, type, mechanism, VI_SUCCESS_EVENT_DIS);
}

ViStatus viDiscardEvents(ViSession vi, ViEventType type, ViUInt16 mechanism) {
  return NothingEnabled(vi, type, mechanism, VI_SUCCESS_QUEUE_EMPTY);
}

ViStatus viWaitOnEvent(ViSession vi, ViEventType inType, ViUInt32, ViPEventType, ViPEvent) {
  return On<AttributeOwner>(vi, [&](AttributeOwner&) -> ViStatus {
    return inType == VI_ALL_ENABLED_EVENTS ? VI_ERROR_NENABLED : VI_ERROR_INV_EVENT;
  });
}

ViStatus viInstallHandler(ViSession vi, ViEventType, ViHndlr handler, ViAddr) {
  return On<AttributeOwner>(vi, [&](AttributeOwner&) -> ViStatus {
    return handler == nullptr ? VI_ERROR_INV_HNDLR_REF : VI_ERROR_INV_EVENT;
  });
}

ViStatus viUninstallHandler(ViSession vi, ViEventType, ViHndlr, ViAddr) {
  return On<AttributeOwner>(vi, [](AttributeOwner&) -> ViStatus { return VI_ERROR_INV_EVENT; });
}
