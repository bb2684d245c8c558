// The instrument as a computer: its clock, time zones and options.

#include "KVTD481X2C.h"
#include "Tvr.h"
#include "operations.h"

using namespace tvr::operation;

namespace {

ViStatus QueryThree(const tvr::Operation& row, ViSession vi, ViInt32* first, ViInt32* second, ViInt32* third) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckNullParameters(vi, row.function, row.outputs, {first, second, third});
  if (status < 0) return status;
  if (tvr::SessionOf(vi).GetSimulate()) return VI_SUCCESS;
  return tvr::QueryAndCheck(vi, row.query, row.scan, first, second, third);
}

}  // namespace

ViStatus KVTD481X2C_GetSystemDate(ViSession Vi, ViInt32* Year, ViInt32* Month, ViInt32* Day) {
  return QueryThree(kGetSystemDate, Vi, Year, Month, Day);
}

ViStatus KVTD481X2C_GetSystemTime(ViSession Vi, ViInt32* Hour, ViInt32* Minute, ViInt32* Second) {
  return QueryThree(kGetSystemTime, Vi, Hour, Minute, Second);
}

ViStatus KVTD481X2C_SetSystemDate(ViSession Vi, ViInt32 Year, ViInt32 Month, ViInt32 Day) {
  return tvr::RunAction(kSetSystemDate, Vi, Year, Month, Day);
}

ViStatus KVTD481X2C_SetSystemTime(ViSession Vi, ViInt32 Hour, ViInt32 Minute, ViInt32 Second) {
  return tvr::RunAction(kSetSystemTime, Vi, Hour, Minute, Second);
}

ViStatus KVTD481X2C_GetTimeZoneCatalog(ViSession Vi, ViInt32 CatalogBufferSize, ViChar Catalog[]) {
  return tvr::RunTextQuery(kGetTimeZoneCatalog, Vi, CatalogBufferSize, Catalog);
}

ViStatus KVTD481X2C_GetSystemOptions(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]) {
  return tvr::RunTextQuery(kGetSystemOptions, Vi, ValBufferSize, Val);
}
