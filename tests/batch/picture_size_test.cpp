#include "batch/picture_size.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(PictureSize, IsThousandBySevenHundredUnlessGiven) { EXPECT_EQ(PictureSize{}, (PictureSize{1000, 700})); }

TEST(PictureSize, ReadsWidthAndHeight) {
  EXPECT_EQ(parse_picture_size("1200x900"), (PictureSize{1200, 900}));
  EXPECT_EQ(parse_picture_size("0x0"), (PictureSize{0, 0}));
  EXPECT_EQ(parse_picture_size("16384x1"), (PictureSize{16384, 1}));
}

TEST(PictureSize, IsNothingElse) {
  for (const char* text : {"", "x", "12x", "x12", "12", "-1x5", "+1x5", "5x-1", "5x+1", "1x2x3", "1 x2",
                           "1.5x2", "16385x1", "1x16385", "99999999999x1", "1X2"}) {
    EXPECT_EQ(parse_picture_size(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace kov
