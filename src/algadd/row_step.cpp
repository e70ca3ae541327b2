#include "algadd/row_step.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "algadd/kernel.h"
#include "algadd/planned_row.h"
#include "algadd/step_plan.h"
#include "text/integers.h"

namespace kov {

namespace {

constexpr std::size_t points_per_breath = 1024;

// Where keys do not pack: point by point.
Lmap general_step(const Algadd& algadd, int table, int used_length, const Lmap& store, std::int32_t n,
                  Progress& progress) {
  Lmap destinations;
  std::size_t points = 0;
  for (Lmap::Cursor point = store.row_begin(n); point != store.end(); ++point) {
    AddLpairToLmap_1(algadd, destinations, point.key(), point.quantity(), used_length, table);
    if (++points % points_per_breath == 0) progress.breathe();
  }
  return destinations;
}

}  // namespace

Lmap RowStep::destinations(const Algadd& algadd, int table, int used_length, const Lmap& store,
                           std::int32_t n, Progress& progress) const {
  std::vector<const Row*> sources;
  for (const Row& row : store.rows(n, highest_int)) sources.push_back(&row);
  const auto plans =
      plan_step(algadd, table, used_length, sources, {workers_, [&progress] { progress.breathe(); }});
  if (!plans) return general_step(algadd, table, used_length, store, n, progress);
  Lmap destinations;
  for (const StepPlan& plan : *plans) {
    Row row = planned_row(plan, workers_, progress, size_);
    if (!row.empty()) destinations.insert_row(std::move(row));
  }
  return destinations;
}

}  // namespace kov
