// What the driver itself costs: simulated reads and writes, which meet no socket.

#include <KVTD481X2C.h>
#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <thread>

#include "Rounds.h"

namespace {

ViSession OpenSimulated() {
  ViSession vi = VI_NULL;
  if (KVTD481X2C_InitWithOptions(const_cast<ViChar*>("SIM"), VI_FALSE, VI_FALSE, "simulate=1", &vi) < 0) std::abort();
  return vi;
}

// Nanoseconds of one call, all in all.
void JudgeTime(benchmark::State& state, double target) { state.counters["real_time_at_most"] = target; }

void GetOneAttribute(benchmark::State& state) {
  const ViSession vi = OpenSimulated();
  ViReal64 value = 0.0;
  KVTD481X2C_SetFrequencyMultiplier(vi, 2.5);
  for (auto _ : state) {
    KVTD481X2C_GetFrequencyMultiplier(vi, &value);
    benchmark::DoNotOptimize(value);
  }
  JudgeTime(state, 50);
  KVTD481X2C_close(vi);
}
BENCHMARK(GetOneAttribute);

void SetOneAttribute(benchmark::State& state) {
  const ViSession vi = OpenSimulated();
  for (auto _ : state) benchmark::DoNotOptimize(KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  JudgeTime(state, 50);
  KVTD481X2C_close(vi);
}
BENCHMARK(SetOneAttribute);

constexpr std::array kMixed = {
    KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER, KVTD481X2C_ATTR_CW_FREQUENCY_STEP,   KVTD481X2C_ATTR_FREQUENCY_PRESET_F0,
    KVTD481X2C_ATTR_FREQUENCY_PRESET_F5,  KVTD481X2C_ATTR_FREQUENCY_PRESET_F9, KVTD481X2C_ATTR_POWER_PRESET_L0,
    KVTD481X2C_ATTR_POWER_PRESET_L4,      KVTD481X2C_ATTR_POWER_PRESET_L9,     KVTD481X2C_ATTR_POWER_STEP,
    KVTD481X2C_ATTR_POWER_ATTENUATION,    KVTD481X2C_ATTR_POWER_LIMIT,         KVTD481X2C_ATTR_POWER_DISPLAY_OFFSET,
    KVTD481X2C_ATTR_POWER_PRESET_L6};

template <class Call>
void CallMixedAttributes(benchmark::State& state, const Call& call) {
  const ViSession vi = OpenSimulated();
  std::size_t next = 0;
  for (auto _ : state) {
    if (call(vi, static_cast<ViAttr>(kMixed[next])) < 0) state.SkipWithError("a call that is refused");
    next = next + 1 == kMixed.size() ? 0 : next + 1;
  }
  JudgeTime(state, 85);
  KVTD481X2C_close(vi);
}

void GetMixedAttributes(benchmark::State& state) {
  ViReal64 value = 0.0;
  CallMixedAttributes(state, [&value](ViSession vi, ViAttr attribute) {
    const ViStatus status = KVTD481X2C_GetAttributeViReal64(vi, nullptr, attribute, &value);
    benchmark::DoNotOptimize(value);
    return status;
  });
}
BENCHMARK(GetMixedAttributes);

void SetMixedAttributes(benchmark::State& state) {
  CallMixedAttributes(state, [](ViSession vi, ViAttr attribute) {
    return KVTD481X2C_SetAttributeViReal64(vi, nullptr, attribute, 2.5);
  });
}
BENCHMARK(SetMixedAttributes);

double NanosecondsPerGet(ViSession vi) {
  constexpr int kGets = 200'000;
  ViReal64 value = 0.0;
  return 1000.0 / kGets * bench::Time([&] {
           for (int i = 0; i < kGets; ++i) KVTD481X2C_GetFrequencyMultiplier(vi, &value);
         });
}

// Two threads on two sessions, to the time of one alone: nothing that they share is locked.
void TwoThreads(benchmark::State& state) {
  const ViSession first = OpenSimulated();
  const ViSession second = OpenSimulated();
  for (auto _ : state) {
    std::vector<double> alone;
    std::vector<double> together;
    for (int round = 0; round < bench::kRounds; ++round) {
      alone.push_back(NanosecondsPerGet(first));
      double other = 0.0;
      std::thread thread([&] { other = NanosecondsPerGet(second); });
      const double own = NanosecondsPerGet(first);
      thread.join();
      together.push_back(std::max(own, other));
    }
    state.counters["alone_ns"] = bench::Median(alone);
    state.counters["together_ns"] = bench::Median(together);
    bench::Judge(state, "ratio", bench::Median(together) / bench::Median(alone), "at_most", 1.25);
  }
  KVTD481X2C_close(first);
  KVTD481X2C_close(second);
}
BENCHMARK(TwoThreads)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
