// The exported functions of the session component.
#include "IviCShared.h"
#include "session/SessionTable.h"

using tvrivi::ErrorRecord;
using tvrivi::g_sessions;
using tvrivi::RecursiveLock;
using tvrivi::SessionSlot;

namespace {

// Runs work on the error of an open session, or of the thread for handle 0.
template <typename Work>
ViStatus WithError(ViSession handle, Work work) {
  if (handle == 0) return work(ErrorRecord::OfThread());
  SessionSlot* slot = g_sessions.Find(handle);
  if (slot == nullptr) return IVI_ERROR_INVALID_SESSION_HANDLE;
  const std::lock_guard<std::mutex> hold(slot->error_guard);
  if (slot->handle.load(std::memory_order_relaxed) != handle) return IVI_ERROR_INVALID_SESSION_HANDLE;
  return work(slot->error);
}

}  // namespace

ViStatus _VI_FUNC IviSession_New(ViSession* handle) {
  if (handle == nullptr) return IVI_ERROR_NULL_POINTER;
  *handle = g_sessions.Add();
  return *handle == 0 ? IVI_ERROR_OUT_OF_MEMORY : VI_SUCCESS;
}

ViStatus _VI_FUNC IviSession_SetDataPtr(ViSession handle, ViAddr dataPtr) {
  SessionSlot* slot = g_sessions.Find(handle);
  if (slot == nullptr) return IVI_ERROR_INVALID_SESSION_HANDLE;
  slot->data.store(dataPtr, std::memory_order_release);
  return VI_SUCCESS;
}

ViStatus _VI_FUNC IviSession_GetDataPtr(ViSession handle, ViAddr* dataPtr) {
  SessionSlot* slot = g_sessions.Find(handle);
  if (slot == nullptr) return IVI_ERROR_INVALID_SESSION_HANDLE;
  if (dataPtr == nullptr) return IVI_ERROR_NULL_POINTER;
  const ViAddr data = slot->data.load(std::memory_order_acquire);
  // Asked again behind the load: a session that ended in between must not give out the pointer of the next one.
  if (slot->handle.load(std::memory_order_relaxed) != handle) return IVI_ERROR_INVALID_SESSION_HANDLE;
  *dataPtr = data;
  return VI_SUCCESS;
}

ViStatus _VI_FUNC IviSession_Lock(ViSession handle, ViBoolean* hasLock) {
  SessionSlot* slot = g_sessions.Find(handle);
  if (slot == nullptr) return IVI_ERROR_INVALID_SESSION_HANDLE;
  if (hasLock != nullptr && *hasLock != VI_FALSE) return VI_SUCCESS;

  if (slot->lock.Lock() == RecursiveLock::Outcome::kClosed) return IVI_ERROR_INVALID_SESSION_HANDLE;
  // The session may have ended on the way here and another one taken its slot: that one's lock is not ours.
  if (slot->handle.load(std::memory_order_acquire) != handle) {
    slot->lock.Unlock();
    return IVI_ERROR_INVALID_SESSION_HANDLE;
  }
  if (hasLock != nullptr) *hasLock = VI_TRUE;
  return VI_SUCCESS;
}

ViStatus _VI_FUNC IviSession_Unlock(ViSession handle, ViBoolean* hasLock) {
  SessionSlot* slot = g_sessions.Find(handle);
  if (slot == nullptr) return IVI_ERROR_INVALID_SESSION_HANDLE;
  if (hasLock != nullptr && *hasLock == VI_FALSE) return VI_SUCCESS;

  switch (slot->lock.Unlock()) {
    case RecursiveLock::Outcome::kNotOwner:
      return IVI_ERROR_CANNOT_RECOVER;
    case RecursiveLock::Outcome::kClosed:
      return IVI_ERROR_INVALID_SESSION_HANDLE;
    case RecursiveLock::Outcome::kDone:
      break;
  }
  if (hasLock != nullptr) *hasLock = VI_FALSE;
  return VI_SUCCESS;
}

ViStatus _VI_FUNC IviSession_SetError(ViSession handle, ViStatus code, ViConstString description) {
  const auto replace = [&](ErrorRecord& error) { return error.Replace(code, description); };
  const ViStatus of_thread = WithError(0, replace);
  const ViStatus of_session = WithError(handle, replace);
  return of_session == IVI_ERROR_OUT_OF_MEMORY ? of_session : of_thread;
}

ViStatus _VI_FUNC IviSession_GetError(ViSession handle, ViInt32 bufferSize, ViStatus* code, ViChar description[]) {
  return WithError(handle, [&](ErrorRecord& error) { return error.GiveOut(bufferSize, code, description); });
}

ViStatus _VI_FUNC IviSession_ClearError(ViSession handle) {
  return WithError(handle, [](ErrorRecord& error) -> ViStatus {
    error.Clear();
    return VI_SUCCESS;
  });
}

ViStatus _VI_FUNC IviSession_Dispose(ViSession handle) {
  return g_sessions.Remove(handle) ? VI_SUCCESS : IVI_ERROR_INVALID_SESSION_HANDLE;
}
