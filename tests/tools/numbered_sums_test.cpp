#include "tools/numbered_sums.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <vector>

namespace kov {
namespace {

const std::vector<double> numbered_values = {4.0, 2.0, 1.0, 0.5, 0.25, 2.0, 8.0};

std::vector<std::uint32_t> members(const NumberedSums& sums, std::uint32_t number) {
  const auto span = sums.members_of(number);
  return {span.begin(), span.end()};
}

double sum_of(const NumberedSums& sums, std::uint32_t number) {
  double sum = 0.0;
  for (std::size_t i = 0; i < sums.members_of(number).size(); ++i) {
    const double value = numbered_values[sums.members_of(number)[i]];
    sum += (sums.plus_of(number) >> i & 1U) != 0 ? value : -value;
  }
  return sum;
}

TEST(NumberedSums, NumbersAscendAsTheEnumerationMeetsThem) {
  const NumberedSums sums(numbered_values, 2, {.begin = 0, .end = 4}, Signs::plus_and_minus);
  const std::vector<std::vector<std::uint32_t>> combinations = {{0, 1}, {0, 2}, {1, 2},
                                                                {0, 3}, {1, 3}, {2, 3}};
  for (std::uint32_t number = 0; number < 24; ++number) {
    EXPECT_EQ(members(sums, number), combinations[number / 4]);
    EXPECT_EQ(sums.plus_of(number), number % 4);
  }
  for (const auto& [t, count] :
       std::map<std::uint32_t, std::uint32_t>{{0, 0}, {1, 0}, {2, 4}, {3, 12}, {4, 24}}) {
    EXPECT_EQ(sums.count(t), count) << t;
  }
}

TEST(NumberedSums, AllPlusHasOneSumForEachCombination) {
  const NumberedSums sums(numbered_values, 2, {.begin = 0, .end = 4}, Signs::plus);
  EXPECT_EQ(sums.count(4), 6U);
  EXPECT_EQ(members(sums, 5), (std::vector<std::uint32_t>{2, 3}));
  EXPECT_EQ(sums.plus_of(5), 3U);
}

TEST(NumberedSums, NoMembersHaveOneSum) {
  const NumberedSums sums(numbered_values, 0, {.begin = 0, .end = 4}, Signs::plus_and_minus);
  for (std::uint32_t t = 0; t <= 4; ++t) {
    EXPECT_EQ(sums.count(t), 1U);
    EXPECT_EQ(sums.sorted().sums, std::vector<double>{0.0});
  }
  EXPECT_TRUE(sums.members_of(0).empty());
}

TEST(NumberedSums, AreSortedWithTheirNumbers) {
  const NumberedSums sums(numbered_values, 3, {.begin = 0, .end = 7}, Signs::plus_and_minus);
  const NumberedSums::List& all = sums.sorted();
  ASSERT_EQ(all.sums.size(), sums.count(7));
  EXPECT_TRUE(std::is_sorted(all.sums.begin(), all.sums.end()));
  for (std::size_t i = 0; i < all.sums.size(); ++i) EXPECT_EQ(all.sums[i], sum_of(sums, all.numbers[i]));
  std::vector<std::uint32_t> numbers = all.numbers;
  std::sort(numbers.begin(), numbers.end());
  for (std::uint32_t i = 0; i < numbers.size(); ++i) EXPECT_EQ(numbers[i], i);
}

TEST(NumberedSums, AreThoseOfAStretchOfElements) {
  const NumberedSums sums(numbered_values, 2, {.begin = 3, .end = 6}, Signs::plus);
  EXPECT_EQ(sums.sorted().sums, (std::vector<double>{0.75, 2.25, 2.5}));
  EXPECT_EQ(members(sums, sums.sorted().numbers[0]), (std::vector<std::uint32_t>{3, 4}));
  EXPECT_EQ(members(sums, sums.sorted().numbers[2]), (std::vector<std::uint32_t>{3, 5}));
  EXPECT_EQ(sums.count(2), 1U);
  EXPECT_EQ(sums.count(3), 3U);
}

TEST(NumberedSums, KeepsTheFirstMetOfEqualSums) {
  for (const std::size_t kept : {std::size_t{1}, std::size_t{3}}) {
    const NumberedSums sums(numbered_values, 3, {.begin = 0, .end = 7}, Signs::plus_and_minus, kept);
    std::map<double, std::vector<std::uint32_t>> of_sum;
    for (std::uint32_t number = 0; number < sums.count(7); ++number) {
      auto& numbers = of_sum[sum_of(sums, number)];
      if (numbers.size() < kept) numbers.push_back(number);
    }
    std::vector<std::uint32_t> expected;
    for (const auto& [sum, numbers] : of_sum) expected.insert(expected.end(), numbers.begin(), numbers.end());
    EXPECT_EQ(sums.sorted().numbers, expected);
  }
}

/// The members, their signs and the sum of every number, but for the order of equal rounded sums.
std::map<std::uint32_t, double> by_number(const NumberedSums::List& list) {
  std::map<std::uint32_t, double> all;
  for (std::size_t i = 0; i < list.sums.size(); ++i) all[list.numbers[i]] = list.sums[i];
  return all;
}

TEST(NumberedSums, OfEachSizeAreThoseOfOneSize) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 300; ++i) {
    const bool exact = i % 2 == 0;
    std::vector<double> values(12);
    for (double& value : values) {
      value = exact ? std::uniform_int_distribution(-6, 6)(random) / 4.0
                    : std::uniform_real_distribution(-1.0, 1.0)(random);
    }
    const std::uint32_t begin = std::uniform_int_distribution(0U, 6U)(random);
    const ElementSpan span{begin, begin + std::uniform_int_distribution(1U, 6U)(random)};
    const std::uint32_t most = std::uniform_int_distribution(0U, span.end - span.begin)(random);
    const Signs signs = i % 3 == 0 ? Signs::plus : Signs::plus_and_minus;
    const std::size_t kept = exact ? std::uniform_int_distribution<std::size_t>(0, 3)(random) : 0;
    const auto all = NumberedSums::of_each_size(values, most, span, signs, kept);
    ASSERT_EQ(all.size(), most + 1U);
    for (std::uint32_t m = 0; m <= most; ++m) {
      const NumberedSums one(values, m, span, signs, kept);
      const NumberedSums::List& sorted = all[m].sorted();
      EXPECT_EQ(all[m].members(), m);
      EXPECT_TRUE(std::is_sorted(sorted.sums.begin(), sorted.sums.end()));
      ASSERT_EQ(sorted.sums.size(), one.sorted().sums.size());
      if (exact) {
        EXPECT_EQ(sorted.sums, one.sorted().sums);
        EXPECT_EQ(sorted.numbers, one.sorted().numbers);
      } else {
        const auto expected = by_number(one.sorted());
        for (const auto& [number, sum] : by_number(sorted)) EXPECT_NEAR(sum, expected.at(number), 1e-14);
      }
    }
  }
}

}  // namespace
}  // namespace kov
