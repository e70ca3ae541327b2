#include "tools/half_sums.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace kov {
namespace {

const std::vector<double> half_values = {4.0, 2.0, 1.0, 0.5, 0.25, 2.0, 8.0};

std::vector<std::uint32_t> members(const HalfSums& half, std::uint32_t number) {
  const auto span = half.members_of(number);
  return {span.begin(), span.end()};
}

double sum_of(const HalfSums& half, std::uint32_t number) {
  double sum = 0.0;
  for (std::size_t i = 0; i < half.members_of(number).size(); ++i) {
    const double value = half_values[half.members_of(number)[i]];
    sum += (half.plus_of(number) >> i & 1U) != 0 ? value : -value;
  }
  return sum;
}

TEST(HalfSums, NumbersAscendAsTheEnumerationMeetsThem) {
  const HalfSums half(half_values, 2, 4, Signs::plus_and_minus);
  const std::vector<std::vector<std::uint32_t>> combinations = {{0, 1}, {0, 2}, {1, 2},
                                                                {0, 3}, {1, 3}, {2, 3}};
  for (std::uint32_t number = 0; number < 24; ++number) {
    EXPECT_EQ(members(half, number), combinations[number / 4]);
    EXPECT_EQ(half.plus_of(number), number % 4);
  }
  for (const auto& [t, count] :
       std::map<std::uint32_t, std::uint32_t>{{0, 0}, {1, 0}, {2, 4}, {3, 12}, {4, 24}}) {
    EXPECT_EQ(half.count(t), count) << t;
  }
}

TEST(HalfSums, AllPlusHasOneSumForEachCombination) {
  const HalfSums half(half_values, 2, 4, Signs::plus);
  EXPECT_EQ(half.count(4), 6U);
  EXPECT_EQ(members(half, 5), (std::vector<std::uint32_t>{2, 3}));
  EXPECT_EQ(half.plus_of(5), 3U);
}

TEST(HalfSums, NoMembersHaveOneSum) {
  const HalfSums half(half_values, 0, 4, Signs::plus_and_minus);
  for (std::uint32_t t = 0; t <= 4; ++t) {
    EXPECT_EQ(half.count(t), 1U);
    EXPECT_EQ(half.list(t).sums, std::vector<double>{0.0});
  }
  EXPECT_TRUE(half.members_of(0).empty());
}

TEST(HalfSums, ListsAreSortedAndHoldEverySumOfTheirElements) {
  const HalfSums half(half_values, 3, 7, Signs::plus_and_minus);
  for (std::uint32_t t = 0; t <= 7; ++t) {
    const HalfSums::List& list = half.list(t);
    EXPECT_TRUE(std::is_sorted(list.sums.begin(), list.sums.end()));
    std::vector<std::uint32_t> numbers = list.numbers;
    std::sort(numbers.begin(), numbers.end());
    ASSERT_GE(numbers.size(), half.count(t));
    for (std::uint32_t i = 0; i < numbers.size(); ++i) EXPECT_EQ(numbers[i], i);
    for (std::size_t i = 0; i < list.sums.size(); ++i) EXPECT_EQ(list.sums[i], sum_of(half, list.numbers[i]));
  }
}

TEST(HalfSums, ListsAreNotMuchLongerThanNeeded) {
  const std::vector<double> many(200, 1.0);
  const HalfSums half(many, 2, 200, Signs::plus_and_minus);
  for (std::uint32_t t = 0; t <= 200; ++t) {
    EXPECT_LE(half.list(t).sums.size(), std::max(2 * half.count(t) + 1, 127U)) << t;
  }
}

TEST(HalfSums, KeepsTheFirstMetOfEqualSums) {
  for (const std::size_t kept : {std::size_t{1}, std::size_t{3}}) {
    const HalfSums half(half_values, 3, 7, Signs::plus_and_minus, kept);
    std::map<double, std::vector<std::uint32_t>> of_sum;
    for (std::uint32_t number = 0; number < half.count(7); ++number) {
      auto& numbers = of_sum[sum_of(half, number)];
      if (numbers.size() < kept) numbers.push_back(number);
    }
    std::vector<std::uint32_t> expected;
    for (const auto& [sum, numbers] : of_sum) expected.insert(expected.end(), numbers.begin(), numbers.end());
    EXPECT_EQ(half.list(7).numbers, expected);
  }
}

}  // namespace
}  // namespace kov
