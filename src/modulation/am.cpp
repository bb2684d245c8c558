// Amplitude modulation as the class sees it: a source, a scaling and a depth, routed to the instrument's own settings.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "enums.h"
#include "handlers.h"
#include "modulation/class_view.h"
#include "operations.h"

namespace {

// The setting that the depth stands for at this moment. With an external source that is the sensitivity.
ViStatus RouteDepth(ViSession vi, ViAttr& target) {
  ViInt32 source = 0;
  ViInt32 mode = 0;
  ViStatus status = KVTD481X2C_GetAMSourceEx(vi, &source);
  if (status >= 0) status = KVTD481X2C_GetAMMode(vi, &mode);
  if (status < 0) return status;
  const bool internal = source == KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL;
  if (mode == KVTD481X2C_VAL_AM_MODE_LINEAR) {
    target = internal ? KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT : KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_PERCENT;
  } else {
    target = internal ? KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_DB : KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_DB;
  }
  return status;
}

}  // namespace

ViStatus KVTD481X2C_get_AM_DEPTH(ViSession vi, ViConstString, ViReal64* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_AM_DEPTH", value);
  ViAttr target = 0;
  if (status >= 0) status = RouteDepth(vi, target);
  if (status < 0) return status;
  if (target == KVTD481X2C_ATTR_AM_INTERNAL_DEPTH_PERCENT) return KVTD481X2C_GetAMInternalDepthPercent(vi, value);
  if (target == KVTD481X2C_ATTR_AM_EXTERNAL_SENSITIVITY_PERCENT) {
    return KVTD481X2C_GetAMExternalSensitivityPercent(vi, value);
  }
  // Kept on purpose: a decibel value reaches the caller on plain success only, not behind a warning.
  ViReal64 decibels = 0.0;
  status = tvr::GetAttribute<ViReal64>(vi, nullptr, target, &decibels);
  if (status == VI_SUCCESS) *value = decibels;
  return status;
}

ViStatus KVTD481X2C_set_AM_DEPTH(ViSession vi, ViConstString, ViReal64 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViAttr target = 0;
  const ViStatus status = RouteDepth(vi, target);
  return status < 0 ? status : tvr::SetAttribute<ViReal64>(vi, nullptr, target, value);
}

ViStatus KVTD481X2C_get_AM_SCALING(ViSession vi, ViConstString, ViInt32* value) {
  return GetTwoValued(vi, "KVTD481X2C_ATTR_AM_SCALING", KVTD481X2C_ATTR_AM_MODE, value);
}

// Kept on purpose: the mode is read first, also for a value that is refused, and a failing read hides the refusal.
ViStatus KVTD481X2C_set_AM_SCALING(ViSession vi, ViConstString, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViInt32 mode = 0;
  if (const ViStatus status = KVTD481X2C_GetAMMode(vi, &mode); status < 0) return status;
  if (value == KVTD481X2C_VAL_AM_SCALING_LINEAR || value == KVTD481X2C_VAL_AM_SCALING_LOGARITHMIC) {
    return tvr::SetAttribute<ViInt32>(vi, nullptr, KVTD481X2C_ATTR_AM_MODE, value);
  }
  return tvr::RefuseValue(vi, maps::AmScaling(), value, "AM_SCALING");
}

ViStatus KVTD481X2C_get_AM_SOURCE(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetSourceName(vi, "KVTD481X2C_ATTR_AM_SOURCE", KVTD481X2C_ATTR_AM_SOURCE_EX, size, value);
}

ViStatus KVTD481X2C_set_AM_SOURCE(ViSession vi, ViConstString, ViConstString value) {
  return SetSourceName(vi, "KVTD481X2C_ATTR_AM_SOURCE", KVTD481X2C_ATTR_AM_SOURCE_EX, value);
}

ViStatus KVTD481X2C_get_AM_EXTERNAL_COUPLING(ViSession vi, ViConstString, ViInt32* value) {
  return GetDcCoupling(vi, "KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING", value);
}

ViStatus KVTD481X2C_set_AM_EXTERNAL_COUPLING(ViSession vi, ViConstString, ViInt32 value) {
  return SetDcCoupling(vi, "KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING", maps::AmExternalCoupling(), value);
}

ViStatus KVTD481X2C_get_AM_NOMINAL_VOLTAGE(ViSession vi, ViConstString, ViReal64* value) {
  return GetNominalVoltage(vi, "KVTD481X2C_ATTR_AM_NOMINAL_VOLTAGE", value);
}

// The order matters: the depth goes where the source and the scaling in front of it point.
ViStatus KVTD481X2C_ConfigureAM(ViSession Vi, ViConstString Source, ViInt32 Scaling, ViReal64 Depth) {
  return tvr::Configure(Vi, tvr::Setting<ViString>{KVTD481X2C_ATTR_AM_SOURCE, Source},
                        tvr::Setting<ViInt32>{KVTD481X2C_ATTR_AM_SCALING, Scaling},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_AM_DEPTH, Depth});
}

ViStatus KVTD481X2C_ConfigureAMEnabled(ViSession Vi, ViBoolean Enabled) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_AM_ENABLED, Enabled});
}

ViStatus KVTD481X2C_ConfigureAMExternalCoupling(ViSession Vi, ViInt32 Coupling) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_AM_EXTERNAL_COUPLING, Coupling});
}

ViStatus KVTD481X2C_MeasureAMDepth(ViSession Vi, ViReal64* Val) {
  return tvr::RunNumberQuery(tvr::operation::kMeasureAMDepth, Vi, Val);
}
