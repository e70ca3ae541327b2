#include "graphs/value_interval.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

namespace kov {
namespace {

TEST(ValueInterval, JoinedHoldsBoth) {
  EXPECT_EQ((ValueInterval{-1, 2}.joined({0, 5})), (ValueInterval{-1, 5}));
  EXPECT_EQ((ValueInterval{3, 4}.joined({-2, -1})), (ValueInterval{-2, 4}));
}

TEST(ValueInterval, IsZoomedByAPercentageAtEitherEnd) {
  EXPECT_EQ((ValueInterval{0, 10}.zoomed(0)), (ValueInterval{0, 10}));
  EXPECT_EQ((ValueInterval{0, 10}.zoomed(2)), (ValueInterval{-0.2, 10.2}));
  EXPECT_EQ((ValueInterval{-100, 100}.zoomed(30)), (ValueInterval{-160, 160}));
}

TEST(ValueInterval, NoPercentageMakesItEmpty) {
  EXPECT_EQ((ValueInterval{0, 10}.zoomed(-50)), (ValueInterval{0, 10}));
  EXPECT_EQ((ValueInterval{0, 10}.zoomed(-200)), (ValueInterval{0, 10}));
}

TEST(ValueInterval, ASingleValueGetsRoom) {
  EXPECT_EQ((ValueInterval{0, 0}.zoomed(0)), (ValueInterval{-1, 1}));
  EXPECT_EQ((ValueInterval{-4, -4}.zoomed(2)), (ValueInterval{-8, 0}));
  EXPECT_EQ((ValueInterval{0.5, 0.5}.zoomed(2)), (ValueInterval{0, 1}));
}

TEST(ValueInterval, PlacesRunFromZeroToOne) {
  const ValueInterval interval{-2, 8};
  EXPECT_EQ(interval.place_of(-2), 0);
  EXPECT_EQ(interval.place_of(8), 1);
  EXPECT_EQ(interval.place_of(3), 0.5);
}

TEST(ValueInterval, StaysFiniteUpToTheLargestDoubles) {
  for (const ValueInterval& extreme : {ValueInterval{-DBL_MAX, DBL_MAX}, ValueInterval{0, DBL_MAX},
                                       ValueInterval{DBL_MAX, DBL_MAX}, ValueInterval{0, 5e-324}}) {
    for (const std::int32_t percent : {0, 2, 30}) {
      const ValueInterval interval = extreme.zoomed(percent);
      EXPECT_TRUE(std::isfinite(interval.min) && std::isfinite(interval.max));
      EXPECT_LT(interval.min, interval.max);
      EXPECT_EQ(interval.place_of(interval.min), 0);
      EXPECT_EQ(interval.place_of(interval.max), 1);
    }
  }
  EXPECT_EQ((ValueInterval{-DBL_MAX, DBL_MAX}.place_of(0)), 0.5);
}

}  // namespace
}  // namespace kov
