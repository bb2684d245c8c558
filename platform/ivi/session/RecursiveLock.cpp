#include "session/RecursiveLock.h"

namespace tvrivi {

bool RecursiveLock::LockAfterWaiting(std::uintptr_t self) noexcept {
  std::uintptr_t seen = holder_.load(std::memory_order_relaxed);
  for (;;) {
    if (seen == kClosed) return false;
    if (seen == kFree) {
      // Others may be waiting still, and nobody counts them: take the lock as one that has to wake.
      if (holder_.compare_exchange_weak(seen, self | kContended, std::memory_order_acquire,
                                        std::memory_order_relaxed)) {
        return true;
      }
      continue;
    }
    const std::uintptr_t contended = seen | kContended;
    if (seen != contended && !holder_.compare_exchange_weak(seen, contended, std::memory_order_relaxed)) continue;
    holder_.wait(contended, std::memory_order_relaxed);
    seen = holder_.load(std::memory_order_relaxed);
  }
}

RecursiveLock::Outcome RecursiveLock::UnlockAndWake(std::uintptr_t self) noexcept {
  std::uintptr_t seen = self | kContended;
  if (!holder_.compare_exchange_strong(seen, kFree, std::memory_order_release, std::memory_order_relaxed)) {
    return Outcome::kClosed;
  }
  holder_.notify_one();
  return Outcome::kDone;
}

void RecursiveLock::Open() noexcept { holder_.store(kFree, std::memory_order_release); }

void RecursiveLock::Close() noexcept {
  holder_.store(kClosed, std::memory_order_release);
  holder_.notify_all();
}

}  // namespace tvrivi
