#include "lattice/lattice_status.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

Lmap row_of(std::int32_t n, std::int32_t points) {
  Lmap lmap;
  for (std::int32_t k1 = 0; k1 < points; ++k1) lmap.set(Lk::at(0, n, k1), 1);
  return lmap;
}

TEST(StatusLine, OfEmptyLattices) { EXPECT_EQ(status_line(Lmap{}), " Lattices are empty. "); }

TEST(StatusLine, ShowsLastStepSizeAndCount) {
  EXPECT_EQ(status_line(row_of(5, 1)), "nlast = 5 (0.176 KB = 1e)");
  EXPECT_EQ(status_line(row_of(5, 1000)), "nlast = 5 (176.000 KB = 1000e)");
  EXPECT_EQ(status_line(row_of(-3, 2)), "nlast = -3 (0.352 KB = 2e)");
}

TEST(StatusLine, SeparatesThousandsOfKilobytesByABlank) {
  EXPECT_EQ(status_line(row_of(0, 10'000)), "nlast = 0 (1 760.000 KB = 10000e)");
}

TEST(BoundingBox, OfEmptyLatticesIsInsideOut) {
  const BoundingBox box = bounding_box(Lmap{});
  EXPECT_EQ(box.min, Lk::filled(highest_int));
  EXPECT_EQ(box.max, Lk::filled(lowest_int));
  for (const std::int32_t counter : box.counters) EXPECT_EQ(counter, 0);
}

TEST(BoundingBox, TakesEveryPositionByItself) {
  Lmap lmap;
  for (std::size_t position = 0; position < MaxDimCount; ++position) {
    const auto value = static_cast<std::int32_t>(position) + 1;
    Lk key;
    key.coo[position] = value;
    lmap.set(key, 1);
    key.coo[position] = -2 * value;
    lmap.set(key, 1);
  }
  const BoundingBox box = bounding_box(lmap);
  for (std::size_t position = 0; position < MaxDimCount; ++position) {
    const auto value = static_cast<std::int32_t>(position) + 1;
    EXPECT_EQ(box.min.coo[position], -2 * value) << position;
    EXPECT_EQ(box.max.coo[position], value) << position;
    EXPECT_EQ(box.counters[position], 0) << position;
  }
}

TEST(BoundingBox, OfOnePointIsThatPoint) {
  Lmap lmap;
  lmap.set(Lk::at(lowest_int, highest_int, 4), 1);
  EXPECT_EQ(bounding_box(lmap).min, Lk::at(lowest_int, highest_int, 4));
  EXPECT_EQ(bounding_box(lmap).max, Lk::at(lowest_int, highest_int, 4));
}

}  // namespace
}  // namespace kov
