// Exported functions on virtual names, their ranges, and physical names.
#include "config/Operation.h"

using tvrivi::Operation;
using tvrivi::PhysicalName;
using tvrivi::Target;
using tvrivi::VirtualName;
using tvrivi::VirtualRange;

ViStatus _VI_FUNC IviConfig_GetVirtualNameCount(IviVirtualNameCollectionHandle collection, ViInt32* count) {
  return Operation(__func__).Count<VirtualName>(collection, count);
}

ViStatus _VI_FUNC IviConfig_GetVirtualNameItemByIndex(IviVirtualNameCollectionHandle collection, ViInt32 index,
                                                      IviVirtualNameHandle* item) {
  return Operation(__func__).ItemByIndex<VirtualName>(collection, index, item);
}

ViStatus _VI_FUNC IviConfig_GetVirtualNamePropertyViString(IviVirtualNameHandle item, ViInt32 property,
                                                           ViInt32 bufferSize, ViChar value[]) {
  return Operation(__func__).Text<VirtualName>(item, property, bufferSize, value,
                                               [](const VirtualName& name, ViInt32 number) -> const std::string* {
                                                 switch (number) {
                                                   case IVICONFIG_PROP_NAME:
                                                     return &name.name;
                                                   case IVICONFIG_PROP_VIRTUAL_NAME_MAP_TO:
                                                     return &name.map_to;
                                                   default:
                                                     return nullptr;
                                                 }
                                               });
}

ViStatus _VI_FUNC IviConfig_GetVirtualNameVirtualRangeCollection(IviVirtualNameHandle item,
                                                                 IviVirtualRangeCollectionHandle* collection) {
  return Operation(__func__).Part<VirtualName>(item, collection,
                                               [](const VirtualName& name) -> Target { return &name.ranges; });
}

ViStatus _VI_FUNC IviConfig_GetVirtualRangeCount(IviVirtualRangeCollectionHandle collection, ViInt32* count) {
  return Operation(__func__).Count<VirtualRange>(collection, count);
}

ViStatus _VI_FUNC IviConfig_GetVirtualRangeItemByIndex(IviVirtualRangeCollectionHandle collection, ViInt32 index,
                                                       IviVirtualRangeHandle* item) {
  return Operation(__func__).ItemByIndex<VirtualRange>(collection, index, item);
}

ViStatus _VI_FUNC IviConfig_GetVirtualRangePropertyViInt32(IviVirtualRangeHandle item, ViInt32 property,
                                                           ViInt32* value) {
  const Operation call(__func__);
  if (value == nullptr) return call.FailForNull();
  return call.On<VirtualRange>(item, [&](const VirtualRange& range, const auto&) -> ViStatus {
    switch (property) {
      case IVICONFIG_PROP_VIRTUAL_RANGE_MIN:
        *value = range.min;
        return VI_SUCCESS;
      case IVICONFIG_PROP_VIRTUAL_RANGE_MAX:
        *value = range.max;
        return VI_SUCCESS;
      case IVICONFIG_PROP_VIRTUAL_RANGE_STARTING_PHYSICAL_INDEX:
        *value = range.starting_physical_index;
        return VI_SUCCESS;
      default:
        return call.FailForProperty(property, "integer");
    }
  });
}

ViStatus _VI_FUNC IviConfig_GetPhysicalNameCount(IviPhysicalNameCollectionHandle collection, ViInt32* count) {
  return Operation(__func__).Count<PhysicalName>(collection, count);
}

ViStatus _VI_FUNC IviConfig_GetPhysicalNameItemByIndex(IviPhysicalNameCollectionHandle collection, ViInt32 index,
                                                       IviPhysicalNameHandle* item) {
  return Operation(__func__).ItemByIndex<PhysicalName>(collection, index, item);
}

ViStatus _VI_FUNC IviConfig_GetPhysicalNamePropertyViString(IviPhysicalNameHandle item, ViInt32 property,
                                                            ViInt32 bufferSize, ViChar value[]) {
  return Operation(__func__).Text<PhysicalName>(item, property, bufferSize, value,
                                                [](const PhysicalName& name, ViInt32 number) -> const std::string* {
                                                  switch (number) {
                                                    case IVICONFIG_PROP_NAME:
                                                      return &name.name;
                                                    case IVICONFIG_PROP_PHYSICAL_NAME_RC_NAME:
                                                      return &name.rc_name;
                                                    default:
                                                      return nullptr;
                                                  }
                                                });
}
