#include "Ticks.h"

#include <chrono>
#include <thread>

namespace tvr {

std::uint64_t GetTickCount64() {
  const auto since_start = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(since_start).count());
}

void Sleep(unsigned milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

}  // namespace tvr
