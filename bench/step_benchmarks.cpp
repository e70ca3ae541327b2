#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>

#include "algadd/algadd_run.h"
#include "bench/benchmarks.h"
#include "bench/figures.h"
#include "bench/silent_user.h"
#include "bench/stopwatch.h"
#include "bench/workloads.h"
#include "support/literal_step.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr const char* unit = "ns/contribution";

/// A workload, what one step must make of it, and what that costs in contributions.
struct StepCase {
  Workload workload;
  LiteralStore row;
  std::size_t result_points = 0;
  double contributions = 0.0;

  explicit StepCase(Workload given) : workload(std::move(given)) {
    for (auto point = workload.row.begin(); point != workload.row.end(); ++point) {
      row.emplace_hint(row.end(), point.key(), point.quantity());
    }
    result_points = row.size() + literal_row(workload.algadd, 0, row, workload.row.nlast()).size();
    contributions = static_cast<double>(workload.contributions());
  }

  void check(std::size_t points) const {
    if (points != result_points) throw std::runtime_error(workload.name + ": the step made another row");
  }
};

// Runs operation on a fresh copy of store as often as the library wants; only operation is timed.
template <class Store, class Operation>
void measure(benchmark::State& state, const StepCase& step, const Store& store, const Operation& operation) {
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) {
    Store copy = store;
    time.measure(state, [&] { operation(copy); });
  }
  state.counters[unit] = 1e9 * time.seconds() / step.contributions;
}

// A whole step as a command runs it, displays and limits included.
void engine_step(benchmark::State& state, const StepCase& step) {
  SilentUser user;
  cphclass cph(user.messages());
  cph.InitPrgPar(WindowFacts{});
  cph.setkmi_1("MaxAllowedMemOccupationInKB", highest_int);
  Algadd algadd = step.workload.algadd;
  const RunRequest request{.table = 0, .mode = RunMode::keep, .intro = "", .steps = 1};
  measure(state, step, step.workload.row, [&](Lmap& lmap) {
    perform_algadd(algadd, lmap, cph, {}, request, user);
    step.check(lmap.count());
  });
}

// The row of the literal kernel, bounded to the used entries as the engine is, inserted into the store.
void literal_step(benchmark::State& state, const StepCase& step) {
  const Algadd& algadd = step.workload.algadd;
  const int used_length = algadd.used_length(0);
  const std::int32_t nlast = step.workload.row.nlast();
  measure(state, step, step.row, [&](LiteralStore& store) {
    const LiteralStore row = literal_row(algadd, 0, store, nlast, used_length);
    store.insert(row.begin(), row.end());
    step.check(store.size());
  });
}

std::string case_name(const StepCase& step) {
  return "step: " + step.workload.name + ", " + int_text(static_cast<std::int64_t>(step.row.size())) +
         " points";
}

}  // namespace

void register_step_benchmarks(Scale scale) {
  for (Workload& workload : step_workloads(scale)) {
    const auto step = std::make_shared<const StepCase>(std::move(workload));
    const std::string name = case_name(*step);
    const auto add = [&](const std::string& benchmark_name, auto run) {
      benchmark::RegisterBenchmark(benchmark_name.c_str(),
                                   [step, run](benchmark::State& state) { run(state, *step); })
          ->UseManualTime()
          ->MinTime(seconds_per_benchmark(scale));
    };
    add(name, engine_step);
    add(literal_name(name), literal_step);
  }
}

}  // namespace kov
