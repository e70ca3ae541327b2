#include "algadd/planned_row.h"

#include <gtest/gtest.h>

#include "numbers/errors.h"
#include "planned_step.h"
#include "run_fixture.h"
#include "step_world.h"
#include "support/failing_allocation.h"
#include "support/literal_step.h"

namespace kov {
namespace {

Lmap store_with(Row row) {
  Lmap made;
  made.insert_row(std::move(row));
  return made;
}

TEST(PlannedRow, WithoutTermsThereIsNoPoint) {
  PlannedStep::Points points = points_on_k1(3);
  points.emplace_back(Lk::at(2, 0), 1);
  const PlannedStep step(points, {entry_of(1, 0, 1)});
  ASSERT_TRUE(step.plan().terms.empty());
  WorkerPool workers(1);
  HookedProgress progress;
  const Row row = planned_row(step.plan(), workers, progress);
  EXPECT_TRUE(row.empty());
  EXPECT_EQ(row.n(), 1);
}

TEST(PlannedRow, PartsOfARowMeetWithoutASeam) {
  // So many contributions that the row is made in parts even by one thread.
  const PlannedStep step(points_on_k1(150000, 2),
                         {entry_of(3, -5), entry_of(-1, 0), entry_of(1, 1), entry_of(1, 2)});
  const LiteralStore expected = literal_row(step.algadd(), 0, literal_copy(step.lmap()), 0);
  for (const int threads : {1, 2, 5}) {
    WorkerPool workers(threads);
    HookedProgress progress;
    Row row = planned_row(step.plan(), workers, progress);
    EXPECT_TRUE(row.box_is_exact());
    EXPECT_EQ(row.box().min.coo[1], -5);
    EXPECT_EQ(row.box().max.coo[1], 300000);
    EXPECT_TRUE(identical(store_with(std::move(row)), expected)) << threads;
    // With others at work the calling thread may find all parts taken.
    if (threads == 1) {
      EXPECT_GT(progress.breaths, 1);
    }
  }
}

TEST(PlannedRow, ASumThatCancelsLeavesNoPoint) {
  const PlannedStep step(points_on_k1(50000), {entry_of(1, 3), entry_of(-1, 3)});
  WorkerPool workers(2);
  HookedProgress progress;
  EXPECT_TRUE(planned_row(step.plan(), workers, progress).empty());
}

TEST(PlannedRow, OverflowsOfAnyPartAreThrown) {
  for (const std::size_t place : {0U, 70000U, 149999U}) {
    PlannedStep::Points points = points_on_k1(150000);
    points[place].second = cotyp::floating(1e200, 0.0);
    const PlannedStep step(points, {entry_of(1, 3), entry_of(cotyp::floating(1e200, 0.0))});
    for (const int threads : {1, 3}) {
      WorkerPool workers(threads);
      HookedProgress progress;
      EXPECT_THROW(planned_row(step.plan(), workers, progress), floating_overflow);
    }
  }
}

TEST(PlannedRow, MemoryThatRunsOutIsThrown) {
  for (const cotyp& p : {cotyp(1), cotyp::floating(0.1, 0.0), cotyp(1, 3, 0, 1)}) {
    const PlannedStep step(points_on_k1(3000, 17), {entry_of(p, 3), entry_of(2, -14)});
    WorkerPool workers(1);
    const std::int64_t failures = fail_each_allocation(
        0,
        [&](int&) {
          HookedProgress progress;
          planned_row(step.plan(), workers, progress);
        },
        [](int) {});
    EXPECT_GT(failures, 5);
  }
}

}  // namespace
}  // namespace kov
