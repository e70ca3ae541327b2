#include "tools/element_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

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

OrderResult stopped_at(std::span<const CombElement> elements, unsigned threads, std::size_t stop_at) {
  std::size_t polls = 0;
  const OrderResult result = search_by_element(SearchedElements(elements, 12, both_kinds), 10, 10, both_kinds,
                                               threads, [&](double) { return ++polls != stop_at; });
  EXPECT_LE(polls, stop_at) << "no poll behind the stop";
  return result;
}

/// Twice 10 elements take several polls for a choice.
TEST(ElementSearch, AStopWithinAChoiceLeavesTheChoicesBefore) {
  const auto elements = roots(24);
  OrderResult between_choices;
  int within = 0;
  for (std::size_t stop_at = 1;; ++stop_at) {
    const OrderResult result = stopped_at(elements, 1, stop_at);
    if (!result.stopped) break;
    EXPECT_GT(result.tested, 0.0);
    if (result.tested == between_choices.tested) {
      expect_equal(result, between_choices);
      ++within;
    }
    between_choices = result;
  }
  EXPECT_GT(within, 3);
  EXPECT_EQ(between_choices.tested, pm_combinations(24, 12)) << "the last poll is behind the last choice";
}

TEST(ElementSearch, StoppedOnSeveralThreadsItHasWhatOneThreadHas) {
  const auto elements = roots(24);
  std::vector<OrderResult> alone;
  for (std::size_t stop_at = 1; stop_at < 20; ++stop_at) alone.push_back(stopped_at(elements, 1, stop_at));
  for (std::size_t stop_at = 1; stop_at < 8; ++stop_at) {
    const OrderResult result = stopped_at(elements, 3, stop_at);
    const auto same = std::find_if(alone.begin(), alone.end(),
                                   [&](const OrderResult& one) { return one.tested == result.tested; });
    ASSERT_NE(same, alone.end()) << stop_at;
    EXPECT_EQ(result.sums, same->sums);
    EXPECT_EQ(result.squares, same->squares);
  }
}

/// A first choice that takes several polls is settled all the same.
TEST(ElementSearch, SomethingIsSettledHoweverEarlyTheStop) {
  const auto elements = roots(23);
  const SearchedElements searched(elements, 12, both_kinds);
  for (const unsigned threads : {1U, 2U}) {
    int polls = 0;
    const OrderResult result =
        search_by_element(searched, 11, 12, both_kinds, threads, [&](double) { return ++polls > 1; });
    EXPECT_EQ(polls, 1);
    EXPECT_TRUE(result.stopped);
    EXPECT_EQ(result.tested, searched.all());
    EXPECT_EQ(result.sums.size(), 6U);
  }
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
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(result.sums[i].difference, static_cast<double>(i) / 8.0);
}

}  // namespace
}  // namespace kov
