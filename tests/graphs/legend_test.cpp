#include "graphs/legend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "support/picture_texts.h"
#include "support/plain_measure.h"
#include "text/integers.h"

namespace kov {
namespace {

const PlainMeasure legend_measure;

Picture empty_picture(int width, int height) {
  Picture picture;
  picture.width = width;
  picture.height = height;
  return picture;
}

TEST(FittedText, IsWholeWhereItFits) {
  EXPECT_EQ(fitted_text("abcde", 30, 10, legend_measure), "abcde");
  EXPECT_EQ(fitted_text("", 0, 10, legend_measure), "");
}

TEST(FittedText, IsCutBetweenCharactersWithAnEllipsis) {
  EXPECT_EQ(fitted_text("abcdef", 30, 10, legend_measure), "abcd…");
  EXPECT_EQ(fitted_text("äöüßéè", 30, 10, legend_measure), "äöüß…");
  EXPECT_EQ(fitted_text("äöüß", 12, 10, legend_measure), "ä…");
  EXPECT_EQ(fitted_text("abcdef", 6, 10, legend_measure), "…");
  EXPECT_EQ(fitted_text("abcdef", 5, 10, legend_measure), "");
  EXPECT_EQ(fitted_text("abcdef", -5, 10, legend_measure), "");
}

TEST(Title, StandsAboveThePlotAtItsLeftEdge) {
  Picture picture = empty_picture(400, 300);
  const PlotArea area{60, 40, 300, 200};
  draw_title(picture, area, "walk2d.aa1", legend_measure);
  ASSERT_EQ(picture.texts.size(), 1U);
  const TextExtent extent = extent_of(picture.texts.front(), legend_measure);
  EXPECT_EQ(extent.left, area.left);
  EXPECT_GE(extent.top, 0);
  EXPECT_LE(extent.bottom, title_height(legend_measure));
}

TEST(Title, IsCutAndLeftOutWithoutRoom) {
  Picture picture = empty_picture(100, 300);
  draw_title(picture, {10, 40, 80, 200}, "a title that is too long", legend_measure);
  EXPECT_EQ(picture.texts.front().text, "a title t…");
  EXPECT_EQ(text_fault(picture, legend_measure), "");
  picture.texts.clear();
  draw_title(picture, {0, 0, 100, 300}, "title", legend_measure);
  EXPECT_TRUE(picture.texts.empty());
}

const std::vector<CurveEntry> curves = {{"SR1: qre", {0, 0, 255}, 1, LineStyle::solid},
                                        {"SR1: qim", {255, 0, 0}, 2, LineStyle::dashed},
                                        {"SR2: cntAt", {0, 0, 0}, 1, LineStyle::dotted}};

TEST(CurveLegend, ShowsASampleOfEachLineAndItsName) {
  Picture picture = empty_picture(600, 100);
  draw_curve_legend(picture, {20, 10}, 500, curves, legend_measure);
  ASSERT_EQ(picture.lines.size(), curves.size());
  ASSERT_EQ(picture.texts.size(), curves.size());
  for (std::size_t i = 0; i < curves.size(); ++i) {
    EXPECT_EQ(picture.lines[i].colour, curves[i].colour);
    EXPECT_EQ(picture.lines[i].width, curves[i].width);
    EXPECT_EQ(picture.lines[i].style, curves[i].style);
    EXPECT_EQ(picture.texts[i].text, curves[i].name);
    EXPECT_EQ(picture.texts[i].at.y, picture.lines[i].points.front().y);
    EXPECT_LT(picture.lines[i].points.back().x, picture.texts[i].at.x);
  }
  EXPECT_EQ(picture.lines.front().points.front().x, 20);
}

TEST(CurveLegend, BreaksIntoLinesAndNeedsTheirHeight) {
  const double row = curve_legend_height(curves, 1000, legend_measure);
  EXPECT_GT(row, legend_measure.height(graph_text_size));
  EXPECT_EQ(curve_legend_height(curves, 250, legend_measure), 2 * row);
  EXPECT_EQ(curve_legend_height(curves, 120, legend_measure), 3 * row);
  EXPECT_EQ(curve_legend_height({}, 120, legend_measure), 0);
}

TEST(CurveLegend, StaysInItsBandWhateverTheNames) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 1000; ++i) {
    std::vector<CurveEntry> entries(random() % 11);
    for (CurveEntry& entry : entries) entry.name = std::string(random() % 60, 'x');
    const double width = 60 + static_cast<double>(random() % 900);
    Picture picture = empty_picture(static_cast<int>(width),
                                    static_cast<int>(curve_legend_height(entries, width, legend_measure)));
    draw_curve_legend(picture, {0, 0}, width, entries, legend_measure);
    ASSERT_EQ(text_fault(picture, legend_measure), "");
    ASSERT_EQ(picture.lines.size(), entries.size());
  }
}

std::vector<ColourField> fields_of_scale() {
  std::vector<ColourField> fields;
  for (int i = 0; i < colour_field_count; ++i) {
    fields.push_back({{static_cast<std::uint8_t>(12 * i), 0, 0}, int_text(i)});
  }
  return fields;
}

Picture colour_legend(double plot_height) {
  const double right = colour_legend_width(4, legend_measure);
  Picture picture = empty_picture(300 + static_cast<int>(right), static_cast<int>(plot_height) + 40);
  draw_colour_legend(picture, {0, 20, 300, plot_height}, fields_of_scale(), legend_measure);
  return picture;
}

TEST(ColourLegend, FieldsFillTheHeightOfThePlotFromBelow) {
  const Picture picture = colour_legend(600);
  ASSERT_EQ(picture.boxes.size(), 21U);
  EXPECT_EQ(picture.boxes.front().top + picture.boxes.front().height, 620);
  EXPECT_EQ(picture.boxes.back().top, 20);
  for (std::size_t i = 1; i < 21; ++i) {
    EXPECT_EQ(picture.boxes[i].top + picture.boxes[i].height, picture.boxes[i - 1].top);
    EXPECT_GT(picture.boxes[i].left, 300);
    EXPECT_EQ(picture.boxes[i].colour.r, 12 * i);
  }
  EXPECT_EQ(picture.texts.size(), 21U);
  EXPECT_EQ(picture.texts.front().text, "0");
}

TEST(ColourLegend, LowFieldsShowFewerTextsAndAlwaysBothEnds) {
  for (const double height : {21.0 * 17, 200.0, 150.0, 70.0, 40.0, 20.0}) {
    const Picture picture = colour_legend(height);
    EXPECT_EQ(picture.boxes.size(), 21U);
    EXPECT_EQ(text_fault(picture, legend_measure), "");
    ASSERT_GE(picture.texts.size(), 2U) << height;
    EXPECT_EQ(picture.texts.front().text, "0");
    EXPECT_EQ(picture.texts.back().text, "20");
  }
  EXPECT_EQ(colour_legend(21.0 * 17).texts.size(), 21U);
  EXPECT_EQ(colour_legend(200).texts.size(), 11U);
  EXPECT_EQ(colour_legend(20).texts.size(), 2U);
  EXPECT_EQ(colour_legend(10).texts.size(), 0U);
}

TEST(ColourLegend, IsLeftOutWhereThePlotTakesAll) {
  Picture picture = empty_picture(300, 200);
  draw_colour_legend(picture, {0, 0, 300, 200}, fields_of_scale(), legend_measure);
  EXPECT_TRUE(picture.boxes.empty());
  EXPECT_TRUE(picture.texts.empty());
}

TEST(ColourLegend, IsWideEnoughForEveryNumber) {
  for (int digits = 1; digits <= 17; ++digits) {
    EXPECT_GE(colour_legend_width(digits, legend_measure),
              legend_measure.width("-2.2250738585072014E-308", 12) * digits / 17);
  }
}

TEST(LabelPicture, HasTheLabelInItsMiddle) {
  const Picture picture = label_picture(400, 300, " cnt=0", legend_measure);
  EXPECT_EQ(picture.width, 400);
  EXPECT_EQ(picture.height, 300);
  ASSERT_EQ(picture.texts.size(), 1U);
  EXPECT_EQ(picture.texts.front().text, " cnt=0");
  EXPECT_EQ(picture.texts.front().at, (PicturePoint{200, 150}));
  EXPECT_EQ(picture.texts.front().anchor, Anchor::centre);
}

TEST(LabelPicture, IsEmptyWithoutRoomOrText) {
  EXPECT_TRUE(label_picture(400, 300, "", legend_measure).texts.empty());
  EXPECT_TRUE(label_picture(400, 10, "No pixel", legend_measure).texts.empty());
  EXPECT_TRUE(label_picture(0, 0, "No pixel", legend_measure).texts.empty());
}

}  // namespace
}  // namespace kov
