#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "algadd/step_loop.h"
#include "numbers/errors.h"
#include "run_fixture.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"

namespace kov {
namespace {

class StepLoopErrors : public RunFixture {
 protected:
  StepLoopErrors() {
    walking_table();
    lmap.set(Lk::at(0, 0), 1);
    lift_limits();
    set("Algadd_mem1_DisplayAfterKB", 0);
  }

  template <class Error>
  void fail_at_second_headline(const Error& error) {
    progress.on_headline = [this, error] {
      if (progress.headlines().size() == 2) throw error;
    };
  }

  /// The first step is whole, row 2 is gone, and the run's record and box are in order.
  void expect_ended_in_second_step(const std::string& message) const {
    EXPECT_EQ(transcript, (std::vector<std::string>{"beep", "error: " + message}));
    expect_whole_first_step();
  }

  void expect_whole_first_step() const {
    EXPECT_EQ(points_text(lmap), "0 0: 1\n0 1 -1: 1\n0 1 1: 1\n");
    EXPECT_EQ(algadd.last_run.steps, 1);
    EXPECT_EQ(progress.log.back(), "hide");
    EXPECT_FALSE(progress.is_open());
  }
};

TEST_F(StepLoopErrors, TheProgramsOwnException) {
  fail_at_second_headline(program_error("the text"));
  EXPECT_TRUE(run(5));
  expect_ended_in_second_step("the text\n  \n  Last n=2 deleted, because not necessarily complete.");
}

TEST_F(StepLoopErrors, RationalArithmetic) {
  fail_at_second_headline(ratyp_error());
  run(5);
  expect_ended_in_second_step("ratyp error: de=0\n  \n  Last n=2 deleted, because not necessarily complete.");
}

TEST_F(StepLoopErrors, FloatingPointOverflow) {
  fail_at_second_headline(floating_overflow());
  run(5);
  expect_ended_in_second_step(
      "Break because of floating point overflow in Algadd\n  \n  \n  "
      "Last n=2 deleted, because not necessarily complete.");
}

TEST_F(StepLoopErrors, OtherMathError) {
  fail_at_second_headline(math_error("invalid floating point operation"));
  run(5);
  expect_ended_in_second_step(
      "Break because of MathError in Algadd:\n  invalid floating point operation\n  \n  "
      "Last n=2 deleted, because not necessarily complete.");
}

TEST_F(StepLoopErrors, AnyOtherError) {
  fail_at_second_headline(std::runtime_error("unknown"));
  run(5);
  expect_ended_in_second_step(
      "Break because of Algadd error\n  \n  Last n=2 deleted, because not necessarily complete.");
}

TEST_F(StepLoopErrors, AnErrorThatIsNoException) {
  fail_at_second_headline(42);
  run(5);
  expect_ended_in_second_step(
      "Break because of Algadd error\n  \n  Last n=2 deleted, because not necessarily complete.");
}

TEST_F(StepLoopErrors, WhileTheRowIsBuiltNothingOfItIsMerged) {
  copying_table();
  make_rows(0, 2000);
  progress.on_breath = [] { throw program_error("inside"); };
  run(1);
  EXPECT_EQ(lmap.count(), 2000u);
  EXPECT_EQ(lmap.nlast(), 0);
  EXPECT_EQ(algadd.last_run.steps, 0);
}

TEST_F(StepLoopErrors, OverflowInTheKernelEndsTheRun) {
  algadd.erase_table(0);
  make_table({entry_of(cotyp::floating(1e100, 0)), entry_of(1, 1)});
  run(10);
  EXPECT_EQ(lmap.nlast(), 3);
  EXPECT_EQ(algadd.last_run.steps, 3);
  EXPECT_EQ(transcript,
            (std::vector<std::string>{"beep",
                                      "error: Break because of floating point overflow in Algadd\n  \n  \n  "
                                      "Last n=4 deleted, because not necessarily complete."}));
}

TEST_F(StepLoopErrors, OverflowInTheBarrierEndsTheRun) {
  algadd.erase_table(0);
  make_table({entry_of(1, 0, 1, 1)});
  lmap.clear();
  lmap.set(Lk::at(1, 0), cotyp::floating(1e308, 0));
  set("Obarr0_ldest1", 1);
  set("Obarr1_multp_ldest2", 1000);
  run(10);
  EXPECT_EQ(points_text(lmap), "1 0: 1E308~ 0~i\n");
  EXPECT_EQ(transcript.back(),
            "error: Break because of floating point overflow in Algadd\n  \n  \n  "
            "Last n=1 deleted, because not necessarily complete.");
}

TEST_F(StepLoopErrors, WhatTheModeDeletedBeforeTheErrorStaysDeleted) {
  copying_table();
  make_rows(0, 3);
  set("MaxAllowedMemOccupationInKB", 0);
  progress.pressed = []() -> bool { throw std::runtime_error("behind the deletion"); };
  run(5, RunMode::all_but_last);
  EXPECT_TRUE(lmap.empty());
}

TEST_F(StepLoopErrors, TheRowBehindTheStepIsDeletedWhateverTheOffsets) {
  algadd.erase_table(0);
  make_table({entry_of(1, 0, 0, 0, 2)});
  fail_at_second_headline(program_error("x"));
  run(5);
  EXPECT_EQ(points_text(lmap), "0 0: 1\n0 4: 1\n") << "row 2 of the second step, which merged row 4";
}

// Shows nothing and throws instead.
ScriptedUser without_memory_for_messages() {
  return ScriptedUser([](const std::string&) { throw std::bad_alloc(); });
}

TEST_F(StepLoopErrors, AFailureThatCannotBeShownIsStillARun) {
  fail_at_second_headline(program_error("not shown"));
  ScriptedUser mute = without_memory_for_messages();
  const RunRequest request{.table = 0, .mode = RunMode::keep, .intro = {}, .steps = 5};
  EXPECT_THROW(perform_algadd(algadd, lmap, cph, keep, request, {mute, mute, progress}), std::bad_alloc);
  expect_whole_first_step();
}

TEST_F(StepLoopErrors, AStopThatCannotBeShownKeepsTheOnlyRow) {
  set("MaxAllowedMemOccupationInKB", 0);
  ScriptedUser mute = without_memory_for_messages();
  const RunRequest request{.table = 0, .mode = RunMode::all_but_last, .intro = {}, .steps = 5};
  EXPECT_THROW(perform_algadd(algadd, lmap, cph, keep, request, {mute, mute, progress}), std::bad_alloc);
  EXPECT_EQ(points_text(lmap), "0 1 -1: 1\n0 1 1: 1\n");
  EXPECT_EQ(algadd.last_run.steps, 1);
  EXPECT_FALSE(progress.is_open());
}

TEST_F(StepLoopErrors, ABoxThatCannotOpenIsARunOfNoSteps) {
  algadd.last_run = {5, 6};
  progress.on_box = [] { throw std::bad_alloc(); };
  EXPECT_THROW(run(5), std::bad_alloc);
  EXPECT_EQ(points_text(lmap), "0 0: 1\n");
  EXPECT_EQ(algadd.last_run.steps, 0);
}

// What a run of two steps may leave behind when memory runs out in the step of that number (2: behind it):
// the rows before that step, or what the mode has already thinned them out to.
struct WholeRows {
  RunMode mode;
  std::string before[3];
  std::string thinned[3];
};

class StepLoopMemory : public StepLoopErrors, public ::testing::WithParamInterface<WholeRows> {};

TEST_P(StepLoopMemory, ThatRunsOutLeavesWholeRows) {
  const WholeRows& rows = GetParam();
  const Lmap before = lmap;
  lift_limits();
  set("Algadd_TM_DelSmallestAfterKB", 0);
  set("Algadd_TM_BeepOnDelSmallest", 1);
  set("DelSmallPercent_Default", 50);
  int ended_in[3] = {};
  for (std::int64_t k = 1;; ++k) {
    lmap = before;
    const RunRequest request{.table = 0, .mode = rows.mode, .intro = {}, .steps = 2};
    StepLoop loop(algadd, lmap, cph, keep, request, 2, {}, {scripted, scripted, progress});
    const FailingAllocation failing(k);
    bool escaped = false;
    try {
      loop.run();
    } catch (const std::bad_alloc&) {
      escaped = true;
    }
    if (!failing.happened()) break;
    const auto steps = static_cast<std::size_t>(loop.steps_performed());
    ASSERT_LE(steps, 2u);
    const std::string left = points_text(lmap);
    EXPECT_TRUE(left == rows.before[steps] || left == rows.thinned[steps]) << "step " << steps << "\n"
                                                                           << left;
    EXPECT_FALSE(progress.is_open());
    ++ended_in[steps];
    if (loop.failure() && !escaped) {
      EXPECT_EQ(loop.failure()->substr(0, 29), "Break because of Algadd error");
    }
  }
  EXPECT_GT(ended_in[0], 0);
  EXPECT_GT(ended_in[1], 0);
}

const std::string row0 = "0 0: 1\n";
const std::string row1 = "0 1 -1: 1\n0 1 1: 1\n";
const std::string row2 = "0 2 -2: 1\n0 2: 2\n0 2 2: 1\n";
const std::string largest1 = "0 1 1: 1\n";
const std::string largest2 = "0 2 2: 1\n";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Modes, StepLoopMemory, ::testing::Values(
    WholeRows{RunMode::keep,           {row0, row0 + row1,     row0 + row1 + row2}, {row0, row0 + row1, row0 + row1 + row2}},
    WholeRows{RunMode::all_but_last,   {row0, row1,            row2},               {"",   "",          row2}},
    WholeRows{RunMode::outside_ranges, {row0, row0 + row1,     row0 + row2},        {row0, row0,        row0 + row2}},
    WholeRows{RunMode::tracking,       {row0, row0 + largest1, row0 + largest2},    {row0, row0,        row0 + largest2}}),
    [](const auto& rows) { return "Mode" + std::to_string(static_cast<int>(rows.param.mode)); });
// clang-format on

}  // namespace
}  // namespace kov
