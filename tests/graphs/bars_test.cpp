#include "graphs/bars.h"

#include <gtest/gtest.h>

#include "graphs/graph1_desk.h"
#include "text/integers.h"

namespace kov {
namespace {

/// "left-right=value", those of zero as well.
std::string text_of(const std::vector<Bar>& bars) {
  std::string text;
  for (const Bar& bar : bars) {
    text += (text.empty() ? "" : " ") + int_text(static_cast<std::int64_t>(bar.left)) + "-" +
            int_text(static_cast<std::int64_t>(bar.right)) + "=" +
            int_text(static_cast<std::int64_t>(bar.value));
  }
  return text;
}

std::vector<Bar> bars_of_qre(const Graph1Desk& desk) { return bars_of(desk.par, desk.par.curve(cb0qre)); }

using Points = std::vector<CurvePoint>;

TEST(Bars, StandInTheMiddleOfTheirX) {
  Graph1Desk desk;
  desk.set(5, 3);
  desk.calculate(100);
  EXPECT_EQ(text_of(bars_of_qre(desk)), "0-25=0 25-75=3 75-100=0");
  EXPECT_EQ(bars_of_qre(desk)[1].middle, 50);
}

TEST(Bars, AreOneUnitWide) {
  Graph1Desk desk;
  desk.set(0, 3);
  desk.set(2, -4);
  desk.calculate(40);
  EXPECT_EQ(text_of(bars_of_qre(desk)), "0-5=0 5-15=3 15-25=0 25-35=-4 35-40=0");
}

TEST(Bars, OfDoubleWidthTouch) {
  Graph1Desk desk;
  desk.cph.setkmi_1("Graph1_BarDbl_Fill0", 1);
  desk.set(0, 3);
  desk.set(4, -4);
  desk.calculate(60);
  EXPECT_EQ(text_of(bars_of_qre(desk)), "0-20=3 20-40=0 40-60=-4");
}

TEST(Bars, ThatAreFilledReachTheRightEdge) {
  Graph1Desk desk;
  desk.cph.setkmi_1("Graph1_BarDbl_Fill0", 2);
  desk.set(0, 3);
  desk.set(2, -4);
  desk.calculate(40);
  EXPECT_EQ(text_of(bars_of_qre(desk)), "0-5=0 5-15=3 15-25=3 25-35=-4 35-40=-4");
}

TEST(Bars, OfLessThanAPixelAreColumns) {
  Graph1Desk desk;
  for (std::int32_t k1 = 0; k1 < 7; ++k1) desk.set(k1, 1);
  desk.calculate(4);
  EXPECT_EQ(text_of(bars_of_qre(desk)), "0-1=1 1-2=2 2-3=2 3-4=2");
  EXPECT_EQ(bars_of_qre(desk)[1].middle, 1.5);
}

/// One pixel for each x: the last column is that of the largest x, and xmax has no room for a bar.
TEST(Bars, OfExactlyOnePixelAreColumnsToo) {
  Graph1Desk desk;
  desk.set(0, 1);
  desk.set(1, 2);
  desk.calculate(3);
  EXPECT_EQ(text_of(bars_of_qre(desk)), "0-1=0 1-2=1 2-3=2");
}

/// Whatever the sizes: whole pixels, none left out, none twice.
TEST(Bars, TileTheImage) {
  for (const std::int32_t mode : {0, 1, 2}) {
    for (std::int32_t count = 1; count < 60; count += 7) {
      for (int width = 1; width < 700; width += 13) {
        Graph1Desk desk;
        desk.cph.setkmi_1("Graph1_BarDbl_Fill0", mode);
        for (std::int32_t k1 = 0; k1 < count; ++k1) desk.set(k1 * 2, k1 + 1);
        ASSERT_EQ(desk.calculate(width), G1Outcome::calculated);
        const std::vector<Bar> bars = bars_of_qre(desk);
        for (std::size_t i = 0; i < bars.size(); ++i) {
          ASSERT_LT(bars[i].left, bars[i].right);
          ASSERT_EQ(bars[i].left, static_cast<int>(bars[i].left));
          if (i > 0) {
            ASSERT_EQ(bars[i - 1].right, bars[i].left) << count << ' ' << width << ' ' << mode;
          }
        }
        ASSERT_GE(bars.front().left, 0);
        ASSERT_LE(bars.back().right, width);
      }
    }
  }
}

TEST(LineOfBars, IsTheirOutlineWithVerticalEdges) {
  const std::vector<Bar> bars = {{0, 5, 10, 0}, {10, 15, 20, 3}, {20, 25, 30, -4}, {30, 35, 40, 0}};
  const Points expected = {{0, 0}, {10, 0}, {10, 3}, {20, 3}, {20, -4}, {30, -4}, {30, 0}, {40, 0}};
  EXPECT_EQ(line_of_bars(bars, 40, true), expected);
}

TEST(LineOfBars, IsAtZeroWhereNoBarStands) {
  const std::vector<Bar> bars = {{10, 20, 30, 3}, {50, 60, 70, 2}};
  const Points expected = {{0, 0},  {10, 0}, {10, 3}, {30, 3}, {30, 0},
                           {50, 0}, {50, 2}, {70, 2}, {70, 0}, {90, 0}};
  EXPECT_EQ(line_of_bars(bars, 90, true), expected);
}

TEST(LineOfBars, JoinsTheMiddlesOtherwise) {
  const std::vector<Bar> bars = {{0, 0, 5, 0}, {5, 10, 15, 3}, {15, 20, 25, -4}};
  EXPECT_EQ(line_of_bars(bars, 30, false), (Points{{0, 0}, {10, 3}, {20, -4}}));
}

}  // namespace
}  // namespace kov
