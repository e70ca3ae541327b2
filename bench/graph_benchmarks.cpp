#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bench/benchmarks.h"
#include "bench/figures.h"
#include "bench/silent_user.h"
#include "bench/stopwatch.h"
#include "graphs/calc_gc.h"
#include "graphs/distinct_values.h"
#include "graphs/graph1_page.h"
#include "graphs/graph2_page.h"
#include "graphs/map_raster.h"
#include "support/plain_measure.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr ImageSize page_size{1400, 900};

/// Squares of points in the plane k1, k2, one for each step, and what the graph pages make of them. Range 1
/// holds all of the step in the middle.
struct GraphBench {
  GraphBench(std::int32_t steps, std::int32_t side) {
    cph.InitPrgPar(WindowFacts{});
    RangeTable& table = tables.current_table();
    table.range[0] = {Lk::filled(lowest_int), Lk::filled(highest_int)};
    table.range[0].min.coo[0] = table.range[0].max.coo[0] = steps / 2;
    table.icoo_along_y_in_g2 = {2, 2};
    for (std::int32_t n = 0; n < steps; ++n) add_square(n, side);
  }

  void add_square(std::int32_t n, std::int32_t side) {
    for (std::int32_t k1 = 0; k1 < side; ++k1) {
      Lk key = Lk::at(0, n, k1);
      for (key.coo[2] = 0; key.coo[2] < side; ++key.coo[2]) lmap.set(key, (37 * k1 + key.coo[2]) % 997 + 1);
    }
  }

  void fill(ValueMap& map, ImageSize image) {
    const auto text =
        Calc_v_from_lgl(lmap, tables.current_table(), MapChoice::of_radio(0), image, cph, user, map);
    if (!text.empty()) throw std::runtime_error(text);
  }

  SilentUser user;
  cphclass cph{user.messages()};
  Lmap lmap;
  RangeTables tables;
  PlainMeasure measure;
  G1Checks checked{true};
  bool oplot = false;
  CurveStates states{};
  int radio_index = 0;
  Graph1Page graph1{{lmap, tables, cph, checked, oplot, [] { return std::string("bench.aa1"); }},
                    user.messages(),
                    user.progress()};
  Graph2Page graph2{{lmap, tables, cph, states, radio_index, [] { return std::string("bench.aa1"); }}, user};
};

double million_points(const GraphBench& bench) { return static_cast<double>(bench.lmap.count()) / 1e6; }

void bin_graph1(benchmark::State& state, GraphBench& bench) {
  const G1Task task{bench.lmap,      bench.tables.current_table(), bench.cph, bench.checked, page_size.width,
                    page_size.height};
  auto par = std::make_unique<G1Par>();
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    G1Outcome outcome{};
    time.measure(
        state, [&] { outcome = Calc_gc_from_lgl(task, *par, bench.user.messages(), bench.user.progress()); });
    if (outcome != G1Outcome::calculated) throw std::runtime_error("Graph1 was not calculated");
  }
  state.counters["M points/s"] = million_points(bench) / time.seconds();
}

void bin_graph2(benchmark::State& state, GraphBench& bench) {
  ValueMap map;
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) time.measure(state, [&] { bench.fill(map, page_size); });
  state.counters["M points/s"] = million_points(bench) / time.seconds();
}

// The largest image, every pixel of it inside a box.
void colour(benchmark::State& state, GraphBench& bench) {
  ValueMap map;
  bench.fill(map, {max_hpixcount, max_vpixcount});
  ColourScale scale(ColourRamp::read(bench.cph));
  scale.Set_equally_distributed_fclimit(map.values(), bench.user.messages());
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    time.measure(state, [&] {
      if (!map_raster(map, scale, false, 30, bench.user.progress())) throw std::runtime_error("no raster");
    });
  }
  state.counters["M pixels/s"] = max_hpixcount * max_vpixcount / 1e6 / time.seconds();
}

/// A value for each pixel of the largest image, hardly any two alike.
std::vector<double> different_values() {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> anywhere(-1, 1);
  std::vector<double> values(std::size_t{max_hpixcount} * max_vpixcount);
  for (double& value : values) value = anywhere(random);
  return values;
}

std::vector<double> compared_values(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  return values;
}

// What the equalisation of the largest map needs, by digits and by comparing.
void find_distinct(benchmark::State& state, std::vector<double> (*find)(std::vector<double>)) {
  const std::vector<double> values = different_values();
  const std::vector<double> expected = compared_values(values);
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    std::vector<double> found = values;
    time.measure(state, [&] { found = find(std::move(found)); });
    if (found != expected) throw std::runtime_error("other values");
  }
  state.counters["ms"] = 1e3 * time.seconds();
}

void equalise(benchmark::State& state, GraphBench& bench) {
  const std::vector<double> values = different_values();
  ColourScale scale(ColourRamp::read(bench.cph));
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    std::vector<double> taken = values;
    time.measure(state,
                 [&] { scale.Set_equally_distributed_fclimit(std::move(taken), bench.user.messages()); });
  }
  state.counters["ms"] = 1e3 * time.seconds();
}

// From the moment the tab is chosen until the picture is there to be painted.
template <class Show, class Page>
void show_page(benchmark::State& state, GraphBench& bench, Page& page, const Show& show) {
  page.fit(page_size.width, page_size.height, bench.measure);
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    time.measure(state, [&] {
      show();
      benchmark::DoNotOptimize(page.picture(page_size.width, page_size.height, bench.measure));
    });
  }
  state.counters["us"] = 1e6 * time.seconds();
}

void show_graph1(benchmark::State& state, GraphBench& bench) {
  show_page(state, bench, bench.graph1, [&] { bench.graph1.show(); });
}

void show_graph2(benchmark::State& state, GraphBench& bench) {
  show_page(state, bench, bench.graph2, [&] { bench.graph2.shown(); });
}

// With the common scale: nothing is calculated.
void click_box(benchmark::State& state, GraphBench& bench) {
  bench.cph.setkmi_1("Graph1_quick_xscale_r12_common", 1);
  bench.graph1.show();
  show_page(state, bench, bench.graph1, [&] {
    bench.checked[g1_qa] = !bench.checked[g1_qa];
    bench.graph1.check_box_changed();
  });
}

}  // namespace

void register_graph_benchmarks(Scale scale) {
  const std::int32_t side = scale == Scale::full ? 1000 : 30;
  const std::string size = ", " + int_text(side * side) + " points";
  const auto square = std::make_shared<GraphBench>(1, side);
  const auto rows = std::make_shared<GraphBench>(100, side / 10);
  const auto add_for = [&](const std::shared_ptr<GraphBench>& bench, const std::string& name,
                           void (*run)(benchmark::State&, GraphBench&)) {
    benchmark::RegisterBenchmark(name.c_str(), [bench, run](benchmark::State& state) { run(state, *bench); })
        ->UseManualTime()
        ->MinTime(seconds_per_benchmark(scale));
  };
  const auto add = [&](const std::string& name, void (*run)(benchmark::State&, GraphBench&)) {
    add_for(square, name, run);
  };
  add("Graph1, binning, all inside" + size, bin_graph1);
  add_for(rows, "Graph1, binning, 1 row of 100 inside" + size, bin_graph1);
  add("Graph2, binning, all inside" + size, bin_graph2);
  add_for(rows, "Graph2, binning, 1 row of 100 inside" + size, bin_graph2);
  add("Graph2, colouring of 3000 x 2000 pixels", colour);
  const std::string distinct = "Graph2, distinct ones of 6 million values";
  for (const auto& [name, find] :
       {std::pair{distinct, &distinct_values}, std::pair{literal_name(distinct), &compared_values}}) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [find = find](benchmark::State& state) { find_distinct(state, find); })
        ->UseManualTime()
        ->MinTime(seconds_per_benchmark(scale));
  }
  add("Graph2, equalising of 6 million distinct values", equalise);
  add("Graph1 page" + size, show_graph1);
  add("Graph2 page" + size, show_graph2);
  add("Graph1, click on a check box" + size, click_box);
}

}  // namespace kov
