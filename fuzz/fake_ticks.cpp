// The driver's clock is the fake network's.
#include <Ticks.h>

#include "fake_network.h"

using kvtd::fuzz::FakeNetwork;

std::uint64_t tvr::GetTickCount64() {
  const auto now = FakeNetwork::Now().time_since_epoch();
  return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void tvr::Sleep(unsigned milliseconds) { FakeNetwork::Pass(std::chrono::milliseconds(milliseconds)); }
