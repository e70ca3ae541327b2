#include "numbers/quick_floating.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "numbers/powers_of_ten.h"
#include "text/integers.h"

namespace kov::test {
namespace {

/// What the library says: "d.dddddddddddddde-xx" without the point.
Decimal15 decimal_of_library(double value) {
  char text[40];
  const auto written =
      std::to_chars(text, text + sizeof text, std::abs(value), std::chars_format::scientific, 14);
  const std::string digits = std::string(text, 1) + std::string(text + 2, 14);
  const std::string exponent(text + 17, written.ptr);
  return {std::stoull(digits), std::stoi(exponent)};
}

/// All of its digits decide, the last of them or none.
double random_double(std::mt19937_64& random) {
  switch (random() % 5) {
    case 0:
      return std::bit_cast<double>(random());
    case 1:
      return std::ldexp(static_cast<double>(random() >> (random() % 60)),
                        static_cast<int>(random() % 160) - 80);
    case 2:
      return static_cast<double>(random() % 1000000) / static_cast<double>(1 + random() % 1000);
    case 3:
      return static_cast<double>(random() % 1000000000) * std::pow(10.0, -static_cast<int>(random() % 30));
    default: {
      const double power = std::pow(10.0, static_cast<int>(random() % 600) - 300);
      return std::bit_cast<double>(std::bit_cast<std::uint64_t>(power) + random() % 9 - 4);
    }
  }
}

TEST(Decimal15, IsWhatTheLibraryGivesOrNothing) {
  std::mt19937_64 random(41);
  int given = 0;
  constexpr int rounds = 1'000'000;
  for (int i = 0; i < rounds; ++i) {
    const double value = random_double(random);
    if (!std::isfinite(value) || value == 0.0) continue;
    const auto decimal = decimal15(value);
    if (!decimal) continue;
    ++given;
    const Decimal15 expected = decimal_of_library(value);
    ASSERT_EQ(decimal->significand, expected.significand) << value;
    ASSERT_EQ(decimal->exponent, expected.exponent) << value;
  }
  EXPECT_GT(given, rounds / 100 * 95);
}

TEST(Decimal15, LeavesTiesToTheLibrary) {
  // The sixteenth digit is a 5, and the last.
  EXPECT_FALSE(decimal15(500000000000000.5));
  EXPECT_FALSE(decimal15(2000000000000005.0));
  EXPECT_FALSE(decimal15(-4503599627370495.0));
  ASSERT_TRUE(decimal15(2000000000000006.0));
  EXPECT_EQ(decimal15(2000000000000006.0)->significand, 200000000000001U);
}

TEST(Decimal15, CarriesIntoTheNextExponent) {
  const auto decimal = decimal15(9.9999999999999999e5);
  ASSERT_TRUE(decimal);
  EXPECT_EQ(decimal->significand, 100000000000000U);
  EXPECT_EQ(decimal->exponent, 6);
}

TEST(Decimal15, LeavesTheEndsOfTheRangeAndWhatIsNotFiniteToTheLibrary) {
  for (const double value :
       {0.0, 5e-324, 1.7976931348623157e308, 2.3e-308, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
    EXPECT_FALSE(decimal15(value)) << value;
  }
}

TEST(NearestDouble, IsWhatTheLibraryReadsOrNothing) {
  std::mt19937_64 random(42);
  int given = 0;
  constexpr int rounds = 1'000'000;
  for (int i = 0; i < rounds; ++i) {
    const std::uint64_t significand = random() >> (random() % 64);
    const int range = i % 2 == 0 ? 30 : 320;
    const int exponent = static_cast<int>(random() % (2 * static_cast<std::uint64_t>(range))) - range;
    const auto value = nearest_double(significand, exponent);
    if (!value) continue;
    ++given;
    const std::string text = std::to_string(significand) + "e" + std::to_string(exponent);
    double expected = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), expected);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(*value), std::bit_cast<std::uint64_t>(expected)) << text;
  }
  EXPECT_GT(given, rounds / 100 * 90);
}

TEST(NearestDouble, LeavesTiesToTheLibrary) {
  constexpr std::uint64_t two_to_53 = std::uint64_t{1} << 53;
  EXPECT_EQ(nearest_double(two_to_53, 0), 9007199254740992.0);
  EXPECT_FALSE(nearest_double(two_to_53 + 1, 0));
  EXPECT_EQ(nearest_double(two_to_53 + 2, 0), 9007199254740994.0);
  EXPECT_FALSE(nearest_double((two_to_53 + 1) * 2, 0));
  EXPECT_EQ(nearest_double(0, -300), 0.0);
}

/// A natural number in 32-bit limbs, the lowest first.
class Natural {
 public:
  explicit Natural(uint128 value) {
    for (; value != 0; value >>= 32) limbs_.push_back(static_cast<std::uint32_t>(value));
  }
  void multiply(std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::uint32_t& limb : limbs_) {
      carry += std::uint64_t{limb} * factor;
      limb = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
    if (carry != 0) limbs_.push_back(static_cast<std::uint32_t>(carry));
  }
  void multiply(std::uint32_t factor, int times) {
    for (int i = 0; i < times; ++i) multiply(factor);
  }
  friend bool operator<(const Natural& a, const Natural& b) {
    if (a.limbs_.size() != b.limbs_.size()) return a.limbs_.size() < b.limbs_.size();
    return std::lexicographical_compare(a.limbs_.rbegin(), a.limbs_.rend(), b.limbs_.rbegin(),
                                        b.limbs_.rend());
  }

 private:
  std::vector<std::uint32_t> limbs_;
};

/// significand * 2^exponent < 10^p, or equal to it, by natural numbers on both sides.
bool above_power(uint128 significand, int exponent, int p) {
  Natural left(significand);
  Natural right(1);
  left.multiply(2, std::max(exponent, 0));
  right.multiply(2, std::max(-exponent, 0));
  left.multiply(10, std::max(-p, 0));
  right.multiply(10, std::max(p, 0));
  return right < left;
}

TEST(PowerOfTen, LiesBetweenItsBounds) {
  for (int p = -largest_power_of_ten; p <= largest_power_of_ten; ++p) {
    const PowerOfTen power = power_of_ten(p);
    ASSERT_EQ(static_cast<int>(power.significand >> 127), 1) << p;
    ASSERT_FALSE(above_power(power.significand, power.exponent, p)) << p;
    // What is cut off at the upper end is within the 2^128 of the significand.
    if (power.significand + power_of_ten_error < power.significand) continue;
    ASSERT_TRUE(above_power(power.significand + power_of_ten_error, power.exponent, p)) << p;
  }
}

}  // namespace
}  // namespace kov::test
