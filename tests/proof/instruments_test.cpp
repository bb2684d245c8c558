// Many virtual instruments in one process, a driver session on each: none hears what is meant for another.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
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

constexpr rlim_t kDescriptorsBesides = 100;

// An instrument has four (its listener and those of its event loop), a connection two. Over HiSLIP a session has two
// connections, over VXI-11 too, and the instrument one more listener.
rlim_t DescriptorsEach(LinkKind link) {
  switch (link) {
    case LinkKind::Hislip:
      return 8;
    case LinkKind::Vxi11:
      return 9;
    default:
      return 6;
  }
}

// All that this process may have.
rlim_t MostDescriptors() {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return 0;
  limit.rlim_cur = limit.rlim_max;
  return ::setrlimit(RLIMIT_NOFILE, &limit) == 0 ? limit.rlim_max : 0;
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

class ManyInstruments : public testing::TestWithParam<LinkKind> {
 protected:
  void Run(int count, int rounds) {
    std::deque<VirtualInstrument> instruments;
    std::vector<LoadSession> sessions;
    for (int i = 0; i < count; ++i) {
      instruments.emplace_back(SerialOf(i), GetParam());
      sessions.emplace_back(instruments.back().ResourceName(), "QueryInstrStatus=1,Cache=0");
    }
    if (HasFailure()) return;
    for (int round = 0; round < rounds; ++round) {
      for (int i = 0; i < count; ++i) Set(sessions[static_cast<std::size_t>(i)].vi(), i, round);
      for (int i = 0; i < count; ++i) own_ += IsOwn(sessions[static_cast<std::size_t>(i)].vi(), i, round) ? 1 : 0;
    }
    together_ = HeldNow();
  }

  int own_ = 0;
  // When all sessions are open.
  Holdings together_{};
};
INSTANTIATE_TEST_SUITE_P(Links, ManyInstruments, EveryLink(), LinkName);

TEST_P(ManyInstruments, InOneProcessAreEachReachedByTheirOwnSession) {
  const rlim_t most = MostDescriptors();
  ASSERT_LT(kDescriptorsBesides, most);
  const rlim_t fitting = (most - kDescriptorsBesides) / DescriptorsEach(GetParam());
  const int count = static_cast<int>(std::min<rlim_t>(fitting, InFullOrBrief(1'000, 50)));
  ASSERT_LT(1, count) << "of " << most << " descriptors";
  const int rounds = InFullOrBrief(10, 2);
  const auto alone = static_cast<double>(HeldNow().resident);
  Run(count, 1);  // the tables of handles keep the size that they had to have
  const auto together = static_cast<double>(together_.resident);
  own_ = 0;
  const Holdings before = HeldNow();
  const Stopwatch watch;
  Run(count, rounds);
  const Holdings after = HeldNow();
  std::printf(
      "proof: instruments over %s %d with a session each, %d of %d answers their own, %.0f KiB of memory each, %s, "
      "%.1f s\n",
      NameOf(GetParam()), count, own_, count * rounds, (together - alone) / 1024 / count, Growth(before, after).c_str(),
      watch.seconds());
  EXPECT_EQ(count * rounds, own_);
  EXPECT_EQ(before.descriptors, after.descriptors);
  EXPECT_LE(after.heap, before.heap + kHeapPlay);
}

}  // namespace
}  // namespace kvtd::test
