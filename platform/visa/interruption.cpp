#include "interruption.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace tvr::visa {

Interruption::~Interruption() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

int Interruption::Descriptor() {
  const std::lock_guard hold(guard_);
  if (descriptor_ < 0) descriptor_ = ::eventfd(Requested() ? 1 : 0, EFD_CLOEXEC | EFD_NONBLOCK);
  return descriptor_;
}

void Interruption::Request() {
  const std::lock_guard hold(guard_);
  requested_.store(true, std::memory_order_release);
  if (descriptor_ < 0) return;
  // A full counter is as readable as one that was just written.
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = ::write(descriptor_, &one, sizeof one);
}

void Interruption::Forget() {
  const std::lock_guard hold(guard_);
  requested_.store(false, std::memory_order_relaxed);
  if (descriptor_ < 0) return;
  std::uint64_t count = 0;
  [[maybe_unused]] const auto taken = ::read(descriptor_, &count, sizeof count);
}

}  // namespace tvr::visa
