#include "planned_step.h"

#include "text/integers.h"

namespace kov {

PlannedStep::PlannedStep(const Points& points, const std::vector<AlgaddEntry>& entries) {
  for (const auto& [key, q] : points) lmap_.set(key, q);
  int number = 0;
  for (const AlgaddEntry& entry : entries) algadd_.set_entry(0, number++, entry);
  WorkerPool workers(2);
  std::vector<const Row*> sources;
  for (const Row& row : lmap_.rows(0, highest_int)) sources.push_back(&row);
  plans_ = plan_step(algadd_, 0, algadd_.used_length(0), sources, {workers, [] {}});
}

PlannedStep::Points points_on_k1(std::size_t count, std::int32_t step, std::int32_t first, std::int32_t l) {
  PlannedStep::Points points;
  for (std::size_t i = 0; i < count; ++i) {
    const auto number = static_cast<std::int32_t>(i);
    points.emplace_back(Lk::at(l, 0, first + number * step), number + 1);
  }
  return points;
}

}  // namespace kov
