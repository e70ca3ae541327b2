#include "lattice/row_builder.h"

#include <gtest/gtest.h>

#include <vector>

#include "text/integers.h"

namespace kov {
namespace {

TEST(RowBuilder, MakesFullBlocksOfPointsInKeyOrder) {
  constexpr std::int32_t points = 10'000;
  RowBuilder builder(3, KeyBox{Lk::at(0, 3), Lk::at(0, 3, points)});
  for (std::int32_t k = 0; k < points; ++k) builder.append(Lk::at(0, 3, k), k + 1);
  const Row row = builder.finish();
  EXPECT_EQ(row.n(), 3);
  EXPECT_EQ(row.count(), static_cast<std::size_t>(points));
  ASSERT_EQ(row.block_count(), 3U);
  EXPECT_EQ(row.block(0).size(), block_capacity);
  EXPECT_EQ(row.block(0).bytes(), 8 * block_capacity);
  EXPECT_EQ(row.block(0).im().form(), PartForm::zero);
  EXPECT_EQ(row.box(), (KeyBox{Lk::at(0, 3), Lk::at(0, 3, points - 1)}));
  EXPECT_TRUE(row.box_is_exact());
  std::int32_t k = 0;
  for (RowPlace place = row.begin(); place != row.end(); place = row.next(place), ++k) {
    ASSERT_EQ(row.key(place), Lk::at(0, 3, k));
    ASSERT_TRUE(row.quantity(place) == cotyp(k + 1));
  }
}

TEST(RowBuilder, TakesWholeBlocksBetweenPoints) {
  const auto frame = KeyFrame::for_box({Lk::at(0, 0), Lk::at(0, 0, 1000)});
  ASSERT_TRUE(frame);
  RowBuilder builder(-2, frame);
  builder.append(Lk::at(0, -2, 1), 1);
  const std::vector<std::uint64_t> keys{500, 600};
  const std::vector<double> values{0.5, 2.0};
  builder.append(Block(keys, Column::doubles(values), Column::floating_zero(2)),
                 {Lk::at(0, -2, 500), Lk::at(0, -2, 600)});
  builder.append(700, 7);
  const Row row = builder.finish();
  EXPECT_EQ(row.block_count(), 3U);
  EXPECT_EQ(row.count(), 4U);
  EXPECT_EQ(row.frame(), *frame);
  EXPECT_EQ(row.box(), (KeyBox{Lk::at(0, -2, 1), Lk::at(0, -2, 700)}));
  EXPECT_TRUE(row.quantity(row.lower_bound(Lk::at(0, -2, 600))) == cotyp::floating(2, 0));
}

TEST(RowBuilder, KeepsWholeKeysOfABoxBeyond64Bits) {
  KeyBox box{Lk::filled(lowest_int), Lk::filled(highest_int)};
  box.min.coo[0] = box.max.coo[0] = 3;
  RowBuilder builder(3, box);
  builder.append(box.min, 1);
  builder.append(box.max, cotyp(1, 2, 0, 1));
  const Row row = builder.finish();
  EXPECT_FALSE(row.packed());
  EXPECT_EQ(row.box(), box);
  EXPECT_EQ(row.key(row.begin()), box.min);
  EXPECT_TRUE(row.quantity({0, 1}) == cotyp(1, 2, 0, 1));
}

TEST(RowBuilder, MakesARowWithoutPoints) {
  const Row row = RowBuilder(1, KeyBox{Lk::at(0, 1), Lk::at(0, 1)}).finish();
  EXPECT_TRUE(row.empty());
  EXPECT_EQ(row.begin(), row.end());
  EXPECT_EQ(row.lower_bound(Lk::at(0, 1)), row.end());
}

}  // namespace
}  // namespace kov
