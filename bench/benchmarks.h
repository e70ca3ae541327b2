#pragma once

#include "bench/scale.h"

namespace kov {

/// Each registers its benchmarks with the library; the workloads are built right away.
void register_step_benchmarks(Scale scale);
void register_store_benchmarks(Scale scale);
void register_file_benchmarks(Scale scale);
void register_comb_benchmarks(Scale scale);
void register_graph_benchmarks(Scale scale);

}  // namespace kov
