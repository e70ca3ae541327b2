#include "lattice/start_patterns.h"

#include <gtest/gtest.h>

#include <string>

#include "support/failing_allocation.h"
#include "support/points_text.h"

namespace kov {
namespace {

std::string filled(Lmap lmap, StartPattern pattern) {
  fill_start_pattern(lmap, pattern);
  return points_text(lmap);
}

TEST(StartPattern, OneAtTheOrigin) { EXPECT_EQ(filled({}, StartPattern::one), "0 0: 1\n"); }

TEST(StartPattern, OneInEachOfTwoLattices) {
  EXPECT_EQ(filled({}, StartPattern::one_one), "0 0: 1\n1 0: 1\n");
}

TEST(StartPattern, BlockOfTenBySix) {
  Lmap lmap;
  fill_start_pattern(lmap, StartPattern::test_block);
  EXPECT_EQ(lmap.count(), 60U);
  EXPECT_EQ(lmap.steps(), (StepSpan{false, 0, 0}));
  struct BlockCase {
    std::int32_t k1;
    std::int32_t k2;
    cotyp q;
  };
  const BlockCase cases[] = {
      {0, 0, 1},  {9, 0, 10}, {0, 5, cotyp(1, 6, 0, 1)}, {9, 5, cotyp(5, 3, 0, 1)}, {2, 4, cotyp(3, 5, 0, 1)},
      {10, 0, 0}, {0, 6, 0}};
  for (const BlockCase& row : cases) {
    Lk key = Lk::at(0, 0, row.k1);
    key.coo[2] = row.k2;
    EXPECT_EQ(points_text(lmap).find(point_text(key, row.q) + "\n") != std::string::npos, !is_zero(row.q));
    EXPECT_TRUE(lmap.get(key) == row.q) << row.k1 << " " << row.k2;
  }
}

TEST(StartPattern, OverwritesItsOwnPointsAndNoOthers) {
  Lmap lmap;
  for (const Lk& key : {Lk::at(0, -1), Lk::at(0, 0), Lk::at(1, 0), Lk::at(0, 0, 50), Lk::at(0, 1)})
    lmap.set(key, 7);
  EXPECT_EQ(filled(lmap, StartPattern::one), "0 -1: 7\n0 0: 1\n1 0: 7\n0 0 50: 7\n0 1: 7\n");
  EXPECT_EQ(filled(lmap, StartPattern::one_one), "0 -1: 7\n0 0: 1\n1 0: 1\n0 0 50: 7\n0 1: 7\n");
}

TEST(StartPattern, LeavesTheStoreWholeWhenMemoryIsExhausted) {
  Lmap before;
  before.set(Lk::at(0, 0), 7);
  before.set(Lk::at(0, 1), 7);
  const auto fill = [](Lmap& lmap) { fill_start_pattern(lmap, StartPattern::test_block); };
  const auto unchanged = [](const Lmap& lmap) { EXPECT_EQ(points_text(lmap), "0 0: 7\n0 1: 7\n"); };
  EXPECT_GT(fail_each_allocation(before, fill, unchanged), 5);
}

}  // namespace
}  // namespace kov
