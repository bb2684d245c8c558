// All that the driver asks of the operating system.
#pragma once

#include <cstdint>

namespace tvr {

// A monotonic count of milliseconds.
std::uint64_t GetTickCount64();

void Sleep(unsigned milliseconds);

}  // namespace tvr
