// The heap of this program and all of its libraries: what a thread holds, and an allocation that fails on order.

#ifndef KVTD_TESTS_PROOF_HEAP_H
#define KVTD_TESTS_PROOF_HEAP_H

#include <cstddef>
#include <ostream>

namespace kvtd::test {

struct Memory {
  std::ptrdiff_t blocks = 0;
  std::ptrdiff_t bytes = 0;

  bool operator==(const Memory&) const = default;
};

inline void PrintTo(const Memory& memory, std::ostream* stream) {
  *stream << memory.bytes << " bytes in " << memory.blocks << " blocks";
}

// What the calling thread has allocated and not given back.
Memory HeldMemory();

enum class Exhaustion { Once, FromThenOn };

// While it lives: of the calling thread's allocations, the one behind `passing` others fails.
class FailingAllocation {
 public:
  FailingAllocation(std::size_t passing, Exhaustion exhaustion);
  ~FailingAllocation();
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;

  bool happened() const;
};

}  // namespace kvtd::test

#endif
