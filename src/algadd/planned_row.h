#pragma once

#include "algadd/step_plan.h"
#include "algadd/worker_pool.h"
#include "interact/progress.h"
#include "lattice/row.h"

namespace kov {

/// Carries a plan out: the row of its destinations, which may be empty. Throws floating_overflow when a
/// product or a sum is not finite.
Row planned_row(const StepPlan& plan, WorkerPool& workers, Progress& progress);

}  // namespace kov
