#include "tools/half_sums.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace kov {
namespace {

const std::vector<double> halved_values = {4.0, 2.0, 1.0, 0.5, 0.25, 2.0, 8.0};

TEST(HalfSums, NoMembersHaveOneSumForAnyElements) {
  const HalfSums half(halved_values, 0, 4, Signs::plus_and_minus);
  for (std::uint32_t t = 0; t <= 4; ++t) EXPECT_EQ(half.list(t).sums, std::vector<double>{0.0});
}

TEST(HalfSums, ListsHoldEverySumOfTheirElementsInOrder) {
  const HalfSums half(halved_values, 3, 7, Signs::plus_and_minus);
  for (std::uint32_t t = 0; t <= 7; ++t) {
    const NumberedSums::List& list = half.list(t);
    EXPECT_TRUE(std::is_sorted(list.sums.begin(), list.sums.end()));
    std::vector<std::uint32_t> numbers = list.numbers;
    std::sort(numbers.begin(), numbers.end());
    ASSERT_GE(numbers.size(), half.count(t));
    for (std::uint32_t i = 0; i < numbers.size(); ++i) EXPECT_EQ(numbers[i], i);
    for (std::size_t i = 0; i < list.sums.size(); ++i) {
      const auto in_all =
          std::find(half.sorted().numbers.begin(), half.sorted().numbers.end(), list.numbers[i]);
      EXPECT_EQ(list.sums[i],
                half.sorted().sums[static_cast<std::size_t>(in_all - half.sorted().numbers.begin())]);
    }
  }
}

TEST(HalfSums, ListsAreNotMuchLongerThanNeeded) {
  const std::vector<double> many(200, 1.0);
  const HalfSums half(many, 2, 200, Signs::plus_and_minus);
  for (std::uint32_t t = 0; t <= 200; ++t) {
    EXPECT_LE(half.list(t).sums.size(), std::max(2 * half.count(t) + 1, 127U)) << t;
  }
}

}  // namespace
}  // namespace kov
