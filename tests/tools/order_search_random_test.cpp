// The search against the enumeration of all combinations: the same matches in the same order, bit for bit,
// for any plan, any number of threads, and after any Break.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "support/literal_combinations.h"
#include "tools/comb_elements.h"
#include "tools/order_search.h"

namespace kov {
namespace {

class Cases {
 public:
  explicit Cases(std::uint64_t seed) : random_(seed) {}

  int between(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }

  std::vector<CombElement> elements(int count) {
    const int kind = between(0, kinds - 1);
    std::vector<double> values;
    for (int i = 0; i < count; ++i) values.push_back(value(kind));
    return comb_elements(values);
  }

  CombRules rules() {
    const int nearest = between(0, 9) == 0 ? 127 : between(1, 6);
    return {.nearest = static_cast<std::size_t>(nearest),
            .one_per_difference = between(0, 1) == 1,
            .squares = between(0, 2) == 0};
  }

  /// Any plan that fits: of both kinds, not the quickest ones.
  SearchPlan plan(std::span<const CombElement> elements, int order, const CombRules& rules) {
    const auto count = static_cast<int>(distinct_enough(elements, order, rules).size());
    const bool finite = std::all_of(elements.begin(), elements.end(),
                                    [](const CombElement& element) { return std::fabs(element.re) < 1e100; });
    if (count < 2 || !finite || between(0, 1) == 0) {
      return {.low = static_cast<std::uint32_t>(between(0, order - 1)), .middle = 0};
    }
    const int low = between(1, count - 1);
    return {.low = static_cast<std::uint32_t>(low),
            .middle = static_cast<std::uint32_t>(between(1, count - low))};
  }

 private:
  static constexpr int kinds = 10;

  double value(int kind) {
    switch (kind) {
      case 0:  // no ties
        return std::uniform_real_distribution(-1.5, 1.5)(random_);
      case 1:  // exact sums, many ties
        return between(-12, 12) / 4.0;
      case 2:  // odd quarters: parities
        return (2 * between(-5, 5) + 1) / 4.0;
      case 3:  // rounded sums of what would be ties
        return between(-9, 9) / 3.0;
      case 4:  // tenths
        return between(1, 20) / 10.0;
      case 5:  // duplicates
        return between(0, 2) == 0 ? 0.25 : between(0, 1) == 0 ? 1.0 / 3.0 : -0.7;
      case 6:  // far apart, tiny ones and zeros among them
        return between(0, 9) == 0 ? 0.0 : std::ldexp(between(-3, 3), between(-1074, 4));
      case 7:  // sums beyond the largest double
        return between(0, 1) == 0 ? 1.5e308 : between(-3, 3) * 0.5;
      case 8:  // too small to reach 1
        return between(1, 30) * 0.001;
      default:  // unit fractions
        return 1.0 / between(1, 30);
    }
  }

  std::mt19937_64 random_;
};

std::string plan_text(const SearchPlan& plan) {
  return ", low " + std::to_string(plan.low) + ", middle " + std::to_string(plan.middle);
}

std::string text(const std::vector<CombMatch>& matches) {
  std::string all;
  for (const CombMatch& match : matches) {
    all += ::testing::PrintToString(match.difference) + ":";
    for (std::size_t i = 0; i < match.members.size(); ++i) {
      all += ((match.plus >> i & 1U) != 0 ? " +" : " -") + std::to_string(match.members[i]);
    }
    all += "\n";
  }
  return all;
}

void expect_same(const OrderResult& result, const OrderResult& literal, const std::string& where) {
  ASSERT_EQ(result.sums, literal.sums) << where << "\n" << text(result.sums) << "\n" << text(literal.sums);
  ASSERT_EQ(result.squares, literal.squares) << where << " squares";
  ASSERT_EQ(result.tested, literal.tested) << where;
  ASSERT_EQ(result.stopped, literal.stopped) << where;
}

bool never_broken(double) { return true; }

TEST(OrderSearchRandom, FindsWhatTheEnumerationFinds) {
  Cases cases(9001);
  for (int i = 0; i < 10000; ++i) {
    const auto elements = cases.elements(cases.between(1, 11));
    const int order = cases.between(1, std::min<int>(5, static_cast<int>(elements.size())));
    const CombRules rules = cases.rules();
    const OrderResult literal = literal_search_order(elements, order, rules, never_broken);
    const auto threads = static_cast<unsigned>(i % 10 == 0 ? cases.between(2, 4) : 1);
    const std::string where = "case " + std::to_string(i);
    expect_same(search_order(elements, order, rules, threads, never_broken), literal, where);
    const SearchPlan plan = cases.plan(elements, order, rules);
    expect_same(search_order_by(plan, elements, order, rules, threads, never_broken), literal,
                where + plan_text(plan));
    if (HasFatalFailure()) return;
  }
}

TEST(OrderSearchRandom, FindsThemInHighOrders) {
  Cases cases(9002);
  for (int i = 0; i < 60; ++i) {
    const auto elements = cases.elements(cases.between(9, 11));
    const int order = cases.between(6, static_cast<int>(elements.size()));
    const CombRules rules = cases.rules();
    const OrderResult literal = literal_search_order(elements, order, rules, never_broken);
    const std::string where = "case " + std::to_string(i);
    expect_same(search_order(elements, order, rules, 1, never_broken), literal, where);
    const SearchPlan plan = cases.plan(elements, order, rules);
    expect_same(search_order_by(plan, elements, order, rules, 2, never_broken), literal,
                where + plan_text(plan));
    if (HasFatalFailure()) return;
  }
}

TEST(OrderSearchRandom, StoppedAtAnyPollItHasWhatTheEnumerationHasAfterAsManyCombinations) {
  Cases cases(9003);
  int stops = 0;
  for (int i = 0; i < 400; ++i) {
    const auto elements = cases.elements(cases.between(1, 9));
    const int order = cases.between(1, std::min<int>(5, static_cast<int>(elements.size())));
    const CombRules rules = cases.rules();
    const auto threads = static_cast<unsigned>(cases.between(1, 2));
    const SearchPlan plan = cases.plan(elements, order, rules);
    for (int stop_at = 1;; ++stop_at) {
      int polls = 0;
      const OrderPoll stop = [&](double) { return ++polls != stop_at; };
      const OrderResult result = search_order_by(plan, elements, order, rules, threads, stop);
      const auto same_count = [&](double tested) { return !result.stopped || tested < result.tested; };
      expect_same(result, literal_search_order(elements, order, rules, same_count),
                  "case " + std::to_string(i) + ", poll " + std::to_string(stop_at) + plan_text(plan));
      if (HasFatalFailure()) return;
      if (!result.stopped) break;
      ++stops;
    }
  }
  EXPECT_GT(stops, 500);
}

}  // namespace
}  // namespace kov
