#include "modulation/class_view.h"

#include <cstring>

namespace {

constexpr const char* kSourceNames[] = {"Internal", "External"};

// Messages call an attribute by the part of its name behind the prefix.
const char* ShortName(const char* attribute) { return std::strstr(attribute, "_ATTR_") + std::strlen("_ATTR_"); }

}  // namespace

ViStatus GetSourceName(ViSession vi, const char* attribute, ViAttr source, ViInt32 size, ViChar* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, attribute, value);
  ViInt32 number = 0;
  if (status >= 0) status = tvr::GetAttribute<ViInt32>(vi, nullptr, source, &number);
  if (status < 0) return status;
  if (number != 0 && number != 1) return tvr::RaiseError(vi, tvr::error::kUnexpectedResponse);
  tvr::CopyText(kSourceNames[number], size, value);
  return status;
}

ViStatus SetSourceName(ViSession vi, const char* attribute, ViAttr source, ViConstString value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const std::string_view name = value == nullptr ? "" : value;
  for (ViInt32 number = 0; number < 2; ++number) {
    if (tvr::EqualIgnoringCase(name, kSourceNames[number])) {
      return tvr::SetAttribute<ViInt32>(vi, nullptr, source, number);
    }
  }
  return tvr::RaiseError(vi, tvr::error::kValueNotSupported, name.data(), "AttributeValue", ShortName(attribute));
}

ViStatus GetDcCoupling(ViSession vi, const char* attribute, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, attribute, value);
  if (status < 0) return status;
  *value = KVTD481X2C_VAL_AM_EXTERNAL_COUPLING_DC;
  return VI_SUCCESS;
}

ViStatus SetDcCoupling(ViSession vi, const char* attribute, const tvr::EnumMap& names, ViInt32 value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  if (value == KVTD481X2C_VAL_AM_EXTERNAL_COUPLING_DC) return VI_SUCCESS;
  return tvr::RefuseValue(vi, names, value, ShortName(attribute));
}

ViStatus GetNominalVoltage(ViSession vi, const char* attribute, ViReal64* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  const ViStatus status = tvr::CheckAttributeValue(vi, attribute, value);
  if (status < 0) return status;
  *value = 1.0;
  return VI_SUCCESS;
}

ViStatus GetTwoValued(ViSession vi, const char* attribute, ViAttr source, ViInt32* value) {
  tvr::CallFrame call(vi);
  if (!call.ok()) return call.status();
  ViStatus status = tvr::CheckAttributeValue(vi, attribute, value);
  ViInt32 number = 0;
  if (status >= 0) status = tvr::GetAttribute<ViInt32>(vi, nullptr, source, &number);
  if (status < 0) return status;
  if (number != 0 && number != 1) return tvr::RaiseError(vi, tvr::error::kUnexpectedResponse);
  *value = number;
  return status;
}
