#include "config/Locations.h"

#include <cstdlib>
#include <mutex>

namespace tvrivi {

namespace {

constexpr const char* kVariable = "IVICONFIGSERVERDEFAULT";

std::mutex& EnvironmentGuard() {
  static std::mutex guard;  // between our own threads; nothing can guard the rest of the process
  return guard;
}

}  // namespace

std::string_view MasterLocation() { return KVTD_MASTER_STORE; }

std::string ProcessDefaultLocation() {
  const std::lock_guard<std::mutex> hold(EnvironmentGuard());
  const char* location = std::getenv(kVariable);
  return location == nullptr ? "" : location;
}

void SetProcessDefaultLocation(const std::string& location) {
  const std::lock_guard<std::mutex> hold(EnvironmentGuard());
  ::setenv(kVariable, location.c_str(), 1);
}

}  // namespace tvrivi
