#include "graphs/curve_stack.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "graphs/map_desk.h"

namespace kov {
namespace {

/// Points at k1 = 0, 1, 2 of the steps 0, 2, 5 and 6, whose quantity is the step + 1 plus k1.
class CurveStackTest : public testing::Test, protected MapDesk {
 protected:
  CurveStackTest() {
    for (const std::int32_t n : {0, 2, 5, 6}) {
      for (std::int32_t k1 = 0; k1 < 3; ++k1) point(n, k1, cotyp(n + 1 + k1));
    }
    set("Graph_y_border_percent", 0);
  }
  CurveStack stack(std::int32_t ny, ImageSize image = {40, 100}) {
    set("Graph2a_ny", ny);
    EXPECT_EQ(calculate(map, image), "");
    const auto stack = PlotMultiple1DGraphsOnGimage2(map, states, cph, person);
    EXPECT_TRUE(stack);
    return stack.value_or(CurveStack{});
  }
  std::string ys(std::int32_t ny) {
    std::string text;
    for (const StackedCurve& curve : stack(ny).curves) text += curve_label(curve.y) + " ";
    return text;
  }

  ValueMap map;
};

TEST_F(CurveStackTest, Curve1IsAtYMaxForAPositiveNyAndAtYMinForANegativeOne) {
  EXPECT_EQ(ys(3), "y = 6 y = 5 y = 2 ");
  EXPECT_EQ(ys(-3), "y = 0 y = 2 y = 5 ");
  EXPECT_EQ(ys(1), "y = 6 ");
  EXPECT_EQ(ys(99), "y = 6 y = 5 y = 2 y = 0 ") << "there are no more rows with points";
}

TEST_F(CurveStackTest, NeitherNoneNorTooManyCurvesAreDrawn) {
  calculate(map, {40, 100});
  EXPECT_FALSE(PlotMultiple1DGraphsOnGimage2(map, states, cph, person));
  EXPECT_EQ(take_reports(), (Reports{"beep", "error: PlotMultiple1DGraphsOnGimage2: ny==0"}));
  for (const char* ny : {"100", "-100", "-2147483648"}) {
    force("Graph2a_ny", ny);
    EXPECT_FALSE(PlotMultiple1DGraphsOnGimage2(map, states, cph, person));
    EXPECT_EQ(take_reports(), (Reports{"beep", "error: PlotMultiple1DGraphsOnGimage2: nyabs>nyabs_max"}))
        << ny;
  }
}

TEST_F(CurveStackTest, AStateIsAColour) {
  states = {1, 2, 0};
  const CurveStack drawn = stack(3);
  EXPECT_EQ(drawn.curves[0].line.colour, curve_colour(curve_blue));
  EXPECT_EQ(drawn.curves[1].line.colour, curve_colour(curve_red));
  EXPECT_EQ(drawn.curves[2].line.colour, curve_colour(curve_unselected));
  const Colour blue = curve_colour(curve_blue);
  const Colour red = curve_colour(curve_red);
  EXPECT_GT(blue.b, 2 * std::max(blue.r, blue.g));
  EXPECT_GT(red.r, 2 * std::max(red.b, red.g));
}

TEST_F(CurveStackTest, StatesDifferInBlackAndWhiteToo) {
  const auto lightness = [](CurveState state) {
    const Colour colour = curve_colour(state);
    return 0.3 * colour.r + 0.59 * colour.g + 0.11 * colour.b;
  };
  EXPECT_GT(lightness(curve_red), lightness(curve_blue) + 40);
  EXPECT_GT(lightness(curve_unselected), lightness(curve_red) + 40);
  EXPECT_LT(lightness(curve_unselected), 255 - 40);
}

TEST_F(CurveStackTest, EachCurveIsHigherByTheOffset) {
  set("Graph2a_max_dypix_per_plot", 10);
  const CurveStack drawn = stack(3);
  // 80 pixels are left for 0 ... 9, the sums of the largest curve.
  EXPECT_EQ(drawn.curves[0].zero, 100);
  EXPECT_EQ(drawn.curves[1].zero, 90);
  EXPECT_EQ(drawn.curves[2].zero, 80);
  EXPECT_EQ(drawn.lower_value, 0);
  EXPECT_DOUBLE_EQ(drawn.upper_value, 9 * 100 / 80.0);
}

TEST_F(CurveStackTest, TheOffsetsTogetherKeepToTheirPercentage) {
  EXPECT_EQ(offset_per_curve(5, 100, 6, 50), 6);
  EXPECT_EQ(offset_per_curve(5, 100, 20, 50), 12.5);
  EXPECT_EQ(offset_per_curve(5, 100, highest_int, 90), 22.5);
  EXPECT_EQ(offset_per_curve(5, 100, 6, 0), 0);
  EXPECT_EQ(offset_per_curve(5, 100, 0, 50), 0);
  EXPECT_EQ(offset_per_curve(1, 100, 6, 50), 0);
  EXPECT_EQ(offset_per_curve(2, 100, 1000, 300), 90) << "something is left for the curves";
  set("Graph2a_max_dypix_per_plot", 1000);
  set("Graph2a_max_dypix_percent", 30);
  EXPECT_DOUBLE_EQ(stack(3).curves[2].zero, 70);
}

TEST_F(CurveStackTest, WithVerticalEdgesACurveIsTheOutlineOfItsBars) {
  const CurveStack drawn = stack(1);
  // x from -1 to 3, ten pixels each; the values 7, 8, 9 in 100 pixels.
  const double unit = 100 / 9.0;
  const std::vector<PicturePoint> expected = {{0, 100},
                                              {5, 100},
                                              {5, 100 - 7 * unit},
                                              {15, 100 - 7 * unit},
                                              {15, 100 - 8 * unit},
                                              {25, 100 - 8 * unit},
                                              {25, 0},
                                              {35, 0},
                                              {35, 100},
                                              {40, 100}};
  ASSERT_EQ(drawn.curves[0].line.points.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_DOUBLE_EQ(drawn.curves[0].line.points[i].x, expected[i].x) << i;
    EXPECT_NEAR(drawn.curves[0].line.points[i].y, expected[i].y, 1e-9) << i;
  }
}

TEST_F(CurveStackTest, WithoutThemItJoinsTheMiddles) {
  set("Graph_BarsEdgesVertical", 0);
  std::vector<double> x;
  const CurveStack drawn = stack(1);
  for (const PicturePoint& point : drawn.curves[0].line.points) x.push_back(point.x);
  EXPECT_EQ(x, (std::vector<double>{0, 10, 20, 30, 40}));
}

TEST_F(CurveStackTest, TheZoomLeavesRoomAboveAndBelow) {
  set("Graph_y_border_percent", 10);
  const CurveStack drawn = stack(1);
  EXPECT_DOUBLE_EQ(drawn.lower_value, -0.9);
  EXPECT_DOUBLE_EQ(drawn.upper_value, 9.9);
  EXPECT_NEAR(drawn.curves[0].zero, 100 * (1 - 0.9 / 10.8), 1e-9);
}

TEST_F(CurveStackTest, BarsOfDoubleWidthFillStepsOfTwo) {
  lmap.clear();
  point(0, 0, cotyp(1));
  point(0, 2, cotyp(1));
  const auto lowest = [](const CurveStack& drawn) {
    return std::count_if(drawn.curves[0].line.points.begin(), drawn.curves[0].line.points.end(),
                         [](const PicturePoint& point) { return point.y == 100; });
  };
  EXPECT_EQ(lowest(stack(1)), 6) << "before, between and behind";
  set("Graph2_BoxDoubleWidth", 1);
  EXPECT_EQ(lowest(stack(1)), 0);
}

TEST_F(CurveStackTest, NothingLeavesTheImage) {
  lmap.clear();
  for (std::int32_t n = 0; n < 40; ++n) {
    for (std::int32_t k1 = 0; k1 < 30; ++k1) point(n, k1, cotyp(n * 7 % 13 - 5, 3, k1, 1));
  }
  for (const int width : {10, 33, 400}) {
    for (const std::int32_t ny : {1, 7, -40, 99}) {
      for (const std::int32_t offset : {0, 3, 1000}) {
        set("Graph2a_max_dypix_per_plot", offset);
        for (const StackedCurve& curve : stack(ny, {width, 200}).curves) {
          for (const PicturePoint& point : curve.line.points) {
            EXPECT_TRUE(0 <= point.x && point.x <= width) << point.x;
            EXPECT_TRUE(-1e-9 <= point.y && point.y <= 200 + 1e-9) << point.y;
          }
        }
      }
    }
  }
}

TEST_F(CurveStackTest, CoordinatesReachTheEndsOf32Bits) {
  lmap.clear();
  point(lowest_int, lowest_int, cotyp(1));
  point(highest_int, highest_int, cotyp(2));
  EXPECT_EQ(ys(5), "y = 2147483647 y = -2147483648 ");
  const CurveStack drawn = stack(5);
  EXPECT_EQ(drawn.curves[0].line.points.back().x, 40);
  EXPECT_EQ(drawn.curves[0].line.points.back().y, 6) << "the last pixel is that of the last point";
  EXPECT_EQ(drawn.curves[1].line.points.front().y, drawn.curves[1].zero - (100 - 6) / 2.0);
}

TEST_F(CurveStackTest, OnePixelHasItsCurve) {
  const CurveStack drawn = stack(4, {1, 1});
  ASSERT_EQ(drawn.curves.size(), 1u) << "all rows meet in one";
  for (const PicturePoint& point : drawn.curves[0].line.points) {
    EXPECT_TRUE(0 <= point.x && point.x <= 1 && 0 <= point.y && point.y <= 1);
  }
}

TEST_F(CurveStackTest, EqualValuesAreEquallyHigh) {
  lmap.clear();
  for (std::int32_t n = 0; n < 3; ++n) point(n, 0, cotyp(-4));
  for (const StackedCurve& curve : stack(3).curves) {
    double lowest = 0;
    for (const PicturePoint& point : curve.line.points) lowest = std::max(lowest, point.y);
    EXPECT_DOUBLE_EQ(lowest - curve.zero, 100 - 2 * 6) << "from 0 down to the lower edge of curve 1";
  }
}

TEST_F(CurveStackTest, NoZoomOfAFileTurnsThePictureOver) {
  force("Graph_y_border_percent", "-80");
  const CurveStack drawn = stack(3);
  EXPECT_EQ(drawn.lower_value, 0);
  EXPECT_GT(drawn.upper_value, 9);
}

TEST_F(CurveStackTest, ValuesThatAreAllZeroAreALine) {
  lmap.clear();
  point(0, 0, cotyp(0, 1, 1, 1));
  point(0, 1, cotyp(0, 1, 1, 1));
  const CurveStack drawn = stack(1);
  for (const PicturePoint& point : drawn.curves[0].line.points) EXPECT_EQ(point.y, drawn.curves[0].zero);
  EXPECT_EQ(drawn.curves[0].zero, 50);
}

}  // namespace
}  // namespace kov
