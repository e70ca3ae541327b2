#include "sums/sum_progress.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/recording_progress.h"

namespace kov {
namespace {

using Calls = std::vector<std::string>;

/// The points summed up until Break, or until all of them were.
std::int64_t walk_over(std::int64_t count, std::int64_t points_per_display, RecordingProgress& progress) {
  SumProgress walk(progress, count, points_per_display);
  std::int64_t point = 0;
  while (point < count) {
    ++point;
    if (!walk.advance()) break;
  }
  return point;
}

TEST(SumProgress, IsShownAfterEverySoManyPoints) {
  RecordingProgress progress;
  EXPECT_EQ(walk_over(5, 2, progress), 5);
  EXPECT_EQ(progress.calls,
            (Calls{"box  Progress 0..5 at 0", "headline lattice point 2 of 5 summed up",
                   "box  Progress 0..5 at 2", "break?", "headline lattice point 4 of 5 summed up",
                   "box  Progress 0..5 at 4", "break?", "hidden"}));
}

TEST(SumProgress, LessThanOnePointADisplayIsOne) {
  RecordingProgress progress;
  progress.break_at = 1;
  EXPECT_EQ(walk_over(5, 0, progress), 1);
}

TEST(SumProgress, BreakIsAskedForHoweverSeldomTheWalkIsShown) {
  RecordingProgress progress;
  EXPECT_EQ(walk_over(25'000, std::numeric_limits<std::int32_t>::max(), progress), 25'000);
  EXPECT_EQ(progress.calls, (Calls{"box  Progress 0..25000 at 0", "break?", "break?", "hidden"}));
}

TEST(SumProgress, BreakBetweenTwoDisplaysEndsTheWalk) {
  RecordingProgress progress;
  progress.break_at = 3;
  EXPECT_EQ(walk_over(50'000, 15'000, progress), 25'000);
  EXPECT_EQ(progress.calls,
            (Calls{"box  Progress 0..50000 at 0", "break?", "headline lattice point 15000 of 50000 summed up",
                   "box  Progress 0..50000 at 15000", "break?", "break?", "hidden"}));
}

TEST(SumProgress, AtTheUsualNumberBreakIsAskedForAtTheDisplaysAlone) {
  RecordingProgress progress;
  walk_over(20'000, SumProgress::most_between_checks, progress);
  EXPECT_EQ(
      progress.calls,
      (Calls{"box  Progress 0..20000 at 0", "headline lattice point 10000 of 20000 summed up",
             "box  Progress 0..20000 at 10000", "break?", "headline lattice point 20000 of 20000 summed up",
             "box  Progress 0..20000 at 20000", "break?", "hidden"}));
}

}  // namespace
}  // namespace kov
