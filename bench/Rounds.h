// Two pieces of work measured alternately in one process, so that what the machine does meanwhile meets both.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace bench {

constexpr int kRounds = 31;

inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

inline double Percentile99(std::vector<double> values) {
  const auto place = values.begin() + static_cast<std::ptrdiff_t>(values.size() * 99 / 100);
  std::nth_element(values.begin(), place, values.end());
  return *place;
}

// Microseconds of one call.
template <class Work>
double Time(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

struct Comparison {
  double floor;  // medians of the rounds, microseconds per call
  double work;
  double floor_p99;  // over all single calls
  double work_p99;
  double floor_held_back;  // calls that took as long as a delayed acknowledgement does
  double work_held_back;
};

inline double HeldBack(const std::vector<double>& microseconds) {
  const auto held_back = [](double call) { return call >= 20e3 && call <= 60e3; };
  return static_cast<double>(std::count_if(microseconds.begin(), microseconds.end(), held_back));
}

// Each round makes `calls` calls of the one and then of the other, and takes its median of single calls. In turn, call
// by call, three threads would share the core instead of two, and its scheduler charges more for a moment of computing
// than it takes: plain sockets that compute 250 ns behind each of two queries were 1.05 of those that do not, not 1.03.
template <class Floor, class Work>
Comparison Alternate(int calls, const Floor& floor, const Work& work) {
  std::vector<double> all_floor;
  std::vector<double> all_work;
  std::vector<double> floors;
  std::vector<double> works;
  for (int round = -2; round < kRounds; ++round) {  // the first two warm up
    std::vector<double> floor_calls;
    std::vector<double> work_calls;
    for (int call = 0; call < calls; ++call) floor_calls.push_back(Time(floor));
    for (int call = 0; call < calls; ++call) work_calls.push_back(Time(work));
    if (round < 0) continue;
    floors.push_back(Median(floor_calls));
    works.push_back(Median(work_calls));
    all_floor.insert(all_floor.end(), floor_calls.begin(), floor_calls.end());
    all_work.insert(all_work.end(), work_calls.begin(), work_calls.end());
  }
  return {Median(floors),         Median(works),       Percentile99(all_floor),
          Percentile99(all_work), HeldBack(all_floor), HeldBack(all_work)};
}

// A figure and its target, beside it as "NAME_at_most", "NAME_at_least" or "NAME_under".
inline void Judge(benchmark::State& state, const std::string& name, double figure, const std::string& sense,
                  double target) {
  state.counters[name] = figure;
  state.counters[name + "_" + sense] = target;
}

inline void ReportRatio(benchmark::State& state, double floor, double work, double target) {
  state.counters["floor_us"] = floor;
  state.counters["driver_us"] = work;
  Judge(state, "ratio", work / floor, "at_most", target);
}

inline void Report(benchmark::State& state, const Comparison& result, double target) {
  ReportRatio(state, result.floor, result.work, target);
  state.counters["p99_ratio"] = result.work_p99 / result.floor_p99;
}

}  // namespace bench
