#include "Stopwatch.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

namespace kvtd::test {
namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::nanoseconds;

// The second figure of a thread's schedstat; none where the kernel does not keep it.
nanoseconds InLineForAProcessor() {
  nanoseconds sum{0};
  for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
    std::ifstream schedstat(task.path() / "schedstat");
    long long running = 0;
    long long waiting = 0;
    if (schedstat >> running >> waiting) sum += nanoseconds(waiting);
  }
  return sum;
}

// The eighth figure of the first line, "cpu ...".
nanoseconds GivenToOthers() {
  std::ifstream stat("/proc/stat");
  std::string cpu;
  long long ticks = 0;
  stat >> cpu;
  for (int i = 0; i < 8; ++i) stat >> ticks;
  return stat ? nanoseconds(ticks * (1'000'000'000 / ::sysconf(_SC_CLK_TCK))) : nanoseconds(0);
}

nanoseconds HeldBack() { return InLineForAProcessor() + GivenToOthers(); }

}  // namespace

Stopwatch::Stopwatch() : start_(std::chrono::steady_clock::now()), held_back_(HeldBack()) {}

double Stopwatch::seconds() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

long Stopwatch::Milliseconds() const {
  return duration_cast<milliseconds>(std::chrono::steady_clock::now() - start_).count();
}

long Stopwatch::OwnMilliseconds() const {
  const auto passed = std::chrono::steady_clock::now() - start_;
  // A thread that has ended took its figure with it.
  const nanoseconds held_back = std::max(nanoseconds(0), HeldBack() - held_back_);
  return duration_cast<milliseconds>(passed - held_back).count();
}

}  // namespace kvtd::test
