#include <benchmark/benchmark.h>

#include <stdexcept>

#include "algadd/algadd_run.h"
#include "bench/benchmarks.h"
#include "bench/deleting_run.h"
#include "bench/figures.h"
#include "bench/heap_bytes.h"
#include "bench/silent_user.h"
#include "bench/stopwatch.h"
#include "bench/workloads.h"
#include "lattice/row_builder.h"
#include "support/literal_step.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr const char* bytes_unit = "bytes/point";

void add_once(const std::string& name, const std::function<void(benchmark::State&)>& run) {
  benchmark::RegisterBenchmark(name.c_str(), [run](benchmark::State& state) {
    for ([[maybe_unused]] auto iteration : state) run(state);
  })->Iterations(1);
}

template <class Make>
void store_bytes(benchmark::State& state, std::int32_t side, const Make& make) {
  const std::size_t before = heap_bytes();
  const auto store = make(side);
  state.counters[bytes_unit] = static_cast<double>(heap_bytes() - before) / (side * side);
  benchmark::DoNotOptimize(&store);
}

LiteralStore literal_square(std::int32_t side) {
  LiteralStore square;
  Lk key;
  for (key.coo[1] = 0; key.coo[1] < side; ++key.coo[1]) {
    for (key.coo[2] = 0; key.coo[2] < side; ++key.coo[2]) square.emplace_hint(square.end(), key, 1);
  }
  return square;
}

/// Points one by one in key order into a row, which then goes into the store.
void append_row(benchmark::State& state, std::int32_t side) {
  double best = std::numeric_limits<double>::infinity();
  for (int run = 0; run < 5; ++run) {
    Lmap store;
    best = std::min(best, processor_seconds_of([&] {
                      Lk last;
                      last.coo[1] = last.coo[2] = side - 1;
                      RowBuilder row(0, KeyBox{Lk{}, last});
                      for (Lk key; key.coo[1] < side; ++key.coo[1]) {
                        for (key.coo[2] = 0; key.coo[2] < side; ++key.coo[2]) row.append(key, 1 + key.coo[2]);
                      }
                      store.insert_row(row.finish());
                    }));
  }
  state.counters["ns/point"] = 1e9 * best / (side * side);
}

/// A walk in the plane from one point on that keeps all its rows: (steps + 1) (steps + 2) (2 steps + 3) / 6
/// points.
void keep_history(benchmark::State& state, std::int32_t steps) {
  SilentUser user;
  cphclass cph(user.messages());
  cph.InitPrgPar(WindowFacts{});
  cph.setkmi_1("MaxAllowedMemOccupationInKB", highest_int);
  Algadd algadd = plane_walk_table();
  double best = std::numeric_limits<double>::infinity();
  for (int run = 0; run < 3; ++run) {
    const std::size_t before = heap_bytes();
    Lmap store;
    store.set(Lk{}, 1);
    best = std::min(best, seconds_of([&] {
                      perform_algadd(algadd, store, cph, {},
                                     {.table = 0, .mode = RunMode::keep, .intro = "", .steps = steps}, user);
                    }));
    if (store.nlast() != steps) throw std::runtime_error("the run did not end");
    const auto points = static_cast<double>(store.count());
    state.counters[bytes_unit] = static_cast<double>(heap_bytes() - before) / points;
    state.counters["ns/point"] = 1e9 * best / points;
  }
}

void add_store_bytes(std::int32_t side, const std::string& size) {
  const std::string integers = "store, integers" + size;
  add_once(integers, [side](auto& state) { store_bytes(state, side, integer_square); });
  add_once(literal_name(integers), [side](auto& state) { store_bytes(state, side, literal_square); });
  add_once("store, floating" + size, [side](auto& state) { store_bytes(state, side, floating_square); });
  add_once("store, complex integers" + size,
           [side](auto& state) { store_bytes(state, side, complex_integer_square); });
  add_once("store, complex floating" + size,
           [side](auto& state) { store_bytes(state, side, complex_floating_square); });
  add_once("store, unrelated fractions" + size,
           [side](auto& state) { store_bytes(state, side, fraction_square); });
}

}  // namespace

void register_memory_benchmarks(Scale scale) {
  const bool full = scale == Scale::full;
  const std::int32_t side = full ? 1000 : 30;
  const std::string size = ", " + int_text(side * side) + " points";
  add_store_bytes(side, size);
  add_once("append a row of integers" + size, [side](auto& state) { append_row(state, side); });

  const std::int32_t steps = full ? 310 : 10;
  const std::int32_t kept = (steps + 1) * (steps + 2) * (2 * steps + 3) / 6;
  add_once("history of a plane walk, " + int_text(kept) + " points",
           [steps](auto& state) { keep_history(state, steps); });
  const std::int32_t wide = full ? 2000 : 100;
  for (const std::string kind : {"integers", "floating"}) {
    add_once("deleting run, " + kind + ", " + int_text(wide * wide) + " points, peak",
             [kind, wide](auto& state) { state.counters[bytes_unit] = peak_of_deleting_run(kind, wide); });
  }
}

}  // namespace kov
