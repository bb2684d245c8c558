// Assertions stay in the finished library: they state what our own code promises, and a broken promise must not pass.
#pragma once

#undef NDEBUG
#include <cassert>
#include <cstddef>
#include <cstring>

#include <visatype.h>

// The longest text an attribute returns, terminator included.
constexpr ViInt32 MAX_STRING_ATTRIBUTE_LENGTH = 4096;

#ifndef _TRUNCATE
#define _TRUNCATE (static_cast<std::size_t>(-1))
#endif
