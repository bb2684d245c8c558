// How often this program, with all of its libraries, has asked the system for input and output, and the heap for
// memory; and how much of that it held.
#pragma once

#include <cstddef>
#include <functional>

struct Counts {
  std::size_t sends = 0;
  std::size_t receives = 0;
  std::size_t others = 0;  // waits and settings: poll, select, setsockopt, ...
  std::size_t allocations = 0;
};

// Of the calling thread, since it began.
Counts CountedCalls();

// The most bytes of the heap that the calling thread held at a time during the work, beyond those it held before.
std::size_t MostHeldDuring(const std::function<void()>& work);
