#include "tools/search_plan.h"

#include <gtest/gtest.h>

#include "tools/comb_count.h"

namespace kov {
namespace {

TEST(SearchPlan, LooksUpHalfOfTheMembers) {
  EXPECT_EQ(plan_search(70000, 1)->low, 0U);
  EXPECT_EQ(plan_search(70000, 2)->low, 1U);
  EXPECT_EQ(plan_search(40, 6)->low, 3U);
  EXPECT_EQ(plan_search(40, 40)->low, 19U) << "a half sum is dearer than a search among them";
}

TEST(SearchPlan, CountsTheChoicesAndSignsOfTheOthers) {
  const auto plan = plan_search(40, 6);
  EXPECT_EQ(plan->steps, pm_combinations(37, 3));
}

TEST(SearchPlan, TakesFewerWhereMemoryIsShort) {
  const auto plan = plan_search(1000, 6);
  ASSERT_TRUE(plan.has_value());
  EXPECT_EQ(plan->low, 2U) << "8 * C(997, 3) half sums would be too many";
}

TEST(SearchPlan, EveryPlanFits) {
  for (int elements = 1; elements <= 60; ++elements) {
    for (int order = 1; order <= elements; ++order) {
      const auto plan = plan_search(elements, order);
      if (!plan) continue;
      const int others = order - static_cast<int>(plan->low);
      EXPECT_GE(others, 1);
      EXPECT_LE(others, 21);
      EXPECT_LE(pm_combinations(elements - others, static_cast<int>(plan->low)), 1 << 21);
      EXPECT_LE(plan->steps, 1e15);
    }
  }
}

TEST(SearchPlan, ThereIsNoneForWhatCannotBeFinished) {
  EXPECT_FALSE(plan_search(100, 100).has_value()) << "2^100 sign patterns";
  EXPECT_FALSE(plan_search(70000, 5).has_value());
  EXPECT_TRUE(plan_search(42, 42).has_value()) << "2^21 half sums for 2^21 others";
  EXPECT_FALSE(plan_search(43, 43).has_value());
}

}  // namespace
}  // namespace kov
