#include "tools/search_plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "tools/comb_count.h"

namespace kov {
namespace {

TEST(SearchPlan, LooksUpHalfOfTheMembers) {
  EXPECT_EQ(plan_by_position(70000, 1)->low, 0U);
  EXPECT_EQ(plan_by_position(70000, 2)->low, 1U);
  EXPECT_EQ(plan_by_position(40, 6)->low, 3U);
  EXPECT_EQ(plan_by_position(40, 40)->low, 19U) << "a half sum is dearer than a search among them";
}

TEST(SearchPlan, TakesFewerWhereMemoryIsShort) {
  const auto plan = plan_by_position(1000, 6);
  ASSERT_TRUE(plan.has_value());
  EXPECT_EQ(plan->low, 2U) << "8 * C(997, 3) half sums would be too many";
}

TEST(SearchPlan, FewOfManyAreSplitByPositionHalfOfThemByElement) {
  for (const auto& [elements, order] :
       {std::pair{70000, 3}, std::pair{40, 1}, std::pair{40, 6}, std::pair{1000, 4}, std::pair{15, 3}}) {
    EXPECT_FALSE(plan_search(elements, order)->by_element()) << elements << " " << order;
  }
  for (const auto& [elements, order] : {std::pair{28, 14}, std::pair{36, 20}, std::pair{40, 20}}) {
    EXPECT_TRUE(plan_search(elements, order)->by_element()) << elements << " " << order;
  }
}

TEST(SearchPlan, HalvesTakeNotFarMoreThanTheRootOfTheCombinations) {
  for (int order = 14; order <= 22; ++order) {
    const double root = std::sqrt(pm_combinations(28, order));
    EXPECT_LE(plan_by_element(28, order)->comparisons, 100 * root) << order;
  }
}

TEST(SearchPlan, MiddleMembersLeaveNoMoreThanThereAreLowElements) {
  EXPECT_EQ(middle_members(5, 3, 4).fewest, 2U);
  EXPECT_EQ(middle_members(5, 3, 4).most, 4U);
  EXPECT_EQ(middle_members(2, 3, 4).fewest, 0U);
  EXPECT_EQ(middle_members(2, 3, 4).most, 2U);
}

TEST(SearchPlan, EveryPlanByPositionFits) {
  for (int elements = 1; elements <= 60; ++elements) {
    for (int order = 1; order <= elements; ++order) {
      const auto plan = plan_by_position(elements, order);
      if (!plan) continue;
      const int others = order - static_cast<int>(plan->low);
      EXPECT_FALSE(plan->by_element());
      EXPECT_GE(others, 1);
      EXPECT_LE(others, 21);
      EXPECT_LE(pm_combinations(elements - others, static_cast<int>(plan->low)), 1 << 21);
    }
  }
}

TEST(SearchPlan, EveryPlanByElementFits) {
  for (int elements = 2; elements <= 70; ++elements) {
    for (int order = 1; order <= elements; ++order) {
      const auto plan = plan_by_element(elements, order);
      if (!plan) continue;
      const int top = elements - static_cast<int>(plan->low) - static_cast<int>(plan->middle);
      EXPECT_TRUE(plan->by_element());
      EXPECT_GE(plan->low, 1U);
      EXPECT_LE(plan->low, 14U);
      EXPECT_LE(plan->middle, 14U);
      EXPECT_GE(top, 0);
      EXPECT_LE(top, 30);
      EXPECT_LE(std::min(top, order), 17);
    }
  }
}

TEST(SearchPlan, ThereIsNoneBeyondTheMemoryOfASearch) {
  EXPECT_FALSE(plan_by_position(43, 43).has_value()) << "2^22 sign patterns for 2^21 half sums";
  EXPECT_TRUE(plan_search(43, 43).has_value());
  EXPECT_TRUE(plan_search(45, 45).has_value()) << "2^17 sign patterns above twice 14 elements";
  EXPECT_FALSE(plan_search(46, 46).has_value());
  EXPECT_FALSE(plan_search(100, 100).has_value());
  EXPECT_TRUE(plan_search(70000, 8).has_value());
}

}  // namespace
}  // namespace kov
