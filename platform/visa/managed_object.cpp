#include "managed_object.h"

#include "session.h"

namespace tvr::visa {

ViObject ManagedObject::GiveOut(ViSession resource_manager, std::unique_ptr<ManagedObject> object) {
  const Pinned pinned_manager(resource_manager);
  auto* const manager = pinned_manager ? pinned_manager.As<ResourceManager>() : nullptr;
  if (manager == nullptr) return VI_NULL;
  ManagedObject& managed = *object;
  managed.resource_manager_ = resource_manager;
  const ViObject handle = handles::Add(std::move(object));
  const Pinned pinned(handle);
  if (!pinned) return VI_NULL;
  managed.handle_ = handle;
  return manager->Adopt(handle) ? handle : VI_NULL;
}

void ManagedObject::OnClose() {
  const Pinned pinned(resource_manager_);
  auto* const manager = pinned ? pinned.As<ResourceManager>() : nullptr;
  if (manager != nullptr) manager->Forget(handle_);
}

}  // namespace tvr::visa
