#include "graphs/distinct_values.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <set>

#include "graphs/double_order.h"

namespace kov {
namespace {

TEST(DoubleOrder, RisesWithTheValueAndLeadsBack) {
  constexpr double largest = std::numeric_limits<double>::max();
  const std::vector<double> rising = {-largest, -1.5, -1, -5e-324, -0.0, 0.0, 5e-324, 1, 1.5, largest};
  for (std::size_t i = 0; i < rising.size(); ++i) {
    const std::uint64_t order = order_of_double(rising[i]);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(double_of_order(order)), std::bit_cast<std::uint64_t>(rising[i]));
    if (i > 0) {
      EXPECT_GT(order, order_of_double(rising[i - 1])) << rising[i];
    }
  }
  EXPECT_EQ(order_of_double(std::nextafter(1.0, 2.0)), order_of_double(1.0) + 1);
}

void expect_as_a_set(const std::vector<double>& values) {
  const std::set<double> expected(values.begin(), values.end());
  const std::vector<double> found = distinct_values(values);
  ASSERT_EQ(found.size(), expected.size());
  EXPECT_TRUE(std::equal(found.begin(), found.end(), expected.begin()));
}

TEST(DistinctValues, FewAreSortedAndOnce) {
  EXPECT_TRUE(distinct_values({}).empty());
  EXPECT_EQ(distinct_values({3}), std::vector<double>{3});
  EXPECT_EQ(distinct_values({3, -1, 3, 0.5, -1}), (std::vector<double>{-1, 0.5, 3}));
}

TEST(DistinctValues, ZeroHasNoSign) {
  const std::vector<double> found = distinct_values({-0.0, 0.0, -0.0});
  ASSERT_EQ(found.size(), 1u);
  EXPECT_FALSE(std::signbit(found[0]));
}

TEST(DistinctValues, OfAnyKindAndNumberAreThoseOfAnOrderedSet) {
  std::mt19937_64 random(11);
  std::uniform_real_distribution<double> anywhere(-1, 1);
  const std::vector<std::function<double()>> kinds = {
      [&] { return anywhere(random); },
      [&] { return std::ldexp(anywhere(random), static_cast<int>(random() % 2000) - 1000); },
      [&] { return std::round(1000 * anywhere(random)); },
      // Alike in all digits but the last ones.
      [&] { return 1 + 1e-12 * anywhere(random); },
      [&] { return 7.0; },
      [&] { return 5e-324 * static_cast<double>(random() % 100'000); },
      // One far away makes all others alike.
      [&] { return random() % 20'000 == 0 ? 1.7e308 : 1 + 1e-9 * anywhere(random); },
      [&] { return random() % 2 == 0 ? 1.7e308 : -1.7e308; },
  };
  for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
    for (const std::size_t count : {10U, 1999U, 2000U, 2001U, 50'000U, 300'000U}) {
      SCOPED_TRACE(testing::Message() << "kind " << kind << ", " << count << " values");
      std::vector<double> values(count);
      for (double& value : values) value = kinds[kind]();
      expect_as_a_set(values);
    }
  }
}

TEST(DistinctValues, SortedEitherWayStaySorted) {
  std::vector<double> values;
  for (int i = -20'000; i < 20'000; ++i) values.push_back(i / 3.0);
  expect_as_a_set(values);
  expect_as_a_set({values.rbegin(), values.rend()});
}

}  // namespace
}  // namespace kov
