#include "graphs/map_boxes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>

#include "graphs/map_desk.h"

namespace kov {

static void PrintTo(const PixelSpan& span, std::ostream* out) { *out << span.begin << ".." << span.end; }

namespace {

MapAxis axis(std::int64_t min, std::int64_t max, int pixels) {
  return {.position = 1,
          .min = min,
          .max = max,
          .pixels = pixels,
          .pixels_per_unit = pixels / static_cast<double>(max - min)};
}

TEST(BoxOf, ACoordinateTakesItsUnitAroundItsPixel) {
  const MapAxis ten_pixels_a_unit = axis(-1, 3, 40);
  EXPECT_EQ(box_of(ten_pixels_a_unit, 0, 1), (PixelSpan{5, 15}));
  EXPECT_EQ(box_of(ten_pixels_a_unit, 2, 1), (PixelSpan{25, 35}));
  EXPECT_EQ(box_of(ten_pixels_a_unit, 0, 2), (PixelSpan{0, 20}));
  EXPECT_EQ(box_of(ten_pixels_a_unit, 2, 2), (PixelSpan{20, 40}));
  EXPECT_EQ(box_of(axis(-1, 1, 40), 0, 1), (PixelSpan{10, 30})) << "in the middle";
}

TEST(BoxOf, WithLessThanAPixelAUnitItsPixelAlone) {
  const MapAxis half = axis(0, 80, 40);
  EXPECT_EQ(box_of(half, 7, 1), (PixelSpan{3, 4}));
  EXPECT_EQ(box_of(half, 7, 2), (PixelSpan{3, 4}));
  EXPECT_EQ(box_of(half, 8, 2), (PixelSpan{4, 5}));
  EXPECT_EQ(box_of(axis(0, 50, 40), 7, 2), (PixelSpan{5, 6})) << "7 is at pixel 5, 5 at 4 and 9 at 7";
}

TEST(BoxOf, BoxesMeetWithoutGapAndHoldTheirPixel) {
  std::mt19937 random(3);
  for (int round = 0; round < 300; ++round) {
    const int units = std::uniform_int_distribution(2, 900)(random);
    const int pixels = std::uniform_int_distribution(units, 3000)(random);
    const int step = std::uniform_int_distribution(1, 2)(random);
    const MapAxis a = axis(-7, -7 + units, pixels);
    int end = box_of(a, -7, step).end;
    for (std::int64_t x = -7 + step; x < a.max; x += step) {
      const PixelSpan box = box_of(a, x, step);
      EXPECT_EQ(box.begin, end) << x;
      EXPECT_LE(box.begin, a.pixel(x));
      EXPECT_GT(box.end, a.pixel(x));
      EXPECT_LE(box.end, pixels);
      end = box.end;
    }
  }
}

class MapBoxesTest : public testing::Test, protected MapDesk {
 protected:
  std::string text(const std::vector<Box>& boxes) {
    std::string text;
    for (const Box& box : boxes) {
      text += int_text(box.index) + ":" + int_text(box.pixels.begin) + ".." + int_text(box.pixels.end) + " ";
    }
    return text;
  }
  ValueMap map;
};

TEST_F(MapBoxesTest, AreThoseOfColumnsAndRowsWithPoints) {
  point(0, 0, cotyp(1));
  point(1, -1, cotyp(1));
  point(1, 1, cotyp(1));
  calculate(map, {40, 30});
  EXPECT_EQ(text(column_boxes(map, false)), "10:5..15 20:15..25 30:25..35 ");
  EXPECT_EQ(text(row_boxes(map)), "10:5..15 20:15..25 ");
  EXPECT_EQ(text(column_boxes(map, true)), "10:0..20 20:10..30 30:20..40 ")
      << "those of one row do not overlap";
  point(1, 0, cotyp(1));
  calculate(map, {40, 30});
  EXPECT_EQ(text(column_boxes(map, true)), "10:5..15 20:15..25 30:25..35 ") << "no steps of two";
}

}  // namespace
}  // namespace kov
