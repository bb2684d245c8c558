#include "FakeIvi.h"

#include <cstdio>
#include <set>

namespace kvtd::test {
namespace {

ViStatus StatusOf(const char* function) {
  const auto found = Ivi().statuses.find(function);
  return found == Ivi().statuses.end() ? VI_SUCCESS : found->second;
}

ViStatus Note(const char* function, const std::string& handle) {
  Ivi().calls.push_back(std::string(function) + ' ' + handle);
  return StatusOf(function);
}

// A handle of the store is the address of its kind's name.
void* HandleOf(const std::string& kind) {
  static std::set<std::string> kinds;
  return const_cast<std::string*>(&*kinds.insert(kind).first);
}

std::string KindOf(IviConfigHandle handle) {
  return handle == nullptr ? "nothing" : *static_cast<const std::string*>(handle);
}

ViStatus Give(const char* function, IviConfigHandle from, const std::string& kind, IviConfigHandle* handle) {
  const ViStatus status = Note(function, KindOf(from));
  if (status >= 0) *handle = HandleOf(kind);
  return status;
}

template <class T>
ViStatus GiveValue(const char* function, IviConfigHandle from, T value, T* output) {
  const ViStatus status = Note(function, KindOf(from));
  if (status >= 0) *output = value;
  return status;
}

ViStatus GiveText(const char* function, IviConfigHandle from, const std::string& text, ViInt32 size, ViChar* output) {
  const ViStatus status = Note(function, KindOf(from));
  if (status >= 0) std::snprintf(output, static_cast<std::size_t>(size), "%s", text.c_str());
  return status;
}

// The handle of a setting ends with its index.
const FakeIvi::Setting& SettingOf(IviConfigHandle item) {
  return Ivi().settings.at(std::stoul(KindOf(item).substr(8)) - 1);
}

}  // namespace

FakeIvi& Ivi() {
  static FakeIvi ivi;
  return ivi;
}

std::vector<std::string> FakeIvi::CallsOf(const std::string& beginning) const {
  std::vector<std::string> found;
  for (const std::string& call : calls) {
    if (call.starts_with(beginning)) found.push_back(call);
  }
  return found;
}

}  // namespace kvtd::test

using namespace kvtd::test;

#define HANDLE(function, kind)                                                \
  ViStatus _VI_FUNC function(IviConfigHandle from, IviConfigHandle* handle) { \
    return Give(#function, from, kind, handle);                               \
  }
#define HANDLE_BY_INDEX(function, kind)                                                \
  ViStatus _VI_FUNC function(IviConfigHandle from, ViInt32, IviConfigHandle* handle) { \
    return Give(#function, from, kind, handle);                                        \
  }
#define ONE(function)                                                \
  ViStatus _VI_FUNC function(IviConfigHandle from, ViInt32* count) { \
    return GiveValue<ViInt32>(#function, from, 1, count);            \
  }
#define VALUE(function, type)                                              \
  ViStatus _VI_FUNC function(IviConfigHandle from, ViInt32, type* value) { \
    return GiveValue<type>(#function, from, type{}, value);                \
  }
#define TEXT(function, text)                                                                \
  ViStatus _VI_FUNC function(IviConfigHandle from, ViInt32, ViInt32 size, ViChar value[]) { \
    return GiveText(#function, from, text, size, value);                                    \
  }

extern "C" {

ViStatus _VI_FUNC IviSession_New(ViSession* handle) {
  const ViStatus status = Note("IviSession_New", "");
  *handle = status < 0 ? VI_NULL : FakeIvi::kHandle;
  return status;
}

ViStatus _VI_FUNC IviSession_SetDataPtr(ViSession, ViAddr dataPtr) {
  const ViStatus status = StatusOf("IviSession_SetDataPtr");
  if (status >= 0) Ivi().data = dataPtr;
  return status;
}

ViStatus _VI_FUNC IviSession_GetDataPtr(ViSession handle, ViAddr* dataPtr) {
  if (handle != FakeIvi::kHandle) return IVI_ERROR_INVALID_SESSION_HANDLE;
  *dataPtr = Ivi().data;
  return VI_SUCCESS;
}

ViStatus _VI_FUNC IviSession_Lock(ViSession handle, ViBoolean*) {
  return Note("IviSession_Lock", std::to_string(handle));
}

ViStatus _VI_FUNC IviSession_Unlock(ViSession handle, ViBoolean*) {
  return Note("IviSession_Unlock", std::to_string(handle));
}

ViStatus _VI_FUNC IviSession_SetError(ViSession, ViStatus code, ViConstString description) {
  const ViStatus status = StatusOf("IviSession_SetError");
  if (status < 0) return status;
  Ivi().error_code = code;
  Ivi().error_text = description;
  return status;
}

ViStatus _VI_FUNC IviSession_GetError(ViSession, ViInt32 size, ViStatus* code, ViChar description[]) {
  *code = Ivi().error_code;
  std::snprintf(description, static_cast<std::size_t>(size), "%s", Ivi().error_text.c_str());
  return VI_SUCCESS;
}

ViStatus _VI_FUNC IviSession_ClearError(ViSession) { return VI_SUCCESS; }

ViStatus _VI_FUNC IviSession_Dispose(ViSession handle) {
  Ivi().data = nullptr;
  return Note("IviSession_Dispose", std::to_string(handle));
}

ViStatus _VI_FUNC IviConfig_Initialize(IviConfigStoreHandle* store) {
  return Give("IviConfig_Initialize", nullptr, "store", store);
}

ViStatus _VI_FUNC IviConfig_Close(IviConfigStoreHandle store) { return Note("IviConfig_Close", KindOf(store)); }

ViStatus _VI_FUNC IviConfig_DisposeHandle(IviConfigHandle handle) {
  return Note("IviConfig_DisposeHandle", KindOf(handle));
}

ViStatus _VI_FUNC IviConfig_GetError(ViInt32 size, ViChar description[]) {
  return GiveText("IviConfig_GetError", nullptr, Ivi().config_error, size, description);
}

ViStatus _VI_FUNC IviConfig_ClearError(void) { return Note("IviConfig_ClearError", ""); }

ViStatus _VI_FUNC IviConfig_Deserialize(IviConfigStoreHandle store, ViConstString) {
  return Note("IviConfig_Deserialize", KindOf(store));
}

ViStatus _VI_FUNC IviConfig_GetDriverSession(IviConfigStoreHandle store, ViConstString,
                                             IviDriverSessionHandle* session) {
  return Give("IviConfig_GetDriverSession", store, "session", session);
}

ViStatus _VI_FUNC IviConfig_GetSoftwareModuleItemByName(IviSoftwareModuleCollectionHandle collection, ViConstString,
                                                        IviSoftwareModuleHandle* item) {
  return Give("IviConfig_GetSoftwareModuleItemByName", collection, "module", item);
}

ViStatus _VI_FUNC IviConfig_GetDataComponentItemByName(IviDataComponentCollectionHandle collection, ViConstString,
                                                       IviDataComponentHandle* item) {
  const ViStatus status = Give("IviConfig_GetDataComponentItemByName", collection, "structure", item);
  return status >= 0 && Ivi().settings.empty() ? IVICONFIG_ERROR_NOT_EXIST : status;
}

ViStatus _VI_FUNC IviConfig_GetDataComponentCount(IviDataComponentCollectionHandle collection, ViInt32* count) {
  return GiveValue("IviConfig_GetDataComponentCount", collection, static_cast<ViInt32>(Ivi().settings.size()), count);
}

ViStatus _VI_FUNC IviConfig_GetDataComponentItemByIndex(IviDataComponentCollectionHandle collection, ViInt32 index,
                                                        IviDataComponentHandle* item) {
  return Give("IviConfig_GetDataComponentItemByIndex", collection, "setting " + std::to_string(index), item);
}

ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViString(IviDataComponentHandle item, ViInt32 property,
                                                             ViInt32 size, ViChar value[]) {
  const FakeIvi::Setting& setting = SettingOf(item);
  return GiveText("IviConfig_GetDataComponentPropertyViString", item,
                  property == 1   ? setting.name
                  : property == 7 ? setting.type
                                  : setting.text,
                  size, value);
}

TEXT(IviConfig_GetConfigStorePropertyViString, "")
TEXT(IviConfig_GetHardwareAssetPropertyViString, "X")
TEXT(IviConfig_GetDriverSessionPropertyViString, "")
TEXT(IviConfig_GetVirtualNamePropertyViString, "")
TEXT(IviConfig_GetPhysicalNamePropertyViString, "")
HANDLE(IviConfig_GetConfigStoreSoftwareModuleCollection, "modules")
HANDLE(IviConfig_GetSessionSoftwareModuleReference, "module")
HANDLE(IviConfig_GetSessionHardwareAssetReference, "asset")
HANDLE(IviConfig_GetSessionVirtualNameCollection, "virtual names")
HANDLE(IviConfig_GetVirtualNameVirtualRangeCollection, "virtual ranges")
HANDLE(IviConfig_GetSoftwareModulePhysicalNameCollection, "physical names")
HANDLE(IviConfig_GetConfigComponentDataComponentCollection, "components")
HANDLE(IviConfig_GetStructureDataComponentCollection, "settings")
HANDLE_BY_INDEX(IviConfig_GetVirtualNameItemByIndex, "virtual name")
HANDLE_BY_INDEX(IviConfig_GetVirtualRangeItemByIndex, "virtual range")
HANDLE_BY_INDEX(IviConfig_GetPhysicalNameItemByIndex, "physical name")
ONE(IviConfig_GetVirtualNameCount)
ONE(IviConfig_GetVirtualRangeCount)
ONE(IviConfig_GetPhysicalNameCount)
VALUE(IviConfig_GetDriverSessionPropertyViBoolean, ViBoolean)
VALUE(IviConfig_GetVirtualRangePropertyViInt32, ViInt32)
VALUE(IviConfig_GetDataComponentPropertyViInt32, ViInt32)
VALUE(IviConfig_GetDataComponentPropertyViReal64, ViReal64)
VALUE(IviConfig_GetDataComponentPropertyViBoolean, ViBoolean)

}  // extern "C"
