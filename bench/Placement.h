// Where client and peer run: on one core, the placement that judges, or on two, the cross-check.
#pragma once

#include <benchmark/benchmark.h>

#include "Listener.h"

namespace bench {

// The thread that makes it is the client, and stays on its core as long as it lives.
class Placement {
 public:
  explicit Placement(const benchmark::State& state) : peer_core_(state.range(0) == 1 ? 0 : 1) { PinTo(0); }
  ~Placement() { PinTo(-1); }
  Placement(const Placement&) = delete;
  Placement& operator=(const Placement&) = delete;

  int peer_core() const { return peer_core_; }

 private:
  const int peer_core_;
};

// Of a benchmark that measures by rounds of its own, in both placements.
inline void Placed(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgName("cores")->Arg(1)->Arg(2)->Iterations(1)->Unit(benchmark::kMillisecond);
}

}  // namespace bench
