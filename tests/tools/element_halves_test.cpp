#include "tools/element_halves.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(ElementHalves, HoldTheSumsOfBothHalvesForEachNumberOfMembers) {
  const OrderTerms terms({1.0, 2.0, 4.0, 8.0, 16.0, 100.0}, 3, Signs::plus, {});
  const ElementHalves halves(terms, 2, 3, 1);
  EXPECT_EQ(halves.elements(), 5U);
  EXPECT_EQ(halves.low_count(), 2U);
  EXPECT_EQ(halves.middle_count(), 3U);
  EXPECT_EQ(halves.low(0).sorted().sums, std::vector<double>{0.0});
  EXPECT_EQ(halves.low(1).sorted().sums, (std::vector<double>{1.0, 2.0}));
  EXPECT_EQ(halves.low(2).sorted().sums, std::vector<double>{3.0});
  EXPECT_EQ(halves.middle(2).sorted().sums, (std::vector<double>{12.0, 20.0, 24.0}));
  EXPECT_EQ(halves.middle(3).sorted().sums, std::vector<double>{28.0});
}

TEST(ElementHalves, KeepAsManyEqualSumsAsCanEnter) {
  const std::vector<double> equal(8, 0.25);
  const OrderTerms one(equal, 3, Signs::plus, {.nearest = 4, .one_per_difference = true});
  EXPECT_EQ(ElementHalves(one, 4, 4, 1).middle(2).sorted().sums.size(), 1U);
  const OrderTerms four(equal, 3, Signs::plus, {.nearest = 4, .one_per_difference = false});
  EXPECT_EQ(ElementHalves(four, 4, 4, 1).middle(2).sorted().sums.size(), 4U);
}

TEST(ElementHalves, AreTheSameOnTwoThreads) {
  std::vector<double> values;
  for (int i = 0; i < 21; ++i) values.push_back(1.0 / (i + 3));
  const OrderTerms terms(values, 6, Signs::plus_and_minus, {});
  const ElementHalves one(terms, 10, 11, 1);
  const ElementHalves two(terms, 10, 11, 2);
  for (std::uint32_t m = 0; m <= 6; ++m) {
    EXPECT_EQ(two.low(m).sorted().numbers, one.low(m).sorted().numbers);
    EXPECT_EQ(two.middle(m).sorted().numbers, one.middle(m).sorted().numbers);
  }
}

}  // namespace
}  // namespace kov
