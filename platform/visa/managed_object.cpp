#include "managed_object.h"

#include "session.h"

namespace tvr::visa {

ViObject ManagedObject::GiveOut(ViSession resource_manager, std::unique_ptr<ManagedObject> object) {
  const Pinned manager(resource_manager);
  if (!manager) return VI_NULL;
  ManagedObject& managed = *object;
  managed.resource_manager_ = resource_manager;
  const ViObject handle = handles::Add(std::move(object));
  const Pinned pinned(handle);
  if (!pinned) return VI_NULL;
  managed.handle_ = handle;
  return manager.As<ResourceManager>()->Adopt(handle) ? handle : VI_NULL;
}

void ManagedObject::OnClose() {
  if (const Pinned manager(resource_manager_); manager) manager.As<ResourceManager>()->Forget(handle_);
}

}  // namespace tvr::visa
