#include "sums/sums_display.h"

#include <gtest/gtest.h>

#include "text/integers.h"

namespace kov {
namespace {

TEST(SumsDisplay, Headings) {
  ASSERT_EQ(Slsums1_columns, 4);
  EXPECT_EQ(Slsums1_heading(0), "");
  EXPECT_EQ(Slsums1_heading(1), "          Sum 1");
  EXPECT_EQ(Slsums1_heading(2), "          Sum 2");
  EXPECT_EQ(Slsums1_heading(3), "     Sum total");
}

TEST(SumsDisplay, Labels) {
  const char* const expected[] = {
      "s   : cnt", "s   : Sum  q  ", "s   : Sum  q   / cnt", "s   : Sum| q |^2", "s   : Sum| q |^2/cnt",
      "s/s1: cnt", "s/s1: Sum  q  ", "s/s1: Sum  q   / cnt", "s/s1: Sum| q |^2", "s/s1: Sum| q |^2/cnt",
      "s/s2: cnt", "s/s2: Sum  q  ", "s/s2: Sum  q   / cnt", "s/s2: Sum| q |^2", "s/s2: Sum| q |^2/cnt",
      "s/st: cnt", "s/st: Sum  q  ", "s/st: Sum  q   / cnt", "s/st: Sum| q |^2", "s/st: Sum| q |^2/cnt",
  };
  ASSERT_EQ(Slsums1_rows, 21);
  for (int row = 1; row < Slsums1_rows; ++row) EXPECT_EQ(Slsums1_label(row), expected[row - 1]);
}

/// Sums in which every value and every ratio is another number: value 100*row + k, ratio
/// 1000*(divisor + 1) + 100*row + k.
RangeSums distinct_sums() {
  RangeSums sums;
  for (std::size_t row = 0; row < sum_row_count; ++row) {
    for (std::size_t k = 0; k < sum_quantity_count; ++k) {
      const auto number = static_cast<std::int32_t>(100 * row + k);
      sums[row].value[k] = number;
      for (std::size_t divisor = 0; divisor < sum_row_count; ++divisor) {
        sums[row].ratio[divisor][k] = number + 1000 * static_cast<std::int32_t>(divisor + 1);
      }
    }
  }
  return sums;
}

TEST(SumsDisplay, EachResultStandsInItsCell) {
  const RangeSums sums = distinct_sums();
  for (int form = 0; form < 4; ++form) {
    for (int k = 0; k < 5; ++k) {
      for (int column = 1; column <= 3; ++column) {
        const int expected = 1000 * form + 100 * (column - 1) + k;
        EXPECT_EQ(Slsums1_result(sums, NumberDisplay{}, column, form * 5 + k + 1), int_text(expected));
      }
    }
  }
}

TEST(SumsDisplay, ARatioThatDoesNotExistIsBlank) {
  RangeSums sums = distinct_sums();
  sums[sum_range2].ratio[sum_range1][sum_q].reset();
  EXPECT_EQ(Slsums1_result(sums, NumberDisplay{}, 2, 7), "");
  EXPECT_EQ(Slsums1_result(sums, NumberDisplay{}, 1, 7), "1001");
}

TEST(SumsDisplay, HonoursTheNumberDisplay) {
  RangeSums sums;
  sums[sum_total].value[sum_q] = cotyp(2, 3, -1, 3);
  sums[sum_total].ratio[sum_range1][sum_q] = cotyp(1, 3, 0, 1);
  EXPECT_EQ(Slsums1_result(sums, {.as_float = true, .digits = 4}, 3, 2), "0.6667-0.3333i");
  EXPECT_EQ(Slsums1_result(sums, {.as_float = false, .digits = 4}, 3, 2), "2/3-1/3i");
  EXPECT_EQ(Slsums1_result(sums, {.as_float = true, .digits = 2}, 3, 7), "0.33");
  EXPECT_EQ(Slsums1_result(sums, {.as_float = false, .digits = 2}, 3, 7), "1/3");
}

}  // namespace
}  // namespace kov
