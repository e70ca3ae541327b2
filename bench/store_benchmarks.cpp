#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cmath>
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

/// A line of points whose quantities are those of quantity(k1).
template <class Quantity>
auto line_of(const Quantity& quantity) {
  return [quantity](std::int32_t count) {
    Lmap line;
    for (std::int32_t k1 = 0; k1 < count; ++k1) line.set(Lk::at(0, 0, k1), quantity(k1));
    return line;
  };
}

/// A square of points in random order.
std::vector<Lk> scattered_keys(std::int32_t count) {
  const auto side = static_cast<std::int32_t>(std::sqrt(count));
  std::vector<Lk> keys;
  for (std::int32_t i = 0; i < count; ++i) {
    keys.push_back(Lk::at(0, 0, i / side));
    keys.back().coo[2] = i % side;
  }
  std::shuffle(keys.begin(), keys.end(), std::mt19937(1));
  return keys;
}

void store_at(Lmap& store, const Lk& key) { store.set(key, 1); }
void store_at(LiteralStore& store, const Lk& key) { store[key] = 1; }

template <class Store>
void fill(benchmark::State& state, const std::vector<Lk>& keys) {
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    Store store;
    time.measure(state, [&] {
      for (const Lk& key : keys) store_at(store, key);
    });
  }
  state.counters["ns/point"] = 1e9 * time.seconds() / static_cast<double>(keys.size());
}

void walk(benchmark::State& state, const Lmap& lmap) {
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    time.measure(state, [&] {
      std::int64_t sum = 0;
      for (auto point = lmap.begin(); point != lmap.end(); ++point) {
        sum += point.key().coo[1] + point.quantity().re.nu();
      }
      benchmark::DoNotOptimize(sum);
    });
  }
  state.counters["ns/point"] = 1e9 * time.seconds() / static_cast<double>(lmap.count());
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
  const auto add_memory = [&size, points](const std::string& name, auto make) {
    benchmark::RegisterBenchmark((name + size).c_str(), [points, make](benchmark::State& state) {
      bytes_per_point(state, points, make);
    })->Iterations(1);
  };
  const std::string memory = "memory of a stored point";
  add_memory(memory, integer_line);
  benchmark::RegisterBenchmark(literal_name(memory + size).c_str(), [points](benchmark::State& state) {
    bytes_per_point(state, points, literal_line);
  })->Iterations(1);
  add_memory(memory + ", floating",
             line_of([](std::int32_t k1) { return cotyp(ratyp::floating(k1 + 0.5), 0); }));
  add_memory(memory + ", exact complex",
             line_of([](std::int32_t k1) { return cotyp(k1 + 1, 1, k1 + 2, 3); }));
  add_memory(memory + ", floating complex",
             line_of([](std::int32_t k1) { return cotyp::floating(k1 + 0.5, k1 + 0.25); }));
  const auto scattered = std::make_shared<const std::vector<Lk>>(scattered_keys(points));
  const auto ordered = [&scattered] {
    std::vector<Lk> keys = *scattered;
    std::sort(keys.begin(), keys.end(), LkOrder());
    return std::make_shared<const std::vector<Lk>>(std::move(keys));
  }();
  for (const auto& [name, keys] : {std::pair("store, points in random order", scattered),
                                   std::pair("store, points in key order", ordered)}) {
    add(name + size, [keys = keys](benchmark::State& state) { fill<Lmap>(state, *keys); });
    add(literal_name(name + size),
        [keys = keys](benchmark::State& state) { fill<LiteralStore>(state, *keys); });
  }
  add("store, walk over its points" + size, [line](benchmark::State& state) { walk(state, *line); });
  add("Sums1" + size, [line](benchmark::State& state) { sum_up(state, *line); });
  add("delete smallest" + size, [line](benchmark::State& state) { delete_smallest(state, *line); });
}

}  // namespace kov
