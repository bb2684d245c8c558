// Known states and health: resets, presets, self tests, waits.

#include "services/reset_status.h"

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "enums.h"
#include "operations.h"
#include "services/raised_timeout.h"

using namespace tvr::operation;

namespace {

constexpr ViInt32 kLowestTimeout = 10000;
constexpr ViInt32 kMessageSize = 256;

}  // namespace

ViStatus SendReset(ViSession vi) {
  const tvr::ScopedIoTimeout timeout(vi, tvr::SessionOf(vi).GetResetTimeout());
  ViStatus status = viPrintf(tvr::InstrumentOf(vi), "*RST\n");
  if (status < 0) return status;
  ViInt32 complete = 0;
  status = viQueryf(tvr::InstrumentOf(vi), "*OPC?\n", "%ld%*T", &complete);
  return status < 0 ? status : tvr::CheckInstrumentStatus(vi);
}

ViStatus ResetInstrument(ViSession vi) {
  const ViStatus status = tvr::SessionOf(vi).GetSimulate() ? VI_SUCCESS : SendReset(vi);
  if (status >= 0) tvr::SessionOf(vi).InvalidateAll();
  return status;
}

ViStatus KVTD481X2C_reset(ViSession Vi) {
  tvr::CallFrame call(Vi);
  return call.ok() ? ResetInstrument(Vi) : call.status();
}

ViStatus KVTD481X2C_ResetWithDefaults(ViSession Vi) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  const ViStatus status = ResetInstrument(Vi);
  return status < 0 ? status : tvr::SessionOf(Vi).RestoreInitialOptions();
}

ViStatus KVTD481X2C_ResetAll(ViSession Vi) { return tvr::RunUncheckedAction(kResetAll, Vi); }

ViStatus KVTD481X2C_FactoryReset(ViSession Vi) { return tvr::RunUncheckedAction(kFactoryReset, Vi); }

ViStatus KVTD481X2C_Shutdown(ViSession Vi) { return tvr::RunUncheckedAction(kShutdown, Vi); }

ViStatus KVTD481X2C_ResetSystemFiles(ViSession Vi, ViInt32 Scope) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;
  std::string_view word;
  const ViStatus status = tvr::ValueToCommand(Vi, maps::DataFileScope(), Scope, word);
  return status < 0 ? status : tvr::WriteAndCheck(Vi, kResetSystemFiles.write, word.data());
}

ViStatus KVTD481X2C_StatusPreset(ViSession Vi) { return tvr::RunAction(kStatusPreset, Vi); }

ViStatus KVTD481X2C_ClearStatus(ViSession Vi) { return tvr::RunAction(kClearStatus, Vi); }

ViStatus KVTD481X2C_Reboot(ViSession Vi) { return tvr::RunAction(kReboot, Vi); }

ViStatus KVTD481X2C_SetOperationComplete(ViSession Vi) { return tvr::RunAction(kSetOperationComplete, Vi); }

ViStatus KVTD481X2C_WaitToContinue(ViSession Vi) { return tvr::RunAction(kWaitToContinue, Vi); }

ViStatus KVTD481X2C_WaitForOperationComplete(ViSession Vi) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;
  ViInt32 complete = 0;
  const ViStatus status =
      viQueryf(tvr::InstrumentOf(Vi), kWaitForOperationComplete.query, kWaitForOperationComplete.scan, &complete);
  if (status < 0) return status;
  return complete == 1 ? tvr::CheckInstrumentStatus(Vi) : tvr::RaiseError(Vi, tvr::error::kUnexpectedResponse);
}

ViStatus KVTD481X2C_SystemPreset(ViSession Vi) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;
  RaisedTimeout timeout;
  ViStatus status = timeout.Raise(Vi, kLowestTimeout);
  if (status < 0) return status;
  status = viPrintf(tvr::InstrumentOf(Vi), kSystemPreset.write);
  if (status < 0) return status;
  return timeout.Restore(Vi, tvr::CheckInstrumentStatus(Vi));
}

ViStatus KVTD481X2C_self_test(ViSession Vi, ViInt16* TestResult, ViChar TestMessage[]) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckNullParameters(Vi, kSelf_test.function, kSelf_test.outputs, {TestResult, TestMessage});
  if (status < 0) return status;
  if (tvr::SessionOf(Vi).GetSimulate()) {
    *TestResult = 0;
  } else {
    const tvr::ScopedIoTimeout timeout(Vi, tvr::SessionOf(Vi).GetSelfTestTimeout());
    status = tvr::QueryAndCheck(Vi, kSelf_test.query, kSelf_test.scan, TestResult);
    if (status < 0) return status;
  }
  tvr::CopyText(*TestResult != 0 ? "Selftest failed" : "Selftest passed", kMessageSize, TestMessage);
  return status;
}

ViStatus KVTD481X2C_SelfTest(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckNullParameters(Vi, kSelfTest.function, kSelfTest.outputs, {Val});
  if (status < 0) return status;
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;
  RaisedTimeout timeout;
  if (status = timeout.Raise(Vi, kLowestTimeout); status < 0) return status;
  status = viQueryf(tvr::InstrumentOf(Vi), kSelfTest.query, kSelfTest.scan, &ValBufferSize, Val);
  if (status < 0) return status;
  return timeout.Restore(Vi, tvr::CheckInstrumentStatus(Vi));
}
