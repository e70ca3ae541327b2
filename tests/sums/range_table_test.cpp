#include "sums/range_table.h"

#include <gtest/gtest.h>

#include "sums/range_tables.h"

namespace kov {
namespace {

Lk with_k1(std::int32_t k1) { return Lk::at(0, 0, k1); }

TEST(RangeTable, DefaultsAreTheK1LineAndARangeAtItsUpperEnd) {
  const RangeTable table;
  EXPECT_EQ(table.range[0].min, with_k1(INT32_MIN));
  EXPECT_EQ(table.range[0].max, with_k1(INT32_MAX));
  EXPECT_EQ(table.range[1].min, with_k1(INT32_MAX));
  EXPECT_EQ(table.range[1].max, with_k1(INT32_MAX));
  EXPECT_EQ(table.icoo_along_x_in_g, (std::array<std::int32_t, 2>{1, 1}));
  EXPECT_EQ(table.icoo_along_y_in_g2, (std::array<std::int32_t, 2>{0, 0}));
}

TEST(RangeTable, WhatTheDefaultRangesHold) {
  struct Case {
    Lk key;
    bool in_range1;
    bool in_range2;
  };
  Lk with_k30 = with_k1(3);
  with_k30.coo[30] = 1;
  // clang-format off
  const Case cases[] = {
      {Lk::at(0, 0, 0),         true,  false},
      {Lk::at(0, 0, -5),        true,  false},
      {Lk::at(0, 0, INT32_MIN), true,  false},
      {Lk::at(0, 0, INT32_MAX), true,  true},
      {Lk::at(1, 0, 0),         false, false},
      {Lk::at(-1, 0, 0),        false, false},
      {Lk::at(0, 1, 0),         false, false},
      {Lk::at(0, 1, INT32_MAX), false, false},
      {with_k30,                false, false},
  };
  // clang-format on
  const RangeTable table;
  for (const Case& c : cases) {
    EXPECT_EQ(table.range[0].contains(c.key), c.in_range1);
    EXPECT_EQ(table.range[1].contains(c.key), c.in_range2);
  }
}

TEST(RangeTable, BoundsAreInclusiveAtEveryPosition) {
  for (std::size_t position = 0; position < MaxDimCount; ++position) {
    KeyBox box;
    box.min.coo[position] = -3;
    box.max.coo[position] = 4;
    for (const std::int32_t value : {-4, -3, 0, 4, 5}) {
      Lk key;
      key.coo[position] = value;
      EXPECT_EQ(box.contains(key), -3 <= value && value <= 4) << position << ' ' << value;
    }
  }
}

TEST(RangeTable, AMinimumAboveItsMaximumEmptiesTheRange) {
  for (std::size_t position = 0; position < MaxDimCount; ++position) {
    KeyBox box{Lk::filled(INT32_MIN), Lk::filled(INT32_MAX)};
    box.min.coo[position] = 1;
    box.max.coo[position] = 0;
    for (const std::int32_t value : {INT32_MIN, 0, 1, INT32_MAX}) {
      EXPECT_FALSE(box.contains(Lk::filled(value))) << position << ' ' << value;
    }
  }
}

TEST(RangeTables, ThirtyTwoDefaultTablesOfWhichTheFirstIsCurrent) {
  const RangeTables tables;
  EXPECT_EQ(RangeTables::TableCount, 32);
  EXPECT_EQ(tables.current_index(), 0);
  for (int index = 0; index < RangeTables::TableCount; ++index) EXPECT_EQ(tables.table(index), RangeTable{});
}

TEST(RangeTables, TheCurrentTableIsTheChosenOne) {
  RangeTables tables;
  tables.choose(31);
  tables.current_table().icoo_along_x_in_g[0] = 5;
  EXPECT_EQ(tables.table(31).icoo_along_x_in_g[0], 5);
  EXPECT_EQ(tables.table(0), RangeTable{});
  tables.reset();
  EXPECT_EQ(tables.current_index(), 31);
  EXPECT_EQ(tables.current_table(), RangeTable{});
}

}  // namespace
}  // namespace kov
