// The ten generic exports. They take no lock and resolve no handle: the handlers do.

#include "KVTD481X2C.h"
#include "Tvr.h"

namespace {

template <class T>
ViStatus Get(ViSession vi, const char* function, ViConstString selector, ViAttr id, T* value) {
  if (value == nullptr) return tvr::CheckNullParameters(vi, function, "AttributeValue", {value});
  return tvr::GetAttribute<T>(vi, selector, id, value);
}

}  // namespace

ViStatus KVTD481X2C_GetAttributeViBoolean(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                          ViBoolean* AttributeValue) {
  return Get(Vi, "KVTD481X2C_GetAttributeViBoolean", RepCapIdentifier, AttributeID, AttributeValue);
}

ViStatus KVTD481X2C_GetAttributeViInt32(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                        ViInt32* AttributeValue) {
  return Get(Vi, "KVTD481X2C_GetAttributeViInt32", RepCapIdentifier, AttributeID, AttributeValue);
}

ViStatus KVTD481X2C_GetAttributeViReal64(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                         ViReal64* AttributeValue) {
  return Get(Vi, "KVTD481X2C_GetAttributeViReal64", RepCapIdentifier, AttributeID, AttributeValue);
}

ViStatus KVTD481X2C_GetAttributeViSession(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                          ViSession* AttributeValue) {
  return Get(Vi, "KVTD481X2C_GetAttributeViSession", RepCapIdentifier, AttributeID, AttributeValue);
}

ViStatus KVTD481X2C_GetAttributeViString(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                         ViInt32 AttributeValueBufferSize, ViChar AttributeValue[]) {
  return tvr::GetStringAttribute(Vi, RepCapIdentifier, AttributeID, AttributeValueBufferSize, AttributeValue);
}

ViStatus KVTD481X2C_SetAttributeViBoolean(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                          ViBoolean AttributeValue) {
  return tvr::SetAttribute<ViBoolean>(Vi, RepCapIdentifier, AttributeID, AttributeValue);
}

ViStatus KVTD481X2C_SetAttributeViInt32(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                        ViInt32 AttributeValue) {
  return tvr::SetAttribute<ViInt32>(Vi, RepCapIdentifier, AttributeID, AttributeValue);
}

ViStatus KVTD481X2C_SetAttributeViReal64(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                         ViReal64 AttributeValue) {
  return tvr::SetAttribute<ViReal64>(Vi, RepCapIdentifier, AttributeID, AttributeValue);
}

ViStatus KVTD481X2C_SetAttributeViSession(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                          ViSession AttributeValue) {
  return tvr::SetAttribute<ViSession>(Vi, RepCapIdentifier, AttributeID, AttributeValue);
}

ViStatus KVTD481X2C_SetAttributeViString(ViSession Vi, ViConstString RepCapIdentifier, ViAttr AttributeID,
                                         ViConstString AttributeValue) {
  return tvr::SetAttribute<ViString>(Vi, RepCapIdentifier, AttributeID, AttributeValue);
}
