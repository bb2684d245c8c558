// Firmware packages: the driver asks and tells, the instrument fetches and installs.

#include <string_view>

#include "KVTD481X2C.h"
#include "Tvr.h"
#include "operations.h"

using namespace tvr::operation;

ViStatus KVTD481X2C_RefreshRemotePackageList(ViSession Vi) { return tvr::RunAction(kRefreshRemotePackageList, Vi); }

ViStatus KVTD481X2C_UpdateFirmware(ViSession Vi, ViConstString First, ViConstString Second) {
  return tvr::RunAction(kUpdateFirmware, Vi, First, Second);
}

ViStatus KVTD481X2C_UpdateFirmwareFromRemote(ViSession Vi, ViConstString Package) {
  return tvr::RunAction(kUpdateFirmwareFromRemote, Vi, Package);
}

ViStatus KVTD481X2C_GetUsbPackageList(ViSession Vi, ViInt32 ValBufferSize, ViChar Val[]) {
  return tvr::RunTextQuery(kGetUsbPackageList, Vi, ValBufferSize, Val);
}

// The answer names the latest package and says whether it is newer. What it says reaches the caller also when it is no
// boolean.
ViStatus KVTD481X2C_CheckForFirmwareUpdates(ViSession Vi, ViInt32 PackageBufferSize, ViChar Package[], ViBoolean* Val) {
  const tvr::Operation& row = kCheckForFirmwareUpdates;
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckNullParameters(Vi, row.function, row.outputs, {Package, Val});
  if (status < 0) return status;
  if (tvr::SessionOf(Vi).GetSimulate()) return VI_SUCCESS;

  ViChar available[256] = "";
  ViInt32 available_size = sizeof available;
  status =
      viQueryf(tvr::InstrumentOf(Vi), row.query, row.scan, &PackageBufferSize, Package, &available_size, available);
  if (status < 0) return status;
  ViInt32 value = 0;
  status = tvr::ResponseToValue(Vi, tvr::BooleanMap(), available, value);
  *Val = static_cast<ViBoolean>(value);
  return status < 0 ? status : tvr::CheckInstrumentStatus(Vi);
}
