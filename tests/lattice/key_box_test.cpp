#include "lattice/key_box.h"

#include <gtest/gtest.h>

#include <vector>

#include "text/integers.h"

namespace kov {
namespace {

TEST(Inside, IncludesBothBoundsAtEveryPosition) {
  const Lk min = Lk::filled(-2);
  const Lk max = Lk::filled(3);
  for (std::size_t position = 0; position < MaxDimCount; ++position) {
    const auto inside_with = [&](std::int32_t value) {
      Lk key;
      key.coo[position] = value;
      return inside(key, min, max);
    };
    EXPECT_FALSE(inside_with(-3)) << position;
    EXPECT_TRUE(inside_with(-2)) << position;
    EXPECT_TRUE(inside_with(3)) << position;
    EXPECT_FALSE(inside_with(4)) << position;
  }
}

TEST(Inside, TakesTheInfiniteBoundsAsTheValuesTheyAre) {
  const Lk min = Lk::filled(lowest_int);
  const Lk max = Lk::filled(highest_int);
  EXPECT_TRUE(inside(min, min, max));
  EXPECT_TRUE(inside(max, min, max));
  EXPECT_TRUE(inside(Lk{}, min, max));
}

TEST(KeyBox, IsEmptyWhenAMinimumExceedsItsMaximum) {
  KeyBox box{Lk::filled(0), Lk::filled(0)};
  EXPECT_TRUE(box.contains(Lk{}));
  box.min.coo[7] = 1;
  EXPECT_FALSE(box.contains(Lk{}));
  Lk between;
  between.coo[7] = 1;
  EXPECT_FALSE(box.contains(between));
}

TEST(InsideAny, AsksEveryBox) {
  const std::vector<KeyBox> boxes = {{Lk::at(0, 1), Lk::at(0, 1)}, {Lk::at(0, 3), Lk::at(0, 3)}};
  EXPECT_TRUE(inside_any(Lk::at(0, 1), boxes));
  EXPECT_FALSE(inside_any(Lk::at(0, 2), boxes));
  EXPECT_TRUE(inside_any(Lk::at(0, 3), boxes));
  EXPECT_FALSE(inside_any(Lk::at(0, 1), {}));
}

TEST(KeyBox, GrowsToHoldAnotherBoxOrKey) {
  KeyBox box{Lk::at(0, 5, -1), Lk::at(2, 5, 1)};
  box.include({Lk::at(1, 4, -3), Lk::at(1, 4, 0)});
  EXPECT_EQ(box, (KeyBox{Lk::at(0, 4, -3), Lk::at(2, 5, 1)}));
  box.include(Lk::at(-1, 9));
  EXPECT_EQ(box, (KeyBox{Lk::at(-1, 4, -3), Lk::at(2, 9, 1)}));
}

}  // namespace
}  // namespace kov
