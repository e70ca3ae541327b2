#include "widgets/cell_painter.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QtTest>
#include <algorithm>

#include "pages/fake_grid.h"
#include "support/recording_messages.h"
#include "widgets/string_grid.h"

namespace kov {
namespace {

TEST(CellPainter, KnowsNumbers) {
  for (const char* text : {"0", "-17", "1/2+3/4i", "-2-1/3i", "1i", "0.25", "1E-5", "1.5e+10", "+", "-"}) {
    EXPECT_TRUE(is_number(text)) << text;
  }
  for (const char* text :
       {"", "l", "n=x", "k1", "i", "E", "++", "1 2", "s   : cnt", "Min 1", "u", "3: R->"}) {
    EXPECT_FALSE(is_number(text)) << text;
  }
}

/// One cell on an image, and where in it there is ink.
class PaintedCell : public ::testing::Test {
 protected:
  static constexpr int width = 100;
  static constexpr int height = 24;

  FakeGrid model;
  RecordingMessages messages;
  StringGrid grid{model, messages};
  QStyleOptionViewItem option;

  PaintedCell() {
    option.initFrom(&grid);
    option.rect = QRect(0, 0, width, height);
    option.state = QStyle::State_Enabled | QStyle::State_Active;
  }

  QImage paint(const QString& text, const StringGrid* on) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    SlDrawcell(on, messages, painter, option, text);
    return image;
  }

  static int darkest(const QImage& image) {
    int darkest = 255;
    for (int x = 0; x < width; ++x) {
      for (int y = 0; y < height; ++y) darkest = std::min(darkest, image.pixelColor(x, y).lightness());
    }
    return darkest;
  }

  /// The columns with a pixel of another colour than the first one's.
  static std::pair<int, int> ink(const QImage& image) {
    std::pair<int, int> columns{width, -1};
    for (int x = 0; x < width; ++x) {
      for (int y = 0; y < height; ++y) {
        if (image.pixel(x, y) == image.pixel(0, 0)) continue;
        columns = {std::min(columns.first, x), std::max(columns.second, x)};
      }
    }
    return columns;
  }
};

TEST_F(PaintedCell, HasNumbersAtItsRightAndTextsAtItsLeft) {
  const auto [number_left, number_right] = ink(paint("12", &grid));
  EXPECT_GT(number_left, width / 2);
  EXPECT_LT(number_right, width - 2);
  const auto [text_left, text_right] = ink(paint("ab", &grid));
  EXPECT_GE(text_left, 2);
  EXPECT_LT(text_right, width / 2);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(PaintedCell, KeepsATextThatIsTooLongInside) {
  const auto [left, right] = ink(paint("123456789012345678901234567890", &grid));
  EXPECT_GE(left, 2);
  EXPECT_LT(right, width - 2);
}

TEST_F(PaintedCell, HasTheColoursOfThePalette) {
  option.palette.setColor(QPalette::Base, QColor(1, 2, 3));
  option.palette.setColor(QPalette::Text, QColor(255, 255, 255));
  option.palette.setColor(QPalette::Highlight, QColor(4, 5, 6));
  const QImage dark = paint("12", &grid);
  EXPECT_EQ(dark.pixelColor(0, 0), QColor(1, 2, 3));
  int lightest = 0;
  for (int x = 0; x < width; ++x) {
    for (int y = 0; y < height; ++y) lightest = std::max(lightest, dark.pixelColor(x, y).lightness());
  }
  EXPECT_GT(lightest, 128);
}

TEST_F(PaintedCell, ASelectionIsPalerWhereTheKeysAreNot) {
  option.palette.setColor(QPalette::Base, QColor(0, 0, 0));
  option.palette.setColor(QPalette::Highlight, QColor(10, 100, 200));
  option.state |= QStyle::State_Selected;
  EXPECT_EQ(paint("12", &grid).pixelColor(0, 0), QColor(3, 30, 60));
  grid.show();
  QApplication::setActiveWindow(&grid);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
  grid.setFocus();
  EXPECT_EQ(paint("12", &grid).pixelColor(0, 0), QColor(10, 100, 200));
}

TEST_F(PaintedCell, ZerosAreDimWhereTheGridWantsIt) {
  option.palette.setColor(QPalette::Base, Qt::white);
  option.palette.setColor(QPalette::Text, Qt::black);
  EXPECT_LT(darkest(paint("0", &grid)), 60);
  grid.set_dims_zeros(true);
  EXPECT_GE(darkest(paint("0", &grid)), 110);
  EXPECT_LT(darkest(paint("0", &grid)), 180);
  EXPECT_LT(darkest(paint("10", &grid)), 60);
  EXPECT_LT(darkest(paint("0i", &grid)), 60);
}

TEST_F(PaintedCell, ADimZeroCanBeReadInADarkPaletteToo) {
  option.palette.setColor(QPalette::Base, Qt::black);
  option.palette.setColor(QPalette::Text, Qt::white);
  grid.set_dims_zeros(true);
  const QImage zero = paint("0", &grid);
  int lightest = 0;
  for (int x = 0; x < width; ++x) {
    for (int y = 0; y < height; ++y) lightest = std::max(lightest, zero.pixelColor(x, y).lightness());
  }
  EXPECT_GT(lightest, 75);
  EXPECT_LT(lightest, 150);
}

TEST_F(PaintedCell, WhatIsLockedIsGreyAllAlike) {
  option.state.setFlag(QStyle::State_Enabled, false);
  option.palette.setColor(QPalette::Disabled, QPalette::Text, QColor(150, 150, 150));
  option.palette.setColor(QPalette::Disabled, QPalette::Base, Qt::white);
  const int usual = darkest(paint("0", &grid));
  grid.set_dims_zeros(true);
  EXPECT_EQ(darkest(paint("0", &grid)), usual);
}

TEST_F(PaintedCell, ReportsThatThereIsNoGrid) {
  const QImage image = paint("12", nullptr);
  EXPECT_EQ(messages.shown,
            (std::vector<RecordedMessage>{{MessageKind::warning, "StringGrid == NULL in SlDrawcell"}}));
  EXPECT_EQ(ink(image), (std::pair<int, int>{width, -1}));
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::magenta));
}

}  // namespace
}  // namespace kov
