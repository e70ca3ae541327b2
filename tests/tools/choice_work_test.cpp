#include "tools/choice_work.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

/// Three low elements, three middle ones and three of the top, all of about the same size.
struct Work {
  std::vector<std::unique_ptr<HalvedSums>> kinds;

  explicit Work(const CombRules& rules = {}) {
    const std::vector<double> values = {1.1, 1.2, 1.3, 0.9, 0.8, 1.0, 1.4, 0.7, 0.6};
    kinds.push_back(std::make_unique<HalvedSums>(values, 4U, 3U, 3U, Signs::plus_and_minus, rules, 1U));
    kinds.push_back(std::make_unique<HalvedSums>(values, 4U, 3U, 3U, Signs::plus, rules, 1U));
  }
};

TEST(ChoiceWork, IsEverySumWithEveryNumberOfMiddleMembers) {
  const Work work;
  const ChoiceWork one(work.kinds, {.members = {6}, .number = 1});
  // Signed: two sums at once, with 0 ... 3 middle members; squares: one sum.
  ASSERT_EQ(one.size(), 8U);
  std::size_t comparisons = 0;
  for (std::size_t i = 0; i < one.size(); ++i) {
    EXPECT_EQ(one[i].kind, i / 4);
    EXPECT_EQ(one[i].partials.size(), i < 4 ? 2U : 1U);
    EXPECT_EQ(one[i].middle_members, i % 4);
    comparisons += one[i].comparisons;
  }
  EXPECT_EQ(comparisons, one.comparisons());
  EXPECT_EQ(one[0].comparisons, 2 * (1U + 8U)) << "8 signed sums of three low members";
}

TEST(ChoiceWork, TakesSumsFourAtOnce) {
  const Work work;
  // 8 sums of three top members; the fourth is a low or a middle one.
  const ChoiceWork three(work.kinds, {.members = {6, 7, 8}, .number = 7});
  ASSERT_EQ(three.size(), 2 * 2 + 2U);
  EXPECT_EQ(three[1].partials.size(), 4U);
  EXPECT_EQ(three[1].middle_members, 0U);
  EXPECT_EQ(three[2].middle_members, 1U);
  EXPECT_EQ(three[4].kind, 1U);
}

TEST(ChoiceWork, LeavesOutKindsThatAreComplete) {
  const Work work({.nearest = 1, .one_per_difference = true, .squares = true});
  work.kinds[0]->best.offer({0.0, {0, 1, 2, 3}, 1}, 0);
  const ChoiceWork squares(work.kinds, {.members = {6}, .number = 1});
  ASSERT_EQ(squares.size(), 4U);
  EXPECT_EQ(squares[0].kind, 1U);
}

}  // namespace
}  // namespace kov
