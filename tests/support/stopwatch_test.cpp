#include "Stopwatch.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <atomic>
#include <fstream>
#include <thread>

namespace kvtd::test {
namespace {

void SpinFor(long milliseconds) {
  const Stopwatch watch;
  while (watch.Milliseconds() < milliseconds) {
  }
}

TEST(Stopwatch, CountsASleep) {
  const Stopwatch watch;
  std::this_thread::sleep_for(std::chrono::milliseconds(30));
  EXPECT_GE(watch.Milliseconds(), 30);
  EXPECT_GE(watch.seconds(), 0.03);
  EXPECT_LE(watch.OwnMilliseconds(), watch.Milliseconds());
}

// Two that want one processor: each stands in line for half of the time.
TEST(Stopwatch, TakesOffWhatWasWaitedForAProcessor) {
  if (!std::ifstream("/proc/self/schedstat")) GTEST_SKIP() << "the kernel keeps no figures";
  std::atomic<bool> is_over = false;
  long own = 0;
  std::thread both([&] {
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(::sched_getcpu(), &one);
    ASSERT_EQ(0, ::sched_setaffinity(0, sizeof one, &one));
    std::thread rival([&] {
      while (!is_over) {
      }
    });
    const Stopwatch watch;
    SpinFor(200);
    own = watch.OwnMilliseconds();
    is_over = true;
    rival.join();
  });
  both.join();
  EXPECT_LT(own, 150);
}

}  // namespace
}  // namespace kvtd::test
