#include "tools/sum_tolerance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace kov {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

bool exact(const std::vector<double>& values, std::uint32_t members) {
  return SumTolerance(values, members).exact();
}

TEST(SumTolerance, KnowsSumsThatAreExactInAnyOrder) {
  EXPECT_TRUE(exact({0.25, -7.5, 0.0, 1024.0}, 5));
  EXPECT_TRUE(exact({}, 1));
  EXPECT_TRUE(exact({0.0}, 3));
  EXPECT_TRUE(exact({std::ldexp(1.0, -40), 1.0}, 2));
  EXPECT_FALSE(exact({std::ldexp(1.0, -52), 1.0}, 2));
  EXPECT_FALSE(exact({1.0 / 3.0}, 2));
  EXPECT_FALSE(exact({std::ldexp(1.0, -1074)}, 1)) << "too small to be added to 1";
  EXPECT_FALSE(exact({std::ldexp(1.0, 53)}, 2));
  EXPECT_FALSE(exact({inf}, 2)) << "a square may be infinite";
  EXPECT_FALSE(exact({1e308}, 100));
}

TEST(SumTolerance, TheStepIsWhatAllDifferencesAreMultiplesOf) {
  EXPECT_EQ(SumTolerance(std::vector<double>{0.75, 2.0}, 2).step(), 0.25);
  EXPECT_EQ(SumTolerance(std::vector<double>{6.0, 2.0}, 2).step(), 1.0) << "1 is one of the numbers";
  EXPECT_EQ(SumTolerance(std::vector<double>{0.1}, 2).step(), std::ldexp(1.0, -53));
}

TEST(SumTolerance, ExactSumsNeedNoToleranceAndTiesNoWindow) {
  const SumTolerance tolerance(std::vector<double>{0.25, 1.5}, 3);
  EXPECT_EQ(tolerance.window(0.5, true, 3.0, 2.0), 0.5);
  EXPECT_EQ(tolerance.window(0.5, false, 3.0, 2.0), 0.25);
  EXPECT_EQ(tolerance.window(0.0, false, 3.0, 2.0), -0.25);
  EXPECT_EQ(tolerance.window(inf, false, 3.0, 2.0), inf);
}

TEST(SumTolerance, NothingIsSaidOfInfiniteSums) {
  const SumTolerance tolerance(std::vector<double>{1e308, 1e308}, 2);
  EXPECT_EQ(tolerance.window(0.5, true, inf, 1e308), inf);
  EXPECT_EQ(tolerance.window(0.5, true, -inf, 1e308), inf);
  EXPECT_EQ(tolerance.window(0.5, true, 0.0, inf), inf);
}

/// The half that was summed up before, in its own order, against the sum in the defined order.
TEST(SumTolerance, CoversTheRoundingOfEitherOrder) {
  std::mt19937_64 random(5);
  for (int i = 0; i < 200000; ++i) {
    const double scale = std::ldexp(1.0, std::uniform_int_distribution(-20, 20)(random));
    std::vector<double> members(std::uniform_int_distribution<std::size_t>(2, 9)(random));
    for (double& member : members) member = std::uniform_real_distribution(-scale, scale)(random);
    const std::size_t low = std::uniform_int_distribution<std::size_t>(1, members.size() - 1)(random);
    double partial = 0.0;
    for (std::size_t m = members.size(); m-- > low;) partial += members[m];
    double half = 0.0;
    double reach = 0.0;
    for (std::size_t m = 0; m < low; ++m) half += members[m];
    for (std::size_t m = 0; m < low; ++m) reach += std::fabs(members[m]);
    double sum = partial;
    for (std::size_t m = low; m-- > 0;) sum += members[m];
    const double difference = std::fabs(sum - 1.0);
    const SumTolerance tolerance(members, static_cast<std::uint32_t>(members.size()));
    const double window = tolerance.window(difference, true, partial, reach);
    EXPECT_LE((1.0 - partial) - window, half);
    EXPECT_GE((1.0 - partial) + window, half);
    EXPECT_LE(window, difference + 1e-13 * (1.0 + std::fabs(partial) + reach + difference))
        << "not for nothing";
  }
}

TEST(Reach, IsTheSumOfTheLargestSizes) {
  const std::vector<double> values = {3.0, 1.0, -2.0, -5.0};
  const Reach reach(values, 2);
  const double expected[5][3] = {{0, 0, 0}, {0, 3, 3}, {0, 3, 4}, {0, 3, 5}, {0, 5, 8}};
  for (std::uint32_t t = 0; t <= 4; ++t) {
    for (std::uint32_t m = 0; m <= 2; ++m) EXPECT_EQ(reach(m, t), expected[t][m]) << m << " of " << t;
  }
}

}  // namespace
}  // namespace kov
