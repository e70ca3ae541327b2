#include "tools/comb_count.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kov {
namespace {

TEST(CombCount, CountsChoicesAndSigns) {
  struct Case {
    std::int64_t a;
    int k;
    double count;
  };
  // clang-format off
  constexpr Case cases[] = {
      {1, 1, 2}, {2, 1, 4}, {2, 2, 4}, {5, 3, 80}, {40, 6, 245656320}, {70000, 2, 9799860000},
      {3, 4, 0}, {0, 1, 0}, {7, 0, 1}, {30, 30, 1073741824},
  };
  // clang-format on
  for (const Case& c : cases) EXPECT_EQ(pm_combinations(c.a, c.k), c.count) << c.a << " " << c.k;
}

TEST(CombCount, IsExactBelow2To53) {
  // Pascal's rule with signs: C(a, k) 2^k = C(a - 1, k) 2^k + 2 C(a - 1, k - 1) 2^(k - 1).
  for (int a = 1; a <= 30; ++a) {
    for (int k = 1; k <= a; ++k) {
      EXPECT_EQ(pm_combinations(a, k), pm_combinations(a - 1, k) + 2 * pm_combinations(a - 1, k - 1));
    }
  }
}

TEST(CombCount, ALargeProductDoesNotOverflowWhereTheCountDoesNot) {
  // 70000^64 is beyond the largest double, the count is not.
  EXPECT_TRUE(std::isfinite(pm_combinations(70000, 64)));
  EXPECT_TRUE(std::isinf(pm_combinations(70000, 100)));
}

TEST(CombCount, SumsUpToTheHighestOrder) {
  EXPECT_EQ(pm_combinations_up_to(2, 1), 4.0);
  EXPECT_EQ(pm_combinations_up_to(2, 2), 8.0);
  EXPECT_EQ(pm_combinations_up_to(20, 20), 3486784400.0) << "3^20 - 1";
}

TEST(CombCount, TextShowsAllDigitsOfWhatIsExact) {
  EXPECT_EQ(count_text(0.0), "0");
  EXPECT_EQ(count_text(268259960.0), "268259960");
  EXPECT_EQ(count_text(9007199254740991.0), "9007199254740991");
  EXPECT_EQ(count_text(9007199254740992.0), "9.00719925474099E15");
  EXPECT_EQ(count_text(5.15377520732011e47), "5.15377520732011E47");
}

}  // namespace
}  // namespace kov
