// The settle mark. The instrument is never asked whether it has settled: what there is, is one number that the setters
// of output, frequency and level leave behind.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "handlers.h"
#include "operations.h"

namespace {

constexpr ViInt32 kSettledFrom = 20;
constexpr unsigned kSettlingMilliseconds = 20;

// The low 32 bits of the tick, which are negative for half of every 49.7 days. Kept on purpose, and taken as they come.
ViInt32 Stamp() { return static_cast<ViInt32>(static_cast<ViUInt32>(tvr::GetTickCount64())); }

}  // namespace

// A change while the output is off leaves the mark alone.
ViStatus RefreshSettleMark(ViSession vi, ViReal64 /*value*/, ViStatus status) {
  ViInt32& mark = ConcreteSession(vi).SettleMark;
  if (mark > 0) mark = Stamp();
  return status;
}

ViStatus SwitchSettleMark(ViSession vi, ViBoolean value, ViStatus status) {
  ViInt32& mark = ConcreteSession(vi).SettleMark;
  if (value == VI_FALSE) {
    mark = -1;
  } else if (mark <= 0) {
    mark = Stamp();
  }
  return status;
}

// Kept on purpose: the mark is compared with a constant and not with the time.
ViStatus KVTD481X2C_IsSettled(ViSession Vi, ViBoolean* Done) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  constexpr const tvr::Operation& row = tvr::operation::kIsSettled;
  if (const ViStatus status = tvr::CheckNullParameters(Vi, row.function, row.outputs, {Done}); status < 0) {
    return status;
  }
  *Done = ConcreteSession(Vi).SettleMark >= kSettledFrom ? VI_TRUE : VI_FALSE;
  return VI_SUCCESS;
}

// Kept on purpose: always the same short wait, under the lock, whatever the caller allows.
ViStatus KVTD481X2C_WaitUntilSettled(ViSession Vi, ViInt32 /*MaxTimeMilliseconds*/) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  tvr::Sleep(kSettlingMilliseconds);
  return VI_SUCCESS;
}
