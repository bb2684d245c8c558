// Exported functions on sessions, driver sessions, hardware assets and software modules.
#include "config/Operation.h"

using tvrivi::DriverSession;
using tvrivi::Handles;
using tvrivi::HardwareAsset;
using tvrivi::Operation;
using tvrivi::Session;
using tvrivi::SoftwareModule;
using tvrivi::Target;

ViStatus _VI_FUNC IviConfig_GetSoftwareModuleItemByName(IviSoftwareModuleCollectionHandle collection,
                                                        ViConstString name, IviSoftwareModuleHandle* item) {
  return Operation(__func__).ItemByName<SoftwareModule>(collection, name, item);
}

ViStatus _VI_FUNC IviConfig_GetSessionSoftwareModuleReference(IviSessionHandle session,
                                                              IviSoftwareModuleHandle* module) {
  const Operation call(__func__);
  if (module == nullptr) return call.FailForNull();
  *module = nullptr;
  return call.On<Session>(session, [&](const Session& opened, const auto& store) -> ViStatus {
    if (opened.software_module == nullptr) {
      return call.Fail(IVICONFIG_ERROR_NOT_IN_GLOBAL, "the software module '" + opened.software_module_name +
                                                          "' of the session '" + opened.name + "' is not in the store");
    }
    *module = Handles().Add(store, opened.software_module);
    return VI_SUCCESS;
  });
}

ViStatus _VI_FUNC IviConfig_GetSessionHardwareAssetReference(IviSessionHandle session, IviHardwareAssetHandle* asset) {
  const Operation call(__func__);
  if (asset == nullptr) return call.FailForNull();
  *asset = nullptr;
  return call.On<Session>(session, [&](const Session& opened, const auto& store) -> ViStatus {
    if (opened.hardware_asset != nullptr) *asset = Handles().Add(store, opened.hardware_asset);
    return VI_SUCCESS;
  });
}

ViStatus _VI_FUNC IviConfig_GetHardwareAssetPropertyViString(IviHardwareAssetHandle asset, ViInt32 property,
                                                             ViInt32 bufferSize, ViChar value[]) {
  return Operation(__func__).Text<HardwareAsset>(asset, property, bufferSize, value,
                                                 [](const HardwareAsset& opened, ViInt32 number) -> const std::string* {
                                                   switch (number) {
                                                     case IVICONFIG_PROP_NAME:
                                                       return &opened.name;
                                                     case IVICONFIG_PROP_DESCRIPTION:
                                                       return &opened.description;
                                                     case IVICONFIG_PROP_HARDWARE_ASSET_RESOURCE_DESCRIPTOR:
                                                       return &opened.resource_descriptor;
                                                     default:
                                                       return nullptr;
                                                   }
                                                 });
}

ViStatus _VI_FUNC IviConfig_GetDriverSessionPropertyViBoolean(IviDriverSessionHandle session, ViInt32 property,
                                                              ViBoolean* value) {
  const Operation call(__func__);
  if (value == nullptr) return call.FailForNull();
  return call.On<DriverSession>(session, [&](const DriverSession& opened, const auto&) -> ViStatus {
    const auto give = [&](bool flag) -> ViStatus {
      *value = flag ? VI_TRUE : VI_FALSE;
      return VI_SUCCESS;
    };
    switch (property) {
      case IVICONFIG_PROP_DRIVER_SESSION_CACHE:
        return give(opened.cache);
      case IVICONFIG_PROP_DRIVER_SESSION_INTERCHANGE_CHECK:
        return give(opened.interchange_check);
      case IVICONFIG_PROP_DRIVER_SESSION_QUERY_INSTR_STATUS:
        return give(opened.query_instr_status);
      case IVICONFIG_PROP_DRIVER_SESSION_RANGE_CHECK:
        return give(opened.range_check);
      case IVICONFIG_PROP_DRIVER_SESSION_RECORD_COERCIONS:
        return give(opened.record_coercions);
      case IVICONFIG_PROP_DRIVER_SESSION_SIMULATE:
        return give(opened.simulate);
      default:
        return call.FailForProperty(property, "boolean");
    }
  });
}

ViStatus _VI_FUNC IviConfig_GetDriverSessionPropertyViString(IviDriverSessionHandle session, ViInt32 property,
                                                             ViInt32 bufferSize, ViChar value[]) {
  return Operation(__func__).Text<DriverSession>(session, property, bufferSize, value,
                                                 [](const DriverSession& opened, ViInt32 number) -> const std::string* {
                                                   switch (number) {
                                                     case IVICONFIG_PROP_NAME:
                                                       return &opened.name;
                                                     case IVICONFIG_PROP_DESCRIPTION:
                                                       return &opened.description;
                                                     case IVICONFIG_PROP_SESSION_SOFTWARE_MODULE_NAME:
                                                       return &opened.software_module_name;
                                                     case IVICONFIG_PROP_DRIVER_SESSION_DRIVER_SETUP:
                                                       return &opened.driver_setup;
                                                     default:
                                                       return nullptr;
                                                   }
                                                 });
}

ViStatus _VI_FUNC IviConfig_GetSessionVirtualNameCollection(IviSessionHandle session,
                                                            IviVirtualNameCollectionHandle* collection) {
  return Operation(__func__).Part<Session>(session, collection,
                                           [](const Session& opened) -> Target { return &opened.virtual_names; });
}

ViStatus _VI_FUNC IviConfig_GetSoftwareModulePhysicalNameCollection(IviSoftwareModuleHandle module,
                                                                    IviPhysicalNameCollectionHandle* collection) {
  return Operation(__func__).Part<SoftwareModule>(
      module, collection, [](const SoftwareModule& opened) -> Target { return &opened.physical_names; });
}
