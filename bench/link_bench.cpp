// Queries, sets, open and close over a raw socket, each as a ratio to the same bytes through plain sockets.

#include <KVTD481X2C.h>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "FloorClient.h"
#include "Placement.h"
#include "Responder.h"
#include "Rounds.h"

namespace {

constexpr int kCalls = 400;

void Require(ViStatus status) {
  if (status >= 0) return;
  std::fprintf(stderr, "driver status 0x%08X\n", static_cast<unsigned>(status));
  std::abort();
}

struct Bench {
  explicit Bench(benchmark::State& state)
      : placement(state), responder(placement.peer_core()), floor(responder.port()) {
    Require(KVTD481X2C_InitWithOptions(const_cast<ViChar*>(responder.resource().c_str()), VI_FALSE, VI_FALSE, "", &vi));
  }
  ~Bench() { KVTD481X2C_close(vi); }

  void CheckStatus() {
    Require(KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS, VI_TRUE));
  }

  const bench::Placement placement;
  bench::Responder responder;
  ViSession vi = VI_NULL;
  bench::FloorClient floor;
};

void Query(benchmark::State& state) {
  Bench b(state);
  for (auto _ : state) {
    ViReal64 value = 0.0;
    const bench::Comparison result = bench::Alternate(
        kCalls, [&] { b.floor.Query(":FREQ:MULT?\n"); },
        [&] { Require(KVTD481X2C_GetFrequencyMultiplier(b.vi, &value)); });
    bench::Report(state, result, 1.05);
    state.counters["p99_ratio_at_most"] = 1.25;
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
    // A second send that waited for an acknowledgement of the first would be Nagle's doing. What the floor has of
    // such calls is the machine's.
    state.counters["floor_held_back"] = result.floor_held_back;
    bench::Judge(state, "held_back", result.work_held_back, "at_most", 0);
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
    bench::ReportRatio(state, bench::Median(floors), bench::Median(works), 1.35);
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

BENCHMARK(Query)->Apply(bench::Placed);
BENCHMARK(QueryWithStatus)->Apply(bench::Placed);
BENCHMARK(SetWithStatus)->Apply(bench::Placed);
BENCHMARK(Set)->Apply(bench::Placed);
BENCHMARK(OpenClose)->Apply(bench::Placed);

BENCHMARK_MAIN();
