// Exported functions on data components.
#include "config/Operation.h"

using tvrivi::DataComponent;
using tvrivi::Handles;
using tvrivi::Operation;
using tvrivi::Target;

namespace {

using Components = std::vector<DataComponent>;

// The data components of whatever may own some, null for other kinds.
const Components* ComponentsOf(const Target& target) {
  return std::visit(
      [](const auto& object) -> const Components* {
        if constexpr (requires { object->data_components; }) {
          return &object->data_components;
        } else {
          return nullptr;
        }
      },
      target);
}

// Gives the value out when the component holds one of that type.
template <typename Held, typename Out>
ViStatus GiveValue(const Operation& call, const DataComponent& component, Out give) {
  if (const Held* value = std::get_if<Held>(&component.value)) return give(*value);
  return call.Fail(IVICONFIG_ERROR_INVALID_DATA_COMPONENT,
                   "the value of '" + component.name + "' is of the type " + component.type);
}

const std::string* TextOf(const DataComponent& component, ViInt32 property) {
  switch (property) {
    case IVICONFIG_PROP_NAME:
      return &component.name;
    case IVICONFIG_PROP_DESCRIPTION:
      return &component.description;
    case IVICONFIG_PROP_DATA_COMPONENT_HELP_FILE_PATH:
      return &component.help_file_path;
    case IVICONFIG_PROP_DATA_COMPONENT_SOFTWARE_MODULE_KEY:
      return &component.software_module_key;
    case IVICONFIG_PROP_DATA_COMPONENT_TYPE:
      return &component.type;
    case IVICONFIG_PROP_DATA_COMPONENT_USED_IN_SESSION:
      return &component.used_in_session;
    case IVICONFIG_PROP_DATA_COMPONENT_UNITS: {
      const bool is_number =
          std::holds_alternative<ViInt32>(component.value) || std::holds_alternative<ViReal64>(component.value);
      return is_number ? &component.units : nullptr;
    }
    default:
      return nullptr;
  }
}

}  // namespace

ViStatus _VI_FUNC IviConfig_GetConfigComponentDataComponentCollection(IviConfigComponentHandle component,
                                                                      IviDataComponentCollectionHandle* collection) {
  const Operation call(__func__);
  if (collection == nullptr) return call.FailForNull();
  *collection = nullptr;
  return call.Run(IVICONFIG_ERROR_NOT_SUPPORTED, [&]() -> ViStatus {
    const tvrivi::HandleTable::Entry entry = Handles().Find(component);
    const Components* components = ComponentsOf(entry.target);
    if (components == nullptr) {
      return call.Fail(IVICONFIG_ERROR_INVALID_HANDLE, "the handle is no open configurable component");
    }
    *collection = Handles().Add(entry.store, components);
    return VI_SUCCESS;
  });
}

ViStatus _VI_FUNC IviConfig_GetDataComponentItemByName(IviDataComponentCollectionHandle collection, ViConstString name,
                                                       IviDataComponentHandle* item) {
  return Operation(__func__).ItemByName<DataComponent>(collection, name, item);
}

ViStatus _VI_FUNC IviConfig_GetStructureDataComponentCollection(IviDataComponentHandle structure,
                                                                IviDataComponentCollectionHandle* collection) {
  const Operation call(__func__);
  if (collection == nullptr) return call.FailForNull();
  *collection = nullptr;
  return call.On<DataComponent>(structure, [&](const DataComponent& component, const auto& store) -> ViStatus {
    return GiveValue<DataComponent::Structure>(call, component, [&](const Components& members) -> ViStatus {
      *collection = Handles().Add(store, &members);
      return VI_SUCCESS;
    });
  });
}

ViStatus _VI_FUNC IviConfig_GetDataComponentCount(IviDataComponentCollectionHandle collection, ViInt32* count) {
  return Operation(__func__).Count<DataComponent>(collection, count);
}

ViStatus _VI_FUNC IviConfig_GetDataComponentItemByIndex(IviDataComponentCollectionHandle collection, ViInt32 index,
                                                        IviDataComponentHandle* item) {
  return Operation(__func__).ItemByIndex<DataComponent>(collection, index, item);
}

ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViString(IviDataComponentHandle item, ViInt32 property,
                                                             ViInt32 bufferSize, ViChar value[]) {
  const Operation call(__func__);
  return call.On<DataComponent>(item, [&](const DataComponent& component, const auto&) -> ViStatus {
    const auto give = [&](const std::string& text) { return call.CopyOut(text, bufferSize, value); };
    if (property == IVICONFIG_PROP_DATA_COMPONENT_VALUE) return GiveValue<std::string>(call, component, give);
    const std::string* text = TextOf(component, property);
    return text == nullptr ? call.FailForProperty(property, "text") : give(*text);
  });
}

ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViInt32(IviDataComponentHandle item, ViInt32 property,
                                                            ViInt32* value) {
  const Operation call(__func__);
  if (value == nullptr) return call.FailForNull();
  return call.On<DataComponent>(item, [&](const DataComponent& component, const auto&) -> ViStatus {
    const auto give = [&](ViInt32 number) -> ViStatus {
      *value = number;
      return VI_SUCCESS;
    };
    if (property == IVICONFIG_PROP_DATA_COMPONENT_VALUE) return GiveValue<ViInt32>(call, component, give);
    if (property == IVICONFIG_PROP_DATA_COMPONENT_HELP_CONTEXT_ID) return give(component.help_context_id);
    return call.FailForProperty(property, "integer");
  });
}

ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViReal64(IviDataComponentHandle item, ViInt32 property,
                                                             ViReal64* value) {
  const Operation call(__func__);
  if (value == nullptr) return call.FailForNull();
  return call.On<DataComponent>(item, [&](const DataComponent& component, const auto&) -> ViStatus {
    if (property != IVICONFIG_PROP_DATA_COMPONENT_VALUE) return call.FailForProperty(property, "real");
    return GiveValue<ViReal64>(call, component, [&](ViReal64 number) -> ViStatus {
      *value = number;
      return VI_SUCCESS;
    });
  });
}

ViStatus _VI_FUNC IviConfig_GetDataComponentPropertyViBoolean(IviDataComponentHandle item, ViInt32 property,
                                                              ViBoolean* value) {
  const Operation call(__func__);
  if (value == nullptr) return call.FailForNull();
  return call.On<DataComponent>(item, [&](const DataComponent& component, const auto&) -> ViStatus {
    const auto give = [&](bool flag) -> ViStatus {
      *value = flag ? VI_TRUE : VI_FALSE;
      return VI_SUCCESS;
    };
    if (property == IVICONFIG_PROP_DATA_COMPONENT_VALUE) return GiveValue<bool>(call, component, give);
    if (property == IVICONFIG_PROP_DATA_COMPONENT_READ_ONLY) return give(component.read_only);
    return call.FailForProperty(property, "boolean");
  });
}
