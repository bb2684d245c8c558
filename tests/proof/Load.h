// What the process holds, and how a figure is told: each load test prints one line "proof: ..." with what it did.

#ifndef KVTD_TESTS_PROOF_LOAD_H
#define KVTD_TESTS_PROOF_LOAD_H

#include <visatype.h>

#include <cstddef>
#include <string>

#include "Proof.h"
#include "Stopwatch.h"

namespace kvtd::test {

struct Holdings {
  std::size_t descriptors;
  std::size_t heap;      // bytes that are allocated
  std::size_t resident;  // bytes
};
Holdings HeldNow();

// What may be more after any amount of work. The C library counts as allocated what its threads have in their caches,
// and a virtual instrument that has not noticed yet that a session is gone keeps that link with its buffers of 64 KiB.
inline constexpr std::size_t kHeapPlay = 256 << 10;
inline constexpr std::size_t kResidentPlay = 4 << 20;

// Both fail where there is more than before. Sanitizers keep what is freed: with them resident memory says nothing.
void ExpectNoMoreMemory(const Holdings& before, const Holdings& after);
void ExpectNoMore(const Holdings& before, const Holdings& after);
// "+0 descriptors, heap +0.1 KiB, resident +0.0 MiB"
std::string Growth(const Holdings& before, const Holdings& after);

// A session that is closed again; none when the instrument could not be opened, and the test has failed then.
class LoadSession {
 public:
  LoadSession(const std::string& resource, const char* options);
  LoadSession(LoadSession&& other) noexcept;
  ~LoadSession();

  ViSession vi() const { return vi_; }

 private:
  ViSession vi_ = 0;
};

}  // namespace kvtd::test

#endif
