#pragma once

#include <cstddef>

#include "algadd/step_plan.h"
#include "algadd/worker_pool.h"
#include "interact/progress.h"
#include "lattice/row.h"

namespace kov {

/// How many contributions a part of a row takes, of which each is made by one thread: enough that its
/// beginning does not count; few enough that no thread waits long for another, and that the display breathes
/// often.
struct PartSize {
  std::size_t smallest = 32768;
  std::size_t largest = 400000;
};

/// Carries a plan out: the row of its destinations, which may be empty. Throws floating_overflow when a
/// product or a sum is not finite.
Row planned_row(const StepPlan& plan, WorkerPool& workers, Progress& progress, PartSize size = {});

}  // namespace kov
