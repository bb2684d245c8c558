#include "Heap.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace kvtd::test {
namespace {

struct Plan {
  bool armed = false;
  bool happened = false;
  std::size_t passing = 0;
  Exhaustion exhaustion = Exhaustion::Once;
};

thread_local Plan g_plan;
thread_local Memory g_held;

bool Fails() {
  if (!g_plan.armed) return false;
  if (g_plan.passing > 0) {
    --g_plan.passing;
    return false;
  }
  g_plan.happened = true;
  g_plan.armed = g_plan.exhaustion == Exhaustion::FromThenOn;
  return true;
}

void* Allocate(std::size_t size) {
  if (Fails()) throw std::bad_alloc();
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  ++g_held.blocks;
  g_held.bytes += static_cast<std::ptrdiff_t>(::malloc_usable_size(memory));
  return memory;
}

void GiveBack(void* memory) {
  if (memory == nullptr) return;
  --g_held.blocks;
  g_held.bytes -= static_cast<std::ptrdiff_t>(::malloc_usable_size(memory));
  std::free(memory);
}

}  // namespace

Memory HeldMemory() { return g_held; }

FailingAllocation::FailingAllocation(std::size_t passing, Exhaustion exhaustion) {
  g_plan = {true, false, passing, exhaustion};
}

FailingAllocation::~FailingAllocation() { g_plan.armed = false; }

bool FailingAllocation::happened() const { return g_plan.happened; }

}  // namespace kvtd::test

void* operator new(std::size_t size) { return kvtd::test::Allocate(size); }
void* operator new[](std::size_t size) { return kvtd::test::Allocate(size); }
void operator delete(void* memory) noexcept { kvtd::test::GiveBack(memory); }
void operator delete[](void* memory) noexcept { kvtd::test::GiveBack(memory); }
void operator delete(void* memory, std::size_t) noexcept { kvtd::test::GiveBack(memory); }
void operator delete[](void* memory, std::size_t) noexcept { kvtd::test::GiveBack(memory); }
