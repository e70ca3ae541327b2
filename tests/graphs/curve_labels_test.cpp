#include "graphs/curve_labels.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "graphs/legend.h"
#include "support/picture_texts.h"
#include "support/plain_measure.h"

namespace kov {
namespace {

/// Stacks of curves whose y is their number, in a plot of 300 x 200 pixels.
class CurveLabels : public testing::Test {
 protected:
  static CurveStack stack(int count, double offset) {
    CurveStack stack;
    stack.curves.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      StackedCurve& curve = stack.curves[static_cast<std::size_t>(i)];
      curve.y = i;
      curve.zero = 190 - i * offset;
    }
    return stack;
  }
  Picture drawn(const CurveStack& stack) {
    Picture picture;
    picture.width = static_cast<int>(area.left + area.width + curve_label_room(measure)) + 1;
    picture.height = 260;
    draw_curve_labels(picture, area, stack, "k2", measure);
    return picture;
  }
  /// Without the heading.
  static std::vector<PictureText> labels(const Picture& picture) {
    return {picture.texts.begin() + 1, picture.texts.end()};
  }
  static std::string texts(const Picture& picture) {
    std::string all;
    for (const PictureText& text : labels(picture)) all += text.text.substr(4) + " ";
    return all;
  }

  PlotArea area{50, 30, 300, 200};
  PlainMeasure measure;
};

TEST_F(CurveLabels, StandBesideTheZerosWhereTheseAreFarApart) {
  const CurveStack apart = stack(5, 30);
  const Picture picture = drawn(apart);
  const auto texts = labels(picture);
  ASSERT_EQ(texts.size(), 5u);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(texts[i].text, curve_label(static_cast<std::int32_t>(i)));
    EXPECT_EQ(texts[i].at.y, area.top + apart.curves[i].zero);
  }
  EXPECT_EQ(picture.texts[0].text, "y: k2");
  EXPECT_EQ(text_fault(picture, measure), "");
}

TEST_F(CurveLabels, MoveUpWhereTheZerosAreNearAndLinesLeadToThem) {
  for (const double offset : {0.0, 2.0, 6.0}) {
    const CurveStack near = stack(10, offset);
    const Picture picture = drawn(near);
    const auto texts = labels(picture);
    ASSERT_EQ(texts.size(), 10u);
    ASSERT_EQ(picture.lines.size(), 10u);
    EXPECT_EQ(texts[0].at.y, area.top + near.curves[0].zero) << "the frontal one stays";
    for (std::size_t i = 0; i < 10; ++i) {
      EXPECT_EQ(picture.lines[i].points.front(), (PicturePoint{350, area.top + near.curves[i].zero}));
      EXPECT_EQ(picture.lines[i].points.back().y, texts[i].at.y);
      EXPECT_LT(picture.lines[i].points.back().x, texts[i].at.x);
      EXPECT_EQ(picture.lines[i].colour, texts[i].colour);
    }
    EXPECT_EQ(text_fault(picture, measure), "");
  }
}

TEST_F(CurveLabels, TheUpperEdgePushesThemDownAgain) {
  CurveStack high = stack(12, 0);
  for (StackedCurve& curve : high.curves) curve.zero = 10;
  const Picture picture = drawn(high);
  EXPECT_EQ(labels(picture).size(), 12u);
  EXPECT_EQ(text_fault(picture, measure), "");
}

TEST_F(CurveLabels, OfTooManyCurvesOnlySomeHaveOne) {
  CurveStack many = stack(99, 1);
  EXPECT_EQ(texts(drawn(many)), "0 10 20 30 40 50 60 70 80 90 ");
  EXPECT_EQ(texts(drawn(stack(28, 1))), "0 2 4 6 8 10 12 14 16 18 20 22 24 26 ");
  many.curves[33].state = curve_red;
  many.curves[98].state = curve_blue;
  EXPECT_EQ(texts(drawn(many)), "0 10 20 30 33 40 50 60 70 80 90 98 ") << "selected ones always";
  EXPECT_EQ(labels(drawn(many))[4].colour, curve_colour(curve_red));
  EXPECT_EQ(labels(drawn(many))[11].colour, curve_colour(curve_blue));
  EXPECT_EQ(text_fault(drawn(many), measure), "");
  for (StackedCurve& curve : many.curves) curve.state = curve_blue;
  EXPECT_EQ(texts(drawn(many)), "0 10 20 30 40 50 60 70 80 90 ") << "unless all are";
}

TEST_F(CurveLabels, WithoutRoomThereAreNone) {
  Picture narrow;
  narrow.width = 360;
  narrow.height = 260;
  draw_curve_labels(narrow, area, stack(3, 30), "k2", measure);
  EXPECT_TRUE(narrow.texts.empty());
  EXPECT_TRUE(narrow.lines.empty());
  Picture low;
  low.width = 900;
  low.height = 10;
  draw_curve_labels(low, {0, 0, 300, 10}, stack(3, 30), "k2", measure);
  EXPECT_TRUE(low.texts.empty());
}

}  // namespace
}  // namespace kov
