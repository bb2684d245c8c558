// viTerminate ends a read that waits, over each link and soon.
//
// The instrument is in this process: what its thread stands in line for a processor is taken off the time as well.
#include <gtest/gtest.h>
#include <unistd.h>
#include <visa.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <fstream>
#include <future>
#include <string>
#include <thread>

#include "Stopwatch.h"
#include "VirtualInstrument.h"

namespace visa_test {
namespace {

using kvtd::test::EveryLink;
using kvtd::test::LinkKind;
using kvtd::test::LinkName;
using kvtd::test::Stopwatch;
using kvtd::test::VirtualInstrument;

// The letter behind the name, which stands in parentheses.
bool IsAsleep(pid_t thread) {
  std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
  const std::string stat{std::istreambuf_iterator<char>(file), {}};
  const std::size_t name_end = stat.rfind(") ");
  return name_end != std::string::npos && stat.compare(name_end + 2, 1, "S") == 0;
}

class Terminate : public testing::TestWithParam<LinkKind> {
 protected:
  struct Ended {
    ViStatus status;
    ViUInt32 count;
    long milliseconds;
  };

  void SetUp() override {
    ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager_));
    ASSERT_EQ(VI_SUCCESS, viOpen(manager_, instrument_.ResourceName().c_str(), VI_NULL, 2000, &vi_));
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TMO_VALUE, 10000));
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi_, VI_ATTR_TERMCHAR_EN, GetParam() == LinkKind::Socket));
  }
  ~Terminate() override { viClose(manager_); }

  // A read of what never comes, ended so long after it has begun to wait.
  Ended EndARead(std::chrono::milliseconds after) {
    std::atomic<pid_t> reader{0};
    std::atomic<const Stopwatch*> since{nullptr};
    auto reading = std::async(std::launch::async, [&] {
      std::array<ViByte, 16> into{};
      ViUInt32 count = 1;
      reader = ::gettid();
      const ViStatus status = viRead(vi_, into.data(), into.size(), &count);
      const Stopwatch* const watch = since;
      return Ended{status, count, watch != nullptr ? watch->OwnMilliseconds() : -1};
    });
    // It does not sleep between telling its number and waiting for bytes.
    while (reader == 0 || !IsAsleep(reader)) std::this_thread::yield();
    std::this_thread::sleep_for(after);
    const Stopwatch watch;
    since = &watch;
    EXPECT_EQ(VI_SUCCESS, viTerminate(vi_, VI_NULL, VI_NULL));
    return reading.get();
  }

  VirtualInstrument instrument_{"SN1", GetParam()};
  ViSession manager_ = VI_NULL;
  ViSession vi_ = VI_NULL;
};
INSTANTIATE_TEST_SUITE_P(Links, Terminate, EveryLink(), LinkName);

TEST_P(Terminate, EndsAReadThatWaitsWithinTenMillisecondsAndTheSessionGoesOn) {
  std::array<long, 31> took{};
  for (std::size_t i = 0; i < took.size(); ++i) {
    const Ended ended = EndARead(std::chrono::milliseconds(i % 6 * 2));
    ASSERT_EQ(VI_ERROR_ABORT, ended.status);
    ASSERT_EQ(0u, ended.count);
    took[i] = ended.milliseconds;
    std::array<char, 64> answer{};
    ASSERT_EQ(VI_SUCCESS, viQueryf(vi_, "*IDN?\n", "%t", answer.data()));
    ASSERT_STREQ("Kelvora,TD48142C,SN1,1.4.2\n", answer.data());
  }
  std::nth_element(took.begin(), took.begin() + took.size() / 2, took.end());
  EXPECT_LT(took[took.size() / 2], 10);
}

TEST_P(Terminate, IsForgottenWhenNothingIsInProgress) {
  ASSERT_EQ(VI_SUCCESS, viTerminate(vi_, VI_NULL, VI_NULL));
  std::array<char, 64> answer{};
  ASSERT_EQ(VI_SUCCESS, viQueryf(vi_, "*OPC?\n", "%t", answer.data()));
  EXPECT_STREQ("1\n", answer.data());
}

}  // namespace
}  // namespace visa_test
