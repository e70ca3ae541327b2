#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "algadd/algadd.h"
#include "algadd/step_plan.h"
#include "lattice/lmap.h"

namespace kov {

/// A store, table 0 and what the step from row 0 on is planned to be.
class PlannedStep {
 public:
  using Points = std::vector<std::pair<Lk, cotyp>>;

  PlannedStep(const Points& points, const std::vector<AlgaddEntry>& entries);
  PlannedStep(const PlannedStep&) = delete;
  PlannedStep& operator=(const PlannedStep&) = delete;

  /// Nothing when keys do not pack.
  const std::optional<std::vector<StepPlan>>& plans() const { return plans_; }
  /// The plan of a step with one row of destinations.
  const StepPlan& plan() const { return plans_.value().at(0); }
  const Lmap& lmap() const { return lmap_; }
  const Algadd& algadd() const { return algadd_; }

 private:
  Lmap lmap_;
  Algadd algadd_;
  std::optional<std::vector<StepPlan>> plans_;
};

/// count points 1, 2, 3, ... of lattice l in row 0, at k1 = first, first + step, ...
PlannedStep::Points points_on_k1(std::size_t count, std::int32_t step = 1, std::int32_t first = 0,
                                 std::int32_t l = 0);

}  // namespace kov
