#include "algadd/step_loop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "lattice/row_edits.h"
#include "run_fixture.h"
#include "support/points_text.h"
#include "text/integers.h"

namespace kov {
namespace {

class StepLoopTest : public RunFixture {
 protected:
  StepLoopTest() {
    walking_table();
    lmap.set(Lk::at(0, 0), 1);
    lift_limits();
  }

  /// Keeps what lies at k1 = from ... to.
  void keep_k1(std::int32_t from, std::int32_t to) {
    KeyBox box{Lk::filled(lowest_int), Lk::filled(highest_int)};
    box.min.coo[1] = from;
    box.max.coo[1] = to;
    keep.push_back(box);
  }
};

TEST_F(StepLoopTest, ModeKeepDeletesNothing) {
  run(2);
  EXPECT_EQ(lmap.count(), 6u);
}

TEST_F(StepLoopTest, ModeAllButLastLeavesTheNewRow) {
  run(3, RunMode::all_but_last);
  EXPECT_EQ(points_text(lmap), "0 3 -3: 1\n0 3 -1: 3\n0 3 1: 3\n0 3 3: 1\n");
}

TEST_F(StepLoopTest, ModeAllButLastDeletesNoNegativeRows) {
  copying_table();
  lmap.clear();
  lmap.set(Lk::at(0, -3), 5);
  run(5, RunMode::all_but_last);
  EXPECT_EQ(points_text(lmap), "0 -3: 5\n0 -2: 5\n0 -1: 5\n0 2: 5\n");
  EXPECT_TRUE(transcript.empty());
}

TEST_F(StepLoopTest, ModeOutsideRangesThinsOutEarlierRowsFromRowOneOn) {
  copying_table();
  make_rows(1, 4);
  keep_k1(1, 1);
  keep_k1(3, 3);
  run(2, RunMode::outside_ranges);
  EXPECT_EQ(points_text(lmap),
            "0 0: 1\n0 0 1: 2\n0 0 2: 3\n0 0 3: 4\n0 1 1: 2\n0 1 3: 4\n0 2 1: 2\n0 2 3: 4\n"
            "0 3: 1\n0 3 1: 2\n0 3 2: 3\n0 3 3: 4\n");
}

TEST_F(StepLoopTest, ModesWithRangesReachRowZeroByTheParameter) {
  copying_table();
  make_rows(0, 3);
  keep_k1(1, 1);
  set("Algadd_TM_DelAlsoTillRow0", 1);
  run(1, RunMode::outside_ranges);
  EXPECT_EQ(points_text(lmap), "0 0 1: 2\n0 1: 1\n0 1 1: 2\n0 1 2: 3\n");
}

TEST_F(StepLoopTest, AnEmptyRangeOfDeletableRowsIsSilent) {
  copying_table();
  make_rows(0, 2);
  run(1, RunMode::outside_ranges);
  EXPECT_EQ(lmap.count(), 4u);
  EXPECT_TRUE(transcript.empty());
}

TEST_F(StepLoopTest, MergingNeverOverwrites) {
  algadd.erase_table(0);
  make_table({entry_of(5, 0, 0, 0, 0), entry_of(7, 1, 0, 0, 0), entry_of(9, 0, 0, 0, -1)});
  make_rows(1, 1);
  run(1);
  EXPECT_EQ(points_text(lmap), "0 0: 1\n0 1: 1\n0 1 1: 7\n");
}

TEST_F(StepLoopTest, AStepReadsFromItsRowToTheEndOfTheStore) {
  algadd.erase_table(0);
  make_table({entry_of(1, 0, 0, 0, 1), entry_of(10, 0, 0, 0, 2)});
  run(2);
  EXPECT_EQ(points_text(lmap), "0 0: 1\n0 1: 1\n0 2: 10\n0 3: 20\n0 4: 100\n")
      << "the second step reads rows 1 and 2; row 2 was there and keeps its quantity";
}

TEST_F(StepLoopTest, StepsBehindTheLastPossibleRowFindNoPoints) {
  copying_table();
  lmap.clear();
  lmap.set(Lk::at(0, highest_int - 1), 3);
  EXPECT_TRUE(run(4));
  EXPECT_EQ(points_text(lmap), "0 -2147483648: 3\n0 2147483646: 3\n0 2147483647: 3\n");
  EXPECT_EQ(algadd.last_run.steps, 4);
}

TEST_F(StepLoopTest, TheHeadlineComesOnceTheDisplayThresholdIsExceeded) {
  copying_table();
  make_rows(0, 1);
  set("Algadd_mem1_DisplayAfterKB", 1);
  run(14);  // one point more a step; 1000 bytes are exceeded by 6 points, 2056 by 12
  EXPECT_EQ(progress.headlines(), (std::vector<std::string>{
                                      "Algadd : 5=n, all lattices have 6 points, 1.056 KB used",
                                      "Algadd : 11=n, all lattices have 12 points, 2.112 KB used",
                                  }));
}

TEST_F(StepLoopTest, ReachingALimitExactlyDoesNothing) {
  copying_table();
  make_rows(0, 125);  // 125 * 176 = 22000 bytes
  algadd.erase_table(0);
  set("Algadd_mem1_DisplayAfterKB", 22);
  set("Algadd_TM_DelSmallestAfterKB", 22);
  set("MaxAllowedMemOccupationInKB", 22);
  run(2, RunMode::tracking);
  EXPECT_TRUE(progress.headlines().empty() && transcript.empty());
  EXPECT_EQ(algadd.last_run.steps, 2);
  lmap.set(Lk::at(0, 0, 125), 1);
  run(1);
  EXPECT_EQ(progress.headlines().size(), 1u);
  EXPECT_EQ(transcript.size(), 1u);
}

TEST_F(StepLoopTest, EveryModeHasItsLabel) {
  const std::pair<RunMode, const char*> rows[] = {
      {RunMode::keep, "Algadd : 1=n, all lattices have 3 points, 0.528 KB used"},
      {RunMode::all_but_last, "d. Algadd : 1=n, all lattices have 3 points, 0.528 KB used"},
      {RunMode::outside_ranges, "o.d. Algadd : 1=n, all lattices have 3 points, 0.528 KB used"},
      {RunMode::tracking, "D:0  Algadd: : 1=n, all lattices have 3 points, 0.528 KB used"},
  };
  set("Algadd_mem1_DisplayAfterKB", 0);
  for (const auto& [mode, headline] : rows) {
    lmap.clear();
    lmap.set(Lk::at(0, 0), 1);
    progress.log.clear();
    run(1, mode);
    EXPECT_EQ(progress.headlines(), (std::vector<std::string>{headline}));
  }
}

TEST_F(StepLoopTest, TheMemoryLimitStopsAfterTheStepAndKeepsItsRow) {
  set("MaxAllowedMemOccupationInKB", 0);
  run(5);
  EXPECT_EQ(transcript, (std::vector<std::string>{"message: nlast = 1 (0.528 KB = 3e)\n  "
                                                  "Stop, because more memory used \n  than specified in "
                                                  "configuration by MaxAllowedMemOccupationInKB"}));
  EXPECT_EQ(lmap.count(), 3u);
  EXPECT_EQ(algadd.last_run.steps, 1);
  EXPECT_FALSE(scripted.take_failure());
  EXPECT_EQ(progress.headlines(),
            (std::vector<std::string>{"Algadd : 1=n, all lattices have 3 points, 0.528 KB used"}));
}

TEST_F(StepLoopTest, DeletingModesMeasureAgainBeforeTheLimit) {
  copying_table();
  make_rows(0, 10);
  set("MaxAllowedMemOccupationInKB", 2);  // 11 points are below, 20 above
  run(3, RunMode::all_but_last);
  EXPECT_TRUE(transcript.empty());
  EXPECT_EQ(algadd.last_run.steps, 3);
  run(3);
  EXPECT_EQ(algadd.last_run.steps, 1);
  EXPECT_EQ(transcript.size(), 1u);
}

TEST_F(StepLoopTest, AStoreThatIsThinnedOutToNothingSaysSo) {
  set("MaxAllowedMemOccupationInKB", -1);
  algadd.erase_table(0);
  run(1, RunMode::all_but_last);
  EXPECT_EQ(transcript, (std::vector<std::string>{"message:  Lattices are empty. \n  "
                                                  "Stop, because more memory used \n  than specified in "
                                                  "configuration by MaxAllowedMemOccupationInKB"}));
}

TEST_F(StepLoopTest, TrackingDeletesTheSmallestOfTheNewRow) {
  copying_table();
  make_rows(0, 10);
  keep_k1(0, 0);
  set("Algadd_TM_DelSmallestAfterKB", 3);  // 17 points are below, 18 above
  set("DelSmallPercent_Default", 50);
  run(2, RunMode::tracking);
  DeleteRows(lmap, 0, 0);
  EXPECT_EQ(points_text(lmap), "0 2 7: 8\n0 2 8: 9\n0 2 9: 10\n")
      << "5 of 10 points went in row 1, all of it that is outside the range a step later, 2 of 5 in row 2";
  EXPECT_EQ(progress.headlines(), (std::vector<std::string>{
                                      "D:0  Algadd: : 1=n, all lattices have 20 points, 3.520 KB used",
                                      "D:1 Algadd: : 2=n, all lattices have 20 points, 3.520 KB used",
                                  }));
}

TEST_F(StepLoopTest, TrackingMeasuresBeforeTheDeletionOutsideTheRanges) {
  copying_table();
  make_rows(1, 10);
  set("Algadd_TM_DelSmallestAfterKB", 4);  // 30 points before that deletion, 20 behind it
  set("DelSmallPercent_Default", 100);
  run(1, RunMode::tracking);
  EXPECT_EQ(lmap.count(), 10u) << "row 0 alone";
}

TEST_F(StepLoopTest, TrackingRunsOneCycleAStepAndBeepsOnRequest) {
  copying_table();
  make_rows(0, 10);
  set("Algadd_TM_DelSmallestAfterKB", 0);
  set("DelSmallPercent_Default", 10);
  run(2, RunMode::tracking);
  EXPECT_EQ(lmap.count(), 10u + 9u) << "9 of 10, then 9 of 9 points remain; row 1 has no range";
  EXPECT_TRUE(transcript.empty());
  set("Algadd_TM_BeepOnDelSmallest", 1);
  run(2, RunMode::tracking);
  EXPECT_EQ(transcript, (std::vector<std::string>{"beep", "beep"}));
}

TEST_F(StepLoopTest, TrackingBeepsBeforeTheDeletion) {
  copying_table();
  make_rows(0, 10);
  set("Algadd_TM_DelSmallestAfterKB", 0);
  set("Algadd_TM_BeepOnDelSmallest", 1);
  ScriptedUser person([this](const std::string& report) { progress.log.push_back(report); });
  const RunRequest request{.table = 0, .mode = RunMode::tracking, .intro = {}, .steps = 1};
  perform_algadd(algadd, lmap, cph, keep, request, {person, person, progress});
  const auto beep = std::find(progress.log.begin(), progress.log.end(), "beep");
  ASSERT_NE(beep, progress.log.end());
  EXPECT_EQ(*std::next(beep), "grey");
  EXPECT_EQ(*std::next(beep, 2), "box Progress 0..10 at 0") << "that of the deletion";
  EXPECT_EQ(std::find(progress.log.begin(), beep, "box Progress 0..10 at 0"), beep);
}

TEST_F(StepLoopTest, TrackingShowsTheBoxOfTheRunAgain) {
  copying_table();
  make_rows(0, 10);
  set("Algadd_TM_DelSmallestAfterKB", 0);
  run(1, RunMode::tracking);
  EXPECT_EQ(progress.log, (std::vector<std::string>{
                              "box Progress 0..0 at 0",
                              "headline: D:0  Algadd: : 1=n, all lattices have 20 points, 3.520 KB used",
                              "grey",
                              "box Progress 0..10 at 0",
                              "own colour",
                              "box Progress 0..0 at 0",
                              "box Progress 0..0 at 0",
                              "hide",
                          }));
}

TEST_F(StepLoopTest, ADeletionCanKeepTheRunBelowTheLimit) {
  copying_table();
  make_rows(0, 10);
  set("Algadd_TM_DelSmallestAfterKB", 2);
  set("MaxAllowedMemOccupationInKB", 3);  // 17 points are below, 18 above
  set("DelSmallPercent_Default", 50);
  run(1, RunMode::tracking);
  EXPECT_EQ(lmap.count(), 15u);
  EXPECT_TRUE(transcript.empty());
}

TEST_F(StepLoopTest, TheBytesBehindTheDeletionSetTheNextDisplay) {
  copying_table();
  make_rows(0, 10);
  set("Algadd_mem1_DisplayAfterKB", 3);
  run(4, RunMode::all_but_last);  // 20 points at each headline, 10 left each time
  EXPECT_EQ(progress.headlines().size(), 4u);
}

}  // namespace
}  // namespace kov
