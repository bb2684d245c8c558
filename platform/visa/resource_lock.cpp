#include "resource_lock.h"

#include <chrono>
#include <map>
#include <random>

#include "ascii.h"

namespace tvr::visa {
namespace {

// A device takes equal keys for one party, whatever process or machine they come from.
std::string NewKey() {
  std::random_device random;
  std::string key = "TVR-VISA";
  for (int i = 0; i < 4; ++i) key += '-' + std::to_string(random());
  return key;
}

}  // namespace

std::shared_ptr<ResourceLock> ResourceLock::Of(const std::string& canonical_name) {
  static std::mutex guard;
  static std::map<std::string, std::weak_ptr<ResourceLock>> locks;
  const std::lock_guard hold(guard);
  std::erase_if(locks, [](const auto& entry) { return entry.second.expired(); });
  auto& known = locks[Upper(canonical_name)];
  auto lock = known.lock();
  if (lock == nullptr) known = lock = std::make_shared<ResourceLock>();
  return lock;
}

template <class Free>
ViStatus ResourceLock::WaitUntil(Free free, const Holder& holder, ViUInt32 timeout_ms,
                                 std::unique_lock<std::mutex>& lock) {
  const auto ready = [&] { return holder.withdrawn_ || free(); };
  if (ready()) {
    return holder.withdrawn_ ? VI_ERROR_INV_OBJECT : VI_SUCCESS;
  }
  if (timeout_ms == VI_TMO_IMMEDIATE) return VI_ERROR_RSRC_LOCKED;
  if (timeout_ms == VI_TMO_INFINITE) {
    changed_.wait(lock, ready);
  } else if (!changed_.wait_for(lock, std::chrono::milliseconds(timeout_ms), ready)) {
    return VI_ERROR_TMO;
  }
  return holder.withdrawn_ ? VI_ERROR_INV_OBJECT : VI_SUCCESS;
}

ViStatus ResourceLock::LockExclusive(Holder& holder, ViUInt32 timeout_ms) {
  std::unique_lock lock(guard_);
  // A sharer may take the exclusive lock on top, whoever shares with it.
  const auto free = [&] {
    return exclusive_owner_ == &holder || (exclusive_owner_ == nullptr && (sharers_ == 0 || holder.shared_ > 0));
  };
  if (const ViStatus status = WaitUntil(free, holder, timeout_ms, lock); status < 0) return status;
  exclusive_owner_ = &holder;
  Changed();
  return ++holder.exclusive_ == 1 ? VI_SUCCESS : VI_SUCCESS_NESTED_EXCLUSIVE;
}

ViStatus ResourceLock::LockShared(Holder& holder, ViUInt32 timeout_ms, const std::string& requested_key,
                                  std::string& key) {
  std::unique_lock lock(guard_);
  if (holder.shared_ > 0) {
    if (!requested_key.empty() && requested_key != key_) return VI_ERROR_INV_ACCESS_KEY;
    key = key_;
    ++holder.shared_;
    return VI_SUCCESS_NESTED_SHARED;
  }
  const auto free = [&] {
    return (exclusive_owner_ == nullptr || exclusive_owner_ == &holder) && (sharers_ == 0 || requested_key == key_);
  };
  if (const ViStatus status = WaitUntil(free, holder, timeout_ms, lock); status < 0) return status;
  if (sharers_++ == 0) key_ = requested_key.empty() ? NewKey() : requested_key;
  key = key_;
  holder.shared_ = 1;
  Changed();
  return VI_SUCCESS;
}

ViStatus ResourceLock::Unlock(Holder& holder) {
  const std::lock_guard lock(guard_);
  return LowerLevel(holder, holder.exclusive_ > 0 ? VI_EXCLUSIVE_LOCK : VI_SHARED_LOCK);
}

ViStatus ResourceLock::Unlock(Holder& holder, ViAccessMode type) {
  const std::lock_guard lock(guard_);
  return LowerLevel(holder, type);
}

ViStatus ResourceLock::LowerLevel(Holder& holder, ViAccessMode type) {
  unsigned& levels = type == VI_EXCLUSIVE_LOCK ? holder.exclusive_ : holder.shared_;
  if (levels == 0) return VI_ERROR_SESN_NLOCKED;
  if (--levels == 0) {
    if (type == VI_EXCLUSIVE_LOCK) {
      exclusive_owner_ = nullptr;
    } else {
      --sharers_;
    }
  }
  Changed();
  if (holder.exclusive_ > 0) return VI_SUCCESS_NESTED_EXCLUSIVE;
  return holder.shared_ > 0 ? VI_SUCCESS_NESTED_SHARED : VI_SUCCESS;
}

ViAccessMode ResourceLock::LastLevel(const Holder& holder) {
  const std::lock_guard lock(guard_);
  if (holder.exclusive_ > 0) return holder.exclusive_ == 1 ? VI_EXCLUSIVE_LOCK : VI_NO_LOCK;
  return holder.shared_ == 1 ? VI_SHARED_LOCK : VI_NO_LOCK;
}

void ResourceLock::Withdraw(Holder& holder) {
  const std::lock_guard lock(guard_);
  if (exclusive_owner_ == &holder) exclusive_owner_ = nullptr;
  if (holder.shared_ > 0) --sharers_;
  holder.exclusive_ = holder.shared_ = 0;
  holder.withdrawn_ = true;
  Changed();
}

void ResourceLock::Changed() {
  held_.store(exclusive_owner_ != nullptr || sharers_ > 0, std::memory_order_release);
  changed_.notify_all();
}

bool ResourceLock::AdmitsWhenHeld(const Holder& holder) {
  const std::lock_guard lock(guard_);
  if (exclusive_owner_ != nullptr) return exclusive_owner_ == &holder;
  return sharers_ == 0 || holder.shared_ > 0;
}

ViAccessMode ResourceLock::State() {
  const std::lock_guard lock(guard_);
  if (exclusive_owner_ != nullptr) return VI_EXCLUSIVE_LOCK;
  return sharers_ > 0 ? VI_SHARED_LOCK : VI_NO_LOCK;
}

}  // namespace tvr::visa
