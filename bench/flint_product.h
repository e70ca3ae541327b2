#pragma once

#include <cstddef>
#include <optional>

#include "bench/workloads.h"

namespace kov {

/// What the FLINT library needs for the polynomial product that a step is.
struct FlintProduct {
  double seconds = 0.0;
  /// Of the product, which are as many as the step makes points.
  std::size_t terms = 0;
};

/// The least seconds of several runs, on one thread. Nothing where a step is no product of polynomials with
/// rational coefficients, because a quantity or a factor is floating or complex or there is more than one
/// lattice, and where the library was not found when the benchmarks were built.
std::optional<FlintProduct> flint_product(const Workload& workload, int runs);

}  // namespace kov
