// The frame around every call: the handle resolves, the session is locked to the end of the scope.
#pragma once

#include <IviCShared.h>

#include "Assertions.h"
#include "DriverSession.h"
#include "error_codes.h"

namespace tvr {

// The session behind a handle, or null. Code inside a frame asks anew at each use and keeps no pointer.
inline DriverSession* FindSession(ViSession vi) {
  ViAddr session = nullptr;
  return IviSession_GetDataPtr(vi, &session) < 0 ? nullptr : static_cast<DriverSession*>(session);
}

// Inside a frame, whose lock keeps the session from being closed.
inline DriverSession& SessionOf(ViSession vi) {
  DriverSession* const session = FindSession(vi);
  assert(session != nullptr);
  return *session;
}

inline ViStatus CheckInstrumentStatus(ViSession vi) { return SessionOf(vi).CheckInstrumentStatus(); }

inline ViSession InstrumentOf(ViSession vi) { return SessionOf(vi).InstrumentSession(); }

class CallFrame {
 public:
  // A handle that does not resolve is answered bare: nothing is recorded, as there is no session to record it for.
  explicit CallFrame(ViSession vi) : vi_(vi) {
    if (FindSession(vi) == nullptr) {
      status_ = error::kInvalidSessionHandle;
      return;
    }
    const ViStatus status = IviSession_Lock(vi, nullptr);
    assert(status >= 0);
    status_ = status;
    locked_ = status >= 0;
  }

  CallFrame(const CallFrame&) = delete;
  CallFrame& operator=(const CallFrame&) = delete;

  ~CallFrame() {
    if (!locked_) return;
    const ViStatus status = IviSession_Unlock(vi_, nullptr);
    assert(status >= 0);
  }

  bool ok() const { return locked_; }
  ViStatus status() const { return status_; }

 private:
  ViSession vi_;
  ViStatus status_ = VI_SUCCESS;
  bool locked_ = false;
};

}  // namespace tvr
