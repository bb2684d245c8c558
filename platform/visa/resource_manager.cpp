#include <utility>

#include "session.h"

namespace tvr::visa {

bool ResourceManager::Adopt(ViObject object) {
  struct Orphan {
    ~Orphan() {
      if (handle != VI_NULL) handles::Close(handle);
    }
    ViObject handle;
  } orphan{object};
  const std::lock_guard lock(guard_);
  if (closed_) return false;
  adopted_.insert(object);
  orphan.handle = VI_NULL;
  return true;
}

void ResourceManager::Forget(ViObject object) {
  const std::lock_guard lock(guard_);
  adopted_.erase(object);
}

void ResourceManager::OnClose() {
  std::set<ViObject> adopted;
  {
    const std::lock_guard lock(guard_);
    closed_ = true;
    adopted = std::exchange(adopted_, {});
  }
  for (const ViObject object : adopted) handles::Close(object);
}

}  // namespace tvr::visa
