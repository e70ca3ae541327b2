#include <benchmark/benchmark.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <string_view>
#include <vector>

#include "algadd/process_memory.h"
#include "bench/benchmarks.h"
#include "bench/deleting_run.h"
#include "bench/table_reporter.h"

namespace {

/// Takes --quick out of the arguments; the others are the benchmark library's.
kov::Scale take_scale(std::vector<char*>& arguments) {
  const auto quick = std::find(arguments.begin(), arguments.end(), std::string_view("--quick"));
  if (quick == arguments.end()) return kov::Scale::full;
  arguments.erase(quick);
  return kov::Scale::quick;
}

int run(std::vector<char*> arguments) {
  kov::set_up_process_memory();  // as the programs do
  if (kov::is_deleting_run(arguments)) return kov::perform_deleting_run(arguments);
  const kov::Scale scale = take_scale(arguments);
  auto count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
  if (scale == kov::Scale::quick) std::cout << "Little data, run once: the figures say nothing.\n";
  kov::StepTable steps;
  kov::register_step_benchmarks(scale, steps);
  kov::register_memory_benchmarks(scale);
  kov::register_store_benchmarks(scale);
  kov::register_file_benchmarks(scale);
  kov::register_comb_benchmarks(scale);
  kov::register_graph_benchmarks(scale);
  kov::TableReporter table;
  benchmark::RunSpecifiedBenchmarks(&table);
  benchmark::ClearRegisteredBenchmarks();
  if (!steps.empty()) steps.print(std::cout, kov::measure_memory_bandwidth(scale));
  if (!table.empty()) table.print(std::cout);
  return steps.empty() && table.empty() ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run({argv, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << "kov_bench: " << error.what() << '\n';
    return 1;
  }
}
