#include "config/HandleTable.h"

#include <utility>

namespace tvrivi {

namespace {

static_assert(sizeof(IviConfigHandle) == sizeof(std::uint64_t), "a handle holds an index and a generation");

// The lowest bit is set, as in no pointer to an object of any size but one byte.
IviConfigHandle Encode(std::uint32_t index, std::uint32_t generation) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the published type of a handle is a pointer
  return reinterpret_cast<IviConfigHandle>(std::uint64_t{generation} << 32 | std::uint64_t{index} << 1 | 1u);
}

}  // namespace

HandleTable::Slot* HandleTable::FindSlot(IviConfigHandle handle) {
  const auto bits = reinterpret_cast<std::uint64_t>(handle);
  const std::uint32_t index = static_cast<std::uint32_t>(bits) >> 1;
  if ((bits & 1u) == 0 || index >= slots_.size()) return nullptr;
  Slot& slot = slots_[index];
  return slot.entry.store != nullptr && slot.generation == bits >> 32 ? &slot : nullptr;
}

void HandleTable::Free(Slot& slot) {
  free_.push_back(static_cast<std::uint32_t>(&slot - slots_.data()));
  slot.entry = Entry();
}

IviConfigHandle HandleTable::Add(std::shared_ptr<Store> store, Target target) {
  const std::lock_guard<std::mutex> hold(guard_);
  if (free_.empty()) {
    free_.reserve(slots_.size() + 1);  // so that giving a handle back never needs memory
    slots_.emplace_back();
    free_.push_back(static_cast<std::uint32_t>(slots_.size() - 1));
  }
  const std::uint32_t index = free_.back();
  free_.pop_back();
  Slot& slot = slots_[index];
  ++slot.generation;
  slot.entry = {std::move(store), target};
  return Encode(index, slot.generation);
}

HandleTable::Entry HandleTable::Find(IviConfigHandle handle) {
  const std::lock_guard<std::mutex> hold(guard_);
  const Slot* slot = FindSlot(handle);
  return slot == nullptr ? Entry() : slot->entry;
}

bool HandleTable::RemoveItem(IviConfigHandle handle) {
  const std::lock_guard<std::mutex> hold(guard_);
  Slot* slot = FindSlot(handle);
  if (slot == nullptr || std::holds_alternative<Store*>(slot->entry.target)) return false;
  Free(*slot);
  return true;
}

bool HandleTable::RemoveStore(IviConfigHandle handle) {
  std::shared_ptr<Store> store;  // destroyed behind the lock: a large store takes a while
  const std::lock_guard<std::mutex> hold(guard_);
  Slot* found = FindSlot(handle);
  if (found == nullptr || !std::holds_alternative<Store*>(found->entry.target)) return false;
  store = found->entry.store;
  for (Slot& slot : slots_) {
    if (slot.entry.store == store) Free(slot);
  }
  return true;
}

HandleTable& Handles() {
  static auto* table = new HandleTable;
  return *table;
}

}  // namespace tvrivi
