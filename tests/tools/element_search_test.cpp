#include "tools/element_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "support/literal_combinations.h"
#include "tools/comb_count.h"
#include "tools/comb_elements.h"
#include "tools/position_search.h"

namespace kov {
namespace {

bool never_stop(double) { return true; }

std::vector<CombElement> roots(int count) {
  std::vector<double> values;
  for (int i = 1; i <= count; ++i) values.push_back(std::sqrt(i + 0.1) - 1.7);
  return comb_elements(values);
}

constexpr CombRules both_kinds{.nearest = 6, .one_per_difference = false, .squares = true};

OrderResult halved(std::span<const CombElement> elements, int order, unsigned threads,
                   const OrderPoll& poll = never_stop, const CombRules& rules = both_kinds) {
  return search_by_element(SearchedElements(elements, order, rules), 7, 8, rules, threads, poll);
}

void expect_equal(const OrderResult& result, const OrderResult& expected) {
  EXPECT_EQ(result.sums, expected.sums);
  EXPECT_EQ(result.squares, expected.squares);
  EXPECT_EQ(result.tested, expected.tested);
  EXPECT_EQ(result.stopped, expected.stopped);
}

TEST(ElementSearch, FindsWhatTheSearchByPositionFinds) {
  const auto elements = roots(18);
  for (const int order : {1, 2, 9, 15, 17, 18}) {
    const SearchedElements searched(elements, order, both_kinds);
    const auto low = static_cast<std::uint32_t>(order / 2);
    const OrderResult expected = search_by_position(searched, low, both_kinds, 1, never_stop);
    for (const unsigned threads : {1U, 2U, 5U}) expect_equal(halved(elements, order, threads), expected);
  }
}

TEST(ElementSearch, AStopWithinAChoiceLeavesTheChoicesBefore) {
  const auto elements = roots(18);
  // Choices take more than one poll; each that is told the same count as the one before is within a choice.
  std::vector<double> told;
  halved(elements, 9, 1, [&](double tested) {
    told.push_back(tested);
    return true;
  });
  int within = 0;
  for (std::size_t stop_at = 0; stop_at < told.size(); ++stop_at) {
    for (const unsigned threads : {1U, 2U}) {
      std::size_t polls = 0;
      const OrderResult result = halved(elements, 9, threads, [&](double) { return polls++ != stop_at; });
      if (!result.stopped) continue;  // two threads have fewer polls
      EXPECT_EQ(polls, stop_at + 1) << "no poll behind the stop";
      EXPECT_GT(result.tested, 0.0);
      const OrderResult expected = literal_search_order(
          elements, 9, both_kinds, [&](double tested) { return tested < result.tested; });
      expect_equal(result, expected);
    }
    if (stop_at > 0 && told[stop_at] == told[stop_at - 1]) ++within;
  }
  EXPECT_GT(within, 0);
}

TEST(ElementSearch, WhatThePollThrowsPassesOn) {
  for (const unsigned threads : {1U, 3U}) {
    EXPECT_THROW(
        halved(roots(18), 9, threads, [](double) -> bool { throw std::runtime_error("window gone"); }),
        std::runtime_error);
  }
}

TEST(ElementSearch, EndsWhenNothingCanBeNearer) {
  // All differences from 0 on are there after the first choices.
  std::vector<double> eighths;
  for (int i = 0; i < 24; ++i) eighths.push_back((i % 7 + 1) / 8.0);
  const auto elements = comb_elements(eighths);
  double last = 0.0;
  const OrderResult result = halved(elements, 12, 1,
                                    [&](double tested) {
                                      last = tested;
                                      return true;
                                    },
                                    {.nearest = 4, .one_per_difference = true, .squares = false});
  EXPECT_EQ(result.tested, pm_combinations(24, 12));
  EXPECT_LT(last, result.tested / 100);
  ASSERT_EQ(result.sums.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(result.sums[i].difference, static_cast<double>(i) / 4.0);
}

}  // namespace
}  // namespace kov
