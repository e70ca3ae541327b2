#include "tools/partial_sums.h"

#include <gtest/gtest.h>

#include <limits>

namespace kov {
namespace {

constexpr double anywhere = std::numeric_limits<double>::infinity();

TEST(PartialSums, HaveAllSignsOfTheLastMembers) {
  const OrderTerms terms({4.0, 2.0, 1.0, 0.5}, 3, Signs::plus_and_minus, {});
  PartialSums partials(terms);
  std::vector<std::pair<double, std::uint64_t>> found;
  for (const PartialSum& partial :
       partials.sum_up(std::vector<std::uint32_t>{1, 3}, [](double, double) { return anywhere; })) {
    found.emplace_back(partial.sum, partial.plus);
  }
  EXPECT_EQ(found, (std::vector<std::pair<double, std::uint64_t>>{
                       {-2.5, 0}, {1.5, 0b010}, {-1.5, 0b100}, {2.5, 0b110}}));
}

TEST(PartialSums, LeaveOutWhatIsOutOfReach) {
  // 9 and 1/8 stand: the two largest of the others, 4 and 2, lead from 9 + 1/8 to 3 + 1/8 at best.
  const OrderTerms terms({4.0, 2.0, 1.0, 9.0, 0.125}, 4, Signs::plus_and_minus, {});
  PartialSums partials(terms);
  const std::vector<std::uint32_t> upper{3, 4};
  EXPECT_EQ(partials.sum_up(upper, [](double, double) { return 2.25; }).size(), 2U) << "9 with plus";
  EXPECT_EQ(partials.sum_up(upper, [](double, double) { return 2.0; }).size(), 1U) << "9 - 1/8";
  EXPECT_TRUE(partials.sum_up(upper, [](double, double) { return 1.5; }).empty());
}

TEST(PartialSums, SquaresHavePlusAlone) {
  const OrderTerms terms({0.25, 4.0}, 2, Signs::plus, {});
  PartialSums partials(terms);
  const auto& all = partials.sum_up(std::vector<std::uint32_t>{0, 1}, [](double, double) { return 9.0; });
  ASSERT_EQ(all.size(), 1U);
  EXPECT_EQ(all[0].sum, 4.25);
  EXPECT_EQ(all[0].plus, 0b11U);
}

TEST(PartialSums, NoMembersAreZero) {
  const OrderTerms terms({0.25, 4.0}, 2, Signs::plus_and_minus, {});
  PartialSums partials(terms);
  const auto& all = partials.sum_up({}, [](double, double) { return 9.0; });
  ASSERT_EQ(all.size(), 1U);
  EXPECT_EQ(all[0].sum, 0.0);
  EXPECT_EQ(all[0].plus, 0U);
}

}  // namespace
}  // namespace kov
