#include "tools/comb_report.h"

#include <gtest/gtest.h>

#include "tools/comb_elements.h"

namespace kov {
namespace {

const CombFileHead head{"20.11.2026 14:03:59", "x.aa1", 17};

CombRequest request(std::size_t candidates) {
  return {.rules = {},
          .elements = comb_elements({0.75, 0.25, -1.5}),
          .candidate_count = candidates,
          .order = 2,
          .table = 7};
}

TEST(CombReport, HeadOfASearchWithinAllElements) {
  EXPECT_EQ(comb_head_text(request(3), head),
            "Searching for realpart-combinations whose sum is nearest to 1.0\n"
            "20.11.2026 14:03:59 = T.M.J h:m:s\n"
            "x.aa1 = source, lattice_point_count = 17\n"
            "scope: Sums1 Range1 table 7\n"
            "output: Respectively the 4 best matches of the sums with 1.0\n"
            "Testing combinations up to order 2 within all 3 Elements of S1\n"
            "18 over 1..2 pm-combinations to test\n");
}

TEST(CombReport, HeadOfASearchOfSquaresWithinTheLargest) {
  CombRequest squares = request(9);
  squares.rules = {.nearest = 1, .one_per_difference = true, .squares = true};
  EXPECT_EQ(comb_head_text(squares, head),
            "Testing sums of squared realparts and pm-sums of realparts\n"
            "20.11.2026 14:03:59 = T.M.J h:m:s\n"
            "x.aa1 = source, lattice_point_count = 17\n"
            "scope: Sums1 Range1 table 7\n"
            "output: Respectively the 1 best matches of the sums with 1.0\n"
            "Testing combinations up to order 2 within the largest 3\n"
            "elements of altogether 9 elements of S1 Range1.\n"
            "18 over 1..2 pm-combinations to test\n");
}

TEST(CombReport, OrderWithBothSigns) {
  auto elements = comb_elements({0.75, 0.25, -1.5});
  elements[2].key.coo[0] = -4;
  elements[2].key.coo[3] = 6;
  elements[2].key.coo[l_position] = 2;
  const OrderResult result{.sums = {{0.0, {0, 1}, 3}, {0.1, {1, 2}, 1}}, .squares = {}, .tested = 12.0};
  EXPECT_EQ(comb_order_text(result, 2, {}, elements),
            "\n###### Results of combinations of order 2\n"
            "pm-combinations: plus-minus sign pattern of summation\n"
            "\n"
            "1: absdiff to 1.0 =0\n"
            "+ 0.75 = lmap[0 0]\n"
            "+ 0.25 = lmap[0 1]\n"
            "\n"
            "2: absdiff to 1.0 =0.1\n"
            "+ 0.25 = lmap[0 1]\n"
            "- -1.5 = lmap[2 -4 0 0 6]\n"
            "\n");
}

TEST(CombReport, OrderWithPlusAloneAndSquares) {
  const auto elements = comb_elements({1.0 / 3.0, -0.5});
  const CombRules rules{.nearest = 1, .one_per_difference = true, .squares = true};
  const OrderResult result{.sums = {{0x1p-53, {0}, 1}}, .squares = {{0.75, {1}, 1}}, .tested = 4.0};
  EXPECT_EQ(comb_order_text(result, 1, rules, elements),
            "\n###### Results of combinations of order 1\n"
            "All nearest sums have positive sign pattern.\n"
            "\n"
            "1: absdiff to 1.0 =1.1102230246251565E-16\n"
            "+ 0.3333333333333333 = lmap[0 0]\n"
            "\n"
            "Sums of squares:\n"
            "1: absdiff to 1.0 =0.75\n"
            "+ 0.25 = lmap[0 1]     (is sqr of -0.5)\n"
            "\n");
}

TEST(CombReport, CountOfWhatWasTested) { EXPECT_EQ(tested_text(18.0), "18 pm-combinations tested\n"); }

}  // namespace
}  // namespace kov
