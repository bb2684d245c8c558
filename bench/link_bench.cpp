// Queries, sets, open and close over a raw socket, each as a ratio to the same bytes through plain sockets.

#include <KVTD481X2C.h>
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>

#include "FloorClient.h"
#include "Responder.h"
#include "Rounds.h"

namespace {

constexpr int kCalls = 400;

void Require(ViStatus status) {
  if (status >= 0) return;
  std::fprintf(stderr, "driver status 0x%08X\n", static_cast<unsigned>(status));
  std::abort();
}

// One core for client and responder judges; two are the cross-check.
struct Bench {
  explicit Bench(benchmark::State& state)
      : one_core(state.range(0) == 1), responder(one_core ? 0 : 1), floor(responder.port()) {
    bench::PinTo(0);
    Require(KVTD481X2C_InitWithOptions(const_cast<ViChar*>(responder.resource().c_str()), VI_FALSE, VI_FALSE, "", &vi));
  }
  ~Bench() {
    KVTD481X2C_close(vi);
    bench::PinTo(-1);
  }

  void CheckStatus() {
    Require(KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS, VI_TRUE));
  }

  bool one_core;
  bench::Responder responder;
  ViSession vi = VI_NULL;
  bench::FloorClient floor;
};

void Query(benchmark::State& state) {
  Bench b(state);
  for (auto _ : state) {
    ViReal64 value = 0.0;
    bench::Report(state,
                  bench::Alternate(
                      kCalls, [&] { b.floor.Query(":FREQ:MULT?\n"); },
                      [&] { Require(KVTD481X2C_GetFrequencyMultiplier(b.vi, &value)); }),
                  1.05);
  }
}

void QueryWithStatus(benchmark::State& state) {
  Bench b(state);
  b.CheckStatus();
  for (auto _ : state) {
    ViReal64 value = 0.0;
    const auto floor = [&] {
      b.floor.Query(":FREQ:MULT?\n");
      b.floor.Query("*ESR?\n");
    };
    bench::Report(state,
                  bench::Alternate(kCalls, floor, [&] { Require(KVTD481X2C_GetFrequencyMultiplier(b.vi, &value)); }),
                  1.05);
  }
}

// Two plain queries against the same two with a moment of computing behind each: what a processor makes of that moment
// when client and peer share it is more than the moment, and no driver is without one.
void Pause(benchmark::State& state) {
  constexpr std::chrono::nanoseconds kMoment{250};
  Bench b(state);
  bench::FloorClient second(b.responder.port());
  const auto compute = [&] {
    const auto end = std::chrono::steady_clock::now() + kMoment;
    while (std::chrono::steady_clock::now() < end) continue;
  };
  for (auto _ : state) {
    const auto floor = [&] {
      b.floor.Query(":FREQ:MULT?\n");
      b.floor.Query("*ESR?\n");
    };
    const auto paused = [&] {
      second.Query(":FREQ:MULT?\n");
      compute();
      second.Query("*ESR?\n");
      compute();
    };
    const bench::Comparison result = bench::Alternate(kCalls, floor, paused);
    state.counters["floor_us"] = result.floor;
    state.counters["paused_us"] = result.work;
    state.counters["ratio"] = result.work / result.floor;
    state.counters["ratio_of_sum"] = 1.0 + 2 * 1e-3 * static_cast<double>(kMoment.count()) / result.floor;
  }
}

void SetWithStatus(benchmark::State& state) {
  Bench b(state);
  b.CheckStatus();
  for (auto _ : state) {
    const auto floor = [&] {
      b.floor.Send(":FREQ:MULT 2.5 HZ\n");
      b.floor.Query("*ESR?\n");
    };
    const bench::Comparison result =
        bench::Alternate(kCalls, floor, [&] { Require(KVTD481X2C_SetFrequencyMultiplier(b.vi, 2.5)); });
    bench::Report(state, result, 1.05);
    state.counters["most_us"] = result.work_most;  // 20000 and more would be Nagle's doing
  }
}

void Set(benchmark::State& state) {
  Bench b(state);
  for (auto _ : state) {
    // A query behind each send keeps the responder's input from growing; it is not measured.
    std::vector<double> floors;
    std::vector<double> works;
    for (int round = 0; round < bench::kRounds; ++round) {
      std::vector<double> floor_calls;
      std::vector<double> work_calls;
      ViReal64 value = 0.0;
      for (int call = 0; call < kCalls; ++call) {
        floor_calls.push_back(bench::Time([&] { b.floor.Send(":FREQ:MULT 2.5 HZ\n"); }));
        b.floor.Query(":FREQ:MULT?\n");
        work_calls.push_back(bench::Time([&] { Require(KVTD481X2C_SetFrequencyMultiplier(b.vi, 2.5)); }));
        Require(KVTD481X2C_GetFrequencyMultiplier(b.vi, &value));
      }
      floors.push_back(bench::Median(floor_calls));
      works.push_back(bench::Median(work_calls));
    }
    state.counters["floor_us"] = bench::Median(floors);
    state.counters["driver_us"] = bench::Median(works);
    state.counters["ratio"] = bench::Median(works) / bench::Median(floors);
    state.counters["target"] = 1.35;
  }
}

void OpenClose(benchmark::State& state) {
  Bench b(state);
  const std::string resource = b.responder.resource();
  for (auto _ : state) {
    const auto floor = [&] {
      bench::FloorClient client(b.responder.port());
      client.Query("*IDN?\n");
      client.Send(":UNIT:POW DBM\n");
      client.Send(":UNIT:TIME S\n");
    };
    const auto work = [&] {
      ViSession vi = VI_NULL;
      Require(KVTD481X2C_InitWithOptions(const_cast<ViChar*>(resource.c_str()), VI_FALSE, VI_FALSE, "", &vi));
      Require(KVTD481X2C_close(vi));
    };
    bench::Report(state, bench::Alternate(20, floor, work), 1.25);
  }
}

}  // namespace

#define PLACED(work) BENCHMARK(work)->ArgName("cores")->Arg(1)->Arg(2)->Iterations(1)->Unit(benchmark::kMillisecond)
PLACED(Query);
PLACED(QueryWithStatus);
PLACED(Pause);
PLACED(SetWithStatus);
PLACED(Set);
PLACED(OpenClose);

BENCHMARK_MAIN();
