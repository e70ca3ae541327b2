#include "pictures/qt/picture_painter.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "pictures/qt/application.h"

namespace kov {
namespace {

constexpr QRgb white = 0xffffffff, black = 0xff000000, red = 0xffff0000, blue = 0xff0000ff;
const Colour red_colour{255, 0, 0}, blue_colour{0, 0, 255};

const TextMeasure& measure() { return test_writer().measure(); }

Picture empty_picture(int width, int height) {
  Picture picture;
  picture.width = width;
  picture.height = height;
  return picture;
}

/// Where pixels of this colour are; null where there is none.
QRect bounds_of(const QImage& image, QRgb colour) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) == colour) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds;
}

int count_of(const QImage& image, QRgb colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour ? 1 : 0;
  }
  return count;
}

/// What is not background.
QRect ink_of(const QImage& image) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != white) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds;
}

TEST(PicturePainter, FillsTheBackground) {
  Picture picture = empty_picture(7, 5);
  picture.background = blue_colour;
  const QImage image = picture_image(picture);
  EXPECT_EQ(image.size(), QSize(7, 5));
  EXPECT_EQ(count_of(image, blue), 35);
}

TEST(PicturePainter, RastersKeepTheirPixels) {
  Picture picture = empty_picture(6, 5);
  picture.rasters.push_back({1, 2, 3, 2, {red, blue, black, blue, red, white}});
  const QImage image = picture_image(picture);
  EXPECT_EQ(image.pixel(1, 2), red);
  EXPECT_EQ(image.pixel(2, 2), blue);
  EXPECT_EQ(image.pixel(3, 2), black);
  EXPECT_EQ(image.pixel(1, 3), blue);
  EXPECT_EQ(image.pixel(2, 3), red);
  EXPECT_EQ(count_of(image, white), 30 - 5);
}

TEST(PicturePainter, RastersAreEnlargedToSquares) {
  Picture picture = empty_picture(4, 4);
  picture.rasters.push_back({1, 1, 2, 1, {red, blue}});
  const QImage image = picture_image(picture, 3);
  EXPECT_EQ(image.size(), QSize(12, 12));
  EXPECT_EQ(bounds_of(image, red), QRect(3, 3, 3, 3));
  EXPECT_EQ(bounds_of(image, blue), QRect(6, 3, 3, 3));
  EXPECT_EQ(count_of(image, red) + count_of(image, blue), 18);
}

TEST(PicturePainter, RastersWithoutAllTheirPixelsAreLeftOut) {
  Picture picture = empty_picture(4, 4);
  picture.rasters.push_back({0, 0, 2, 2, {red, red, red}});
  picture.rasters.push_back({0, 0, -1, -1, {red}});
  EXPECT_EQ(count_of(picture_image(picture), white), 16);
}

TEST(PicturePainter, BoxesThatAdjoinHaveNoSeam) {
  Picture picture = empty_picture(20, 4);
  for (int i = 0; i < 8; ++i) picture.boxes.push_back({i * 2.5, 0, 2.5, 4, red_colour});
  EXPECT_EQ(count_of(picture_image(picture), red), 80);
  EXPECT_EQ(count_of(picture_image(picture, 1.5), red), 30 * 6);
}

PictureLine line(std::vector<PicturePoint> points, double width = 1, LineStyle style = LineStyle::solid) {
  return {std::move(points), red_colour, width, style};
}

TEST(PicturePainter, LinesParallelToTheEdgesAreSharpAtEveryScale) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    for (const double place : {10.0, 10.3, 10.5, 10.8}) {
      Picture picture = empty_picture(40, 40);
      picture.lines.push_back(line({{place, 0}, {place, 40}}));
      const QImage image = picture_image(picture, scale);
      const int wide = static_cast<int>(std::lround(scale));
      EXPECT_EQ(bounds_of(image, red).width(), wide) << scale << ' ' << place;
      EXPECT_EQ(count_of(image, red), wide * image.height()) << scale << ' ' << place;
      EXPECT_EQ(ink_of(image), bounds_of(image, red)) << scale << ' ' << place;
    }
  }
}

TEST(PicturePainter, AOnePixelLineThroughThePixelsMiddleFillsThatPixel) {
  Picture picture = empty_picture(20, 20);
  picture.lines.push_back(line({{3, 7.5}, {12, 7.5}}));
  EXPECT_EQ(bounds_of(picture_image(picture), red), QRect(3, 7, 9, 1));
}

TEST(PicturePainter, AClosedLineHasAllItsCorners) {
  Picture picture = empty_picture(20, 20);
  picture.lines.push_back(line({{3.5, 2.5}, {12.5, 2.5}, {12.5, 15.5}, {3.5, 15.5}, {3.5, 2.5}}));
  const QImage image = picture_image(picture);
  EXPECT_EQ(bounds_of(image, red), QRect(3, 2, 10, 14));
  EXPECT_EQ(count_of(image, red), 2 * 10 + 2 * 12);
  EXPECT_EQ(count_of(image, white), 400 - 44);
}

TEST(PicturePainter, StepsAreSharpWithAllTheirCorners) {
  Picture picture = empty_picture(20, 20);
  picture.lines.push_back(line({{0, 10.5}, {5.5, 10.5}, {5.5, 3.5}, {12.5, 3.5}, {12.5, 10.5}, {20, 10.5}}));
  const QImage image = picture_image(picture);
  EXPECT_EQ(count_of(image, red), 6 + 7 + 7 + 7 + 7);
  EXPECT_EQ(ink_of(image), QRect(0, 3, 20, 8));
  EXPECT_EQ(count_of(image, white) + count_of(image, red), 400);
}

TEST(PicturePainter, SlantedLinesAreSmooth) {
  Picture picture = empty_picture(20, 20);
  picture.lines.push_back(line({{2, 2}, {18, 11}}));
  const QImage image = picture_image(picture);
  EXPECT_GT(400 - count_of(image, white), count_of(image, red));
}

TEST(PicturePainter, EveryLineStyleLooksDifferent) {
  std::vector<QImage> images;
  for (const LineStyle style : {LineStyle::solid, LineStyle::dashed, LineStyle::dotted,
                                LineStyle::dash_dotted, LineStyle::dash_dot_dotted}) {
    Picture picture = empty_picture(60, 5);
    picture.lines.push_back(line({{0, 2.5}, {60, 2.5}}, 1, style));
    const QImage image = picture_image(picture);
    EXPECT_GT(count_of(image, red), 10);
    EXPECT_EQ(std::ranges::count(images, image), 0);
    images.push_back(image);
  }
  EXPECT_EQ(count_of(images.front(), red), 60);
}

TEST(PicturePainter, ASinglePointIsADotAndNoPointNothing) {
  Picture picture = empty_picture(20, 20);
  picture.lines.push_back(line({{10, 10}}, 6));
  picture.lines.push_back(line({}));
  EXPECT_EQ(ink_of(picture_image(picture)), QRect(7, 7, 6, 6));
}

TEST(PicturePainter, LaterKindsCoverEarlierOnes) {
  Picture picture = empty_picture(9, 9);
  picture.rasters.push_back({0, 0, 1, 1, {black}});
  picture.boxes.push_back({0, 0, 9, 9, blue_colour});
  picture.lines.push_back(line({{0, 4.5}, {9, 4.5}}));
  const QImage image = picture_image(picture);
  EXPECT_EQ(image.pixel(0, 0), blue);
  EXPECT_EQ(image.pixel(4, 4), red);
}

struct AnchorCase {
  Anchor anchor;
  /// Parts of the text's width that lie left of its point.
  double before;
};

class Anchors : public testing::TestWithParam<AnchorCase> {};

TEST_P(Anchors, TextStandsAtItsPoint) {
  Picture picture = empty_picture(200, 200);
  picture.texts.push_back({{100, 100}, GetParam().anchor, "HIH0", 20, red_colour});
  const double width = measure().width("HIH0", 20);
  const QRect ink = ink_of(picture_image(picture));
  EXPECT_NEAR(ink.left(), 100 - width * GetParam().before, 4);
  EXPECT_NEAR(ink.right(), 100 + width * (1 - GetParam().before), 4);
  EXPECT_NEAR(ink.center().y(), 100, 3);

  picture.texts.front().upwards = true;
  const QRect turned = ink_of(picture_image(picture));
  EXPECT_NEAR(turned.bottom(), 100 + width * GetParam().before, 4);
  EXPECT_NEAR(turned.top(), 100 - width * (1 - GetParam().before), 4);
  EXPECT_NEAR(turned.center().x(), 100, 3);
}

INSTANTIATE_TEST_SUITE_P(PicturePainter, Anchors,
                         testing::Values(AnchorCase{Anchor::left, 0}, AnchorCase{Anchor::centre, 0.5},
                                         AnchorCase{Anchor::right, 1}));

TEST(PicturePainter, NoInkLeavesTheMeasuredExtent) {
  for (const double size : {9.0, 12.0, 14.0, 30.0}) {
    const char* const characters = "ÅÄgjpqy|²−8.888E-308Wf";
    const double width = measure().width(characters, size), height = measure().height(size);
    Picture picture = empty_picture(static_cast<int>(width) + 40, 200);
    picture.texts.push_back({{20, 100}, Anchor::left, characters, size, {}});
    const QRect ink = ink_of(picture_image(picture));
    EXPECT_GE(ink.left(), 20 - 1);
    EXPECT_LE(ink.right(), 20 + width + 1);
    EXPECT_GE(ink.top() + 1, 100 - height / 2 - 1);
    EXPECT_LE(ink.bottom(), 100 + height / 2 + 1);
  }
}

TEST(PicturePainter, StaysInsideThePictureAndLeavesThePainterAsItWas) {
  QImage page(60, 60, QImage::Format_RGB32);
  page.fill(Qt::white);
  Picture picture = empty_picture(20, 10);
  picture.background = blue_colour;
  picture.boxes.push_back({-50, -50, 500, 500, red_colour});
  picture.lines.push_back(line({{-50, 5.5}, {500, 5.5}}, 9));
  QPainter painter(&page);
  painter.setPen(Qt::green);
  painter.translate(15, 25);
  const QTransform before = painter.transform();
  paint_picture(painter, picture);
  EXPECT_EQ(painter.transform(), before);
  EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
  EXPECT_FALSE(painter.hasClipping());
  painter.end();
  EXPECT_EQ(ink_of(page), QRect(15, 25, 20, 10));
}

TEST(PictureImage, HoldsTheWholePictureAtEveryScale) {
  struct Case {
    double scale;
    QSize size;
  };
  for (const Case& c : {Case{1, {801, 503}}, Case{1.1, {882, 554}}, Case{1.25, {1002, 629}},
                        Case{1.5, {1202, 755}}, Case{2, {1602, 1006}}}) {
    Picture picture = empty_picture(801, 503);
    picture.boxes.push_back({0, 0, 801, 503, red_colour});
    const QImage image = picture_image(picture, c.scale);
    EXPECT_EQ(image.size(), c.size) << c.scale;
    EXPECT_EQ(image.devicePixelRatio(), c.scale);
    EXPECT_EQ(image.pixel(0, 0), red);
    EXPECT_EQ(image.pixel(image.width() - 2, image.height() - 2), red) << c.scale;
  }
  EXPECT_EQ(picture_image(empty_picture(40, 40), 1.1).size(), QSize(44, 44)) << "a product that is rounded";
}

TEST(PictureImage, IsNullWithoutPixels) {
  EXPECT_TRUE(picture_image(empty_picture(0, 10)).isNull());
  EXPECT_TRUE(picture_image(empty_picture(10, 0)).isNull());
}

TEST(FontMeasure, AddsUpAndGrowsWithTheSize) {
  EXPECT_EQ(measure().width("", 12), 0);
  EXPECT_NEAR(measure().width("00000000", 12), 8 * measure().width("0", 12), 1E-6);
  EXPECT_NEAR(measure().width("k1", 24), 2 * measure().width("k1", 12), 1);
  EXPECT_GT(measure().height(14), measure().height(12));
  for (const char* digit : {"1", "2", "3", "4", "5", "6", "7", "9"}) {
    EXPECT_EQ(measure().width(digit, 12), measure().width("8", 12));
  }
}

}  // namespace
}  // namespace kov
