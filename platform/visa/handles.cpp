// A handle is a place (lower 16 bits) and the generation of its use (upper 16 bits). Each place has one atomic word:
// generation, whether the handle is valid, whether an object is there, and how many calls are at work on it.
#include "handles.h"

#include <array>
#include <atomic>
#include <cassert>
#include <mutex>
#include <utility>

namespace tvr::visa::handles {
namespace {

using Word = std::uint64_t;
constexpr Word kPin = 1;
constexpr Word kPins = 0x3FFFFFFF;
constexpr Word kOccupied = Word{1} << 30;
constexpr Word kValid = Word{1} << 31;
constexpr unsigned kGenerationShift = 32;
// Unlike the small numbers that other libraries give out, so that their handles are not taken for ours.
constexpr Word kFirstGeneration = 0x5600;
constexpr Word kGenerations = 0xFFFF;

constexpr std::size_t kPlacesPerBlock = 64;
constexpr std::size_t kBlocks = 1024;

constexpr std::uint32_t kNoPlace = 0xFFFFFFFF;

// A cache line each: two sessions share nothing.
struct alignas(64) Place {
  std::atomic<Word> word{kFirstGeneration << kGenerationShift};
  Object* object = nullptr;
  // Of a free place. The list is made of the places themselves: freeing one must not need memory.
  std::uint32_t next_free = kNoPlace;
};

using Block = std::array<Place, kPlacesPerBlock>;

struct Table {
  std::array<std::atomic<Block*>, kBlocks> blocks{};
  std::mutex guard;  // of what follows
  std::size_t places = 0;
  // First in, first out: a place rests as long as possible.
  std::uint32_t first_free = kNoPlace;
  std::uint32_t last_free = kNoPlace;
};

// Never destroyed: a program may still close its sessions while it ends.
Table& TheTable() {
  static auto* const table = new Table;
  return *table;
}

Word GenerationOf(Word word) { return word >> kGenerationShift; }

Place* PlaceOf(ViObject handle) {
  const std::size_t index = handle & 0xFFFF;
  Block* const block = TheTable().blocks[index / kPlacesPerBlock].load(std::memory_order_acquire);
  return block == nullptr ? nullptr : &(*block)[index % kPlacesPerBlock];
}

// One of those that the table has made.
Place& OwnPlace(std::uint32_t index) {
  Place* const place = PlaceOf(index);
  assert(place != nullptr);
  return *place;
}

// Both under the table's guard.
void PushFree(Table& table, std::uint32_t index) {
  OwnPlace(index).next_free = kNoPlace;
  (table.first_free == kNoPlace ? table.first_free : OwnPlace(table.last_free).next_free) = index;
  table.last_free = index;
}

std::uint32_t PopFree(Table& table) {
  const std::uint32_t index = table.first_free;
  table.first_free = OwnPlace(index).next_free;
  return index;
}

// The last one out of a closed place takes the object away and frees the place for its next generation.
void VacateIfLast(Place& place, ViObject handle) {
  Word word = place.word.load(std::memory_order_acquire);
  if ((word & (kValid | kOccupied | kPins)) != kOccupied) return;
  const Word next = GenerationOf(word) % kGenerations + 1;
  if (!place.word.compare_exchange_strong(word, next << kGenerationShift, std::memory_order_acq_rel)) return;
  delete std::exchange(place.object, nullptr);
  Table& table = TheTable();
  const std::lock_guard lock(table.guard);
  PushFree(table, handle & 0xFFFF);
}

}  // namespace

ViObject Add(std::unique_ptr<Object> object) {
  Table& table = TheTable();
  const std::lock_guard lock(table.guard);
  if (table.first_free == kNoPlace) {
    const std::size_t block = table.places / kPlacesPerBlock;
    if (block == kBlocks) return VI_NULL;
    table.blocks[block].store(std::make_unique<Block>().release(), std::memory_order_release);
    for (std::size_t i = 0; i < kPlacesPerBlock; ++i) {
      PushFree(table, static_cast<std::uint32_t>(table.places + i));
    }
    table.places += kPlacesPerBlock;
  }
  const std::uint32_t index = PopFree(table);
  Place& place = *PlaceOf(index);
  place.object = object.release();
  // Added to, not overwritten: a stale handle may be on its way in and out at this moment.
  const Word before = place.word.fetch_or(kValid | kOccupied, std::memory_order_acq_rel);
  return static_cast<ViObject>(GenerationOf(before) << 16) | index;
}

Object* Pin(ViObject handle) noexcept {
  Place* const place = PlaceOf(handle);
  if (place == nullptr) return nullptr;
  const Word word = place->word.fetch_add(kPin, std::memory_order_acquire);
  if ((word & kValid) != 0 && GenerationOf(word) == handle >> 16) return place->object;
  Unpin(handle);
  return nullptr;
}

void Unpin(ViObject handle) noexcept {
  Place& place = *PlaceOf(handle);
  const Word before = place.word.fetch_sub(kPin, std::memory_order_acq_rel);
  if ((before & kValid) == 0) [[unlikely]]
    VacateIfLast(place, handle);
}

bool Close(ViObject handle) {
  const Pinned pinned(handle);
  if (!pinned) return false;
  const Word before = PlaceOf(handle)->word.fetch_and(~kValid, std::memory_order_acq_rel);
  if ((before & kValid) == 0) return false;
  (*pinned).OnClose();
  return true;
}

}  // namespace tvr::visa::handles
