#include "session/SessionTable.h"

#include <new>
#include <utility>

namespace tvrivi {

constinit SessionTable g_sessions;

// A slot is taken again as late as possible: the chunk is used up first, then the slot that has been free longest.
// With a thousand slots of four thousand generations each, a handle comes back after some four million sessions.
std::uint32_t SessionTable::TakeIndex() noexcept {
  const bool chunk_used_up = (used_ & (kChunkSlots - 1)) == 0;
  if (chunk_used_up && first_free_ != kNone) {
    const std::uint32_t index = first_free_;
    first_free_ = SlotAt(index)->next_free;
    if (first_free_ == kNone) last_free_ = kNone;
    return index;
  }
  if (used_ == kNone) return kNone;
  if (chunk_used_up) {
    auto* chunk = new (std::nothrow) SessionSlot[kChunkSlots];
    if (chunk == nullptr) return kNone;
    chunks_[used_ >> kChunkBits].store(chunk, std::memory_order_release);
  }
  return used_++;
}

ViSession SessionTable::Add() noexcept {
  const std::lock_guard<std::mutex> hold(guard_);
  const std::uint32_t index = TakeIndex();
  if (index == kNone) return 0;

  SessionSlot& slot = *SlotAt(index);
  slot.generation = slot.generation == kGenerationMask ? 1 : slot.generation + 1;
  const ViSession handle = (slot.generation << kIndexBits) | index;
  slot.lock.Open();
  slot.handle.store(handle, std::memory_order_release);
  return handle;
}

bool SessionTable::Remove(ViSession handle) noexcept {
  const std::lock_guard<std::mutex> hold(guard_);
  SessionSlot* slot = Find(handle);
  if (slot == nullptr) return false;
  {
    const std::lock_guard<std::mutex> hold_error(slot->error_guard);
    slot->handle.store(0, std::memory_order_release);
    // Assigning an empty record would keep the memory of the text.
    static_cast<void>(std::exchange(slot->error, ErrorRecord()));
  }
  slot->data.store(nullptr, std::memory_order_release);
  slot->lock.Close();

  const std::uint32_t index = handle & kIndexMask;
  slot->next_free = kNone;
  if (last_free_ == kNone) {
    first_free_ = index;
  } else {
    SlotAt(last_free_)->next_free = index;
  }
  last_free_ = index;
  return true;
}

}  // namespace tvrivi
