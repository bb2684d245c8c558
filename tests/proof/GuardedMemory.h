// Memory that ends at a page which nobody may touch: a byte too many ends the process there and then.

#ifndef KVTD_TESTS_PROOF_GUARDED_MEMORY_H
#define KVTD_TESTS_PROOF_GUARDED_MEMORY_H

#include <cstddef>

namespace kvtd::test {

// All bytes begin as kUntouched, those in front of the memory as well.
class GuardedMemory {
 public:
  static constexpr std::byte kUntouched{0x7E};
  static constexpr std::size_t kLargest = 4096;

  explicit GuardedMemory(std::size_t size);
  GuardedMemory(GuardedMemory&& other) noexcept;
  GuardedMemory& operator=(GuardedMemory&&) = delete;
  ~GuardedMemory();

  std::byte* data() const { return page_ + kLargest - size_; }
  std::size_t size() const { return size_; }
  // Nothing was written in front of it.
  bool Intact() const;

 private:
  std::byte* page_;
  std::size_t size_;
};

}  // namespace kvtd::test

#endif
