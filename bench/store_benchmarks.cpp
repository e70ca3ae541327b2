#include <benchmark/benchmark.h>

#include <array>
#include <memory>

#include "algadd/delete_smallest.h"
#include "bench/benchmarks.h"
#include "bench/silent_user.h"
#include "bench/stopwatch.h"
#include "bench/workloads.h"
#include "sums/range_sums.h"
#include "sums/range_table.h"
#include "text/integers.h"

namespace kov {
namespace {

using Ranges = std::array<KeyBox, 2>;

Ranges everything() {
  const KeyBox all{Lk::filled(lowest_int), Lk::filled(highest_int)};
  return {all, all};
}

/// All of one step.
Ranges row_only(std::int32_t n) {
  Ranges ranges = everything();
  for (KeyBox& range : ranges) range.min.coo[0] = range.max.coo[0] = n;
  return ranges;
}

/// So many steps with a square of points each.
Lmap steps_of_squares(std::int32_t steps, std::int32_t side) {
  Lmap store;
  for (std::int32_t n = 0; n < steps; ++n) {
    Lmap square = integer_square(side);
    square.shift_steps(n);
    store.merge_new(square);
  }
  return store;
}

void sum_up(benchmark::State& state, const Lmap& lmap, const Ranges& ranges) {
  SilentUser user;
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    time.measure(state, [&] { benchmark::DoNotOptimize(sum_ranges(lmap, ranges, 10000, user.progress())); });
  }
  state.counters["M points/s"] = 1e-6 * static_cast<double>(lmap.count()) / time.seconds();
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
  const std::int32_t side = scale == Scale::full ? 1000 : 30;
  const std::string size = ", " + int_text(side * side) + " points";
  const auto add = [scale](const std::string& name, auto run) {
    benchmark::RegisterBenchmark(name.c_str(), run)->UseManualTime()->MinTime(seconds_per_benchmark(scale));
  };
  const auto integers = std::make_shared<const Lmap>(integer_square(side));
  const auto floating = std::make_shared<const Lmap>(floating_square(side));
  const auto rows = std::make_shared<const Lmap>(steps_of_squares(100, side / 10));
  add("Sums1, integers inside" + size, [integers](auto& state) { sum_up(state, *integers, everything()); });
  add("Sums1, floating inside" + size, [floating](auto& state) { sum_up(state, *floating, everything()); });
  add("Sums1, 1 row of 100 inside" + size, [rows](auto& state) { sum_up(state, *rows, row_only(50)); });
  add("delete smallest, integers" + size, [integers](auto& state) { delete_smallest(state, *integers); });
  add("delete smallest, floating" + size, [floating](auto& state) { delete_smallest(state, *floating); });
}

}  // namespace kov
