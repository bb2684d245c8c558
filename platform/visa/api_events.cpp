// Exported: events. Service requests are the only kind there is; whoever raises none knows the operations all the same.
#include "api.h"

using namespace tvr::visa;

namespace {

bool AreAmong(ViUInt16 mechanism, unsigned known) { return mechanism != 0 && (mechanism & ~known) == 0; }

bool Means(ViEventType type, const EventQueue* events) { return type == VI_EVENT_SERVICE_REQ && events != nullptr; }

// `body` takes the queue, which is null where no events are raised.
template <class Body>
ViStatus OnEvents(ViSession vi, Body&& body) noexcept {
  const Pinned pinned(vi);
  if (!pinned) return VI_ERROR_INV_OBJECT;
  Session* const session = pinned.As<Session>();
  if (session == nullptr && pinned.As<ResourceManager>() == nullptr) return VI_ERROR_NSUP_OPER;
  return Guarded([&] { return body(session == nullptr ? nullptr : session->events()); });
}

}  // namespace

ViStatus viEnableEvent(ViSession vi, ViEventType type, ViUInt16 mechanism, ViEventFilter context) {
  return OnEvents(vi, [&](EventQueue* events) -> ViStatus {
    if (context != VI_NULL) return VI_ERROR_INV_CONTEXT;
    if (!AreAmong(mechanism, VI_QUEUE | kCallback) || (mechanism & kCallback) == kCallback) return VI_ERROR_INV_MECH;
    // "All" are those that are enabled in some way.
    const bool all = type == VI_ALL_ENABLED_EVENTS && events != nullptr && events->Enabled();
    if (!all && !Means(type, events)) return VI_ERROR_INV_EVENT;
    return events->Enable(mechanism);
  });
}

ViStatus viDisableEvent(ViSession vi, ViEventType type, ViUInt16 mechanism) {
  return OnEvents(vi, [&](EventQueue* events) -> ViStatus {
    if (mechanism != VI_ALL_MECH && !AreAmong(mechanism, VI_QUEUE | kCallback)) return VI_ERROR_INV_MECH;
    if (type == VI_ALL_ENABLED_EVENTS && events == nullptr) return VI_SUCCESS_EVENT_DIS;
    if (type != VI_ALL_ENABLED_EVENTS && !Means(type, events)) return VI_ERROR_INV_EVENT;
    return events->Disable(mechanism);
  });
}

ViStatus viDiscardEvents(ViSession vi, ViEventType type, ViUInt16 mechanism) {
  return OnEvents(vi, [&](EventQueue* events) -> ViStatus {
    if (mechanism != VI_ALL_MECH && !AreAmong(mechanism, VI_QUEUE | VI_SUSPEND_HNDLR)) return VI_ERROR_INV_MECH;
    if (type == VI_ALL_ENABLED_EVENTS && events == nullptr) return VI_SUCCESS_QUEUE_EMPTY;
    if (type != VI_ALL_ENABLED_EVENTS && !Means(type, events)) return VI_ERROR_INV_EVENT;
    return events->Discard(mechanism);
  });
}

ViStatus viWaitOnEvent(ViSession vi, ViEventType inEventType, ViUInt32 timeout, ViPEventType outEventType,
                       ViPEvent outContext) {
  if (outContext != nullptr) *outContext = VI_NULL;
  return OnEvents(vi, [&](EventQueue* events) -> ViStatus {
    if (inEventType == VI_ALL_ENABLED_EVENTS && events == nullptr) return VI_ERROR_NENABLED;
    if (inEventType != VI_ALL_ENABLED_EVENTS && !Means(inEventType, events)) return VI_ERROR_INV_EVENT;
    const ViStatus status = events->Wait(timeout, outContext);
    if (status >= 0 && outEventType != nullptr) *outEventType = VI_EVENT_SERVICE_REQ;
    return status;
  });
}

ViStatus viInstallHandler(ViSession vi, ViEventType type, ViHndlr handler, ViAddr userHandle) {
  return OnEvents(vi, [&](EventQueue* events) -> ViStatus {
    if (handler == nullptr) return VI_ERROR_INV_HNDLR_REF;
    if (!Means(type, events)) return VI_ERROR_INV_EVENT;
    return events->Install(handler, userHandle);
  });
}

ViStatus viUninstallHandler(ViSession vi, ViEventType type, ViHndlr handler, ViAddr userHandle) {
  return OnEvents(vi, [&](EventQueue* events) -> ViStatus {
    if (!Means(type, events)) return VI_ERROR_INV_EVENT;
    return events->Uninstall(handler, userHandle);
  });
}
