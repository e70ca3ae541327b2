// The whole file, with a clock that goes as the test wants.
#include "tools/comb_search.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "support/literal_combinations.h"
#include "support/recording_progress.h"
#include "text/integers.h"
#include "tools/comb_elements.h"
#include "tools/order_search.h"

namespace kov {
namespace {

using std::chrono::milliseconds;

/// Goes on by a step at each look.
CombClock stepping_clock(milliseconds step) {
  return [step, now = std::chrono::steady_clock::time_point{}]() mutable { return now += step; };
}

OrderResult search_alone(std::span<const CombElement> elements, int order, const CombRules& rules,
                         const OrderPoll& poll) {
  return search_order(elements, order, rules, 1, poll);
}

CombRequest unit_fractions(int count, int order) {
  std::vector<double> values;
  for (int i = 2; i < count + 2; ++i) values.push_back(1.0 / i);
  const auto elements = comb_elements(values);
  return {.rules = {}, .elements = elements, .candidate_count = elements.size(), .order = order, .table = 0};
}

const CombFileHead file_head{"20.11.2026 14:03:59", "x.aa1", 17};

struct Written {
  std::string text;
  double tested = 0.0;
  std::vector<std::string> calls;
};

Written write(const CombRequest& request, const SearchOrder& search, milliseconds step = milliseconds(0),
              int break_at = 0) {
  Written written;
  RecordingProgress progress;
  progress.break_at = break_at;
  written.tested = write_comb_search(request, file_head, search, stepping_clock(step), progress,
                                     [&](std::string_view text) { written.text += text; });
  written.calls = progress.calls;
  return written;
}

TEST(CombSearch, WritesHeadOrdersAndCount) {
  CombRequest request = unit_fractions(2, 2);
  request.rules.nearest = 1;
  const Written written = write(request, search_alone);
  EXPECT_EQ(written.text,
            "Searching for realpart-combinations whose sum is nearest to 1.0\n"
            "20.11.2026 14:03:59 = T.M.J h:m:s\n"
            "x.aa1 = source, lattice_point_count = 17\n"
            "scope: Sums1 Range1 table 0\n"
            "output: Respectively the 1 best matches of the sums with 1.0\n"
            "Testing combinations up to order 2 within all 2 Elements of S1\n"
            "8 over 1..2 pm-combinations to test\n"
            "\n###### Results of combinations of order 1\n"
            "All nearest sums have positive sign pattern.\n\n"
            "1: absdiff to 1.0 =0.5\n"
            "+ 0.5 = lmap[0 0]\n\n"
            "\n###### Results of combinations of order 2\n"
            "All nearest sums have positive sign pattern.\n\n"
            "1: absdiff to 1.0 =0.16666666666666674\n"
            "+ 0.5 = lmap[0 0]\n"
            "+ 0.3333333333333333 = lmap[0 1]\n\n"
            "8 pm-combinations tested\n");
  EXPECT_EQ(written.tested, 8.0);
  EXPECT_EQ(written.calls, (std::vector<std::string>{"box  Progress 0..1000 at 0", "hidden"}))
      << "a search within the first second shows and asks nothing";
}

TEST(CombSearch, IsTheFileOfTheEnumerationByteForByte) {
  for (const bool squares : {false, true}) {
    CombRequest request = unit_fractions(16, 5);
    request.rules.squares = squares;
    EXPECT_EQ(write(request, search_alone).text, write(request, literal_search_order).text);
    EXPECT_EQ(write(request, search_order_on_all_cores).text, write(request, literal_search_order).text);
  }
}

/// All orders of a few elements, by each kind of plan.
TEST(CombSearch, RandomFilesAreThoseOfTheEnumerationByteForByte) {
  std::mt19937_64 random(31);
  const auto between = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
  for (int i = 0; i < 300; ++i) {
    const int denominator = between(1, 9);
    std::vector<double> values;
    for (int left = between(2, 9); left > 0; --left) values.push_back(between(-20, 20) * 1.0 / denominator);
    const auto elements = comb_elements(values);
    const auto count = static_cast<int>(elements.size());
    const CombRequest request{.rules = {.nearest = static_cast<std::size_t>(between(1, 9)),
                                        .one_per_difference = between(0, 1) == 1,
                                        .squares = between(0, 1) == 1},
                              .elements = elements,
                              .candidate_count = elements.size() + static_cast<std::size_t>(between(0, 2)),
                              .order = between(1, count),
                              .table = 0};
    const SearchOrder by_element = [](auto all, int order, const CombRules& rules, const OrderPoll& poll) {
      const auto searched = static_cast<std::uint32_t>(distinct_enough(all, order, rules).size());
      if (searched < 2) return search_order(all, order, rules, 1, poll);
      return search_order_by({.low = searched / 2, .middle = (searched + 1) / 2}, all, order, rules, 1, poll);
    };
    const std::string expected = write(request, literal_search_order).text;
    ASSERT_EQ(write(request, search_order_on_all_cores).text, expected) << i;
    ASSERT_EQ(write(request, by_element).text, expected) << i;
  }
}

TEST(CombSearch, SeveralThreadsWriteTheSameFile) {
  const CombRequest request = unit_fractions(60, 5);
  const auto by_four = [](auto elements, int order, const CombRules& rules, const OrderPoll& poll) {
    return search_order(elements, order, rules, 4, poll);
  };
  const std::string text = write(request, search_alone).text;
  EXPECT_EQ(write(request, by_four).text, text);
  EXPECT_EQ(write(request, search_order_on_all_cores).text, text);
}

TEST(CombSearch, ShowsProgressOnceASecond) {
  // A fifth of a second for each index combination: the fifth and the tenth are shown, and so on.
  const Written written = write(unit_fractions(4, 2), literal_search_order, milliseconds(200));
  EXPECT_EQ(written.calls,
            (std::vector<std::string>{"box  Progress 0..1000 at 0", "box  Progress 0..1000 at 375",
                                      "headline 12 of 32 pm-combinations tested", "break?",
                                      "box  Progress 0..1000 at 1000",
                                      "headline 32 of 32 pm-combinations tested", "break?", "hidden"}));
}

TEST(CombSearch, BreakEndsBehindTheResultsOfTheOrder) {
  const Written written = write(unit_fractions(4, 3), literal_search_order, milliseconds(1000), 5);
  EXPECT_NE(written.text.find("order 1\n"), std::string::npos);
  const std::size_t second = written.text.find("###### Results of combinations of order 2\n");
  ASSERT_NE(second, std::string::npos);
  EXPECT_EQ(written.text.find("order 3\n"), std::string::npos);
  EXPECT_NE(written.text.find("1: absdiff to 1.0 =0.1666", second), std::string::npos);
  EXPECT_TRUE(written.text.ends_with("\n user break ! \n12 pm-combinations tested\n"));
  EXPECT_EQ(written.tested, 12.0);
}

/// The file of a broken search is that of the enumeration that is broken after as many combinations.
TEST(CombSearch, BreakAtEveryPollLeavesTheFileOfTheEnumeration) {
  CombRequest request = unit_fractions(12, 6);  // orders of either plan
  request.rules.squares = true;
  int breaks = 0;
  for (int poll = 1;; ++poll) {
    const Written written = write(request, search_alone, milliseconds(1000), poll);
    if (written.text.find(" user break ! \n") == std::string::npos) {
      EXPECT_EQ(written.text, write(request, literal_search_order).text);
      break;
    }
    ++breaks;
    double before = 0.0;
    const SearchOrder literal = [&](auto elements, int order, const CombRules& rules, const OrderPoll&) {
      const OrderResult result = literal_search_order(
          elements, order, rules, [&](double tested) { return before + tested < written.tested; });
      before += result.tested;
      return result;
    };
    EXPECT_EQ(written.text, write(request, literal).text) << poll;
  }
  EXPECT_GT(breaks, 10);
}

TEST(CombSearch, WhatTheSinkThrowsPassesOn) {
  RecordingProgress progress;
  const auto full_disk = [](std::string_view) { throw std::runtime_error("disk full"); };
  EXPECT_THROW(write_comb_search(unit_fractions(3, 2), file_head, search_alone,
                                 stepping_clock(milliseconds(0)), progress, full_disk),
               std::runtime_error);
}

}  // namespace
}  // namespace kov
