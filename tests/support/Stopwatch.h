// How long a call took, and how much of that was the machine's doing.

#ifndef KVTD_TESTS_SUPPORT_STOPWATCH_H
#define KVTD_TESTS_SUPPORT_STOPWATCH_H

#include <chrono>

namespace kvtd::test {

class Stopwatch {
 public:
  Stopwatch();

  // By the clock on the wall.
  double seconds() const;
  long Milliseconds() const;
  // Less what the machine held back meanwhile: threads of this process that stood in line for a processor, and
  // processors that a host gave to others. For upper bounds, which a busy machine would break without anybody's fault.
  long OwnMilliseconds() const;

 private:
  std::chrono::steady_clock::time_point start_;
  std::chrono::nanoseconds held_back_;
};

}  // namespace kvtd::test

#endif
