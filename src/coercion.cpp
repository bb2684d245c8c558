// Coercion records and interchange warnings: the class asks for them, and this driver coerces nothing and checks no
// interchange.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"

namespace {

ViStatus Refuse(ViSession vi, const char* function) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  return tvr::RaiseError(vi, tvr::error::kFunctionNotSupported, function);
}

}  // namespace

ViStatus KVTD481X2C_GetNextCoercionRecord(ViSession Vi, ViInt32 BufferSize, ViChar CoercionRecord[]) {
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  if (CoercionRecord == nullptr && BufferSize != 0) {
    return tvr::RaiseError(Vi, tvr::error::kNullPointer, "GetNextCoercionRecord", "CoercionRecord");
  }
  auto& records = tvr::SessionOf(Vi).CoercionRecords();
  const std::string record = records.empty() ? std::string() : records.front();
  const auto needed = static_cast<ViInt32>(record.size()) + 1;
  if (BufferSize == 0) return needed;

  // A record that was cut is gone all the same.
  tvr::CopyText(record, BufferSize < 0 ? needed : BufferSize, CoercionRecord);
  if (!records.empty()) records.pop_front();
  return BufferSize > 0 && BufferSize < needed ? needed : VI_SUCCESS;
}

ViStatus KVTD481X2C_GetNextInterchangeWarning(ViSession Vi, ViInt32 /*BufferSize*/, ViChar /*InterchangeWarning*/[]) {
  return Refuse(Vi, "GetNextInterchangeWarning");
}

ViStatus KVTD481X2C_ClearInterchangeWarnings(ViSession Vi) { return Refuse(Vi, "ClearInterchangeWarnings"); }

ViStatus KVTD481X2C_ResetInterchangeCheck(ViSession Vi) { return Refuse(Vi, "ResetInterchangeCheck"); }
