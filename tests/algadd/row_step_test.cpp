#include "algadd/row_step.h"

#include <gtest/gtest.h>

#include <array>
#include <variant>

#include "algadd/step_choice.h"
#include "algadd/step_plan.h"
#include "numbers/errors.h"
#include "run_fixture.h"
#include "step_world.h"
#include "support/failing_allocation.h"
#include "support/literal_step.h"
#include "support/points_text.h"
#include "support/recording_progress.h"

namespace kov {
namespace {

class RowStepAgainstLiteral : public ::testing::Test {
 protected:
  static constexpr std::array<int, 4> thread_counts = {1, 2, 3, 7};

  /// The step of the world with each number of threads, compared with the literal one.
  void compare(const StepWorld& world, PartSize size = {}) {
    const LiteralStore literal = literal_copy(world.lmap);
    const LiteralStore expected = literal_row(world.algadd, 0, literal, world.n, world.used_length());
    const bool overflow = !all_finite(expected);
    overflows_ += overflow ? 1 : 0;
    count_plans(world);
    points_ += expected.size();
    for (WorkerPool& pool : pools_) {
      const auto make = [&] {
        return RowStep(pool, size)
            .destinations(world.algadd, 0, world.used_length(), world.lmap, world.n, progress_);
      };
      if (overflow) {
        ASSERT_THROW(make(), floating_overflow);
      } else {
        ASSERT_TRUE(identical(make(), expected)) << pool.threads() << " threads";
      }
    }
  }

  void expect_all_arithmetics() const {
    for (std::size_t i = 0; i < plans_.size(); ++i) EXPECT_GT(plans_[i], 0) << "arithmetic " << i;
  }

  std::size_t points_ = 0;
  int overflows_ = 0;
  /// Plans by the arithmetic that is chosen for them, and worlds whose keys do not pack.
  std::array<int, std::variant_size_v<StepArithmetic>> plans_{};
  int unplanned_ = 0;

 private:
  void count_plans(const StepWorld& world) {
    std::vector<const Row*> sources;
    for (const Row& row : world.lmap.rows(world.n, highest_int)) sources.push_back(&row);
    const auto plans = plan_step(world.algadd, 0, world.used_length(), sources, {pools_[0], [] {}});
    if (!plans) {
      ++unplanned_;
      return;
    }
    for (const StepPlan& plan : *plans) {
      if (!plan.terms.empty()) ++plans_.at(choose_arithmetic(plan).index());
    }
  }

  RecordingProgress progress_;
  std::array<WorkerPool, 4> pools_{WorkerPool(1), WorkerPool(2), WorkerPool(3), WorkerPool(7)};
};

TEST_F(RowStepAgainstLiteral, SmallWorldsEqualItInEveryBit) {
  for (std::uint64_t seed = 1; seed <= 20000; ++seed) {
    SCOPED_TRACE(seed);
    // Parts of a few contributions each, so that the threads share rows as small as these.
    const std::size_t part = 1 + seed % 50;
    ASSERT_NO_FATAL_FAILURE(
        compare(StepWorld(seed, {.most_points = 60}), {.smallest = part, .largest = 10 * part}));
  }
  EXPECT_GT(points_, 500000U);
  EXPECT_GT(overflows_, 20);
  for (std::size_t i = 0; i < plans_.size(); ++i) EXPECT_GT(plans_[i], 400) << "arithmetic " << i;
  EXPECT_GT(unplanned_, 400);
}

TEST_F(RowStepAgainstLiteral, LargeWorldsEqualItInEveryBit) {
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    ASSERT_NO_FATAL_FAILURE(compare(StepWorld(seed, {.most_points = 20000})));
  }
  EXPECT_GT(points_, 300000U);
  expect_all_arithmetics();
}

TEST_F(RowStepAgainstLiteral, FullTablesEqualItInEveryBit) {
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    const StepWorldSize size{.most_points = 1000, .fewest_entries = 130, .most_entries = 256};
    ASSERT_NO_FATAL_FAILURE(compare(StepWorld(seed, size), {.smallest = 1000, .largest = 10000}));
  }
  EXPECT_GT(points_, 300000U);
  expect_all_arithmetics();
}

bool has_offset_of_n(const StepWorld& world, std::int32_t dn) {
  for (int i = 0; i < world.used_length(); ++i) {
    const AlgaddEntry& entry = world.algadd.entry(0, i);
    if (!entry.empty() && entry.offset.n() == dn) return true;
  }
  return false;
}

TEST_F(RowStepAgainstLiteral, TwoLargeSourceRowsEqualItInEveryBit) {
  int meetings = 0;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    const StepWorld world(seed, {.most_points = 8000, .two_rows = true});
    ASSERT_NO_FATAL_FAILURE(compare(world, {.smallest = 1000, .largest = 10000}));
    meetings += has_offset_of_n(world, 1) && has_offset_of_n(world, 2) ? 1 : 0;
  }
  EXPECT_GT(meetings, 30) << "worlds in which both rows reach a third one";
  EXPECT_GT(points_, 300000U);
  expect_all_arithmetics();
}

/// A store with a row of so many points, and entries that move them; the row before it must not be read.
class RowStepTest : public ::testing::Test {
 protected:
  void fill(std::int32_t count) {
    lmap.set(Lk::at(0, -1), 1);
    for (std::int32_t k1 = 0; k1 < count; ++k1) lmap.set(Lk::at(0, 0, k1), 1 + k1 % 9);
    algadd.set_entry(0, 0, entry_of(1, -1));
    algadd.set_entry(0, 1, entry_of(2, 1));
  }

  Lmap made(int threads) {
    WorkerPool pool(threads);
    return RowStep(pool).destinations(algadd, 0, algadd.used_length(0), lmap, 0, progress);
  }

  Lmap lmap;
  Algadd algadd;
  HookedProgress progress;
};

TEST_F(RowStepTest, TheDisplayBreathes) {
  fill(200000);
  made(1);
  EXPECT_GT(progress.breaths, 2) << "a part of the row is a matter of milliseconds";
  EXPECT_EQ(progress.checks, 0) << "nobody asks for Break";
}

TEST_F(RowStepTest, TheDisplayBreathesWhereKeysDoNotPack) {
  fill(5000);
  Lk far = Lk::filled(highest_int);
  far.coo[0] = 0;
  lmap.set(far, 1);
  made(1);
  EXPECT_EQ(progress.breaths, 4);
}

TEST_F(RowStepTest, WhatTheDisplayThrowsArrives) {
  fill(200000);
  progress.on_breath = [] { throw program_error("breath"); };
  for (const int threads : {1, 3}) EXPECT_THROW(made(threads), program_error);
}

TEST_F(RowStepTest, OverflowsAreThrownOnAllPaths) {
  fill(10);
  lmap.set(Lk::at(0, 0, 4), cotyp::floating(1e200, 0.0));
  algadd.set_entry(0, 3, entry_of(cotyp::floating(1e200, 0.0)));
  EXPECT_THROW(made(1), floating_overflow);
  Lk far = Lk::filled(highest_int);
  far.coo[0] = 0;
  lmap.set(far, 1);
  EXPECT_THROW(made(1), floating_overflow);
}

TEST_F(RowStepTest, MemoryThatRunsOutIsThrownAndTheStoreStays) {
  fill(6000);
  const LiteralStore before = literal_copy(lmap);
  const std::int64_t failures = fail_each_allocation(
      0, [&](int&) { made(1); }, [](int) {});
  EXPECT_GT(failures, 5);
  EXPECT_TRUE(identical(lmap, before));
}

TEST_F(RowStepTest, RowsWithoutPointsOrEntriesMakeNothing) {
  EXPECT_TRUE(made(2).empty());
  fill(10);
  algadd.reset();
  EXPECT_TRUE(made(2).empty());
}

}  // namespace
}  // namespace kov
