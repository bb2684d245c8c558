#include "interruption.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace tvr::visa {

Interruption::Interruption() : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

Interruption::~Interruption() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

void Interruption::Request() {
  // Descriptor first: a call that begins in between would otherwise forget the flag and keep a readable descriptor.
  // A full counter is as readable as one that was just written.
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = ::write(descriptor_, &one, sizeof one);
  requested_.store(true, std::memory_order_release);
}

void Interruption::Forget() {
  requested_.store(false, std::memory_order_relaxed);
  std::uint64_t count = 0;
  [[maybe_unused]] const auto taken = ::read(descriptor_, &count, sizeof count);
}

}  // namespace tvr::visa
