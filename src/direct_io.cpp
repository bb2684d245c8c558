// The caller's own exchanges on the session's link, and the link's handle and timeout. Refused in simulation.

#include <cstdint>

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "handlers.h"

namespace {

ViStatus RefuseSimulated(ViSession vi) {
  ViBoolean simulate = VI_FALSE;
  const ViStatus status = tvr::GetAttribute<ViBoolean>(vi, nullptr, KVTD481X2C_ATTR_SIMULATE, &simulate);
  if (status < 0 || simulate == VI_FALSE) return status;
  return tvr::RaiseErrorText(vi, tvr::error::kIoGeneral, "Direct I/O operations are not available in simulation mode.");
}

// Throws away the rest of a response, so that it does not answer the next query. An instrument that talks on without an
// end is given the I/O timeout as a whole, not anew for each piece.
ViStatus Drain(ViSession instrument) {
  ViUInt32 timeout = 0;
  ViStatus status = viGetAttribute(instrument, VI_ATTR_TMO_VALUE, &timeout);
  if (status < 0) return status;
  const std::uint64_t start = tvr::GetTickCount64();
  do {
    ViByte rest[4096];
    ViUInt32 read = 0;
    status = viRead(instrument, rest, sizeof rest, &read);
    if (status != VI_SUCCESS_MAX_CNT) return status;
  } while (timeout == VI_TMO_INFINITE || tvr::GetTickCount64() - start <= timeout);
  return VI_ERROR_TMO;
}

}  // namespace

ViStatus KVTD481X2C_get_SYSTEM_IO_SESSION(ViSession vi, ViConstString, ViSession* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_SYSTEM_IO_SESSION", value);
  if (status >= 0) status = RefuseSimulated(vi);
  if (status < 0) return status;
  *value = tvr::InstrumentOf(vi);
  return status;
}

ViStatus KVTD481X2C_get_SYSTEM_IO_TIMEOUT(ViSession vi, ViConstString, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_SYSTEM_IO_TIMEOUT", value);
  if (status >= 0) status = RefuseSimulated(vi);
  return status < 0 ? status : viGetAttribute(tvr::InstrumentOf(vi), VI_ATTR_TMO_VALUE, value);
}

ViStatus KVTD481X2C_set_SYSTEM_IO_TIMEOUT(ViSession vi, ViConstString, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = RefuseSimulated(vi);
  return status < 0 ? status : viSetAttribute(tvr::InstrumentOf(vi), VI_ATTR_TMO_VALUE, static_cast<ViUInt32>(value));
}

ViStatus KVTD481X2C_viRead(ViSession Vi, ViInt64 Count, ViByte Buffer[], ViInt64* ReturnCount) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (const ViStatus status = RefuseSimulated(Vi); status < 0) return status;

  const ViSession instrument = tvr::InstrumentOf(Vi);
  ViUInt32 read = 0;
  const ViStatus status = viRead(instrument, Buffer, static_cast<ViUInt32>(Count), &read);
  if (ReturnCount != nullptr) *ReturnCount = read;
  return status == VI_SUCCESS_MAX_CNT ? Drain(instrument) : status;
}

ViStatus KVTD481X2C_viWrite(ViSession Vi, ViInt64 Count, const ViByte Buffer[], ViInt64* ReturnCount) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (const ViStatus status = RefuseSimulated(Vi); status < 0) return status;

  ViUInt32 written = 0;
  const ViStatus status = viWrite(tvr::InstrumentOf(Vi), Buffer, static_cast<ViUInt32>(Count), &written);
  if (ReturnCount != nullptr) *ReturnCount = written;
  return status;
}
