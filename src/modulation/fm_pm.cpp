// Frequency and phase modulation as the class sees them: twins of amplitude modulation without a scaling.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "enums.h"
#include "handlers.h"
#include "modulation/class_view.h"
#include "operations.h"

using namespace tvr::operation;

namespace {

const tvr::RepeatedCapability& AnalogModulationSources() {
  static const tvr::RepeatedCapability capability("AnalogModulationSource", "Internal,External");
  return capability;
}

// Where a deviation goes: with an external source to the sensitivity, with no conversion.
struct DeviationRoute {
  ViAttr source;
  ViAttr internal;
  ViAttr external;
};

constexpr DeviationRoute kFm{KVTD481X2C_ATTR_FM_SOURCE_EX, KVTD481X2C_ATTR_FM_INTERNAL_DEVIATION,
                             KVTD481X2C_ATTR_FM_EXTERNAL_SENSITIVITY};
constexpr DeviationRoute kPm{KVTD481X2C_ATTR_PM_SOURCE_EX, KVTD481X2C_ATTR_PM_INTERNAL_DEVIATION,
                             KVTD481X2C_ATTR_PM_EXTERNAL_SENSITIVITY};

ViStatus RouteDeviation(ViSession vi, const DeviationRoute& route, ViAttr& target) {
  ViInt32 source = 0;
  const ViStatus status = tvr::GetAttribute<ViInt32>(vi, nullptr, route.source, &source);
  target = source == KVTD481X2C_VAL_MODULATION_SOURCE_INTERNAL ? route.internal : route.external;
  return status;
}

ViStatus GetDeviation(ViSession vi, const char* attribute, const DeviationRoute& route, ViReal64* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, attribute, value);
  ViAttr target = 0;
  if (status >= 0) status = RouteDeviation(vi, route, target);
  return status < 0 ? status : tvr::GetAttribute<ViReal64>(vi, nullptr, target, value);
}

ViStatus SetDeviation(ViSession vi, const DeviationRoute& route, ViReal64 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViAttr target = 0;
  const ViStatus status = RouteDeviation(vi, route, target);
  return status < 0 ? status : tvr::SetAttribute<ViReal64>(vi, nullptr, target, value);
}

}  // namespace

ViStatus KVTD481X2C_get_FM_DEVIATION(ViSession vi, ViConstString, ViReal64* value) {
  return GetDeviation(vi, "KVTD481X2C_ATTR_FM_DEVIATION", kFm, value);
}

ViStatus KVTD481X2C_set_FM_DEVIATION(ViSession vi, ViConstString, ViReal64 value) {
  return SetDeviation(vi, kFm, value);
}

ViStatus KVTD481X2C_get_FM_SOURCE(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetSourceName(vi, "KVTD481X2C_ATTR_FM_SOURCE", KVTD481X2C_ATTR_FM_SOURCE_EX, size, value);
}

ViStatus KVTD481X2C_set_FM_SOURCE(ViSession vi, ViConstString, ViConstString value) {
  return SetSourceName(vi, "KVTD481X2C_ATTR_FM_SOURCE", KVTD481X2C_ATTR_FM_SOURCE_EX, value);
}

ViStatus KVTD481X2C_get_FM_EXTERNAL_COUPLING(ViSession vi, ViConstString, ViInt32* value) {
  return GetDcCoupling(vi, "KVTD481X2C_ATTR_FM_EXTERNAL_COUPLING", value);
}

ViStatus KVTD481X2C_set_FM_EXTERNAL_COUPLING(ViSession vi, ViConstString, ViInt32 value) {
  return SetDcCoupling(vi, "KVTD481X2C_ATTR_FM_EXTERNAL_COUPLING", maps::FmExternalCoupling(), value);
}

ViStatus KVTD481X2C_get_FM_NOMINAL_VOLTAGE(ViSession vi, ViConstString, ViReal64* value) {
  return GetNominalVoltage(vi, "KVTD481X2C_ATTR_FM_NOMINAL_VOLTAGE", value);
}

ViStatus KVTD481X2C_get_PM_DEVIATION(ViSession vi, ViConstString, ViReal64* value) {
  return GetDeviation(vi, "KVTD481X2C_ATTR_PM_DEVIATION", kPm, value);
}

ViStatus KVTD481X2C_set_PM_DEVIATION(ViSession vi, ViConstString, ViReal64 value) {
  return SetDeviation(vi, kPm, value);
}

ViStatus KVTD481X2C_get_PM_SOURCE(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetSourceName(vi, "KVTD481X2C_ATTR_PM_SOURCE", KVTD481X2C_ATTR_PM_SOURCE_EX, size, value);
}

ViStatus KVTD481X2C_set_PM_SOURCE(ViSession vi, ViConstString, ViConstString value) {
  return SetSourceName(vi, "KVTD481X2C_ATTR_PM_SOURCE", KVTD481X2C_ATTR_PM_SOURCE_EX, value);
}

ViStatus KVTD481X2C_get_PM_EXTERNAL_COUPLING(ViSession vi, ViConstString, ViInt32* value) {
  return GetDcCoupling(vi, "KVTD481X2C_ATTR_PM_EXTERNAL_COUPLING", value);
}

ViStatus KVTD481X2C_set_PM_EXTERNAL_COUPLING(ViSession vi, ViConstString, ViInt32 value) {
  return SetDcCoupling(vi, "KVTD481X2C_ATTR_PM_EXTERNAL_COUPLING", maps::PmExternalCoupling(), value);
}

ViStatus KVTD481X2C_get_PM_NOMINAL_VOLTAGE(ViSession vi, ViConstString, ViReal64* value) {
  return GetNominalVoltage(vi, "KVTD481X2C_ATTR_PM_NOMINAL_VOLTAGE", value);
}

ViStatus KVTD481X2C_get_ANALOG_MODULATION_SOURCE_COUNT(ViSession vi, ViConstString, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, "KVTD481X2C_ATTR_ANALOG_MODULATION_SOURCE_COUNT", value);
  if (status < 0) return status;
  *value = static_cast<ViInt32>(AnalogModulationSources().identifiers().size());
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_GetAnalogModulationSourceName(ViSession Vi, ViInt32 Index, ViInt32 Size, ViChar Name[]) {
  return AnalogModulationSources().GetName(Vi, kGetAnalogModulationSourceName.function, Index, Size, Name);
}

ViStatus KVTD481X2C_ConfigureFM(ViSession Vi, ViConstString Source, ViReal64 Deviation) {
  return tvr::Configure(Vi, tvr::Setting<ViString>{KVTD481X2C_ATTR_FM_SOURCE, Source},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_FM_DEVIATION, Deviation});
}

ViStatus KVTD481X2C_ConfigurePM(ViSession Vi, ViConstString Source, ViReal64 Deviation) {
  return tvr::Configure(Vi, tvr::Setting<ViString>{KVTD481X2C_ATTR_PM_SOURCE, Source},
                        tvr::Setting<ViReal64>{KVTD481X2C_ATTR_PM_DEVIATION, Deviation});
}

ViStatus KVTD481X2C_ConfigureFMEnabled(ViSession Vi, ViBoolean Enabled) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_FM_ENABLED, Enabled});
}

ViStatus KVTD481X2C_ConfigurePMEnabled(ViSession Vi, ViBoolean Enabled) {
  return tvr::Configure(Vi, tvr::Setting<ViBoolean>{KVTD481X2C_ATTR_PM_ENABLED, Enabled});
}

ViStatus KVTD481X2C_ConfigureFMExternalCoupling(ViSession Vi, ViInt32 Coupling) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_FM_EXTERNAL_COUPLING, Coupling});
}

ViStatus KVTD481X2C_ConfigurePMExternalCoupling(ViSession Vi, ViInt32 Coupling) {
  return tvr::Configure(Vi, tvr::Setting<ViInt32>{KVTD481X2C_ATTR_PM_EXTERNAL_COUPLING, Coupling});
}

ViStatus KVTD481X2C_MeasureFMDepth(ViSession Vi, ViReal64* Val) {
  return tvr::RunNumberQuery(kMeasureFMDepth, Vi, Val);
}

ViStatus KVTD481X2C_MeasurePMDepth(ViSession Vi, ViReal64* Val) {
  return tvr::RunNumberQuery(kMeasurePMDepth, Vi, Val);
}
