#pragma once

#include <benchmark/benchmark.h>
#include <time.h>

#include <algorithm>
#include <chrono>
#include <limits>

namespace kov {

/// Seconds that an operation takes by the wall clock.
template <class Operation>
double seconds_of(const Operation& operation) {
  const auto begin = std::chrono::steady_clock::now();
  operation();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// Seconds that the processor works on an operation that keeps to the calling thread: what else runs on the
/// machine does not count.
template <class Operation>
double processor_seconds_of(const Operation& operation) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
  };
  const double begin = now();
  operation();
  return now() - begin;
}

/// The fastest of a benchmark's iterations, which is the figure to quote: whatever else the machine does
/// only ever adds.
class FastestTime {
 public:
  /// Times one iteration of a benchmark that uses manual time.
  template <class Operation>
  void measure(benchmark::State& state, const Operation& operation) {
    take(state, seconds_of(operation));
  }
  /// The same for an operation that keeps to the calling thread, by its processor.
  template <class Operation>
  void measure_alone(benchmark::State& state, const Operation& operation) {
    take(state, processor_seconds_of(operation));
  }

  double seconds() const { return seconds_; }

 private:
  void take(benchmark::State& state, double duration) {
    state.SetIterationTime(duration);
    seconds_ = std::min(seconds_, duration);
  }

  double seconds_ = std::numeric_limits<double>::infinity();
};

}  // namespace kov
