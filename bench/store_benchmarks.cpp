#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>

#include "algadd/delete_smallest.h"
#include "bench/benchmarks.h"
#include "bench/figures.h"
#include "bench/silent_user.h"
#include "bench/stopwatch.h"
#include "bench/workloads.h"
#include "sums/range_sums.h"
#include "sums/range_table.h"
#include "support/literal_step.h"
#include "text/integers.h"

namespace kov {
namespace {

/// Bytes that the allocator has handed out, its own book-keeping included.
std::size_t heap_bytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

// The heap that a store of so many points takes, for each point.
template <class Make>
void bytes_per_point(benchmark::State& state, std::int32_t points, const Make& make) {
  double bytes = 0.0;
  for ([[maybe_unused]] auto iteration : state) {
    const std::size_t before = heap_bytes();
    const auto store = make(points);
    bytes = static_cast<double>(heap_bytes() - before);
    benchmark::DoNotOptimize(&store);
  }
  state.counters["bytes/point"] = bytes / points;
}

LiteralStore literal_line(std::int32_t count) {
  LiteralStore line;
  for (std::int32_t k1 = 0; k1 < count; ++k1) line.emplace_hint(line.end(), Lk::at(0, 0, k1), 1);
  return line;
}

void sum_up(benchmark::State& state, const Lmap& lmap) {
  SilentUser user;
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    time.measure(state, [&] {
      benchmark::DoNotOptimize(sum_ranges(lmap, RangeTable::default_ranges(), 10000, user.progress()));
    });
  }
  state.counters["points/s"] = static_cast<double>(lmap.count()) / time.seconds();
}

void delete_smallest(benchmark::State& state, const Lmap& lmap) {
  constexpr std::int32_t percent = 30;
  SilentUser user;
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    Lmap copy = lmap;
    time.measure(state, [&] { delete_smallest_of_nlast(copy, percent, user.progress()); });
  }
  state.counters["ns/point"] = 1e9 * time.seconds() / static_cast<double>(lmap.count());
}

}  // namespace

void register_store_benchmarks(Scale scale) {
  const std::int32_t points = scale == Scale::full ? 1000000 : 1000;
  const std::string size = ", " + int_text(points) + " points";
  const auto line = std::make_shared<const Lmap>(integer_line(points));
  const auto add = [scale](const std::string& name, auto run) {
    return benchmark::RegisterBenchmark(name.c_str(), run)
        ->UseManualTime()
        ->MinTime(seconds_per_benchmark(scale));
  };
  const std::string memory = "memory of a stored point" + size;
  benchmark::RegisterBenchmark(memory.c_str(), [points](benchmark::State& state) {
    bytes_per_point(state, points, integer_line);
  })->Iterations(1);
  benchmark::RegisterBenchmark(literal_name(memory).c_str(), [points](benchmark::State& state) {
    bytes_per_point(state, points, literal_line);
  })->Iterations(1);
  add("Sums1" + size, [line](benchmark::State& state) { sum_up(state, *line); });
  add("delete smallest" + size, [line](benchmark::State& state) { delete_smallest(state, *line); });
}

}  // namespace kov
