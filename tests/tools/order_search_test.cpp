#include "tools/order_search.h"

#include <gtest/gtest.h>

#include <numeric>
#include <stdexcept>

#include "support/literal_combinations.h"
#include "tools/comb_count.h"
#include "tools/comb_elements.h"

namespace kov {
namespace {

bool go_on(double) { return true; }

OrderResult search(const std::vector<double>& real_parts, int order, const CombRules& rules = {}) {
  return search_order(comb_elements(real_parts), order, rules, 1, go_on);
}

std::vector<double> differences(const std::vector<CombMatch>& matches) {
  std::vector<double> all;
  for (const CombMatch& match : matches) all.push_back(match.difference);
  return all;
}

TEST(OrderSearch, ASingleOneIsAMatch) {
  const OrderResult result = search({1.0}, 1);
  ASSERT_EQ(result.sums.size(), 2U);
  EXPECT_EQ(result.sums[0], (CombMatch{0.0, {0}, 1}));
  EXPECT_EQ(result.sums[1], (CombMatch{2.0, {0}, 0}));
  EXPECT_EQ(result.tested, 2.0);
  EXPECT_FALSE(result.stopped);
  EXPECT_TRUE(result.squares.empty());
}

TEST(OrderSearch, TwoThatAddUpToOneAreFoundInOrderTwo) {
  const OrderResult result = search({0.75, 0.25}, 2);
  ASSERT_EQ(result.sums.size(), 4U);
  EXPECT_EQ(result.sums[0], (CombMatch{0.0, {0, 1}, 3}));
  EXPECT_EQ(differences(result.sums), (std::vector<double>{0.0, 0.5, 1.5, 2.0}));
}

TEST(OrderSearch, TiesStandAsTheyAreMet) {
  const CombRules rules{.nearest = 3, .one_per_difference = false, .squares = false};
  const OrderResult result = search({0.5, 0.5, 0.5, 0.5}, 2, rules);
  EXPECT_EQ(result.sums, (std::vector<CombMatch>{{0.0, {0, 1}, 3}, {0.0, {0, 2}, 3}, {0.0, {1, 2}, 3}}));
}

TEST(OrderSearch, OneForEachDifferenceIsTheFirstMet) {
  const OrderResult result = search({0.5, 0.5, 0.5, 0.5}, 2, {.nearest = 3});
  EXPECT_EQ(result.sums, (std::vector<CombMatch>{{0.0, {0, 1}, 3}, {1.0, {0, 1}, 1}, {2.0, {0, 1}, 0}}));
}

TEST(OrderSearch, TheSumIsTakenFromTheLastMemberToTheFirst) {
  // (1 + 1e-16) + 1e-16 is 1; 1e-16 + 1e-16 comes first here, so the sum is above 1.
  const OrderResult up = search({1.0, 1e-16, 1e-16}, 3, {.nearest = 8, .one_per_difference = false});
  EXPECT_EQ(up.sums,
            literal_search_order(comb_elements({1.0, 1e-16, 1e-16}), 3, {8, false, false}, go_on).sums);
  EXPECT_EQ(differences(up.sums).at(3), 0x1p-52) << "+1e-16 +1e-16 +1";
}

TEST(OrderSearch, SquaresAreTestedWithPlusAlone) {
  const CombRules rules{.nearest = 2, .one_per_difference = true, .squares = true};
  const OrderResult result = search({0.5, -0.5, 2.0, -1.0}, 1, rules);
  EXPECT_EQ(result.squares, (std::vector<CombMatch>{{0.0, {3}, 1}, {0.75, {1}, 1}}));
  EXPECT_EQ(result.sums, (std::vector<CombMatch>{{0.0, {3}, 0}, {0.5, {1}, 1}}));
  EXPECT_EQ(result.tested, 8.0) << "squares are not counted";
}

TEST(OrderSearch, SumsBeyondTheLargestNumberAreFarAway) {
  const double infinite = std::numeric_limits<double>::infinity();
  const OrderResult result = search({1.5e308, 1.5e308}, 2, {.nearest = 4, .one_per_difference = false});
  EXPECT_EQ(differences(result.sums), (std::vector<double>{1.0, 1.0, infinite, infinite}));
}

TEST(OrderSearch, CountsWhatItSkips) {
  std::vector<double> real_parts(300);
  std::iota(real_parts.begin(), real_parts.end(), 1.0);
  EXPECT_EQ(search(real_parts, 4).tested, pm_combinations(300, 4));
}

TEST(OrderSearch, MeetsInTheMiddleOfHighOrders) {
  // 2^26 sign patterns.
  std::vector<double> quarters(26);
  for (std::size_t i = 0; i < quarters.size(); ++i) quarters[i] = static_cast<double>(i + 2) / 4.0;
  const OrderResult result = search(quarters, 26, {.nearest = 2});
  EXPECT_EQ(differences(result.sums), (std::vector<double>{0.25, 0.75})) << "the sum of all is 377 quarters";
}

TEST(OrderSearch, SkipsWhatIsTooSmall) {
  // 2^4 * C(70000, 4) signed combinations, 16 * 10^18: the nearest sums are those of the largest elements.
  std::vector<double> tiny(70000);
  for (std::size_t i = 0; i < tiny.size(); ++i) tiny[i] = 1e-9 * static_cast<double>(tiny.size() - i);
  const OrderResult result = search(tiny, 4, {.nearest = 2});
  EXPECT_EQ(result.sums[0].members, (std::vector<std::uint32_t>{0, 1, 2, 3}));
  EXPECT_EQ(result.sums[1].members, (std::vector<std::uint32_t>{0, 1, 2, 4}));
  EXPECT_EQ(result.tested, pm_combinations(70000, 4));
}

TEST(OrderSearch, ManyEqualElementsCostNoMoreThanAFew) {
  // 2^8 * C(70000, 8) signed combinations, 6 * 10^36.
  const std::vector<double> equal(70000, 0.25);
  const OrderResult result = search(equal, 8, {.nearest = 3, .one_per_difference = false});
  EXPECT_EQ(result.sums, (std::vector<CombMatch>{{0.0, {0, 1, 2, 3, 4, 5, 6, 7}, 0b00111111},
                                                 {0.0, {0, 1, 2, 3, 4, 5, 6, 7}, 0b01011111},
                                                 {0.0, {0, 1, 2, 3, 4, 5, 6, 7}, 0b01101111}}));
}

TEST(OrderSearch, IsTheSameOnAnyNumberOfThreads) {
  std::vector<double> unit_fractions(40);
  for (std::size_t i = 0; i < unit_fractions.size(); ++i)
    unit_fractions[i] = 1.0 / static_cast<double>(i + 2);
  const auto elements = comb_elements(unit_fractions);
  for (const bool one_per_difference : {false, true}) {
    const CombRules rules{.nearest = 20, .one_per_difference = one_per_difference, .squares = true};
    const OrderResult alone = search_order(elements, 5, rules, 1, go_on);
    for (const unsigned threads : {0U, 2U, 3U, 8U}) {
      const OrderResult result = search_order(elements, 5, rules, threads, go_on);
      EXPECT_EQ(result.sums, alone.sums) << threads;
      EXPECT_EQ(result.squares, alone.squares) << threads;
      EXPECT_EQ(result.tested, alone.tested) << threads;
    }
  }
}

TEST(OrderSearch, PlansByElementWhereSumsCannotOverflow) {
  std::vector<double> real_parts(30, 0.0);
  for (std::size_t i = 0; i < real_parts.size(); ++i) real_parts[i] = 1.0 / static_cast<double>(i + 2);
  EXPECT_TRUE(plan_order(comb_elements(real_parts), 15, {})->by_element());
  real_parts[7] = 1.5e308;
  EXPECT_FALSE(plan_order(comb_elements(real_parts), 15, {})->by_element());
  real_parts[7] = 1e200;
  EXPECT_TRUE(plan_order(comb_elements(real_parts), 15, {})->by_element());
  EXPECT_FALSE(plan_order(comb_elements(real_parts), 15, {.squares = true})->by_element());
}

TEST(OrderSearch, WithoutAPlanItIsRefused) {
  const std::vector<double> many(100, 0.25);
  EXPECT_THROW(search(many, 100), std::invalid_argument);
}

TEST(OrderSearch, StoppedWithinALongBlockItHasWhatTheEnumerationHas) {
  std::vector<double> real_parts(12000);
  for (std::size_t i = 0; i < real_parts.size(); ++i) real_parts[i] = 1.0 + 1.0 / static_cast<double>(i + 1);
  const auto elements = comb_elements(real_parts);
  int polls = 0;
  const OrderResult result = search_order(elements, 1, {}, 1, [&](double) { return ++polls < 1; });
  EXPECT_TRUE(result.stopped);
  EXPECT_EQ(result.tested, 2 * 8192.0);
  EXPECT_EQ(result.sums.front().members, std::vector<std::uint32_t>{8191});
}

TEST(OrderSearch, WhatThePollThrowsPassesOn) {
  const auto window_gone = [](double) -> bool { throw std::runtime_error("window gone"); };
  EXPECT_THROW(search_order(comb_elements({0.3, 0.2, 0.1}), 2, {}, 1, window_gone), std::runtime_error);
}

TEST(OrderSearch, PollsAscendAndEndWithinTheOrder) {
  std::vector<double> real_parts(30);
  for (std::size_t i = 0; i < real_parts.size(); ++i) real_parts[i] = 1.0 / static_cast<double>(i + 3);
  double last = 0.0;
  int polls = 0;
  search_order(comb_elements(real_parts), 4, {.nearest = 100}, 1, [&](double tested) {
    EXPECT_GT(tested, last);
    last = tested;
    return ++polls > 0;
  });
  EXPECT_GT(polls, 10);
  EXPECT_LE(last, pm_combinations(30, 4));
}

}  // namespace
}  // namespace kov
