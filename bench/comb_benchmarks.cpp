#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <random>
#include <stdexcept>

#include "bench/benchmarks.h"
#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "support/literal_combinations.h"
#include "text/integers.h"
#include "tools/comb_count.h"
#include "tools/comb_search.h"
#include "tools/order_search.h"

namespace kov {
namespace {

constexpr const char* unit = "M combinations/s";

struct CombCase {
  std::string name;
  std::vector<CombElement> elements;
  int order = 1;
  CombRules rules;
};

std::vector<CombElement> elements_of(std::vector<double> real_parts) {
  std::sort(real_parts.begin(), real_parts.end(), std::greater<>());
  std::vector<CombElement> elements;
  for (const double re : real_parts) elements.push_back({.re = re, .square = re * re, .key = {}});
  return elements;
}

std::vector<CombElement> random_elements(int count) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> between(-1.0, 1.0);
  std::vector<double> values(static_cast<std::size_t>(count));
  for (double& value : values) value = between(random);
  return elements_of(values);
}

std::vector<CombElement> unit_fractions(int count) {
  std::vector<double> values;
  for (int i = 0; i < count; ++i) values.push_back(1.0 / (i + 2));
  return elements_of(values);
}

bool go_on(double) { return true; }

OrderResult search_alone(std::span<const CombElement> elements, int order, const CombRules& rules,
                         const OrderPoll& poll) {
  return search_order(elements, order, rules, 1, poll);
}

// All orders, as a command searches them.
void search_orders(benchmark::State& state, const CombCase& comb, const SearchOrder& search) {
  const double count = pm_combinations_up_to(static_cast<std::int64_t>(comb.elements.size()), comb.order);
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    double tested = 0.0;
    time.measure(state, [&] {
      for (int order = 1; order <= comb.order; ++order) {
        tested += search(comb.elements, order, comb.rules, go_on).tested;
      }
    });
    if (tested != count) throw std::runtime_error(comb.name + ": combinations were lost");
  }
  state.counters[unit] = count / time.seconds() / 1e6;
}

void add(const std::string& name, const CombCase& comb, const SearchOrder& search, Scale scale) {
  benchmark::RegisterBenchmark(
      name.c_str(), [comb, search](benchmark::State& state) { search_orders(state, comb, search); })
      ->UseManualTime()
      ->MinTime(seconds_per_benchmark(scale));
}

}  // namespace

void register_comb_benchmarks(Scale scale) {
  const bool full = scale == Scale::full;
  const int elements = full ? 40 : 15;
  const int order = full ? 6 : 4;
  const std::string extent = ", " + int_text(elements) + " of order 1.." + int_text(order);
  for (const CombCase& comb : {CombCase{"comb: random" + extent, random_elements(elements), order, {}},
                               CombCase{"comb: 1/n" + extent, unit_fractions(elements), order, {}}}) {
    add(comb.name, comb, search_alone, scale);
    add(literal_name(comb.name), comb, literal_search_order, scale);
  }
  const int higher = full ? 9 : 5;
  const CombCase high{"comb: random, " + int_text(elements) + " of order 1.." + int_text(higher),
                      random_elements(elements),
                      higher,
                      {}};
  add(high.name, high, search_alone, scale);
  add(high.name + ", all cores", high, search_order_on_all_cores, scale);
  const int halved = full ? 28 : 12;
  const CombCase all{
      "comb: random, " + int_text(halved) + " of every order", random_elements(halved), halved, {}};
  add(all.name, all, search_alone, scale);
  add(all.name + ", all cores", all, search_order_on_all_cores, scale);
}

}  // namespace kov
