#include "algadd/algadd_run.h"

#include <gtest/gtest.h>

#include <chrono>

#include "run_fixture.h"
#include "support/cancelling_questions.h"
#include "support/points_text.h"

namespace kov {
namespace {

using std::chrono::milliseconds;

class AlgaddRun : public RunFixture {
 protected:
  AlgaddRun() {
    walking_table();
    lmap.set(Lk::at(0, 0), 1);
  }

  bool ask(const std::vector<std::string>& answers, const std::string& intro = "Intro\n", int table = 0) {
    scripted.set_answers(answers);
    const RunRequest request{.table = table, .mode = RunMode::keep, .intro = intro, .steps = -1};
    return perform_algadd(algadd, lmap, cph, keep, request, {scripted, scripted, progress});
  }
};

const char* const after_two_steps = "0 0: 1\n0 1 -1: 1\n0 1 1: 1\n0 2 -2: 1\n0 2: 2\n0 2 2: 1\n";

TEST_F(AlgaddRun, AdvancesRowByRow) {
  EXPECT_TRUE(run(2));
  EXPECT_EQ(points_text(lmap), after_two_steps);
  EXPECT_TRUE(transcript.empty());
}

TEST_F(AlgaddRun, GoesOnFromTheLastRow) {
  run(1);
  run(1);
  EXPECT_EQ(points_text(lmap), after_two_steps);
}

TEST_F(AlgaddRun, UsesTheTableOfTheRequest) {
  make_table({entry_of(7)}, 9);
  run(1, RunMode::keep, 9);
  EXPECT_EQ(points_text(lmap), "0 0: 1\n0 1: 7\n");
}

TEST_F(AlgaddRun, AnEmptyStoreReturnsWithoutAWord) {
  lmap.clear();
  algadd.last_run = {5, 6};
  EXPECT_FALSE(ask({"3"}));
  EXPECT_FALSE(run(3));
  EXPECT_EQ(scripted.answers_left(), 1u);
  EXPECT_TRUE(transcript.empty() && progress.log.empty());
  EXPECT_EQ(algadd.last_run.steps, 6);
}

TEST_F(AlgaddRun, AsksForTheStepCount) {
  set("Algadd_DefaultStepCount", 44);
  make_table({entry_of(1)}, 12);
  run(1);
  EXPECT_TRUE(ask({"2"}, "Intro\n", 12));
  EXPECT_EQ(transcript,
            (std::vector<std::string>{
                "dialog: Perform Algadd: Intro\n  \n  For i iterations of  Algadd12  from n=1 on\n  "
                "enter integer i [0<=i] -> 2"}));
  EXPECT_EQ(lmap.nlast(), 3);
}

TEST_F(AlgaddRun, TheDialogPresetsTheDefaultAndTellsOfTheBarrier) {
  set("Algadd_DefaultStepCount", 44);
  set("Obarr0_ldest1", 1);
  set("Obarr1_ldest2", 2);
  set("Obarr1_k1", 3);
  set("Obarr1_k1_of_add_ldest2", 4);
  set("Obarr1_multp_ldest2", 50);
  CancellingQuestions questions;
  const RunRequest request{.table = 0, .mode = RunMode::keep, .intro = "Intro\n", .steps = -1};
  EXPECT_FALSE(perform_algadd(algadd, lmap, cph, keep, request, {scripted, questions, progress}));
  EXPECT_EQ(questions.asked.caption, "Perform Algadd");
  EXPECT_EQ(questions.asked.preset, "44");
  EXPECT_EQ(questions.asked.prompt,
            "Intro\nThe origin, i.e. (0,0...,0), of lattice 0\nis defined as absorbing barrier and will\n"
            "be set to 0 after every iteration.\nThe absorbed quantity will be moved\n"
            "to (0,0...,0) of lattice 1 in which (3,0...,0)\nis absorbing and the there absorbed\n"
            "quantities will be added to (4,0,0...,0)\nof lattice 2 after multiplication by 1/2 .\n"
            "\nFor i iterations of  Algadd0  from n=0 on\nenter integer i [0<=i]");
}

TEST_F(AlgaddRun, CancelZeroAndNegativeCountsChangeNothing) {
  set("Algadd_del_p0_entries", 1);
  algadd.set_entry(0, 3, entry_of(5));
  algadd.last_run = {5, 6};
  EXPECT_FALSE(ask({}));
  EXPECT_FALSE(ask({"0"}));
  EXPECT_FALSE(ask({"-1"}));
  EXPECT_FALSE(run(0));
  EXPECT_EQ(points_text(lmap), "0 0: 1\n");
  EXPECT_EQ(algadd.used_length(0), 4) << "the zero-entry rule was not applied";
  EXPECT_EQ(algadd.last_run.seconds, 5);
  EXPECT_TRUE(progress.log.empty());
}

TEST_F(AlgaddRun, AppliesTheZeroEntryRuleToItsTable) {
  algadd.set_entry(0, 3, entry_of(5));
  algadd.set_entry(1, 3, entry_of(5));
  run(1);
  EXPECT_EQ(algadd.used_length(0), 4);
  set("Algadd_del_p0_entries", 1);
  run(1);
  EXPECT_EQ(algadd.used_length(0), 3);
  EXPECT_EQ(algadd.used_length(1), 4);
}

TEST_F(AlgaddRun, AnEmptyTableMakesEmptyRowsAndCountsItsSteps) {
  EXPECT_TRUE(run(3, RunMode::keep, 5));
  EXPECT_EQ(points_text(lmap), "0 0: 1\n");
  EXPECT_EQ(algadd.last_run.steps, 3);
}

TEST_F(AlgaddRun, ASourceLatticeThatIsNotThereMakesEmptyRows) {
  make_table({entry_of(1, 0, 4)}, 1);
  run(5, RunMode::keep, 1);
  EXPECT_EQ(points_text(lmap), "0 0: 1\n");
  EXPECT_EQ(algadd.last_run.steps, 5);
}

TEST_F(AlgaddRun, AppliesTheBarrierToTheNewRow) {
  set("Obarr0_ldest1", 1);
  make_table({entry_of(1)}, 2);
  run(1, RunMode::keep, 2);
  EXPECT_EQ(points_text(lmap), "0 0: 1\n1 1: 1\n");
}

TEST_F(AlgaddRun, ShowsTheBoxOverTheRowsThatAreRead) {
  lmap.clear();
  lmap.set(Lk::at(0, 7), 1);
  run(3);
  EXPECT_EQ(progress.log,
            (std::vector<std::string>{"box Progress 7..9 at 7", "box Progress 7..9 at 7",
                                      "box Progress 7..9 at 8", "box Progress 7..9 at 9", "hide"}));
}

TEST_F(AlgaddRun, ChecksBreakOnceAStepAfterTheStep) {
  progress.pressed = [this] { return progress.checks == 2; };
  EXPECT_TRUE(run(10));
  EXPECT_EQ(progress.checks, 2);
  EXPECT_EQ(points_text(lmap), after_two_steps);
  EXPECT_EQ(algadd.last_run.steps, 2);
  EXPECT_TRUE(transcript.empty()) << "Break is no error";
  EXPECT_EQ(progress.log.back(), "hide");
  run(1);
  EXPECT_EQ(lmap.nlast(), 3) << "a new run starts with Break unpressed";
}

TEST_F(AlgaddRun, BreathesInsideAStep) {
  for (int k = 0; k < 3000; ++k) lmap.set(Lk::at(0, 0, k), 1);
  run(1);
  EXPECT_GE(progress.breaths, 1);
}

TEST_F(AlgaddRun, KeepsDurationAndSteps) {
  RunClock::Time time{};
  int readings = 0;
  const RunClock clock{[&] { return time + (readings++ == 0 ? milliseconds(0) : milliseconds(3999)); }};
  run(4, RunMode::keep, 0, clock);
  EXPECT_EQ(algadd.last_run.seconds, 3);
  EXPECT_EQ(algadd.last_run.steps, 4);
}

TEST_F(AlgaddRun, TakesTheTimeOfTheRunOnly) {
  run(1);
  EXPECT_LT(algadd.last_run.seconds, 60) << "by a real clock";
}

}  // namespace
}  // namespace kov
