// Many virtual instruments in one process, a driver session on each: none hears what is meant for another.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <array>
#include <cstdio>
#include <deque>
#include <string>
#include <vector>

#include "DriverDialogue.h"
#include "Load.h"
#include "VirtualInstrument.h"

namespace kvtd::test {
namespace {

// An instrument has four descriptors (its listener and those of its event loop), a connection two.
constexpr rlim_t kDescriptorsEach = 6;
constexpr rlim_t kDescriptorsBesides = 100;

bool MayOpen(rlim_t descriptors) {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return false;
  if (limit.rlim_cur >= descriptors) return true;
  limit.rlim_cur = descriptors;
  return descriptors <= limit.rlim_max && ::setrlimit(RLIMIT_NOFILE, &limit) == 0;
}

std::string SerialOf(int number) { return "SN" + std::to_string(4'000'000 + number); }

ViReal64 FrequencyOf(int number, int round) { return 1e9 + 1e6 * number + round; }

void Set(ViSession vi, int number, int round) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi, FrequencyOf(number, round), -0.01 * number));
}

bool IsOwn(ViSession vi, int number, int round) {
  std::array<ViChar, 64> serial{};
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetSerialNumber(vi, static_cast<ViInt32>(serial.size()), serial.data()));
  ViReal64 frequency = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi, nullptr, KVTD481X2C_ATTR_FREQUENCY, &frequency));
  return SerialOf(number) == serial.data() && FrequencyOf(number, round) == frequency;
}

class ManyInstruments : public testing::Test {
 protected:
  // Resident memory when all sessions are open.
  std::size_t Run(int count, int rounds) {
    std::deque<VirtualInstrument> instruments;
    std::vector<LoadSession> sessions;
    for (int i = 0; i < count; ++i) {
      instruments.emplace_back(SerialOf(i));
      sessions.emplace_back(instruments.back().ResourceName(), "QueryInstrStatus=1,Cache=0");
    }
    if (HasFailure()) return 0;
    for (int round = 0; round < rounds; ++round) {
      for (int i = 0; i < count; ++i) Set(sessions[static_cast<std::size_t>(i)].vi(), i, round);
      for (int i = 0; i < count; ++i) own_ += IsOwn(sessions[static_cast<std::size_t>(i)].vi(), i, round) ? 1 : 0;
    }
    return HeldNow().resident;
  }

  int own_ = 0;
};

TEST_F(ManyInstruments, InOneProcessAreEachReachedByTheirOwnSession) {
  const int count = InFullOrBrief(1'000, 50);
  const int rounds = InFullOrBrief(10, 2);
  if (!MayOpen(static_cast<rlim_t>(count) * kDescriptorsEach + kDescriptorsBesides)) {
    GTEST_SKIP() << "the limit of open files is below six for each instrument";
  }
  const std::size_t alone = HeldNow().resident;
  const std::size_t together = Run(count, 1);  // the tables of handles keep the size that they had to have
  own_ = 0;
  const Holdings before = HeldNow();
  const Stopwatch watch;
  Run(count, rounds);
  const Holdings after = HeldNow();
  std::printf(
      "proof: instruments %d with a session each, %d of %d answers their own, %.0f KiB of memory each, %s, %.1f s\n",
      count, own_, count * rounds, (static_cast<double>(together) - static_cast<double>(alone)) / 1024 / count,
      Growth(before, after).c_str(), watch.seconds());
  EXPECT_EQ(count * rounds, own_);
  EXPECT_EQ(before.descriptors, after.descriptors);
  EXPECT_LE(after.heap, before.heap + kHeapPlay);
}

}  // namespace
}  // namespace kvtd::test
