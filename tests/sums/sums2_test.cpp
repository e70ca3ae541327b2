#include "sums/sums2.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>

#include "numbers/errors.h"
#include "sums/sums_desk.h"
#include "support/recording_progress.h"

namespace kov {
namespace {

using Steps = std::vector<std::int32_t>;

class Sums2Test : public ::testing::Test, protected SumsDesk {
 protected:
  void create() { sums2.create(lmap, cph, {person, person, progress}); }
  const CountSums2_to_l::Block& block(std::int32_t l, std::size_t index) const {
    return sums2.sums().at(l).block.at(index);
  }
  std::vector<std::int64_t> counts(std::int32_t l) const {
    std::vector<std::int64_t> result;
    for (const auto& b : sums2.sums().at(l).block) result.push_back(b.count);
    return result;
  }
  void choose_steps(std::int32_t first, std::int32_t second, bool both_even_or_odd = false) {
    cph.setkmi_1("Sums2_n_first", first);
    cph.setkmi_1("Sums2_n_second", second);
    cph.setkmi_1("Sums2_both_eo", both_even_or_odd ? 1 : 0);
  }

  RecordingProgress progress;
  Sums2 sums2;
};

using Counts = std::vector<std::int64_t>;

struct StepsCase {
  std::int32_t first;
  std::int32_t second;
  bool both_even_or_odd;
  std::int32_t nlast;
  Steps expected;
};

TEST_F(Sums2Test, TheStepsOfTheBlocks) {
  // clang-format off
  const StepsCase cases[] = {
      {0,  1, false, 7,           {0, 0,  1, 6, 7}},
      {0,  1, true,  7,           {0, 0,  1, 5, 6}},
      {0,  1, true,  8,           {0, 0,  1, 7, 8}},
      {1,  5, true,  8,           {0, 1,  5, 6, 7}},
      {1,  5, true,  7,           {0, 1,  5, 6, 7}},
      {-3, 9, true,  8,           {0, -3, 9, 6, 7}},
      {-3, 9, true,  -7,          {0, -3, 9, -8, -7}},
      {-2, 9, true,  -7,          {0, -2, 9, -9, -8}},
      {highest_int, lowest_int, true,  2, {0, highest_int, lowest_int, 0, 1}},
      {highest_int, 0, true,  highest_int, {0, highest_int, 0, highest_int - 1, highest_int}},
      {0, 0, false, lowest_int,   {0, 0,  0, highest_int, lowest_int}},
      {1, 0, true,  lowest_int,   {0, 1,  0, highest_int - 1, highest_int}},
  };
  // clang-format on
  for (const StepsCase& c : cases) {
    choose_steps(c.first, c.second, c.both_even_or_odd);
    EXPECT_EQ(Slsums2_Par::read(cph, c.nlast).n, c.expected) << c.first << ' ' << c.nlast;
  }
}

TEST_F(Sums2Test, SumsUpEveryLatticeOverAllAndOverTheChosenSteps) {
  lmap.set(Lk::at(5, 0, 1), cotyp(1, 2, 0, 1));
  lmap.set(Lk::at(5, 0, 2), cotyp(0, 1, 1, 3));
  lmap.set(Lk::at(5, 3, 1), cotyp(4));
  lmap.set(Lk::at(-2, 1, 1), cotyp(-3));
  lmap.set(Lk::at(-2, 2, 1), cotyp(2));
  create();
  ASSERT_TRUE(sums2.created());
  EXPECT_EQ(sums2.label(), "");
  EXPECT_EQ(sums2.par().n, (Steps{0, 0, 1, 2, 3}));
  ASSERT_EQ(sums2.sums().size(), 2U);
  EXPECT_EQ(sums2.sums().begin()->first, -2);
  EXPECT_EQ(counts(5), (Counts{3, 2, 0, 0, 1}));
  EXPECT_EQ(counts(-2), (Counts{2, 0, 1, 1, 0}));

  const std::array<cotyp, 4> all_of_5 = {cotyp(9, 2, 1, 3), cotyp(3, 2, 1, 9), cotyp(589, 36, 0, 1),
                                         cotyp(589, 108, 0, 1)};
  EXPECT_EQ(block(5, 0).sum, all_of_5);
  const std::array<cotyp, 4> first_of_5 = {cotyp(1, 2, 1, 3), cotyp(1, 4, 1, 6), cotyp(13, 36, 0, 1),
                                           cotyp(13, 72, 0, 1)};
  EXPECT_EQ(block(5, 1).sum, first_of_5);
  const std::array<cotyp, 4> second_of_minus_2 = {cotyp(-3), cotyp(-3), cotyp(9), cotyp(9)};
  EXPECT_EQ(block(-2, 2).sum, second_of_minus_2);
  EXPECT_TRUE(reports.empty());
}

TEST_F(Sums2Test, WithoutPointsABlockStaysZero) {
  lmap.set(Lk::at(0, 7), 5);
  create();
  EXPECT_EQ(counts(0), (Counts{1, 0, 0, 0, 1}));
  EXPECT_EQ(block(0, 1).sum, (std::array<cotyp, 4>{}));
}

TEST_F(Sums2Test, APointCountsInEveryBlockOfItsStep) {
  lmap.set(Lk::at(0, 7), 5);
  choose_steps(7, 6);
  create();
  EXPECT_EQ(counts(0), (Counts{1, 1, 0, 0, 1}));
  EXPECT_EQ(block(0, 1).sum, block(0, 4).sum);
  choose_steps(7, 7);
  create();
  EXPECT_EQ(counts(0), (Counts{1, 1, 1, 0, 1}));
}

TEST_F(Sums2Test, TheLastStepIsThatOfTheLastPointOfAllLattices) {
  lmap.set(Lk::at(0, 2), 1);
  lmap.set(Lk::at(1, 4), 1);
  create();
  EXPECT_EQ(sums2.par().n, (Steps{0, 0, 1, 3, 4}));
  EXPECT_EQ(counts(0), (Counts{1, 0, 0, 0, 0}));
}

TEST_F(Sums2Test, IsRebuiltFromEmpty) {
  lmap.set(Lk::at(0, 0), 1);
  create();
  lmap.clear();
  lmap.set(Lk::at(1, 0), 1);
  create();
  ASSERT_EQ(sums2.sums().size(), 1U);
  EXPECT_EQ(counts(1), (Counts{1, 1, 0, 0, 1}));
}

TEST_F(Sums2Test, AnEmptyStoreShowsTheEmptyLabel) {
  lmap.set(Lk::at(0, 0), 1);
  create();
  lmap.clear();
  progress.calls.clear();
  create();
  EXPECT_FALSE(sums2.created());
  EXPECT_TRUE(sums2.sums().empty());
  EXPECT_EQ(sums2.label(), "");
  EXPECT_TRUE(progress.calls.empty());
  EXPECT_TRUE(reports.empty());
}

TEST_F(Sums2Test, ShowsHowFarItIs) {
  fill_line(5);
  cph.setkmi_1("Sums_EntryCountPerDisplay", 2);
  create();
  const std::vector<std::string> expected = {"box  Progress 0..5 at 0",
                                             "headline lattice point 2 of 5 summed up",
                                             "box  Progress 0..5 at 2",
                                             "break?",
                                             "headline lattice point 4 of 5 summed up",
                                             "box  Progress 0..5 at 4",
                                             "break?",
                                             "hidden"};
  EXPECT_EQ(progress.calls, expected);
}

TEST_F(Sums2Test, BreakLeavesTheLabel) {
  fill_line(5);
  create();
  cph.setkmi_1("Sums_EntryCountPerDisplay", 2);
  progress.calls.clear();
  progress.break_at = 1;
  create();
  EXPECT_FALSE(sums2.created());
  EXPECT_TRUE(sums2.sums().empty());
  EXPECT_EQ(sums2.label(), " Creating Sums2 was stopped by Break ");
  EXPECT_EQ(progress.calls.back(), "hidden");
  EXPECT_TRUE(reports.empty());
  create();
  EXPECT_TRUE(sums2.created());
  EXPECT_EQ(sums2.label(), "");
}

TEST_F(Sums2Test, ANumericErrorIsReportedAndLeavesTheLabel) {
  fill_line(1);
  create();
  fill_with_overflow();
  create();
  EXPECT_FALSE(sums2.created());
  EXPECT_TRUE(sums2.sums().empty());
  EXPECT_EQ(sums2.label(), " MathError during creating Sums2: \nfloating point overflow");
  EXPECT_EQ(reports,
            (Reports{"beep", "error:  MathError during creating Sums2: \n  floating point overflow"}));
  EXPECT_EQ(progress.calls.back(), "hidden");
}

TEST_F(Sums2Test, FailuresByKind) {
  struct Case {
    std::function<void()> failure;
    const char* label;
  };
  // clang-format off
  const Case cases[] = {
      {[] { throw floating_overflow("too large"); },   " MathError during creating Sums2: \ntoo large"},
      {[] { throw math_error("not a number"); },       " MathError during creating Sums2: \nnot a number"},
      {[] { throw ratyp_error(); }, " MathError during creating Sums2: \nratyp error: de=0"},
      {[] { throw program_error("no sum"); },          "Error when creating Sums2"},
      {[] { throw std::bad_alloc(); },                 "Error when creating Sums2"},
  };
  // clang-format on
  fill_line(1);
  cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  for (const Case& c : cases) {
    progress.on_headline = c.failure;
    create();
    EXPECT_EQ(sums2.label(), c.label);
    EXPECT_FALSE(sums2.created());
    EXPECT_FALSE(progress.is_open());
    EXPECT_EQ(take_reports().size(), 2U);
  }
}

TEST_F(Sums2Test, ReportsANumberOfSelectorsThatIsNotTheirs) {
  check_selector_count(5, person);
  EXPECT_TRUE(reports.empty());
  check_selector_count(4, person);
  EXPECT_EQ(reports, (Reports{"beep", "message: i_n=4 != 5=Slsums2_n_count"}));
}

}  // namespace
}  // namespace kov
