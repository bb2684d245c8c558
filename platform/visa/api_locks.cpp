// Exported: locks.
#include <cstring>
#include <string>

#include "api.h"
#include "text_out.h"

using namespace tvr::visa;

ViStatus viLock(ViSession vi, ViAccessMode type, ViUInt32 timeout, ViConstKeyId requestedKey, ViChar accessKey[]) {
  return On<Session>(vi, [&](Session& session) -> ViStatus {
    if (type != VI_EXCLUSIVE_LOCK && type != VI_SHARED_LOCK) return VI_ERROR_INV_LOCK_TYPE;
    const bool named = type == VI_SHARED_LOCK && requestedKey != nullptr;
    if (named && ::strnlen(requestedKey, VI_FIND_BUFLEN) == VI_FIND_BUFLEN) return VI_ERROR_INV_ACCESS_KEY;
    std::string key;
    const ViStatus status = session.Lock(type, timeout, named ? requestedKey : "", key);
    if (status >= 0 && type == VI_SHARED_LOCK && accessKey != nullptr) PutText(accessKey, key);
    return status;
  });
}

ViStatus viUnlock(ViSession vi) {
  return On<Session>(vi, [](Session& session) { return session.Unlock(); });
}
