#include "tools/area_axis.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace kov {
namespace {

std::vector<std::int64_t> values(const AreaAxis& axis) {
  std::vector<std::int64_t> result;
  for (std::int64_t i = 0; i < axis.count(); ++i) result.push_back(axis.value(i));
  return result;
}

using Values = std::vector<std::int64_t>;

TEST(AreaAxis, TakesStepsFromItsLowEnd) {
  EXPECT_EQ(values({2, 1}), (Values{-2, -1, 0, 1, 2}));
  EXPECT_EQ(values({3, 2}), (Values{-3, -1, 1, 3}));
  EXPECT_EQ(values({3, 4}), (Values{-3, 1}));
  EXPECT_EQ(values({3, 7}), Values{-3});
  EXPECT_EQ(values({0, 5}), Values{0});
  EXPECT_EQ(values({-1, 5}), Values{});
}

TEST(AreaAxis, ReachesTheEndsOfTheIntegers) {
  const AreaAxis every(INT32_MAX, 1);
  EXPECT_EQ(every.count(), 4'294'967'295);
  EXPECT_EQ(every.value(every.count() - 1), INT32_MAX);
  const AreaAxis two(INT32_MAX, INT32_MAX);
  EXPECT_EQ(values(two), (Values{-INT32_MAX, 0, INT32_MAX}));
}

TEST(AreaAxis, MiddleIsNearestToZero) {
  for (std::int64_t range = 0; range < 12; ++range) {
    for (std::int64_t step = 1; step < 26; ++step) {
      const AreaAxis axis(range, step);
      const std::int64_t nearest = axis.value(axis.middle());
      for (const std::int64_t value : values(axis)) EXPECT_LE(std::abs(nearest), std::abs(value));
    }
  }
}

TEST(SpanAroundZero, HoldsExactlyWhatIsInside) {
  for (std::int64_t range = -1; range < 12; ++range) {
    for (std::int64_t step = 1; step < 14; ++step) {
      for (std::int64_t limit = -1; limit < 13; ++limit) {
        const auto inside = [&](std::int64_t value) { return std::abs(value) <= limit; };
        const AreaAxis axis(range, step);
        const AreaSpan span = span_around_zero(axis, inside);
        for (std::int64_t i = 0; i < axis.count(); ++i) {
          EXPECT_EQ(span.begin <= i && i < span.end, inside(axis.value(i)))
              << range << ' ' << step << ' ' << limit;
        }
      }
    }
  }
}

}  // namespace
}  // namespace kov
