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
#include "Placement.h"
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

void Compare(benchmark::State& state, ViSession vi, bench::FloorClient& own, const std::string& own_bytes,
             bench::FloorClient& raw) {
  ViReal64 value = 0.0;
  const auto work = [&] { Require(KVTD481X2C_GetFrequencyMultiplier(vi, &value)); };
  const auto to_own = bench::Alternate(
      kCalls, [&] { own.Query(own_bytes); }, work);
  const auto to_raw = bench::Alternate(
      kCalls, [&] { raw.Query(kQuestion); }, work);
  state.counters["driver_us"] = to_own.work;
  state.counters["ratio_own"] = to_own.work / to_own.floor;
  state.counters["ratio_raw"] = to_raw.work / to_raw.floor;
}

void HislipQuery(benchmark::State& state) {
  const bench::Placement placement(state);
  bench::HislipPeer peer(placement.peer_core());
  bench::Responder responder(placement.peer_core());
  const Session session(ResourceOf(peer));
  bench::FloorClient own(peer.port());
  bench::FloorClient raw(responder.port());
  for (auto _ : state) Compare(state, session.vi, own, bench::HislipPeer::Frame(0xFFFFFF00, kQuestion), raw);
  state.counters["ratio_own_at_most"] = 1.10;
}

void Vxi11Query(benchmark::State& state) {
  const bench::Placement placement(state);
  bench::Vxi11Peer peer(placement.peer_core());
  bench::Responder responder(placement.peer_core());
  const Session session(ResourceOf(peer));
  bench::FloorClient own(peer.port());
  bench::FloorClient raw(responder.port());
  const std::string calls = bench::Vxi11Peer::Write(kQuestion) + bench::Vxi11Peer::Read(4096);
  for (auto _ : state) Compare(state, session.vi, own, calls, raw);
  state.counters["ratio_raw_at_most"] = 1.5;
}

// `speed` is the raw socket's time over the link's: 1 is as fast.
void ReportSpeed(benchmark::State& state, const bench::Comparison& result) {
  state.counters["raw_us"] = result.floor;
  state.counters["driver_us"] = result.work;
  bench::Judge(state, "speed", result.floor / result.work, "at_least", 0.6);
}

template <class Peer>
void SendFile(benchmark::State& state) {
  const bench::Placement placement(state);
  Peer peer(placement.peer_core());
  bench::FilePeer raw_peer(placement.peer_core());
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
  const bench::Placement placement(state);
  Peer peer(placement.peer_core(), kFileSize);
  bench::FilePeer raw_peer(placement.peer_core(), kFileSize);
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

BENCHMARK(HislipQuery)->Apply(bench::Placed);
BENCHMARK(Vxi11Query)->Apply(bench::Placed);
BENCHMARK(SendFile<bench::HislipPeer>)->Apply(bench::Placed);
BENCHMARK(ReadFile<bench::HislipPeer>)->Apply(bench::Placed);
BENCHMARK(SendFile<bench::Vxi11Peer>)->Apply(bench::Placed);
BENCHMARK(ReadFile<bench::Vxi11Peer>)->Apply(bench::Placed);

BENCHMARK_MAIN();
