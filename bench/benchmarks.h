#pragma once

#include "bench/scale.h"
#include "bench/step_table.h"

namespace kov {

// Each registers its benchmarks with the library; some workloads are built right away.

/// Their figures go into a table of their own.
void register_step_benchmarks(Scale scale, StepTable& steps);
void register_memory_benchmarks(Scale scale);
void register_store_benchmarks(Scale scale);
void register_file_benchmarks(Scale scale);
void register_comb_benchmarks(Scale scale);
void register_graph_benchmarks(Scale scale);

}  // namespace kov
