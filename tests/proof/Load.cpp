#include "Load.h"

#include <KVTD481X2C.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <utility>

#include "Descriptors.h"
#include "DriverDialogue.h"

// Of a sanitizer's allocator, where there is one; the C library knows nothing of that.
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace kvtd::test {
namespace {

bool IsSanitized() { return __sanitizer_get_current_allocated_bytes != nullptr; }

std::size_t HeapInUse() {
  if (IsSanitized()) return __sanitizer_get_current_allocated_bytes();
  const struct mallinfo2 info = ::mallinfo2();
  return info.uordblks + info.hblkhd;
}

std::size_t Resident() {
  std::ifstream statm("/proc/self/statm");
  std::size_t size = 0;
  std::size_t resident = 0;
  statm >> size >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

double Difference(std::size_t before, std::size_t after) {
  return static_cast<double>(after) - static_cast<double>(before);
}

}  // namespace

Holdings HeldNow() {
  const std::size_t descriptors = OpenDescriptors();
  return {descriptors, HeapInUse(), Resident()};
}

void ExpectNoMoreMemory(const Holdings& before, const Holdings& after) {
  // Under the sanitizer of threads one buffer of a peer, 256 KiB, is at times still counted when its thread is gone.
  EXPECT_LE(after.heap, before.heap + (IsSanitized() ? 4 * kHeapPlay : kHeapPlay));
  if (!IsSanitized()) {
    EXPECT_LE(after.resident, before.resident + kResidentPlay);
  }
}

void ExpectNoMore(const Holdings& before, const Holdings& after) {
  EXPECT_EQ(before.descriptors, after.descriptors);
  ExpectNoMoreMemory(before, after);
}

std::string Growth(const Holdings& before, const Holdings& after) {
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "%+.0f descriptors, heap %+.1f KiB, resident %+.1f MiB",
                Difference(before.descriptors, after.descriptors), Difference(before.heap, after.heap) / 1024,
                Difference(before.resident, after.resident) / (1 << 20));
  return text.data();
}

LoadSession::LoadSession(const std::string& resource, const char* options) {
  std::string name = resource;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(name.data(), VI_TRUE, VI_FALSE, options, &vi_));
}

LoadSession::LoadSession(LoadSession&& other) noexcept : vi_(std::exchange(other.vi_, VI_NULL)) {}

LoadSession::~LoadSession() {
  if (vi_ == VI_NULL) return;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi_));
}

}  // namespace kvtd::test
