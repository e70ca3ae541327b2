#include "lattice/merged_row.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "lattice/row_builder.h"
#include "support/failing_allocation.h"
#include "support/same_part.h"
#include "text/integers.h"

namespace kov {
namespace {

using Points = std::map<Lk, cotyp, LkOrder>;

Row row_of(std::int32_t n, const Points& points) {
  KeyBox box{points.begin()->first, points.begin()->first};
  for (const auto& [key, q] : points) box.include(key);
  RowBuilder builder(n, box);
  for (const auto& [key, q] : points) builder.append(key, q);
  return builder.finish();
}

/// That the row holds these points, in key order, with every state and bit.
void expect_row(const Row& row, const Points& points) {
  ASSERT_EQ(row.count(), points.size());
  RowPlace place = row.begin();
  for (const auto& [key, q] : points) {
    ASSERT_EQ(row.key(place), key);
    EXPECT_TRUE(same_part(row.quantity(place).re, q.re) && same_part(row.quantity(place).im, q.im));
    EXPECT_TRUE(row.box().contains(key));
    place = row.next(place);
  }
}

Points united(const Points& a, const Points& b) {
  Points all = a;
  all.insert(b.begin(), b.end());
  return all;
}

Points points_from(std::int32_t n, std::int32_t first, std::int32_t count, std::int32_t step,
                   const cotyp& q) {
  Points points;
  for (std::int32_t i = 0; i < count; ++i) points[Lk::at(0, n, first + i * step)] = q;
  return points;
}

TEST(MergedRow, WhereKeysMeetTheFirstRowKeepsItsQuantity) {
  const Points a{{Lk::at(0, 4, 1), cotyp(1, 2, 0, 1)}, {Lk::at(0, 4, 5), cotyp::floating(0.5, 0.0)}};
  const Points b{{Lk::at(0, 4, 1), 7}, {Lk::at(0, 4, 3), 8}, {Lk::at(0, 4, 5), 9}};
  const Row merged = merged_row(row_of(4, a), row_of(4, b));
  EXPECT_EQ(merged.n(), 4);
  expect_row(merged, {{Lk::at(0, 4, 1), cotyp(1, 2, 0, 1)},
                      {Lk::at(0, 4, 3), 8},
                      {Lk::at(0, 4, 5), cotyp::floating(0.5, 0.0)}});
}

TEST(MergedRow, RowsOneBehindTheOther) {
  const Points low = points_from(0, -9000, 5000, 1, 2);
  const Points high = points_from(0, 100, 5000, 1, cotyp(1, 3, 1, 1));
  expect_row(merged_row(row_of(0, low), row_of(0, high)), united(low, high));
  expect_row(merged_row(row_of(0, high), row_of(0, low)), united(low, high));
}

TEST(MergedRow, PointsInTurnFillFullBlocks) {
  const Points even = points_from(1, 0, 6000, 2, 3);
  const Points odd = points_from(1, 1, 6000, 2, 5);
  const Row merged = merged_row(row_of(1, even), row_of(1, odd));
  expect_row(merged, united(even, odd));
  ASSERT_EQ(merged.block_count(), 3U);
  EXPECT_TRUE(merged.block(0).full() && merged.block(1).full());
}

TEST(MergedRow, TheFirstRowsFrameStaysWhereItCoversBoth) {
  const Row wide_frame = row_of(0, points_from(0, -1000, 3, 1000, 1));
  const Row inside = row_of(0, points_from(0, 10, 5, 1, 2));
  EXPECT_EQ(merged_row(wide_frame, inside).frame(), wide_frame.frame());
  const Row merged = merged_row(inside, wide_frame);
  EXPECT_TRUE(merged.frame().covers(wide_frame.box()));
}

TEST(MergedRow, WideRowsMergeWithAll) {
  Points far;
  for (const std::int32_t end : {lowest_int, highest_int}) {
    Lk key = Lk::filled(end);
    key.coo[0] = 2;
    far[key] = 1;
  }
  const Points near = points_from(2, 0, 9, 1, cotyp::floating(0.25, 0.5));
  for (const bool wide_first : {true, false}) {
    const Row merged = wide_first ? merged_row(row_of(2, far), row_of(2, near))
                                  : merged_row(row_of(2, near), row_of(2, far));
    EXPECT_FALSE(merged.packed());
    expect_row(merged, united(far, near));
  }
}

TEST(MergedRow, RandomRows) {
  std::mt19937 random(1);
  const auto integer = [&](std::int32_t low, std::int32_t high) {
    return std::uniform_int_distribution(low, high)(random);
  };
  for (int run = 0; run < 300; ++run) {
    SCOPED_TRACE(run);
    Points a;
    Points b;
    for (Points* points : {&a, &b}) {
      const std::int32_t reach = integer(1, 300);
      for (int left = integer(1, 400); left > 0; --left) {
        Lk key = Lk::at(integer(-1, 1), -3, integer(-reach, reach));
        key.coo[2] = integer(0, 2);
        (*points)[key] =
            integer(0, 1) == 0 ? cotyp(integer(1, 9)) : cotyp::floating(0.1 * integer(1, 9), 0.0);
      }
    }
    expect_row(merged_row(row_of(-3, a), row_of(-3, b)), united(a, b));
    if (HasFailure()) return;
  }
}

TEST(MergedRow, WithoutMemoryBothRowsStay) {
  const Points even = points_from(1, 0, 5000, 2, 3);
  const Points odd = points_from(1, 1, 5000, 2, 5);
  const Row a = row_of(1, even);
  const Row b = row_of(1, odd);
  const std::int64_t failures = fail_each_allocation(
      0, [&](int&) { merged_row(a, b); }, [](int) {});
  EXPECT_GT(failures, 5);
  expect_row(a, even);
  expect_row(b, odd);
}

}  // namespace
}  // namespace kov
