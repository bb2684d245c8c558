// Large transfers: a list of 4000 points in one line, and a file of 64 MiB each way, as ratios to the same bytes
// through a plain socket.

#include <KVTD481X2C.h>
#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "FilePeer.h"
#include "FloorClient.h"
#include "PeakMemory.h"
#include "Placement.h"
#include "Rounds.h"

namespace {

constexpr int kPoints = 4000;
constexpr std::size_t kFileSize = std::size_t{64} << 20;

void Require(bool good) {
  if (!good) std::abort();
}

struct Bench {
  explicit Bench(const benchmark::State& state, std::size_t file_size = 0)
      : placement(state), peer(placement.peer_core(), file_size), floor(peer.port()) {
    Require(KVTD481X2C_InitWithOptions(const_cast<ViChar*>(peer.resource().c_str()), VI_FALSE, VI_FALSE, "", &vi) >= 0);
    Require(KVTD481X2C_SetIOTimeout(vi, 20000) >= 0);
  }
  ~Bench() { KVTD481X2C_close(vi); }

  const bench::Placement placement;
  bench::FilePeer peer;
  bench::FloorClient floor;
  ViSession vi = VI_NULL;
};

// The time of the write alone; the query behind it, which is not measured, waits until the peer has taken it all.
void List(benchmark::State& state) {
  Bench b(state);
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> frequency(9e3, 20e9);
  std::vector<ViReal64> points(kPoints);
  std::string ready = ":LIST1:FREQ ";
  for (ViReal64& point : points) {
    point = frequency(random);
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, point, std::chars_format::fixed, 15).ptr;
    ready.append(digits, end).append(",");
  }
  ready.back() = '\n';
  for (auto _ : state) {
    std::vector<double> floors;
    std::vector<double> works;
    for (int round = 0; round < 10 * bench::kRounds; ++round) {
      floors.push_back(bench::Time([&] { b.floor.Send(ready); }));
      b.floor.Query("*OPC?\n");
      works.push_back(
          bench::Time([&] { Require(KVTD481X2C_SetListFrequencies(b.vi, 1, kPoints, points.data()) >= 0); }));
      Require(KVTD481X2C_WaitForOperationComplete(b.vi) >= 0);
    }
    bench::ReportRatio(state, bench::Median(floors), bench::Median(works), 4.2);
  }
}

// The first time of each: what the driver keeps from then on counts too. The caller's memory is there before.
template <class Floor, class Work>
void CompareTransfers(benchmark::State& state, const Floor& floor, const Work& work) {
  floor();
  const bench::PeakMemory memory;
  work();
  bench::Judge(state, "memory_KiB", memory.MoreKibibytes(), "under", 1024);
  for (auto _ : state) bench::Report(state, bench::Alternate(1, floor, work), 1.11);
}

void SendFile(benchmark::State& state) {
  Bench b(state);
  std::vector<ViByte> data(kFileSize);
  std::mt19937_64 random(2);
  for (ViByte& byte : data) byte = static_cast<ViByte>(random());
  const std::string head = ":MMEM:DATA \"Internal\",\"f\",#8" + std::to_string(kFileSize);
  const auto floor = [&] {
    b.floor.Send(head);
    b.floor.Send({reinterpret_cast<const char*>(data.data()), data.size()});
    b.floor.Query("\n*OPC?\n");
  };
  const auto work = [&] {
    Require(KVTD481X2C_SendFile(b.vi, "Internal", "f", static_cast<ViInt32>(kFileSize), data.data()) >= 0);
    Require(KVTD481X2C_WaitForOperationComplete(b.vi) >= 0);
  };
  CompareTransfers(state, floor, work);
}

void ReadFile(benchmark::State& state) {
  Bench b(state, kFileSize);
  std::vector<ViByte> data(kFileSize + 16);
  ViInt32 size = 0;
  const auto floor = [&] {
    b.floor.Send(":MMEM:DATA? \"Internal\",\"f\"\n");
    b.floor.Receive(reinterpret_cast<char*>(data.data()), 10 + kFileSize + 1);
  };
  const auto work = [&] {
    Require(KVTD481X2C_ReadFile(b.vi, "Internal", "f", static_cast<ViInt32>(kFileSize), data.data(), &size) >= 0);
    Require(size == static_cast<ViInt32>(kFileSize));
    ViByte end[4];
    ViInt64 read = 0;
    Require(KVTD481X2C_viRead(b.vi, 1, end, &read) >= 0 && read == 1);
  };
  CompareTransfers(state, floor, work);
}

}  // namespace

BENCHMARK(List)->Apply(bench::Placed);
BENCHMARK(SendFile)->Apply(bench::Placed);
BENCHMARK(ReadFile)->Apply(bench::Placed);

BENCHMARK_MAIN();
