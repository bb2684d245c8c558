// Level and leveling. The class knows leveling as a switch, a source and a bandwidth; the instrument has a single
// leveling source, on which the first two are mapped.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "enums.h"
#include "handlers.h"
#include "operations.h"

using namespace tvr::operation;

namespace {

ViStatus SetSource(ViSession vi, ViInt32 source) {
  return tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_ALC_SOURCE_EX, source);
}

ViStatus RefuseBandwidth(ViSession vi) {
  return tvr::RaiseError(vi, tvr::error::kAttributeNotSupported, "ALC_BANDWIDTH");
}

}  // namespace

ViStatus KVTD481X2C_get_ALC_ENABLED(ViSession vi, ViConstString, ViBoolean* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_ALC_ENABLED", value);
  if (status < 0) return status;
  ViInt32 source = 0;
  if (status = KVTD481X2C_GetALCSourceEx(vi, &source); status < 0) return status;
  *value = source == KVTD481X2C_VAL_ALC_SOURCE_FIXED ? VI_FALSE : VI_TRUE;
  return status;
}

// Switching on leaves any source but the fixed one as it is. Which one was in use before switching off is not
// remembered.
ViStatus KVTD481X2C_set_ALC_ENABLED(ViSession vi, ViConstString, ViBoolean value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (value == VI_FALSE) return SetSource(vi, KVTD481X2C_VAL_ALC_SOURCE_FIXED);
  ViInt32 source = 0;
  const ViStatus status = KVTD481X2C_GetALCSourceEx(vi, &source);
  if (status < 0 || source != KVTD481X2C_VAL_ALC_SOURCE_FIXED) return status;
  return SetSource(vi, KVTD481X2C_VAL_ALC_SOURCE_INTERNAL);
}

ViStatus KVTD481X2C_get_ALC_SOURCE(ViSession vi, ViConstString, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_ALC_SOURCE", value);
  if (status < 0) return status;
  ViInt32 source = 0;
  if (status = KVTD481X2C_GetALCSourceEx(vi, &source); status < 0) return status;
  switch (source) {
    case KVTD481X2C_VAL_ALC_SOURCE_INTERNAL:
      *value = KVTD481X2C_VAL_ALC_SOURCE_INTERNAL;
      return status;
    case KVTD481X2C_VAL_ALC_SOURCE_DETECTOR:
      *value = KVTD481X2C_VAL_ALC_SOURCE_EXTERNAL;
      return status;
    default:
      return tvr::RaiseError(vi, tvr::error::kUnexpectedResponse);
  }
}

ViStatus KVTD481X2C_set_ALC_SOURCE(ViSession vi, ViConstString, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  switch (value) {
    case KVTD481X2C_VAL_ALC_SOURCE_INTERNAL:
      return SetSource(vi, KVTD481X2C_VAL_ALC_SOURCE_INTERNAL);
    case KVTD481X2C_VAL_ALC_SOURCE_EXTERNAL:
      return SetSource(vi, KVTD481X2C_VAL_ALC_SOURCE_DETECTOR);
    default:
      return tvr::RefuseValue(vi, maps::AlcSource(), value, "ALC_SOURCE");
  }
}

ViStatus KVTD481X2C_get_ALC_BANDWIDTH(ViSession vi, ViConstString, ViReal64* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_ALC_BANDWIDTH", value);
  return status < 0 ? status : RefuseBandwidth(vi);
}

ViStatus KVTD481X2C_set_ALC_BANDWIDTH(ViSession vi, ViConstString, ViReal64) {
  tvr::CallFrame call(vi);
  return call.ok() ? RefuseBandwidth(vi) : call.status();
}

ViStatus KVTD481X2C_ConfigureOutputEnabled(ViSession Vi, ViBoolean Enabled) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_OUTPUT_ENABLED, Enabled});
}

ViStatus KVTD481X2C_ConfigureALCEnabled(ViSession Vi, ViBoolean Enabled) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_ALC_ENABLED, Enabled});
}

// Cannot succeed: the instrument has no bandwidth to set. The source stays as set; ALC_SOURCE alone does not fail.
ViStatus KVTD481X2C_ConfigureALC(ViSession Vi, ViInt32 Source, ViReal64 Bandwidth) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_ALC_SOURCE, Source},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_ALC_BANDWIDTH, Bandwidth});
}

ViStatus KVTD481X2C_ClearPowerProtection(ViSession Vi) { return tvr::RunAction(kClearPowerProtection, Vi); }

ViStatus KVTD481X2C_SearchLowNoiseFloor(ViSession Vi) { return tvr::RunAction(kSearchLowNoiseFloor, Vi); }
