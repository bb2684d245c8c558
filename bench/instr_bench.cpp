// The framed links: a query, and a file of 64 MiB each way, as ratios to the same protocol's bytes through plain
// sockets and to those of a raw socket.

#include <KVTD481X2C.h>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "FilePeer.h"
#include "FloorClient.h"
#include "HislipPeer.h"
#include "Responder.h"
#include "Rounds.h"
#include "Vxi11Peer.h"

namespace {

constexpr int kCalls = 400;
constexpr std::size_t kFileSize = std::size_t{64} << 20;
constexpr std::string_view kQuestion = ":FREQ:MULT?\n";

void Require(ViStatus status) {
  if (status >= 0) return;
  std::fprintf(stderr, "driver status 0x%08X\n", static_cast<unsigned>(status));
  std::abort();
}

std::string ResourceOf(const bench::HislipPeer& peer) { return peer.resource(); }
std::string ResourceOf(const bench::Vxi11Peer& peer) {
  ::setenv("TVR_VISA_VXI11_PORT", std::to_string(peer.port()).c_str(), 1);
  return "TCPIP0::127.0.0.1::inst0::INSTR";
}

struct Session {
  explicit Session(const std::string& resource) {
    Require(KVTD481X2C_InitWithOptions(const_cast<ViChar*>(resource.c_str()), VI_FALSE, VI_FALSE, "", &vi));
    Require(KVTD481X2C_SetIOTimeout(vi, 20000));
  }
  ~Session() { KVTD481X2C_close(vi); }
  ViSession vi = VI_NULL;
};

void ReportQuery(benchmark::State& state, const bench::Comparison& own, const bench::Comparison& raw, double target,
                 bool judged_by_raw) {
  state.counters["driver_us"] = own.work;
  state.counters["ratio_own"] = own.work / own.floor;
  state.counters["ratio_raw"] = raw.work / raw.floor;
  state.counters[judged_by_raw ? "target_raw" : "target_own"] = target;
}

void HislipQuery(benchmark::State& state) {
  const int core = state.range(0) == 1 ? 0 : 1;
  bench::HislipPeer peer(core);
  bench::Responder responder(core);
  bench::PinTo(0);
  {
    const Session session(ResourceOf(peer));
    bench::FloorClient own(peer.port());
    bench::FloorClient raw(responder.port());
    const std::string frame = bench::HislipPeer::Frame(0xFFFFFF00, kQuestion);
    ViReal64 value = 0.0;
    const auto work = [&] { Require(KVTD481X2C_GetFrequencyMultiplier(session.vi, &value)); };
    for (auto _ : state) {
      const auto to_own = bench::Alternate(
          kCalls, [&] { own.Query(frame); }, work);
      ReportQuery(state, to_own,
                  bench::Alternate(
                      kCalls, [&] { raw.Query(kQuestion); }, work),
                  1.10, false);
    }
  }
  bench::PinTo(-1);
}

void Vxi11Query(benchmark::State& state) {
  const int core = state.range(0) == 1 ? 0 : 1;
  bench::Vxi11Peer peer(core);
  bench::Responder responder(core);
  bench::PinTo(0);
  {
    const Session session(ResourceOf(peer));
    bench::FloorClient own(peer.port());
    bench::FloorClient raw(responder.port());
    const std::string calls = bench::Vxi11Peer::Write(kQuestion) + bench::Vxi11Peer::Read(4096);
    ViReal64 value = 0.0;
    const auto work = [&] { Require(KVTD481X2C_GetFrequencyMultiplier(session.vi, &value)); };
    for (auto _ : state) {
      const auto to_own = bench::Alternate(
          kCalls, [&] { own.Query(calls); }, work);
      ReportQuery(state, to_own,
                  bench::Alternate(
                      kCalls, [&] { raw.Query(kQuestion); }, work),
                  1.5, true);
    }
  }
  bench::PinTo(-1);
}

// `speed` is the raw socket's time over the link's: 1 is as fast.
void ReportSpeed(benchmark::State& state, const bench::Comparison& result) {
  state.counters["raw_us"] = result.floor;
  state.counters["driver_us"] = result.work;
  state.counters["speed"] = result.floor / result.work;
  state.counters["target_speed"] = 0.6;
}

template <class Peer>
void SendFile(benchmark::State& state) {
  Peer peer;
  bench::FilePeer raw_peer(0);
  bench::FloorClient raw(raw_peer.port());
  const Session session(ResourceOf(peer));
  std::vector<ViByte> data(kFileSize);
  std::mt19937_64 random(2);
  for (ViByte& byte : data) byte = static_cast<ViByte>(random());
  const std::string head = ":MMEM:DATA \"Internal\",\"f\",#8" + std::to_string(kFileSize);
  const auto floor = [&] {
    raw.Send(head);
    raw.Send({reinterpret_cast<const char*>(data.data()), data.size()});
    raw.Query("\n*OPC?\n");
  };
  const auto work = [&] {
    Require(KVTD481X2C_SendFile(session.vi, "Internal", "f", static_cast<ViInt32>(kFileSize), data.data()));
    Require(KVTD481X2C_WaitForOperationComplete(session.vi));
  };
  for (auto _ : state) ReportSpeed(state, bench::Alternate(1, floor, work));
}

template <class Peer>
void ReadFile(benchmark::State& state) {
  Peer peer(-1, kFileSize);
  bench::FilePeer raw_peer(kFileSize);
  bench::FloorClient raw(raw_peer.port());
  const Session session(ResourceOf(peer));
  std::vector<ViByte> data(kFileSize + 16);
  ViInt32 size = 0;
  const auto floor = [&] {
    raw.Send(":MMEM:DATA? \"Internal\",\"f\"\n");
    raw.Receive(reinterpret_cast<char*>(data.data()), 10 + kFileSize + 1);
  };
  const auto work = [&] {
    Require(KVTD481X2C_ReadFile(session.vi, "Internal", "f", static_cast<ViInt32>(kFileSize), data.data(), &size));
    if (size != static_cast<ViInt32>(kFileSize)) std::abort();
    ViByte end[4];
    ViInt64 read = 0;
    Require(KVTD481X2C_viRead(session.vi, 1, end, &read));
  };
  for (auto _ : state) ReportSpeed(state, bench::Alternate(1, floor, work));
}

}  // namespace

#define PLACED(work) BENCHMARK(work)->ArgName("cores")->Arg(1)->Arg(2)->Iterations(1)->Unit(benchmark::kMillisecond)
PLACED(HislipQuery);
PLACED(Vxi11Query);
BENCHMARK(SendFile<bench::HislipPeer>)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadFile<bench::HislipPeer>)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(SendFile<bench::Vxi11Peer>)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadFile<bench::Vxi11Peer>)->Iterations(1)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
