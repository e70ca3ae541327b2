#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

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

using Keys = std::vector<Lk>;

Keys keys_of(const Lmap& lmap) {
  Keys keys;
  for (auto point = lmap.begin(); point != lmap.end(); ++point) keys.push_back(point.key());
  return keys;
}

Keys shuffled(Keys keys) {
  std::shuffle(keys.begin(), keys.end(), std::mt19937(1));
  return keys;
}

void store_at(Lmap& store, const Lk& key) { store.set(key, 1); }
void store_at(LiteralStore& store, const Lk& key) { store[key] = 1; }

template <class Store>
void fill(benchmark::State& state, const Keys& keys) {
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    Store store;
    time.measure_alone(state, [&] {
      for (const Lk& key : keys) store_at(store, key);
    });
  }
  state.counters["ns/point"] = 1e9 * time.seconds() / static_cast<double>(keys.size());
}

void walk(benchmark::State& state, const Lmap& lmap) {
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    time.measure_alone(state, [&] {
      std::int64_t sum = 0;
      for (auto point = lmap.begin(); point != lmap.end(); ++point) {
        sum += point.key().coo[1] + point.quantity().re.nu();
      }
      benchmark::DoNotOptimize(sum);
    });
  }
  state.counters["ns/point"] = 1e9 * time.seconds() / static_cast<double>(lmap.count());
}

void sum_up(benchmark::State& state, const Lmap& lmap, const Ranges& ranges) {
  SilentUser user;
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    time.measure_alone(state,
                       [&] { benchmark::DoNotOptimize(sum_ranges(lmap, ranges, 10000, user.progress())); });
  }
  state.counters["M points/s"] = 1e-6 * static_cast<double>(lmap.count()) / time.seconds();
}

void delete_smallest(benchmark::State& state, const Lmap& lmap) {
  constexpr std::int32_t percent = 30;
  SilentUser user;
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    Lmap copy = lmap;
    time.measure_alone(state, [&] { delete_smallest_of_nlast(copy, percent, user.progress()); });
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
  const auto ordered = std::make_shared<const Keys>(keys_of(*integers));
  const auto scattered = std::make_shared<const Keys>(shuffled(*ordered));
  for (const auto& [name, keys] :
       {std::pair("set points in random order", scattered), std::pair("set points in key order", ordered)}) {
    add(name + size, [keys = keys](auto& state) { fill<Lmap>(state, *keys); });
    add(literal_name(name + size), [keys = keys](auto& state) { fill<LiteralStore>(state, *keys); });
  }
  add("walk over the points" + size, [integers](auto& state) { walk(state, *integers); });
  const auto rows = std::make_shared<const Lmap>(steps_of_squares(100, side / 10));
  add("Sums1, integers inside" + size, [integers](auto& state) { sum_up(state, *integers, everything()); });
  add("Sums1, floating inside" + size, [floating](auto& state) { sum_up(state, *floating, everything()); });
  add("Sums1, 1 row of 100 inside" + size, [rows](auto& state) { sum_up(state, *rows, row_only(50)); });
  add("delete smallest, integers" + size, [integers](auto& state) { delete_smallest(state, *integers); });
  add("delete smallest, floating" + size, [floating](auto& state) { delete_smallest(state, *floating); });
}

}  // namespace kov
