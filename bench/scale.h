#pragma once

namespace kov {

/// How large the benchmarks are: full for figures to quote, quick to see that every one of them works.
enum class Scale { full, quick };

inline double seconds_per_benchmark(Scale scale) { return scale == Scale::full ? 1.0 : 0.001; }

}  // namespace kov
