// Opening and closing a session, its lock, its cache.

#include <IviCShared.h>

#include <memory>
#include <string>

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "modulation/lf_generator.h"
#include "services/reset_status.h"

namespace {

// Gets a handle and a session object behind it, and brings the session up. After a failure nothing is left: the handle
// that nobody has seen goes as well, while its error text stays with the thread.
ViStatus CreateSession(ViRsrc resource_name, bool id_query, bool reset, ViConstString option_string, ViSession* vi) {
  *vi = VI_NULL;
  ViSession handle = VI_NULL;
  if (const ViStatus status = IviSession_New(&handle); status < 0) return status;

  struct Handle {
    ~Handle() {
      if (vi != VI_NULL) IviSession_Dispose(vi);
    }
    ViSession vi;
  } owned{handle};

  auto session = std::make_unique<TD481X2CDriverSession>(handle);
  ViStatus status = IviSession_SetDataPtr(handle, static_cast<tvr::DriverSession*>(session.get()));
  if (status >= 0) {
    status = session->BringUp(resource_name, id_query, reset, option_string);
  }
  if (status < 0) return status;
  static_cast<void>(session.release());  // the handle leads to it now
  owned.vi = VI_NULL;
  *vi = handle;
  return status;
}

// The units that the driver's numbers are in. Sent without the lock: nobody else knows the handle yet.
ViStatus SetUnits(ViSession vi) {
  ViStatus status = tvr::WriteAndCheck(vi, ":UNIT:POW DBM\n");
  if (status >= 0) status = tvr::WriteAndCheck(vi, ":UNIT:TIME S\n");
  return status;
}

}  // namespace

ViStatus KVTD481X2C_init(ViRsrc ResourceName, ViBoolean IdQuery, ViBoolean Reset, ViSession* Vi) {
  return KVTD481X2C_InitWithOptions(ResourceName, IdQuery, Reset, "", Vi);
}

ViStatus KVTD481X2C_InitWithOptions(ViRsrc ResourceName, ViBoolean IdQuery, ViBoolean Reset, ViConstString OptionString,
                                    ViSession* Vi) {
  if (Vi == nullptr) return tvr::error::kNullPointer;
  ViStatus status = CreateSession(ResourceName, IdQuery == VI_TRUE, Reset == VI_TRUE, OptionString, Vi);
  if (status < 0) return status;

  // From here on a failure leaves an open session, which the caller has to close.
  if (Reset != VI_FALSE) {
    tvr::CallFrame call(*Vi);
    if (!call.ok()) return call.status();
    if (status = ResetInstrument(*Vi); status < 0) return status;
  }
  if (status = SelectLfGenerator(*Vi, "AM"); status < 0) return status;
  if (tvr::SessionOf(*Vi).GetSimulate()) return status;
  return SetUnits(*Vi);
}

ViStatus KVTD481X2C_close(ViSession Vi) {
  ViAddr data = nullptr;
  const ViStatus status = IviSession_GetDataPtr(Vi, &data);
  if (status < 0) return tvr::error::kInvalidSessionHandle;
  auto* const pSession = static_cast<tvr::DriverSession*>(data);
  assert(pSession != nullptr && "Failed to retrieve driver session.");
  if (pSession == nullptr) return status;

  pSession->CloseSession();
  delete pSession;
  return IviSession_Dispose(Vi);
}

ViStatus KVTD481X2C_LockSession(ViSession Vi, ViBoolean* CallerHasLock) {
  tvr::CallFrame call(Vi);
  return call.ok() ? IviSession_Lock(Vi, CallerHasLock) : call.status();
}

ViStatus KVTD481X2C_UnlockSession(ViSession Vi, ViBoolean* CallerHasLock) {
  tvr::CallFrame call(Vi);
  return call.ok() ? IviSession_Unlock(Vi, CallerHasLock) : call.status();
}

ViStatus KVTD481X2C_InvalidateAllAttributes(ViSession Vi) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  tvr::SessionOf(Vi).InvalidateAll();
  return VI_SUCCESS;
}
