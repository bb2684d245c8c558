#ifndef TVRIVI_SESSION_SESSION_TABLE_H
#define TVRIVI_SESSION_SESSION_TABLE_H

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>

#include "IviCShared.h"
#include "session/ErrorRecord.h"
#include "session/RecursiveLock.h"

namespace tvrivi {

/// What the component keeps of one session. The first members are those of every call; two sessions never share a
/// cache line, nor the pair of lines that a processor fetches together.
struct alignas(128) SessionSlot {
  std::atomic<ViSession> handle{0};  // 0 while the slot is free
  RecursiveLock lock;
  std::atomic<ViAddr> data{nullptr};

  std::mutex error_guard;  // also held while a session ends, so that no error survives into the next one
  ErrorRecord error;

  std::uint32_t generation = 0;  // this and the next are the table's, under its guard
  std::uint32_t next_free = 0;
};

/// The sessions of the process. A handle is the index of a slot and, above it, how often that slot has been used, so
/// that resolving one is two loads and a comparison, without a lock. Slots live in chunks that are never moved or
/// freed: a stale handle reads a slot that is there.
class SessionTable {
 public:
  /// The slot in which the handle is open, else null.
  SessionSlot* Find(ViSession handle) noexcept {
    SessionSlot* slot = SlotAt(handle & kIndexMask);
    if (slot == nullptr || handle == 0 || slot->handle.load(std::memory_order_acquire) != handle) return nullptr;
    return slot;
  }

  /// 0 when memory or the range of handles is used up.
  ViSession Add() noexcept;

  /// False when the handle does not resolve.
  bool Remove(ViSession handle) noexcept;

 private:
  static constexpr std::uint32_t kIndexBits = 20;
  static constexpr std::uint32_t kIndexMask = (1u << kIndexBits) - 1;
  static constexpr std::uint32_t kGenerationMask = (1u << (32 - kIndexBits)) - 1;
  static constexpr std::uint32_t kChunkBits = 10;
  static constexpr std::uint32_t kChunkSlots = 1u << kChunkBits;
  static constexpr std::uint32_t kChunkCount = 1u << (kIndexBits - kChunkBits);
  static constexpr std::uint32_t kNone = kIndexMask + 1;

  SessionSlot* SlotAt(std::uint32_t index) noexcept {
    SessionSlot* chunk = chunks_[index >> kChunkBits].load(std::memory_order_acquire);
    return chunk == nullptr ? nullptr : chunk + (index & (kChunkSlots - 1));
  }
  std::uint32_t TakeIndex() noexcept;

  std::array<std::atomic<SessionSlot*>, kChunkCount> chunks_{};

  std::mutex guard_;  // of everything below
  std::uint32_t used_ = 0;
  std::uint32_t first_free_ = kNone;
  std::uint32_t last_free_ = kNone;
};

extern constinit SessionTable g_sessions;

}  // namespace tvrivi

#endif
