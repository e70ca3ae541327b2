#include "lattice/row_gatherer.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "lattice/lmap.h"
#include "random_points.h"
#include "support/points_text.h"

namespace kov {
namespace {

/// Positions that vary, how widely each.
struct Spread {
  std::string name;
  int positions;
  std::int32_t low;
  std::int32_t high;
};

Lk random_key(RandomPoints& random, const Spread& spread) {
  Lk key = Lk::filled(0);
  key.coo[0] = 5;
  for (int i = 0; i < spread.positions; ++i) {
    const auto position = static_cast<std::size_t>(i == 0 ? l_position : 3 * i);
    key.coo[position] = random.integer(spread.low, spread.high);
  }
  return key;
}

void expect_gathered(RowGatherer& gatherer, RandomPoints& random, const Spread& spread, int points) {
  std::set<Lk, LkOrder> keys;
  for (int i = 0; i < points; ++i) keys.insert(random_key(random, spread));
  Lmap expected;
  for (const Lk& key : keys) {
    const cotyp q = cotyp(random.integer(1, 1000), random.integer(1, 9), random.integer(-1, 1), 1);
    EXPECT_EQ(gatherer.behind_all(key), !gatherer.empty());
    gatherer.append(key, q);
    expected.set(key, q);
  }
  Row row = gatherer.finish();
  EXPECT_TRUE(gatherer.empty());
  ASSERT_EQ(row.count(), keys.size()) << spread.name;
  KeyBox box{*keys.begin(), *keys.begin()};
  for (const Lk& key : keys) box.include(key);
  EXPECT_EQ(row.box(), box) << spread.name;
  EXPECT_TRUE(row.box_is_exact());
  EXPECT_EQ(row.packed(), KeyFrame::with_room(box).has_value());
  if (row.packed()) {
    EXPECT_EQ(row.frame(), *KeyFrame::with_room(box));
  }
  Lmap gathered;
  gathered.insert_row(std::move(row));
  for (const Lk& key : keys) ASSERT_TRUE(gathered.contains(key)) << spread.name;
  EXPECT_EQ(points_text(gathered), points_text(expected)) << spread.name;
}

TEST(RowGatherer, GivesTheRowOfWhatWasAppendedHoweverItsKeysLie) {
  RowGatherer gatherer;
  RandomPoints random(77);
  for (const Spread& spread :
       {Spread{"one key", 0, 0, 0}, Spread{"a line", 2, -20'000, 20'000},
        Spread{"the ends of a line", 1, INT32_MIN, INT32_MAX}, Spread{"far apart", 2, INT32_MIN, INT32_MAX},
        Spread{"a cube", 4, -30, 30}, Spread{"many positions", 10, -1, 1},
        Spread{"wide", 5, INT32_MIN, INT32_MAX}}) {
    for (const int points : {1, 2, 100, 10'000}) expect_gathered(gatherer, random, spread, points);
  }
}

TEST(RowGatherer, TakesBlocksThatHaveFramesIntoARowThatHasNone) {
  RowGatherer gatherer;
  Lk key = Lk::at(0, 1);
  // Two blocks of neighbours each, the second one beyond 64 bits of the first.
  for (int i = 0; i < 8192; ++i) {
    if (i == 4096) {
      for (const std::size_t position : {1U, 2U, 3U}) key.coo[position] = INT32_MAX;
    }
    key.coo[30] = i;
    gatherer.append(key, i + 1);
  }
  const Row row = gatherer.finish();
  EXPECT_FALSE(row.packed());
  ASSERT_EQ(row.block_count(), 2U);
  EXPECT_EQ(row.block(1).wide_key(4095), key);
  EXPECT_EQ(row.block(0).wide_key(7).coo[30], 7);
  EXPECT_TRUE(row.quantity({1, 4095}) == cotyp(8192));
}

TEST(RowGatherer, SeesWhatDoesNotComeBehindAll) {
  RowGatherer gatherer;
  EXPECT_FALSE(gatherer.behind_all(Lk::at(0, 1)));
  gatherer.append(Lk::at(0, 1, 5), 1);
  EXPECT_TRUE(gatherer.behind_all(Lk::at(1, 1, 5)));
  EXPECT_TRUE(gatherer.behind_all(Lk::at(-1, 1, 6)));
  EXPECT_FALSE(gatherer.behind_all(Lk::at(0, 1, 5)));
  EXPECT_FALSE(gatherer.behind_all(Lk::at(0, 1, 4)));
  EXPECT_FALSE(gatherer.behind_all(Lk::at(0, 2, 6)));
  EXPECT_FALSE(gatherer.behind_all(Lk::at(0, 0, 6)));
}

}  // namespace
}  // namespace kov
