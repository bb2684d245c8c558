// viLock within this process: one lock per resource, shared by all sessions that are open to it.
#pragma once

#include <visa.h>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>

#include "deadline.h"

namespace tvr::visa {

class ResourceLock {
 public:
  // One session's part in the lock. Its members belong to the lock; whoever owns a Holder releases it before it dies.
  class Holder {
    friend class ResourceLock;
    unsigned exclusive_ = 0;
    unsigned shared_ = 0;
    bool withdrawn_ = false;
  };

  // The lock of a resource by its canonical name, in any letter case.
  static std::shared_ptr<ResourceLock> Of(const std::string& canonical_name);

  // VI_SUCCESS or the published code for a nested lock. An empty key asks for a new one.
  ViStatus LockExclusive(Holder& holder, ViUInt32 timeout_ms);
  ViStatus LockShared(Holder& holder, ViUInt32 timeout_ms, const std::string& requested_key, std::string& key);
  // One level less: of the exclusive lock as long as there is one.
  ViStatus Unlock(Holder& holder);
  ViStatus Unlock(Holder& holder, ViAccessMode type);
  // The type of the lock of which Unlock would give up the last level; VI_NO_LOCK when it would not.
  ViAccessMode LastLevel(const Holder& holder);
  // Gives up all that is held and ends a wait: the session is closing.
  void Withdraw(Holder& holder);

  // May this session do I/O now? Costs one load as long as nobody holds anything.
  bool Admits(const Holder& holder) { return !held_.load(std::memory_order_acquire) || AdmitsWhenHeld(holder); }
  // VI_NO_LOCK, VI_EXCLUSIVE_LOCK or VI_SHARED_LOCK, whoever holds it.
  ViAccessMode State();

 private:
  template <class Free>
  ViStatus WaitUntil(Free free, const Holder& holder, ViUInt32 timeout_ms, std::unique_lock<std::mutex>& lock);
  ViStatus LowerLevel(Holder& holder, ViAccessMode type);
  bool AdmitsWhenHeld(const Holder& holder);
  void Changed();

  std::mutex guard_;
  std::condition_variable changed_;
  const Holder* exclusive_owner_ = nullptr;
  unsigned sharers_ = 0;
  std::string key_;
  std::atomic<bool> held_{false};
};

}  // namespace tvr::visa
