#include "graphs/map_raster.h"

#include <gtest/gtest.h>

#include <random>

#include "graphs/map_desk.h"
#include "support/recording_messages.h"
#include "support/recording_progress.h"

namespace kov {
namespace {

class MapRasterTest : public testing::Test, protected MapDesk {
 protected:
  /// Lines of the raster, a character a pixel: "." for none, else a letter for each colour, in the order of
  /// lightness.
  std::vector<std::string> painted(ImageSize image, bool double_width = false) {
    EXPECT_EQ(calculate(map, image), "");
    scale.Set_equally_distributed_fclimit(map.values(), person);
    const auto raster = map_raster(map, scale, double_width, 1000, progress);
    std::vector<std::string> lines;
    for (int y = 0; y < raster->height; ++y) {
      std::string line;
      for (int x = 0; x < raster->width; ++x) {
        line += letter(raster->pixels[static_cast<std::size_t>(y * raster->width + x)]);
      }
      lines.push_back(line);
    }
    return lines;
  }
  static char letter(std::uint32_t pixel) {
    if (pixel == raster_pixel(map_background)) return '.';
    return pixel == 0xffffffffU ? 'w' : 'd';
  }

  ValueMap map;
  ColourScale scale{ColourRamp(0, 0)};
  RecordingProgress progress;
};

using Lines = std::vector<std::string>;

TEST_F(MapRasterTest, PaintsABoxForEachValueWithTheSmallestYBelow) {
  point(0, 0, cotyp(1));
  point(1, 2, cotyp(5));
  // x: -1 ... 3 in 8 pixels, y: -1 ... 2 in 6.
  EXPECT_EQ(painted({8, 6}), (Lines{"........", ".....ww.", ".....ww.", ".dd.....", ".dd.....", "........"}));
}

TEST_F(MapRasterTest, DoubleWidthFillsStepsOfTwo) {
  point(0, 0, cotyp(1));
  point(0, 2, cotyp(5));
  EXPECT_EQ(painted({8, 4}), (Lines{"........", ".dd..ww.", ".dd..ww.", "........"}));
  EXPECT_EQ(painted({8, 4}, true), (Lines{"........", "ddddwwww", "ddddwwww", "........"}));
}

TEST_F(MapRasterTest, PaintsEveryPixelOfADenseMapInItsOwnColour) {
  std::mt19937 random(9);
  for (std::int32_t n = 0; n < 37; ++n) {
    for (std::int32_t k1 = 0; k1 < 53; ++k1) {
      if (random() % 4 != 0) point(n, k1, cotyp(static_cast<std::int32_t>(random() % 1000) + 1));
    }
  }
  // One pixel a unit.
  ASSERT_EQ(calculate(map, {54, 38}), "");
  scale.Set_equally_distributed_fclimit(map.values(), person);
  const auto raster = map_raster(map, scale, false, 1000, progress);
  for (int column = 0; column < 54; ++column) {
    for (int row = 0; row < 38; ++row) {
      const double value = map.grid.value(column, row);
      const std::uint32_t pixel = raster->pixels[static_cast<std::size_t>((37 - row) * 54 + column)];
      if (!ValueGrid::is_value(value)) {
        EXPECT_EQ(pixel, raster_pixel(map_background));
      } else {
        EXPECT_EQ(pixel, raster_pixel(scale.color_from_fcl_table(value, person)));
      }
    }
  }
}

TEST_F(MapRasterTest, ReportsEverySoManyLinesAndStopsAtABreak) {
  point(0, 0, cotyp(1));
  ASSERT_EQ(calculate(map, {4, 7}), "");
  scale.Set_equally_distributed_fclimit(map.values(), person);
  ASSERT_TRUE(map_raster(map, scale, false, 3, progress));
  EXPECT_EQ(progress.calls, (Reports{"box  Progress 0..7 at 0", "headline Plotting line 3 of 7",
                                     "box  Progress 0..7 at 3", "break?", "headline Plotting line 6 of 7",
                                     "box  Progress 0..7 at 6", "break?", "hidden"}));
  progress.calls.clear();
  progress.break_at = 4;
  EXPECT_FALSE(map_raster(map, scale, false, 3, progress));
  EXPECT_EQ(progress.calls.size(), 8u);
}

}  // namespace
}  // namespace kov
