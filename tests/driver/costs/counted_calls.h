// How often this program, with all of its libraries, has asked the system for input and output, and the heap for
// memory.
#pragma once

#include <cstddef>

struct Counts {
  std::size_t sends = 0;
  std::size_t receives = 0;
  std::size_t others = 0;  // waits and settings: poll, select, setsockopt, ...
  std::size_t allocations = 0;
};

// Of the calling thread, since it began.
Counts CountedCalls();
