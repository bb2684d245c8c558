// Large transfers: a list of 4000 points in one line, and a file of 64 MiB each way, as ratios to the same bytes
// through a plain socket.

#include <KVTD481X2C.h>
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "FilePeer.h"
#include "FloorClient.h"
#include "Rounds.h"

namespace {

constexpr int kPoints = 4000;
constexpr std::size_t kFileSize = std::size_t{64} << 20;

void Require(bool good) {
  if (!good) std::abort();
}

struct Bench {
  explicit Bench(std::size_t file_size) : peer(file_size), floor(peer.port()) {
    Require(KVTD481X2C_InitWithOptions(const_cast<ViChar*>(peer.resource().c_str()), VI_FALSE, VI_FALSE, "", &vi) >= 0);
    Require(KVTD481X2C_SetIOTimeout(vi, 20000) >= 0);
  }
  ~Bench() { KVTD481X2C_close(vi); }

  bench::FilePeer peer;
  bench::FloorClient floor;
  ViSession vi = VI_NULL;
};

// The time of the write alone; the query behind it, which is not measured, waits until the peer has taken it all.
void List(benchmark::State& state) {
  Bench b(0);
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
    state.counters["floor_us"] = bench::Median(floors);
    state.counters["driver_us"] = bench::Median(works);
    state.counters["ratio"] = bench::Median(works) / bench::Median(floors);
    state.counters["target"] = 4.2;
  }
}

long PeakKibibytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

void SendFile(benchmark::State& state) {
  Bench b(0);
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
  floor();
  const long before = PeakKibibytes();
  work();
  state.counters["memory_KiB"] = static_cast<double>(PeakKibibytes() - before);
  for (auto _ : state) bench::Report(state, bench::Alternate(1, floor, work), 1.11);
}

void ReadFile(benchmark::State& state) {
  Bench b(kFileSize);
  std::vector<ViByte> data(kFileSize);
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
  data.resize(kFileSize + 16);
  floor();
  const long before = PeakKibibytes();
  work();
  state.counters["memory_KiB"] = static_cast<double>(PeakKibibytes() - before);
  for (auto _ : state) bench::Report(state, bench::Alternate(1, floor, work), 1.11);
}

}  // namespace

BENCHMARK(List)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(SendFile)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadFile)->Iterations(1)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
