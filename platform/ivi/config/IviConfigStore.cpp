// Exported functions on the store itself, on handles in general, and the thread's error text.
#include "config/Operation.h"

using tvrivi::AnySession;
using tvrivi::DriverSession;
using tvrivi::Handles;
using tvrivi::Model;
using tvrivi::Operation;
using tvrivi::Store;
using tvrivi::Target;

ViStatus _VI_FUNC IviConfig_Initialize(IviConfigStoreHandle* store) {
  const Operation call(__func__);
  if (store == nullptr) return call.FailForNull();
  *store = nullptr;
  return call.Run(IVICONFIG_ERROR_NOT_SUPPORTED, [&]() -> ViStatus {
    auto created = std::make_shared<Store>();
    const Target target = created.get();
    *store = Handles().Add(std::move(created), target);
    return VI_SUCCESS;
  });
}

ViStatus _VI_FUNC IviConfig_Close(IviConfigStoreHandle store) {
  if (Handles().RemoveStore(store)) return VI_SUCCESS;
  return Operation(__func__).Fail(IVICONFIG_ERROR_INVALID_HANDLE, "the handle is no open configuration store");
}

ViStatus _VI_FUNC IviConfig_DisposeHandle(IviConfigHandle handle) {
  if (Handles().RemoveItem(handle)) return VI_SUCCESS;
  return Operation(__func__).Fail(IVICONFIG_ERROR_INVALID_HANDLE,
                                  "the handle is not open, or is a store's, which is closed instead");
}

ViStatus _VI_FUNC IviConfig_GetError(ViInt32 bufferSize, ViChar description[]) {
  const ViStatus status = tvrivi::CopyText(tvrivi::ThreadErrorText(), bufferSize, description);
  if (status == VI_SUCCESS) tvrivi::ThreadErrorText().clear();
  return status;
}

ViStatus _VI_FUNC IviConfig_ClearError(void) {
  tvrivi::ThreadErrorText().clear();
  return VI_SUCCESS;
}

ViStatus _VI_FUNC IviConfig_Deserialize(IviConfigStoreHandle store, ViConstString location) {
  const Operation call(__func__);
  if (location == nullptr) return call.FailForNull();
  const auto load = [&](Store& opened, const auto&) -> ViStatus {
    const ViStatus status = opened.Deserialize(location);
    return status < 0 ? call.Fail(status, "the store object was loaded before") : status;
  };
  return call.On<Store>(store, load, IVICONFIG_ERROR_DESERIALIZE_FAILED);
}

ViStatus _VI_FUNC IviConfig_Serialize(IviConfigStoreHandle store, ViConstString location) {
  const Operation call(__func__);
  if (location == nullptr) return call.FailForNull();
  const auto save = [&](Store& opened, const auto&) -> ViStatus {
    opened.Serialize(location);
    return VI_SUCCESS;
  };
  return call.On<Store>(store, save, IVICONFIG_ERROR_SERIALIZE_FAILED);
}

namespace {

// Looks the name up among the logical names, then among the sessions; accepts tells which kinds will do.
template <typename Accepts>
ViStatus FindSession(const Operation& call, IviConfigStoreHandle store, ViConstString name, IviSessionHandle* session,
                     Accepts accepts) {
  if (session == nullptr) return call.FailForNull();
  *session = nullptr;
  if (name == nullptr) return call.FailForNull();
  return call.On<Store>(store, [&](Store& opened, const std::shared_ptr<Store>& owner) -> ViStatus {
    const Model& model = opened.model();
    for (const auto* names : {&model.session_of_logical_name, &model.session_of_name}) {
      const auto found = names->find(name);
      if (found == names->end() || !accepts(found->second)) continue;
      *session = Handles().Add(owner, std::visit([](const auto* kind) { return Target(kind); }, found->second));
      return VI_SUCCESS;
    }
    return call.Fail(IVICONFIG_ERROR_SESSION_NOT_FOUND,
                     "'" + std::string(name) + "' is neither a logical name nor a session of the store");
  });
}

}  // namespace

ViStatus _VI_FUNC IviConfig_GetDriverSession(IviConfigStoreHandle store, ViConstString name,
                                             IviDriverSessionHandle* session) {
  return FindSession(Operation(__func__), store, name, session, [](const AnySession& candidate) {
    return std::holds_alternative<const DriverSession*>(candidate);
  });
}

ViStatus _VI_FUNC IviConfig_GetSession(IviConfigStoreHandle store, ViConstString name, IviSessionHandle* session) {
  return FindSession(Operation(__func__), store, name, session, [](const AnySession&) { return true; });
}

ViStatus _VI_FUNC IviConfig_GetConfigStorePropertyViString(IviConfigStoreHandle store, ViInt32 property,
                                                           ViInt32 bufferSize, ViChar value[]) {
  const Operation call(__func__);
  return call.On<Store>(store, [&](Store& opened, const auto&) -> ViStatus {
    std::string text;
    if (!opened.GetText(property, text)) return call.FailForProperty(property, "text");
    return call.CopyOut(text, bufferSize, value);
  });
}

ViStatus _VI_FUNC IviConfig_SetConfigStorePropertyViString(IviConfigStoreHandle store, ViInt32 property,
                                                           ViConstString value) {
  const Operation call(__func__);
  if (value == nullptr) return call.FailForNull();
  return call.On<Store>(store, [&](Store& opened, const auto&) -> ViStatus {
    return opened.SetText(property, value) ? VI_SUCCESS : call.FailForProperty(property, "writable text");
  });
}

ViStatus _VI_FUNC IviConfig_GetConfigStorePropertyViInt32(IviConfigStoreHandle store, ViInt32 property,
                                                          ViInt32* value) {
  const Operation call(__func__);
  if (value == nullptr) return call.FailForNull();
  return call.On<Store>(store, [&](Store& opened, const auto&) -> ViStatus {
    return opened.GetNumber(property, *value) ? VI_SUCCESS : call.FailForProperty(property, "integer");
  });
}

ViStatus _VI_FUNC IviConfig_GetConfigStoreSoftwareModuleCollection(IviConfigStoreHandle store,
                                                                   IviSoftwareModuleCollectionHandle* collection) {
  return Operation(__func__).Part<Store>(store, collection,
                                         [](Store& opened) -> Target { return &opened.model().software_modules; });
}
