#ifndef TVRIVI_SESSION_RECURSIVE_LOCK_H
#define TVRIVI_SESSION_RECURSIVE_LOCK_H

#include <atomic>
#include <cstdint>

namespace tvrivi {

/// A recursive lock whose uncontended pair is two atomic exchanges: a driver takes it around every call, where
/// std::recursive_mutex would cost more than the rest of a simulated read.
///
/// One word says who holds it. Two more things can be in the word: that somebody waits, so that only then an Unlock
/// has to wake anybody, and that the lock is closed, which sends everybody away.
class RecursiveLock {
 public:
  enum class Outcome { kDone, kNotOwner, kClosed };

  /// Waits without limit for other threads. kClosed: the lock was closed before or while waiting.
  Outcome Lock() noexcept {
    const std::uintptr_t self = Self();
    std::uintptr_t seen = holder_.load(std::memory_order_relaxed);
    if (Thread(seen) == self) {
      SetDepth(Depth() + 1);
      return Outcome::kDone;
    }
    seen = kFree;
    if (!holder_.compare_exchange_strong(seen, self, std::memory_order_acquire, std::memory_order_relaxed)) {
      if (!LockAfterWaiting(self)) return Outcome::kClosed;
    }
    SetDepth(1);
    return Outcome::kDone;
  }

  Outcome Unlock() noexcept {
    const std::uintptr_t self = Self();
    std::uintptr_t seen = holder_.load(std::memory_order_relaxed);
    if (Thread(seen) != self) return seen == kClosed ? Outcome::kClosed : Outcome::kNotOwner;
    if (Depth() > 1) {
      SetDepth(Depth() - 1);
      return Outcome::kDone;
    }
    seen = self;
    if (holder_.compare_exchange_strong(seen, kFree, std::memory_order_release, std::memory_order_relaxed)) {
      return Outcome::kDone;
    }
    return UnlockAndWake(self);
  }

  /// A lock begins closed. Open makes it free, whatever it was; Close sends waiting threads and the holder away.
  void Open() noexcept;
  void Close() noexcept;

 private:
  static constexpr std::uintptr_t kFree = 0;
  static constexpr std::uintptr_t kContended = 1;  // a flag beside the holder's thread
  static constexpr std::uintptr_t kClosed = 2;     // no thread: their addresses are aligned

  // The thread's name is the address of its control block: one load, where pthread_self is a call.
  static std::uintptr_t Self() noexcept { return reinterpret_cast<std::uintptr_t>(__builtin_thread_pointer()); }
  static std::uintptr_t Thread(std::uintptr_t word) noexcept { return word & ~kContended; }

  // Only the holder touches the depth. It is atomic for the one case that a closed lock is opened again while its
  // last holder is still on its way out.
  std::uint32_t Depth() const noexcept { return depth_.load(std::memory_order_relaxed); }
  void SetDepth(std::uint32_t depth) noexcept { depth_.store(depth, std::memory_order_relaxed); }

  bool LockAfterWaiting(std::uintptr_t self) noexcept;
  Outcome UnlockAndWake(std::uintptr_t self) noexcept;

  std::atomic<std::uintptr_t> holder_{kClosed};
  std::atomic<std::uint32_t> depth_{0};
};

}  // namespace tvrivi

#endif
