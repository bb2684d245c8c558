// What a session takes from the IVI configuration store. The store is open for the length of ApplyConfiguration only.

#include <IviCShared.h>
#include <IviConfigServer.h>

#include <array>
#include <string>

#include "Assertions.h"
#include "DriverIdentity.h"
#include "DriverSession.h"

namespace tvr {
namespace {

constexpr ViStatus kSessionNotFound = static_cast<ViStatus>(0xBFFA1203);
constexpr ViStatus kItemNotFound = static_cast<ViStatus>(0xBFFA1207);

// Property numbers of the configuration component; each class of objects counts for itself.
constexpr ViInt32 kStoreMasterLocation = 3;
constexpr ViInt32 kStoreProcessDefaultLocation = 5;
constexpr ViInt32 kAssetIoResourceDescriptor = 3;
constexpr ViInt32 kSessionCache = 4;
constexpr ViInt32 kSessionInterchangeCheck = 5;
constexpr ViInt32 kSessionQueryInstrStatus = 6;
constexpr ViInt32 kSessionRangeCheck = 7;
constexpr ViInt32 kSessionRecordCoercions = 8;
constexpr ViInt32 kSessionSimulate = 9;
constexpr ViInt32 kSessionDriverSetup = 10;
constexpr ViInt32 kVirtualName = 1;
constexpr ViInt32 kVirtualNameMapsTo = 2;
constexpr ViInt32 kRangeMin = 2;
constexpr ViInt32 kRangeMax = 3;
constexpr ViInt32 kRangeFirstPhysical = 4;
constexpr ViInt32 kPhysicalName = 1;
constexpr ViInt32 kPhysicalNameCapability = 2;
constexpr ViInt32 kComponentName = 1;
constexpr ViInt32 kComponentType = 7;
constexpr ViInt32 kComponentValue = 9;

constexpr ViInt32 kTextSize = 1024;
constexpr ViInt32 kLocationSize = 260;

// A handle of the component, given back at the end of the routine that asked for it.
class ConfigHandle {
 public:
  ConfigHandle() = default;
  ConfigHandle(const ConfigHandle&) = delete;
  ConfigHandle& operator=(const ConfigHandle&) = delete;
  ~ConfigHandle() {
    if (handle_ == nullptr) return;
    const ViStatus s = IviConfig_DisposeHandle(handle_);
    assert(s >= 0);
  }

  void* get() const { return handle_; }
  void** out() { return &handle_; }
  void Abandon() { handle_ = nullptr; }

 private:
  void* handle_ = nullptr;
};

template <class Handle, class Property>
ViStatus ReadText(Property read, Handle handle, ViInt32 property, std::string& text) {
  std::array<ViChar, kTextSize> buffer{};
  const ViStatus status = read(handle, property, kTextSize, buffer.data());
  if (status >= 0) text = buffer.data();
  return status;
}

}  // namespace

ViStatus DriverSession::ReportConfigError(ViStatus code) {
  ViChar text[kTextSize] = "";
  const ViStatus statusGetError = IviConfig_GetError(kTextSize, text);
  assert(statusGetError >= 0);
  return IviSession_SetError(GetSessionHandle(), code, text);
}

// Reports a failed call of the component under the code that it failed with.
ViStatus DriverSession::CheckConfig(ViStatus status) {
  if (status < 0) ReportConfigError(status);
  return status;
}

ViStatus DriverSession::ApplyConfiguration(const std::string& resource_name, const std::string& option_string) {
  logical_name_.clear();
  io_resource_descriptor_.clear();
  inherent_options_.clear();
  driver_setup_options_.clear();
  initial_int32s_.clear();
  initial_booleans_.clear();
  initial_real64s_.clear();
  initial_strings_.clear();
  reverse_virtual_names_.clear();
  virtual_names_.clear();
  flags_ = InherentFlags{};

  // Closed on every path, also when it could not be initialised and when memory runs out half-way.
  struct Store {
    ~Store() {
      if (!closed) IviConfig_Close(handle);
    }
    ViStatus Close() {
      closed = true;
      return IviConfig_Close(handle);
    }
    IviConfigStoreHandle handle = nullptr;
    bool closed = false;
  } store;

  ViStatus status = CheckConfig(IviConfig_Initialize(&store.handle));
  if (status >= 0) status = ReadStore(store.handle, resource_name, option_string);
  const ViStatus closed = store.Close();
  return status < 0 ? status : closed;
}

ViStatus DriverSession::LoadStore(IviConfigStoreHandle store) {
  ViChar location[kLocationSize] = "";
  ViStatus status =
      IviConfig_GetConfigStorePropertyViString(store, kStoreProcessDefaultLocation, kLocationSize, location);
  if (status >= 0 && location[0] == '\0') {
    status = IviConfig_GetConfigStorePropertyViString(store, kStoreMasterLocation, kLocationSize, location);
  }
  return status < 0 ? status : IviConfig_Deserialize(store, location);
}

ViStatus DriverSession::ReadStore(IviConfigStoreHandle store, const std::string& resource_name,
                                  const std::string& option_string) {
  if (const ViStatus status = CheckConfig(LoadStore(store)); status < 0) return status;

  ConfigHandle module;
  ConfigHandle modules;
  ConfigHandle session;
  const ViStatus found = IviConfig_GetDriverSession(store, resource_name.c_str(), session.out());
  if (found == kSessionNotFound) {
    session.Abandon();
    IviConfig_ClearError();
    io_resource_descriptor_ = resource_name;
    ViStatus status = IviConfig_GetConfigStoreSoftwareModuleCollection(store, modules.out());
    if (status >= 0) status = IviConfig_GetSoftwareModuleItemByName(modules.get(), Identity().prefix, module.out());
    if (CheckConfig(status) < 0) return status;
  } else {
    if (CheckConfig(found) < 0) return found;
    logical_name_ = resource_name;
    if (const ViStatus status = ApplySessionProperties(session.get()); status < 0) return status;
    if (const ViStatus status = ApplyInitialSettings(session.get()); status < 0) return status;
    const ViStatus status = IviConfig_GetSessionSoftwareModuleReference(session.get(), module.out());
    if (CheckConfig(status) < 0) return status;
  }

  // Kept on purpose: a configured session reads its own settings a second time and never those of its module.
  ViStatus status = ApplyInitialSettings(session.get() != nullptr ? session.get() : module.get());
  if (status < 0) return status;
  if (status = ParseOptionString(option_string); status < 0) return status;
  if (module.get() != nullptr) {
    if (status = ReadPhysicalNames(module.get()); status < 0) return status;
  }
  if (GetSimulate() && instrument_model_.empty()) instrument_model_ = Identity().default_model;
  initial_flags_ = flags_;
  return status;
}

ViStatus DriverSession::ApplySessionProperties(IviDriverSessionHandle session) {
  if (const ViStatus status = ReadVirtualNames(session); status < 0) return status;

  ConfigHandle asset;
  ViStatus status = IviConfig_GetSessionHardwareAssetReference(session, asset.out());
  if (status >= 0 && asset.get() != nullptr) {
    status = ReadText(IviConfig_GetHardwareAssetPropertyViString, asset.get(), kAssetIoResourceDescriptor,
                      io_resource_descriptor_);
  }
  if (CheckConfig(status) < 0) return status;

  const struct {
    ViInt32 property;
    bool& flag;
  } flags[] = {{kSessionCache, flags_.cache},
               {kSessionInterchangeCheck, flags_.interchange_check},
               {kSessionQueryInstrStatus, flags_.query_instr_status},
               {kSessionRangeCheck, flags_.range_check},
               {kSessionRecordCoercions, flags_.record_coercions},
               {kSessionSimulate, flags_.simulate}};
  for (const auto& [property, flag] : flags) {
    ViBoolean value = VI_FALSE;
    status = IviConfig_GetDriverSessionPropertyViBoolean(session, property, &value);
    if (CheckConfig(status) < 0) return status;
    flag = value == VI_TRUE;
  }

  std::string setup;
  status = ReadText(IviConfig_GetDriverSessionPropertyViString, session, kSessionDriverSetup, setup);
  if (CheckConfig(status) < 0) return status;
  return ParseDriverSetup(setup);
}

ViStatus DriverSession::ApplyInitialSettings(IviConfigComponentHandle component) {
  ConfigHandle components;
  ViStatus status = IviConfig_GetConfigComponentDataComponentCollection(component, components.out());
  if (CheckConfig(status) < 0) return status;

  ConfigHandle structure;
  status = IviConfig_GetDataComponentItemByName(components.get(), "Configurable Initial Settings", structure.out());
  if (status == kItemNotFound) {
    structure.Abandon();
    return IviConfig_ClearError();
  }
  if (CheckConfig(status) < 0) return status;

  ConfigHandle settings;
  ViInt32 count = 0;
  status = IviConfig_GetStructureDataComponentCollection(structure.get(), settings.out());
  if (status >= 0) status = IviConfig_GetDataComponentCount(settings.get(), &count);
  if (CheckConfig(status) < 0) return status;

  for (ViInt32 index = 1; index <= count; ++index) {
    ConfigHandle item;
    status = IviConfig_GetDataComponentItemByIndex(settings.get(), index, item.out());
    if (status >= 0) status = ReadInitialSetting(item.get());
    if (CheckConfig(status) < 0) return status;
  }
  return ApplyInitialModel();
}

ViStatus DriverSession::ReadInitialSetting(IviDataComponentHandle item) {
  std::string type;
  std::string name;
  ViStatus status = ReadText(IviConfig_GetDataComponentPropertyViString, item, kComponentType, type);
  if (status >= 0) status = ReadText(IviConfig_GetDataComponentPropertyViString, item, kComponentName, name);
  if (status < 0) return status;

  if (EqualIgnoringCase(type, "string")) {
    std::string value;
    status = ReadText(IviConfig_GetDataComponentPropertyViString, item, kComponentValue, value);
    if (status >= 0) initial_strings_[name] = value;
  } else if (EqualIgnoringCase(type, "integer")) {
    ViInt32 value = 0;
    status = IviConfig_GetDataComponentPropertyViInt32(item, kComponentValue, &value);
    if (status >= 0) initial_int32s_[name] = value;
  } else if (EqualIgnoringCase(type, "real")) {
    ViReal64 value = 0.0;
    status = IviConfig_GetDataComponentPropertyViReal64(item, kComponentValue, &value);
    if (status >= 0) initial_real64s_[name] = value;
  } else if (EqualIgnoringCase(type, "boolean")) {
    ViBoolean value = VI_FALSE;
    status = IviConfig_GetDataComponentPropertyViBoolean(item, kComponentValue, &value);
    if (status >= 0) initial_booleans_[name] = value == VI_TRUE;
  }
  return status;
}

ViStatus DriverSession::ApplyInitialModel() {
  LookupInitialString("model", instrument_model_);
  return VI_SUCCESS;
}

ViStatus DriverSession::ReadVirtualNames(IviSessionHandle session) {
  virtual_names_.clear();
  reverse_virtual_names_.clear();

  ConfigHandle names;
  ViInt32 count = 0;
  ViStatus status = IviConfig_GetSessionVirtualNameCollection(session, names.out());
  if (status >= 0) status = IviConfig_GetVirtualNameCount(names.get(), &count);
  for (ViInt32 index = 1; status >= 0 && index <= count; ++index) {
    ConfigHandle item;
    status = IviConfig_GetVirtualNameItemByIndex(names.get(), index, item.out());
    if (status >= 0) status = ReadVirtualName(item.get());
  }
  return CheckConfig(status);
}

ViStatus DriverSession::ReadVirtualName(IviVirtualNameHandle item) {
  std::string name;
  std::string maps_to;
  ConfigHandle ranges;
  ViInt32 count = 0;
  ViStatus status = ReadText(IviConfig_GetVirtualNamePropertyViString, item, kVirtualName, name);
  if (status >= 0) status = ReadText(IviConfig_GetVirtualNamePropertyViString, item, kVirtualNameMapsTo, maps_to);
  if (status >= 0) status = IviConfig_GetVirtualNameVirtualRangeCollection(item, ranges.out());
  if (status >= 0) status = IviConfig_GetVirtualRangeCount(ranges.get(), &count);
  if (status < 0) return status;

  if (count == 0) MapVirtualName(name, maps_to);
  for (ViInt32 index = 1; index <= count; ++index) {
    ConfigHandle range;
    ViInt32 lowest = 0;
    ViInt32 highest = 0;
    ViInt32 first_physical = 0;
    status = IviConfig_GetVirtualRangeItemByIndex(ranges.get(), index, range.out());
    if (status >= 0) status = IviConfig_GetVirtualRangePropertyViInt32(range.get(), kRangeMin, &lowest);
    if (status >= 0) status = IviConfig_GetVirtualRangePropertyViInt32(range.get(), kRangeMax, &highest);
    if (status >= 0)
      status = IviConfig_GetVirtualRangePropertyViInt32(range.get(), kRangeFirstPhysical, &first_physical);
    if (status < 0) return status;
    // 64 bits, so that a range at the edge of 32 bits neither wraps nor runs for ever.
    for (ViInt64 i = lowest; i <= highest; ++i) {
      MapVirtualName(name + std::to_string(i), maps_to + std::to_string(i - lowest + first_physical));
    }
  }
  return status;
}

void DriverSession::MapVirtualName(const std::string& virtual_name, const std::string& physical_name) {
  virtual_names_[virtual_name] = physical_name;
  reverse_virtual_names_[physical_name] = virtual_name;
}

ViStatus DriverSession::ReadPhysicalNames(IviSoftwareModuleHandle module) {
  ConfigHandle names;
  ViInt32 count = 0;
  ViStatus status = IviConfig_GetSoftwareModulePhysicalNameCollection(module, names.out());
  if (status >= 0) status = IviConfig_GetPhysicalNameCount(names.get(), &count);
  for (ViInt32 index = 1; status >= 0 && index <= count; ++index) {
    ConfigHandle item;
    std::string name;
    std::string capability;
    status = IviConfig_GetPhysicalNameItemByIndex(names.get(), index, item.out());
    if (status >= 0) status = ReadText(IviConfig_GetPhysicalNamePropertyViString, item.get(), kPhysicalName, name);
    if (status >= 0) {
      status = ReadText(IviConfig_GetPhysicalNamePropertyViString, item.get(), kPhysicalNameCapability, capability);
    }
    if (status >= 0) physical_names_[name] = capability;
  }
  return CheckConfig(status);
}

}  // namespace tvr
