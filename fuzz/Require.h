// What must hold whatever the input is. Ends the process where it does not, so that the fuzzer keeps the input.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace kvtd::fuzz {

inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

}  // namespace kvtd::fuzz
