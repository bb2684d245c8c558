// Attributes that the session answers by itself: the inherent options, and who the driver and the instrument are.

#include "KVTD481X2C.h"
#include "TD481X2CDriverSession.h"
#include "handlers.h"
#include "operations.h"

namespace {

using Session = tvr::DriverSession;

ViStatus GetFlag(ViSession vi, const char* attribute, ViBoolean* value, bool (Session::*get)() const) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (const ViStatus status = tvr::CheckAttributeValue(vi, attribute, value); status < 0) return status;
  *value = (tvr::SessionOf(vi).*get)() ? VI_TRUE : VI_FALSE;
  return VI_SUCCESS;
}

// Exactly 1 switches on; every other value switches off.
ViStatus SetFlag(ViSession vi, ViBoolean value, void (Session::*set)(bool)) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  (tvr::SessionOf(vi).*set)(value == VI_TRUE);
  return VI_SUCCESS;
}

ViStatus GetSessionText(ViSession vi, const char* attribute, ViInt32 size, ViChar* value,
                        const std::string& (Session::*get)() const) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (const ViStatus status = tvr::CheckAttributeValue(vi, attribute, value); status < 0) return status;
  tvr::CopyText((tvr::SessionOf(vi).*get)(), size, value);
  return VI_SUCCESS;
}

// Constants of the driver answer for any handle, also for one that is not open.
ViStatus GetConstantText(ViSession vi, const char* attribute, ViInt32 size, ViChar* value, std::string_view text) {
  if (const ViStatus status = tvr::CheckAttributeValue(vi, attribute, value); status < 0) return status;
  tvr::CopyText(text, size, value);
  return VI_SUCCESS;
}

ViStatus GetConstantNumber(ViSession vi, const char* attribute, ViInt32* value, ViInt32 number) {
  if (const ViStatus status = tvr::CheckAttributeValue(vi, attribute, value); status < 0) return status;
  *value = number;
  return VI_SUCCESS;
}

const std::string& SupportedModels() {
  static const std::string models = [] {
    std::string text;
    for (const auto& [model, family] : tvr::ModelFamilies()) text.append(text.empty() ? "" : ",").append(model);
    return text;
  }();
  return models;
}

const std::string& FirmwareRevision(ViSession vi) {
  static const std::string simulated = std::string("Sim") + tvr::Identity().revision;
  const Session& session = tvr::SessionOf(vi);
  return session.GetSimulate() ? simulated : session.GetInstrumentFirmwareRevision();
}

std::string_view Manufacturer(ViSession vi) {
  const Session& session = tvr::SessionOf(vi);
  if (session.GetSimulate()) return tvr::Identity().vendor;
  return session.GetInstrumentManufacturer();
}

}  // namespace

#define NAME(attribute) "KVTD481X2C_ATTR_" #attribute

ViStatus KVTD481X2C_get_RANGE_CHECK(ViSession vi, ViConstString, ViBoolean* value) {
  return GetFlag(vi, NAME(RANGE_CHECK), value, &Session::GetRangeCheck);
}

ViStatus KVTD481X2C_set_RANGE_CHECK(ViSession vi, ViConstString, ViBoolean value) {
  return SetFlag(vi, value, &Session::SetRangeCheck);
}

ViStatus KVTD481X2C_get_QUERY_INSTRUMENT_STATUS(ViSession vi, ViConstString, ViBoolean* value) {
  return GetFlag(vi, NAME(QUERY_INSTRUMENT_STATUS), value, &Session::GetQueryInstrStatus);
}

ViStatus KVTD481X2C_set_QUERY_INSTRUMENT_STATUS(ViSession vi, ViConstString, ViBoolean value) {
  return SetFlag(vi, value, &Session::SetQueryInstrStatus);
}

ViStatus KVTD481X2C_get_CACHE(ViSession vi, ViConstString, ViBoolean* value) {
  return GetFlag(vi, NAME(CACHE), value, &Session::GetCache);
}

ViStatus KVTD481X2C_set_CACHE(ViSession vi, ViConstString, ViBoolean value) {
  return SetFlag(vi, value, &Session::SetCache);
}

ViStatus KVTD481X2C_get_RECORD_COERCIONS(ViSession vi, ViConstString, ViBoolean* value) {
  return GetFlag(vi, NAME(RECORD_COERCIONS), value, &Session::GetRecordCoercions);
}

ViStatus KVTD481X2C_set_RECORD_COERCIONS(ViSession vi, ViConstString, ViBoolean value) {
  return SetFlag(vi, value, &Session::SetRecordCoercions);
}

ViStatus KVTD481X2C_get_SIMULATE(ViSession vi, ViConstString, ViBoolean* value) {
  return GetFlag(vi, NAME(SIMULATE), value, &Session::GetSimulate);
}

// Only 0 is refused, while only 1 simulates: a session that began simulating and is given 2 runs on without a link.
ViStatus KVTD481X2C_set_SIMULATE(ViSession vi, ViConstString, ViBoolean value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (tvr::SessionOf(vi).GetInitialSimulate() && value == VI_FALSE) {
    return tvr::RaiseError(vi, tvr::error::kCannotChangeSimulationState);
  }
  tvr::SessionOf(vi).SetSimulate(value == VI_TRUE);
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_get_INTERCHANGE_CHECK(ViSession vi, ViConstString, ViBoolean* value) {
  return GetFlag(vi, NAME(INTERCHANGE_CHECK), value, &Session::GetInterchangeCheck);
}

ViStatus KVTD481X2C_set_INTERCHANGE_CHECK(ViSession vi, ViConstString, ViBoolean value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (value == VI_TRUE && !tvr::SessionOf(vi).SupportsInterchangeCheck()) {
    return tvr::RaiseErrorText(vi, tvr::error::kValueNotSupported,
                               "Interchange checking is not supported by the driver.", "True", "AttributeValue",
                               "SetAttributeViBoolean");
  }
  tvr::SessionOf(vi).SetInterchangeCheck(value == VI_TRUE);
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_get_DRIVER_SETUP(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetSessionText(vi, NAME(DRIVER_SETUP), size, value, &Session::GetDriverSetup);
}

ViStatus KVTD481X2C_get_IO_RESOURCE_DESCRIPTOR(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetSessionText(vi, NAME(IO_RESOURCE_DESCRIPTOR), size, value, &Session::GetIoResourceDescriptor);
}

ViStatus KVTD481X2C_get_LOGICAL_NAME(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetSessionText(vi, NAME(LOGICAL_NAME), size, value, &Session::GetLogicalName);
}

ViStatus KVTD481X2C_get_SUPPORTED_INSTRUMENT_MODELS(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetConstantText(vi, NAME(SUPPORTED_INSTRUMENT_MODELS), size, value, SupportedModels());
}

ViStatus KVTD481X2C_get_GROUP_CAPABILITIES(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetConstantText(vi, NAME(GROUP_CAPABILITIES), size, value, tvr::Identity().group_capabilities);
}

ViStatus KVTD481X2C_get_SPECIFIC_DRIVER_PREFIX(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetConstantText(vi, NAME(SPECIFIC_DRIVER_PREFIX), size, value, tvr::Identity().prefix);
}

ViStatus KVTD481X2C_get_SPECIFIC_DRIVER_VENDOR(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetConstantText(vi, NAME(SPECIFIC_DRIVER_VENDOR), size, value, tvr::Identity().vendor);
}

ViStatus KVTD481X2C_get_SPECIFIC_DRIVER_DESCRIPTION(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetConstantText(vi, NAME(SPECIFIC_DRIVER_DESCRIPTION), size, value, tvr::Identity().description);
}

ViStatus KVTD481X2C_get_SPECIFIC_DRIVER_REVISION(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetConstantText(vi, NAME(SPECIFIC_DRIVER_REVISION), size, value, tvr::Identity().revision);
}

ViStatus KVTD481X2C_get_SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION(ViSession vi, ViConstString, ViInt32* value) {
  return GetConstantNumber(vi, NAME(SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION), value, tvr::Identity().class_spec_major);
}

ViStatus KVTD481X2C_get_SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION(ViSession vi, ViConstString, ViInt32* value) {
  return GetConstantNumber(vi, NAME(SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION), value, tvr::Identity().class_spec_minor);
}

ViStatus KVTD481X2C_get_INSTRUMENT_FIRMWARE_REVISION(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, NAME(INSTRUMENT_FIRMWARE_REVISION), value);
  if (status < 0) return status;
  tvr::CopyText(FirmwareRevision(vi), size, value);
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_get_INSTRUMENT_MANUFACTURER(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, NAME(INSTRUMENT_MANUFACTURER), value);
  if (status < 0) return status;
  tvr::CopyText(Manufacturer(vi), size, value);
  return VI_SUCCESS;
}

ViStatus KVTD481X2C_get_INSTRUMENT_MODEL(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return GetSessionText(vi, NAME(INSTRUMENT_MODEL), size, value, &Session::GetInstrumentModel);
}

#undef NAME

ViStatus KVTD481X2C_revision_query(ViSession Vi, ViChar DriverRev[], ViChar InstrRev[]) {
  constexpr ViInt32 kRevisionSize = 256;
  tvr::CallFrame call(Vi);
  if (!call.ok()) return call.status();
  tvr::CopyText(tvr::Identity().revision, kRevisionSize, DriverRev);
  tvr::CopyText(FirmwareRevision(Vi), kRevisionSize, InstrRev);
  return VI_SUCCESS;
}
