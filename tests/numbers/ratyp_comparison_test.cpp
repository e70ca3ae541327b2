#include <gtest/gtest.h>

#include <limits>

#include "numbers/describe.h"
#include "numbers/ratyp.h"

namespace kov {
namespace {

using test::number;

constexpr std::int32_t lowest = INT32_MIN;
constexpr std::int32_t highest = INT32_MAX;

TEST(RatypComparison, LessThan) {
  struct Row {
    std::string_view a;
    std::string_view b;
    bool less;
    bool greater;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"1/2", "2/3", true, false},
      {"-1/2", "-2/3", false, true},
      {"-1/2", "1/3", true, false},
      {"-1/2", "0", true, false},
      {"0", "1/2", true, false},
      {"0", "0", false, false},
      {"1/2", "1/2", false, false},
      {"-1/2", "-1/2", false, false},
      {"2147483646", "2147483647", true, false},
      {"-2147483648", "-2147483647", true, false},
      {"-2147483648", "2147483647", true, false},
      {"-2147483648", "-2147483648", false, false},
      {"2147483645/2147483646", "2147483646/2147483647", false, false},  // equal as doubles
      {"2147483646/5", "429496730", true, false},
      {"0.5", "1/2", false, false},
      {"0.5", "2/3", true, false},
      {"1/3", "0.5", true, false},
      {"-0.5", "0", true, false},
      {"0.25", "0.5", true, false},
      {"-0.0", "0", false, false},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(number(row.a) < number(row.b), row.less) << row.a << " < " << row.b;
    EXPECT_EQ(number(row.b) < number(row.a), row.greater) << row.b << " < " << row.a;
  }
}

TEST(RatypComparison, LessThanAnInteger) {
  struct Row {
    std::string_view a;
    std::int32_t k;
    bool less;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"-1/2", 0, true},
      {"-1/2", 5, true},
      {"0", 0, false},
      {"0", -1, false},
      {"0", 1, true},
      {"1/2", 0, false},
      {"1/2", -3, false},
      {"1/2", 1, true},
      {"3/2", 1, false},
      {"2", 2, false},
      {"-3/2", -1, true},
      {"-1/2", -1, false},
      {"-2", -2, false},
      {"-2147483648", lowest, false},
      {"-2147483647", lowest, false},
      {"-2147483648", -2147483647, true},
      {"2147483646", highest, true},
      {"1/2147483647", 1, true},
      {"0.5", 1, true},
      {"0.5", 0, false},
      {"-0.5", 0, true},
      {"-0.0", 0, false},
  };
  // clang-format on
  for (const Row& row : rows) EXPECT_EQ(number(row.a) < row.k, row.less) << row.a << " < " << row.k;
}

TEST(RatypComparison, Equality) {
  struct Row {
    std::string_view a;
    std::string_view b;
    bool equal;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"1/2", "2/4", true},
      {"1/2", "-1/2", false},
      {"1/2", "1/3", false},
      {"1/2", "3/2", false},
      {"0", "0/5", true},
      {"1/2", "0.5", true},
      {"0.5", "1/2", true},
      {"1/3", "0.333333333333333", false},
      {"1/3", "0.33333333333333331", true},
      {"0", "0.0", true},
      {"0", "-0.0", true},
      {"0.5", "0.5", true},
      {"0.5", "0.25", false},
      {"-2147483648", "-2147483648.0", true},
      // Apart as fractions, one as doubles: both are exact, so they differ.
      {"2147483645/2147483646", "2147483646/2147483647", false},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(number(row.a) == number(row.b), row.equal) << row.a << " == " << row.b;
    EXPECT_EQ(number(row.a) != number(row.b), !row.equal) << row.a << " != " << row.b;
  }
  const ratyp nan = ratyp::floating(std::numeric_limits<double>::quiet_NaN());
  EXPECT_FALSE(nan == nan);
}

}  // namespace
}  // namespace kov
