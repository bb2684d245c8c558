// Many threads at once, on one session and on a session each: every answer reaches the call that asked.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <barrier>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "DriverDialogue.h"
#include "EchoInstrument.h"
#include "Load.h"

namespace kvtd::test {
namespace {

enum class Answer { Own, Crossed, Failed };

Answer Tell(ViStatus status, bool is_own) {
  if (status != VI_SUCCESS) return Answer::Failed;
  return is_own ? Answer::Own : Answer::Crossed;
}

Answer AskForNumber(ViSession vi, ViInt32 tag) {
  ViInt32 value = -1;
  const ViStatus status = KVTD481X2C_GetDirectorySize(vi, "d", std::to_string(tag).c_str(), &value);
  return Tell(status, value == tag);
}

Answer AskForText(ViSession vi, ViInt32 tag) {
  const std::string text = "t" + std::to_string(tag);
  std::array<ViChar, 64> value{};
  const ViStatus status =
      KVTD481X2C_GetDirectory(vi, "d", text.c_str(), static_cast<ViInt32>(value.size()), value.data());
  return Tell(status, text == value.data());
}

// Two calls that belong together: the session's lock keeps the others out of between them.
Answer AskByHand(ViSession vi, ViInt32 tag) {
  const std::string query = "TAG? " + std::to_string(tag) + "\n";
  std::array<ViByte, 64> value{};
  ViInt64 read = 0;
  ViStatus status = KVTD481X2C_LockSession(vi, nullptr);
  if (status < 0) return Answer::Failed;
  status = KVTD481X2C_viWrite(vi, static_cast<ViInt64>(query.size()), reinterpret_cast<const ViByte*>(query.data()),
                              nullptr);
  if (status >= 0) status = KVTD481X2C_viRead(vi, static_cast<ViInt64>(value.size()), value.data(), &read);
  if (KVTD481X2C_UnlockSession(vi, nullptr) < 0 || status < 0) return Answer::Failed;
  const std::string answer(reinterpret_cast<const char*>(value.data()), static_cast<std::size_t>(read));
  return answer == std::to_string(tag) + "\n" ? Answer::Own : Answer::Crossed;
}

class ManyThreads : public testing::TestWithParam<LinkKind> {
 protected:
  static constexpr int kLargest = 1'000'000;

  void Ask(ViSession vi, int thread, int queries) {
    static constexpr std::array kWays = {AskForNumber, AskForText, AskByHand};
    for (int i = 0; i < queries; ++i) {
      const ViInt32 tag = thread * kLargest + i;
      const Answer answer = kWays[static_cast<std::size_t>(i) % kWays.size()](vi, tag);
      if (answer == Answer::Crossed) ++crossed_;
      if (answer == Answer::Failed) ++failed_;
      if (answer == Answer::Own) ++own_;
    }
  }

  // All are open before the first asks, and until the last has asked.
  void OnASessionEach(int queries) {
    const EchoInstrument instrument(GetParam());
    std::barrier together(kSessions);
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kSessions; ++thread) {
      threads.emplace_back([&, thread] {
        const LoadSession session(instrument.ResourceName(), "QueryInstrStatus=1");
        if (session.vi() != VI_NULL) ++opened_;
        together.arrive_and_wait();
        Ask(session.vi(), thread, queries);
        together.arrive_and_wait();
      });
    }
  }

  static constexpr int kSessions = 64;

  std::atomic<int> opened_ = 0;
  std::atomic<int> own_ = 0;
  std::atomic<int> crossed_ = 0;
  std::atomic<int> failed_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Links, ManyThreads, EveryLink(), LinkName);

TEST_P(ManyThreads, OnOneSessionEachGetItsOwnAnswers) {
  constexpr int kThreads = 16;
  const int queries = InFullOrBrief(100'000, 1'000);
  const EchoInstrument instrument(GetParam());
  const LoadSession session(instrument.ResourceName(), "");
  ASSERT_NE(VI_NULL, session.vi());

  const Stopwatch watch;
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&, thread] { Ask(session.vi(), thread, queries); });
    }
  }
  std::printf("proof: threads over %s %d x %d queries, %d crossed, %d failed, %.1f s\n", NameOf(GetParam()), kThreads,
              queries, crossed_.load(), failed_.load(), watch.seconds());
  EXPECT_EQ(0, crossed_);
  EXPECT_EQ(0, failed_);
  EXPECT_EQ(kThreads * queries, own_);
}

TEST_P(ManyThreads, OnASessionEachAreServedAtOnceAndLeaveNothing) {
  const int queries = InFullOrBrief(10'000, 100);
  OnASessionEach(1);  // the tables of handles keep the size that they had to have
  own_ = 0;
  opened_ = 0;
  const Holdings before = HeldNow();
  const Stopwatch watch;
  OnASessionEach(queries);
  const Holdings after = HeldNow();
  std::printf("proof: sessions over %s %d on %d threads x %d queries, %d crossed, %d failed, %s, %.1f s\n",
              NameOf(GetParam()), opened_.load(), kSessions, queries, crossed_.load(), failed_.load(),
              Growth(before, after).c_str(), watch.seconds());
  EXPECT_EQ(kSessions, opened_);
  EXPECT_EQ(0, crossed_);
  EXPECT_EQ(0, failed_);
  EXPECT_EQ(kSessions * queries, own_);
  EXPECT_EQ(before.descriptors, after.descriptors);
  EXPECT_LE(after.heap, before.heap + kHeapPlay);
}

}  // namespace
}  // namespace kvtd::test
