#include <utility>

#include "session.h"

namespace tvr::visa {

bool ResourceManager::Adopt(ViSession session) {
  const std::lock_guard lock(guard_);
  if (!closed_) sessions_.insert(session);
  return !closed_;
}

void ResourceManager::Forget(ViSession session) {
  const std::lock_guard lock(guard_);
  sessions_.erase(session);
}

void ResourceManager::OnClose() {
  std::set<ViSession> sessions;
  {
    const std::lock_guard lock(guard_);
    closed_ = true;
    sessions = std::exchange(sessions_, {});
  }
  for (const ViSession session : sessions) handles::Close(session);
}

}  // namespace tvr::visa
