#include "bench/memory_bandwidth.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numeric>
#include <span>
#include <thread>
#include <vector>

#include "algadd/worker_pool.h"
#include "bench/stopwatch.h"

namespace kov {
namespace {

/// Every thread has its own part of an array of words.
class SharedWork {
 public:
  SharedWork(int threads, std::size_t words)
      : threads_(threads), part_(words / static_cast<std::size_t>(threads)) {}

  double bytes() const { return static_cast<double>(part_ * sizeof(std::uint64_t)) * threads_; }

  /// The least seconds of several runs of work(first word, number of words) on all threads.
  template <class Work>
  double seconds(const Work& work) const {
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < runs; ++run) best = std::min(best, seconds_of([&] { on_all_threads(work); }));
    return best;
  }

 private:
  static constexpr int runs = 5;

  template <class Work>
  void on_all_threads(const Work& work) const {
    std::vector<std::jthread> others;
    for (int thread = 1; thread < threads_; ++thread) {
      others.emplace_back(
          [&work, first = part_ * static_cast<std::size_t>(thread), count = part_] { work(first, count); });
    }
    work(0, part_);
  }

  int threads_;
  std::size_t part_;
};

std::uint64_t sum_of(std::span<const std::uint64_t> words) {
  return std::accumulate(words.begin(), words.end(), std::uint64_t{0});
}

}  // namespace

MemoryBandwidth measure_memory_bandwidth(Scale scale) {
  const std::size_t words = scale == Scale::full ? std::size_t{1} << 26 : std::size_t{1} << 16;
  MemoryBandwidth bandwidth{.threads = processor_threads()};
  const SharedWork work(bandwidth.threads, words);
  const std::vector<std::uint64_t> from(words, 1);
  std::vector<std::uint64_t> to(words, 2);
  bandwidth.copy = 2.0 * work.bytes() / work.seconds([&](std::size_t first, std::size_t count) {
    std::memcpy(to.data() + first, from.data() + first, count * sizeof(std::uint64_t));
    benchmark::ClobberMemory();
  });
  bandwidth.read = work.bytes() / work.seconds([&](std::size_t first, std::size_t count) {
    benchmark::DoNotOptimize(sum_of(std::span(from).subspan(first, count)));
  });
  bandwidth.fresh = work.bytes() / work.seconds([&](std::size_t, std::size_t count) {
    benchmark::DoNotOptimize(std::vector<std::uint64_t>(count, 3).data());
  });
  return bandwidth;
}

}  // namespace kov
