#include "GuardedMemory.h"

#include <sys/mman.h>

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace kvtd::test {
namespace {

// Pages are used again: a new mapping for each buffer of each call would take longer than the calls.
std::vector<std::byte*>& FreePages() {
  thread_local std::vector<std::byte*> pages;
  return pages;
}

std::byte* NewPage() {
  void* const memory = ::mmap(nullptr, 2 * GuardedMemory::kLargest, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED || ::mprotect(memory, GuardedMemory::kLargest, PROT_READ | PROT_WRITE) != 0) {
    throw std::runtime_error("no memory to guard");
  }
  return static_cast<std::byte*>(memory);
}

}  // namespace

GuardedMemory::GuardedMemory(std::size_t size) : page_(nullptr), size_(size) {
  if (size > kLargest) throw std::invalid_argument("too much memory to guard");
  auto& pages = FreePages();
  if (pages.empty()) {
    page_ = NewPage();
  } else {
    page_ = pages.back();
    pages.pop_back();
  }
  std::fill_n(page_, kLargest, kUntouched);
}

GuardedMemory::GuardedMemory(GuardedMemory&& other) noexcept
    : page_(std::exchange(other.page_, nullptr)), size_(other.size_) {}

GuardedMemory::~GuardedMemory() {
  if (page_ != nullptr) FreePages().push_back(page_);
}

bool GuardedMemory::Intact() const {
  return std::all_of(page_, data(), [](std::byte byte) { return byte == kUntouched; });
}

}  // namespace kvtd::test
