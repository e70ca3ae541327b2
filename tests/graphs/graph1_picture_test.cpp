#include "graphs/graph1_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "graphs/curve_style.h"
#include "graphs/graph1_desk.h"
#include "support/picture_texts.h"
#include "support/plain_measure.h"
#include "text/integers.h"

namespace kov {
namespace {

struct PictureDesk : Graph1Desk {
  G1Origin origin;
  bool oplot = false;
  PlainMeasure measure;

  /// Real and imaginary parts that differ, in both ranges.
  PictureDesk() {
    checked = checks({cb0qre, cb0qim});
    for (std::int32_t k1 = 0; k1 < 8; k1 += 2) set(k1, cotyp(k1 + 1, 1, 5 - k1, 2));
    set(3, -4, 1);
    set(5, cotyp(1, 1, 2, 1), 1);
    origin.table_index = 3;
    origin.file_name = "walk.aa1";
  }

  G1View view() const { return {par, origin, checked, cph, oplot}; }

  /// Calculated for the image that a picture of this size has.
  Picture picture(int width = 600, int height = 400) {
    origin.table = table;
    origin.divmode = cph.kmi("Graph1_divmode");
    const PlotArea area = graph1_plot_area(view(), width, height, measure);
    EXPECT_EQ(calculate(static_cast<int>(area.width), static_cast<int>(area.height)), G1Outcome::calculated);
    return graph1_picture(view(), width, height, measure, messages);
  }
};

/// The line of a curve: the last one drawn in its colour and style.
const PictureLine* line_of(const Picture& picture, std::size_t index, bool black_and_white = false) {
  const CurveStyle style = curve_style(index, black_and_white);
  const auto found = std::find_if(picture.lines.rbegin(), picture.lines.rend(), [&](const PictureLine& line) {
    return line.colour == style.colour && line.width == style.width && line.style == style.style;
  });
  return found == picture.lines.rend() ? nullptr : &*found;
}

bool has_text(const Picture& picture, const std::string& text) {
  return std::any_of(picture.texts.begin(), picture.texts.end(),
                     [&](const PictureText& candidate) { return candidate.text == text; });
}

/// Everything that is seen, as text.
std::string content(const Picture& picture) {
  std::string text;
  const auto add = [&](double value) { text += int_text(static_cast<std::int64_t>(value * 100)) + " "; };
  for (const PictureBox& box : picture.boxes) {
    for (const double value : {box.left, box.top, box.width, box.height}) add(value);
    add(box.colour.r);
  }
  for (const PictureLine& line : picture.lines) {
    for (const PicturePoint& point : line.points) add(point.x), add(point.y);
    add(line.colour.r), add(line.width), add(static_cast<double>(line.style));
  }
  for (const PictureText& shown : picture.texts) {
    text += shown.text + " ";
    add(shown.at.x), add(shown.at.y), add(shown.colour.r);
  }
  return text;
}

TEST(Graph1Picture, IsDrawnInThePixelsOfItsCalculation) {
  PictureDesk desk;
  const Picture picture = desk.picture();
  const PlotArea area = graph1_plot_area(desk.view(), 600, 400, desk.measure);
  EXPECT_EQ(picture.width, 600);
  EXPECT_EQ(picture.height, 400);
  EXPECT_EQ(desk.par.hpixcount, area.width);
  const PictureLine* line = line_of(picture, cb0qre);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(line->points.front().x, area.left);
  EXPECT_EQ(line->points.back().x, area.left + area.width);
  for (const PicturePoint& point : line->points) {
    EXPECT_EQ(point.x, static_cast<int>(point.x)) << "bars have their edges on whole pixels";
    EXPECT_GE(point.y, area.top);
    EXPECT_LE(point.y, area.top + area.height);
  }
}

/// With a border of 2 percent, the largest value is 2/104 of the height below the upper edge.
TEST(Graph1Picture, TheYScaleSpansTheDrawnCurvesAndItsBorder) {
  PictureDesk desk;
  const Picture picture = desk.picture();
  const PlotArea area = graph1_plot_area(desk.view(), 600, 400, desk.measure);
  double top = 1e9;
  double bottom = -1e9;
  for (const std::size_t curve : {cb0qre, cb0qim}) {
    ASSERT_NE(line_of(picture, curve), nullptr);
    for (const PicturePoint& point : line_of(picture, curve)->points) {
      top = std::min(top, point.y);
      bottom = std::max(bottom, point.y);
    }
  }
  EXPECT_NEAR(top, area.top + area.height * 2 / 104, 1e-9);
  EXPECT_NEAR(bottom, area.top + area.height * 102 / 104, 1e-9);
}

TEST(Graph1Picture, CanBeUnderstoodOnItsOwn) {
  PictureDesk desk;
  const Picture picture = desk.picture();
  EXPECT_TRUE(has_text(picture, "walk.aa1, range table 3, SR1: l=0 n=0 k1=-...+"));
  EXPECT_TRUE(has_text(picture, "SR1: qre"));
  EXPECT_TRUE(has_text(picture, "SR1: qim"));
  EXPECT_TRUE(has_text(picture, "k1"));
  EXPECT_TRUE(has_text(picture, "sums"));
  EXPECT_EQ(text_fault(picture, desk.measure), "");
}

TEST(Graph1Picture, OneCurveIsFilledDownToZero) {
  PictureDesk desk;
  EXPECT_TRUE(desk.picture().boxes.empty());
  desk.checked = checks({cb0qim});
  const Picture picture = desk.picture();
  ASSERT_EQ(picture.boxes.size(), 4U) << "one for each value that is not zero";
  // 5/2, 3/2, 1/2, -1/2: the first three stand on zero, from which the last one hangs.
  const double zero = picture.boxes[0].top + picture.boxes[0].height;
  EXPECT_NEAR(picture.boxes[2].top + picture.boxes[2].height, zero, 1e-9);
  EXPECT_NEAR(picture.boxes[3].top, zero, 1e-9);
  EXPECT_NEAR(picture.boxes[0].height, 5 * picture.boxes[3].height, 1e-9);
  EXPECT_EQ(picture.boxes[0].colour, tinted(curve_style(cb0qim, false).colour));
}

TEST(Graph1Picture, TwoCurvesAgainstEachOtherAreNamedAtTheAxes) {
  PictureDesk desk;
  desk.oplot = true;
  const Picture picture = desk.picture();
  EXPECT_TRUE(has_text(picture, "SR1: qre"));
  EXPECT_TRUE(has_text(picture, "SR1: qim"));
  EXPECT_FALSE(has_text(picture, "k1"));
  EXPECT_EQ(text_fault(picture, desk.measure), "");
  // x = -1 ... 6, of which 0, 2, 4 and 6 hold points; the largest real part is furthest to the right.
  const PictureLine& line = picture.lines.back();
  ASSERT_EQ(line.points.size(), 8U);
  EXPECT_EQ(picture.boxes.size(), 8U);
  const auto furthest = std::max_element(line.points.begin(), line.points.end(),
                                         [](const auto& a, const auto& b) { return a.x < b.x; });
  EXPECT_EQ(furthest - line.points.begin(), 7);
  const auto highest = std::min_element(line.points.begin(), line.points.end(),
                                        [](const auto& a, const auto& b) { return a.y < b.y; });
  EXPECT_EQ(highest - line.points.begin(), 1);
}

TEST(Graph1Picture, AnyOtherNumberOfCurvesIsDrawnAlongX) {
  for (const G1Checks& checked : {checks({cb0qre}), checks({cb0qre, cb0qim, cb1qre})}) {
    PictureDesk desk;
    desk.checked = checked;
    const std::string along_x = content(desk.picture());
    desk.oplot = true;
    EXPECT_EQ(content(desk.picture()), along_x);
  }
}

TEST(Graph1Picture, ThePlotAgainstEachOtherSkipsZeros) {
  PictureDesk desk;
  desk.oplot = true;
  desk.cph.setkmi_1("Graph1_oplot_skip_zeros", 1);
  EXPECT_EQ(desk.picture().lines.back().points.size(), 4U);
  desk.set(6, 7);
  desk.cph.setkmi_1("Graph1_oplot_skip_zeros", 2);
  EXPECT_EQ(desk.picture().lines.back().points.size(), 3U);
}

TEST(Graph1Picture, InBlackAndWhiteThereIsNoColour) {
  PictureDesk desk;
  desk.cph.setkmi_1("Graph1_OnlyBlackWhite", 1);
  for (const G1Checks& checked : {checks({cb0qim}), checks({cb0qre, cb1qim})}) {
    for (const bool oplot : {false, true}) {
      desk.checked = checked;
      desk.oplot = oplot;
      const Picture picture = desk.picture();
      const auto grey = [](const Colour& colour) { return colour.r == colour.g && colour.g == colour.b; };
      for (const PictureBox& box : picture.boxes) EXPECT_EQ(box.colour, (Colour{0, 0, 0}));
      for (const PictureLine& line : picture.lines) EXPECT_EQ(line.colour, (Colour{0, 0, 0}));
      for (const PictureText& text : picture.texts) EXPECT_TRUE(grey(text.colour)) << text.text;
      EXPECT_EQ(picture.background, (Colour{255, 255, 255}));
    }
  }
}

TEST(Graph1Picture, EdgesAreVerticalOrNot) {
  PictureDesk desk;
  const auto slanted = [](const PictureLine& line) {
    for (std::size_t i = 1; i < line.points.size(); ++i) {
      const PicturePoint& a = line.points[i - 1];
      const PicturePoint& b = line.points[i];
      if (a.x != b.x && a.y != b.y) return true;
    }
    return false;
  };
  const Picture vertical = desk.picture();
  ASSERT_NE(line_of(vertical, cb0qre), nullptr);
  EXPECT_FALSE(slanted(*line_of(vertical, cb0qre)));
  desk.cph.setkmi_1("Graph_BarsEdgesVertical", 0);
  const Picture joined = desk.picture();
  ASSERT_NE(line_of(joined, cb0qre), nullptr);
  EXPECT_TRUE(slanted(*line_of(joined, cb0qre)));
  desk.checked = checks({cb0qre});
  EXPECT_TRUE(desk.picture().boxes.empty()) << "no bars, nothing to fill";
}

/// Every parameter that the picture is drawn by, with a value that makes it another one.
TEST(Graph1Picture, FollowsItsParameters) {
  struct Case {
    const char* keyword;
    std::int32_t value;
    bool oplot;
  };
  // clang-format off
  const Case cases[] = {
      {"Graph_Gridlines_x",         2, false},
      {"Graph_Gridlines_y",        12, false},
      {"Graph_Gridlines_Auto",      0, false},
      {"Graph_num_precision",       9, false},
      {"Graph_BarsEdgesVertical",   0, false},
      {"Graph_y_border_percent",   30, false},
      {"Graph_y_border_percent",   30, true},
      {"Graph1_BarDbl_Fill0",       1, false},
      {"Graph1_BarDbl_Fill0",       2, false},
      {"Graph1_oplot_skip_zeros",   1, true},
      {"Graph1_divmode",            1, false},
      {"Graph1_OnlyBlackWhite",     1, false},
  };
  // clang-format on
  for (const Case& c : cases) {
    PictureDesk desk;
    desk.oplot = c.oplot;
    const std::string before = content(desk.picture());
    EXPECT_EQ(content(desk.picture()), before) << "drawing changes nothing";
    ASSERT_TRUE(desk.cph.setkmi_1(c.keyword, c.value));
    EXPECT_NE(content(desk.picture()), before) << c.keyword;
  }
}

TEST(Graph1Picture, WithTheCommonScaleTheOtherRangeWidensX) {
  PictureDesk desk;
  desk.set(20, 1, 1);
  const std::string before = content(desk.picture());
  desk.cph.setkmi_1("Graph1_quick_xscale_r12_common", 1);
  EXPECT_NE(content(desk.picture()), before);
}

TEST(Graph1Picture, ACalculationOfAnotherSizeIsStretched) {
  PictureDesk desk;
  desk.picture(600, 400);
  const Picture wide = graph1_picture(desk.view(), 900, 400, desk.measure, desk.messages);
  const PlotArea area = graph1_plot_area(desk.view(), 900, 400, desk.measure);
  ASSERT_NE(line_of(wide, cb0qre), nullptr);
  EXPECT_EQ(line_of(wide, cb0qre)->points.front().x, area.left);
  EXPECT_NEAR(line_of(wide, cb0qre)->points.back().x, area.left + area.width, 1e-9);
}

TEST(Graph1Picture, IsDrawnAtAnySize) {
  for (const bool oplot : {false, true}) {
    for (const int width : {1, 7, 60, 200, 1000, 6000}) {
      for (const int height : {1, 9, 80, 700}) {
        PictureDesk desk;
        desk.checked = checks({cb0qre, cb1qa});
        desk.oplot = oplot;
        const Picture picture = desk.picture(width, height);
        EXPECT_EQ(text_fault(picture, desk.measure), "") << width << 'x' << height;
      }
    }
  }
}

}  // namespace
}  // namespace kov
