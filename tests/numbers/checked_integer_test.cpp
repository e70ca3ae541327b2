#include "numbers/checked_integer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

#include "numbers/errors.h"

namespace kov {
namespace {

constexpr std::int32_t lowest = INT32_MIN;
constexpr std::int32_t highest = INT32_MAX;

struct Row {
  std::int32_t a;
  std::int32_t b;
  std::int32_t result;
  bool overflow;
};

// clang-format off
constexpr Row additions[] = {
    {0, 0, 0, false},
    {2, 3, 5, false},
    {-2, 3, 1, false},
    {2147483645, 1, 2147483646, false},
    {2147483646, 1, 1, true},
    {1, 2147483646, 1, true},
    {1073741823, 1073741823, 2147483646, false},
    {1073741823, 1073741824, 1, true},
    {highest, 1, 1, true},
    {1, highest, 1, true},
    {-2147483646, -1, -2147483647, false},
    {-2147483647, -1, 1, true},
    {-1, -2147483647, 1, true},
    {-1073741824, -1073741823, -2147483647, false},
    {-1073741824, -1073741824, 1, true},
    {lowest, -1, 1, true},
    // No test where the signs differ, and a zero has either sign: what is beyond the range stays so.
    {0, highest, highest, false},
    {highest, 0, highest, false},
    {lowest, 0, lowest, false},
    {lowest, highest, -1, false},
    {highest, lowest, -1, false},
    {lowest, 1, -2147483647, false},
    // But for a zero on the left and a negative number on the right.
    {0, -2147483647, -2147483647, false},
    {0, lowest, 1, true},
};

constexpr Row multiplications[] = {
    {0, 0, 0, false},
    {0, 5, 0, false},
    {5, 0, 0, false},
    {0, -5, 0, false},
    {-5, 0, 0, false},
    {0, highest, 0, false},
    {0, lowest, 0, false},
    {lowest, 0, 0, false},
    {highest, 0, 0, false},
    {3, 4, 12, false},
    {3, -4, -12, false},
    {-3, 4, -12, false},
    {-3, -4, 12, false},
    {46340, 46340, 2147395600, false},
    {46341, 46341, 1, true},
    {65536, 65536, 1, true},
    {1, 2147483646, 2147483646, false},
    {2147483646, 1, 2147483646, false},
    {1, highest, 1, true},
    {highest, 1, 1, true},
    {2, 1073741823, 2147483646, false},
    {2, 1073741824, 1, true},
    {1, -2147483647, -2147483647, false},
    {-2147483647, 1, -2147483647, false},
    {1, lowest, 1, true},
    {lowest, 1, 1, true},
    {2, -1073741823, -2147483646, false},
    {2, -1073741824, 1, true},
    {-1073741824, 2, 1, true},
    {-1, -2147483646, 2147483646, false},
    {-2147483646, -1, 2147483646, false},
    {-1, -2147483647, 1, true},
    {-2147483647, -1, 1, true},
    {lowest, -1, 1, true},
    {-1, lowest, 1, true},
    {-1, highest, -2147483647, false},
    {highest, -1, -2147483647, false},
    {-2, -1073741823, 2147483646, false},
    {-2, -1073741824, 1, true},
    {lowest, lowest, 1, true},
    {highest, highest, 1, true},
    {lowest, highest, 1, true},
};
// clang-format on

TEST(CheckedInteger, Additions) {
  for (const Row& row : additions) {
    ratyp_overflow = false;
    EXPECT_EQ(add_checked(row.a, row.b), row.result) << row.a << " + " << row.b;
    EXPECT_EQ(ratyp_overflow, row.overflow) << row.a << " + " << row.b;
  }
}

TEST(CheckedInteger, Multiplications) {
  for (const Row& row : multiplications) {
    ratyp_overflow = false;
    EXPECT_EQ(mul_checked(row.a, row.b), row.result) << row.a << " * " << row.b;
    EXPECT_EQ(ratyp_overflow, row.overflow) << row.a << " * " << row.b;
  }
}

TEST(CheckedInteger, SuccessLeavesTheFlagSet) {
  ratyp_overflow = true;
  add_checked(1, 2);
  mul_checked(3, 4);
  mul_checked(0, 0);
  EXPECT_TRUE(ratyp_overflow);
}

TEST(CheckedInteger, EveryThreadHasItsFlag) {
  ratyp_overflow = false;
  bool flag_of_the_other = false;
  std::thread([&] {
    add_checked(nu_max_int, 1);
    flag_of_the_other = ratyp_overflow;
  }).join();
  EXPECT_TRUE(flag_of_the_other);
  EXPECT_FALSE(ratyp_overflow);
}

TEST(CheckedInteger, Limits) {
  EXPECT_EQ(nu_max_int, 2147483646);
  EXPECT_EQ(nu_min_int, -2147483647);
  EXPECT_NO_THROW(require_negative_minimum(nu_min_int));
  for (const std::int32_t minimum : {0, 1, highest}) {
    try {
      require_negative_minimum(minimum);
      ADD_FAILURE() << minimum << " was accepted";
    } catch (const program_error& error) {
      EXPECT_STREQ(error.what(), "nu_min_int<0 necessary");
    }
  }
}

TEST(CheckedInteger, GreatestCommonDivisor) {
  struct Divisor {
    std::int32_t a;
    std::int32_t b;
    std::uint32_t result;
  };
  // clang-format off
  constexpr Divisor divisors[] = {
      {0, 0, 0},
      {0, 7, 7},
      {7, 0, 7},
      {0, -7, 7},
      {1, 1, 1},
      {12, 18, 6},
      {-12, 18, 6},
      {12, -18, 6},
      {-12, -18, 6},
      {17, 31, 1},
      {lowest, 0, 2147483648U},
      {0, lowest, 2147483648U},
      {lowest, lowest, 2147483648U},
      {lowest, 6, 2},
      {lowest, 1073741824, 1073741824},
      {lowest, highest, 1},
      {highest, highest, 2147483647U},
  };
  // clang-format on
  for (const Divisor& row : divisors) EXPECT_EQ(gcd(row.a, row.b), row.result) << row.a << ", " << row.b;
}

TEST(CheckedInteger, ExactDivision) {
  struct Quotient {
    std::int32_t a;
    std::uint32_t divisor;
    std::int32_t result;
  };
  // clang-format off
  constexpr Quotient quotients[] = {
      {0, 5, 0},
      {15, 5, 3},
      {-15, 5, -3},
      {highest, 2147483647U, 1},
      {lowest, 1, lowest},
      {lowest, 2, -1073741824},
      {lowest, 2147483648U, -1},
      {0, 2147483648U, 0},
  };
  // clang-format on
  for (const Quotient& row : quotients) {
    EXPECT_EQ(divide_exactly(row.a, row.divisor), row.result) << row.a << " / " << row.divisor;
  }
}

TEST(InExactRange, EndsOneShortOfTheMachineRange) {
  for (const std::int64_t inside : {0L, 2147483646L, -2147483647L})
    EXPECT_TRUE(in_exact_range(inside)) << inside;
  for (const std::int64_t outside : {2147483647L, -2147483648L, INT64_MAX, INT64_MIN}) {
    EXPECT_FALSE(in_exact_range(outside)) << outside;
  }
}

TEST(WithinExactRange, HoldsForDoublesAtTheSameEnds) {
  for (const double inside : {0.0, 2147483646.0, -2147483647.0})
    EXPECT_EQ(within_exact_range(inside), 1U) << inside;
  for (const double outside : {2147483647.0, -2147483648.0, 1e300, -1e300, std::nan("")}) {
    EXPECT_EQ(within_exact_range(outside), 0U) << outside;
  }
  EXPECT_EQ(not_above_exact_range(2147483646.0), 1U);
  EXPECT_EQ(not_above_exact_range(-1e300), 1U);
  EXPECT_EQ(not_above_exact_range(2147483647.0), 0U);
  EXPECT_EQ(not_above_exact_range(std::nan("")), 0U);
}

}  // namespace
}  // namespace kov
