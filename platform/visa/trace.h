// What goes over the wire, line by line, when the environment asks for it: TVR_VISA_TRACE=stderr, or a file name.
//
//   12:34:56.789012 56000001 > 6 bytes 0x00000000 "*IDN?\n"
#pragma once

#include <sys/uio.h>
#include <visa.h>

#include <span>

namespace tvr::visa::trace {

enum class Direction : char { kOut = '>', kIn = '<', kEvent = '=' };

// Decided once, when the library is loaded.
extern const bool kOn;

// Up to `count` bytes of the pieces moved, with this status. Any thread.
void Message(ViSession session, Direction direction, std::span<const iovec> pieces, std::size_t count,
             ViStatus status) noexcept;

}  // namespace tvr::visa::trace
