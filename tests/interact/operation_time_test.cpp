#include "interact/operation_time.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;

struct Way {
  std::int64_t from;
  std::int64_t to;
  std::int64_t position;
  double done;
};

class DoneFraction : public ::testing::TestWithParam<Way> {};

TEST_P(DoneFraction, IsThePartOfTheWay) {
  EXPECT_DOUBLE_EQ(done_fraction(GetParam().from, GetParam().to, GetParam().position), GetParam().done);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, DoneFraction, ::testing::Values(
    Way{0, 10, 0, 0.0},
    Way{0, 10, 4, 0.4},
    Way{0, 10, 10, 1.0},
    Way{-100, 300, 200, 0.75},
    Way{0, 10, -1, 0.0},
    Way{0, 10, 11, 1.0},
    Way{5, 5, 5, 0.0},
    Way{7, 5, 6, 0.0},
    Way{INT64_MIN, INT64_MAX, 0, 0.5},
    Way{INT64_MIN, INT64_MAX, INT64_MAX, 1.0}));
// clang-format on

struct Pace {
  milliseconds elapsed;
  double done;
  std::optional<milliseconds> remaining;
};

class RemainingTime : public ::testing::TestWithParam<Pace> {};

TEST_P(RemainingTime, GoesByThePaceSoFar) {
  const OperationTime time = operation_time(GetParam().elapsed, GetParam().done);
  EXPECT_EQ(time.elapsed, GetParam().elapsed);
  EXPECT_EQ(time.remaining, GetParam().remaining);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, RemainingTime, ::testing::Values(
    Pace{milliseconds(1000), 0.0,   std::nullopt},
    Pace{milliseconds(1000), 0.25,  milliseconds(3000)},
    Pace{milliseconds(1000), 0.5,   milliseconds(1000)},
    Pace{milliseconds(1000), 1.0,   milliseconds(0)},
    Pace{milliseconds(0),    0.5,   milliseconds(0)},
    Pace{hours(24),          0.5,   milliseconds(hours(24))},
    Pace{hours(365 * 24),    0.5,   milliseconds(hours(365 * 24))},
    Pace{hours(365 * 24),    0.499, std::nullopt},
    Pace{milliseconds(1000), 1e-300, std::nullopt}));
// clang-format on

}  // namespace
}  // namespace kov
