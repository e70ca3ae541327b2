#include "lattice/row.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "lattice/row_builder.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"
#include "text/integers.h"

namespace kov {
namespace {

using RowPoints = std::map<Lk, cotyp, LkOrder>;

std::string row_text(const Row& row) {
  std::string text;
  for (RowPlace place = row.begin(); place != row.end(); place = row.next(place)) {
    text += point_text(row.key(place), row.quantity(place)) + "\n";
  }
  return text;
}

std::string row_text(const RowPoints& points) {
  std::string text;
  for (const auto& [key, q] : points) text += point_text(key, q) + "\n";
  return text;
}

/// What every row keeps true.
void expect_in_order(const Row& row) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < row.block_count(); ++i) {
    ASSERT_GT(row.block(i).size(), 0U);
    ASSERT_LE(row.block(i).size(), block_capacity);
    ASSERT_NE(row.block(i).wide(), row.packed());
    count += row.block(i).size();
  }
  ASSERT_EQ(count, row.count());
  ASSERT_EQ(row.count_before(row.end()), row.count());
}

/// Keys of step 4, from few values or from all.
class RowKeys {
 public:
  RowKeys(unsigned seed, int positions, std::int32_t reach)
      : engine_(seed), positions_(positions), reach_(reach) {}
  Lk operator()() {
    Lk key = Lk::at(static_cast<std::int32_t>(engine_() % 3), 4);
    for (int i = 1; i <= positions_; ++i) {
      key.coo[static_cast<std::size_t>(i)] =
          std::uniform_int_distribution<std::int32_t>(-reach_, reach_)(engine_);
    }
    return key;
  }
  std::mt19937& engine() { return engine_; }

 private:
  std::mt19937 engine_;
  int positions_;
  std::int32_t reach_;
};

TEST(Row, RandomEditsKeepThePointsInOrder) {
  for (const auto& [positions, reach] : {std::pair{1, 30}, {2, 5}, {1, highest_int}, {3, highest_int}}) {
    RowKeys keys(static_cast<unsigned>(positions), positions, reach);
    Row row(4);
    RowPoints points;
    for (int i = 0; i < 600; ++i) {
      const Lk key = keys();
      const RowPlace place = row.lower_bound(key);
      const auto expected = points.lower_bound(key);
      ASSERT_EQ(row.count_before(place), static_cast<std::size_t>(std::distance(points.begin(), expected)));
      if (expected != points.end() && i % 2 == 0) {
        const RowPlace next = row.erase(place);
        const auto next_point = points.erase(expected);
        if (next_point == points.end()) {
          ASSERT_EQ(next, row.end());
        } else {
          ASSERT_EQ(row.key(next), next_point->first);
        }
      } else {
        const cotyp q = i % 5 == 0 ? cotyp::floating(i + 1, 0) : cotyp(i + 1);
        row.set(key, q);
        points[key] = q;
        ASSERT_TRUE(row.box().contains(key));
      }
      expect_in_order(row);
    }
    EXPECT_TRUE(row_text(row) == row_text(points));
  }
}

TEST(Row, WalksBothWays) {
  Row row(4);
  for (std::int32_t k = 0; k < 10'000; ++k) row.insert(Lk::at(0, 4, k), k + 1);
  EXPECT_EQ(row.block_count(), 3U);
  std::int32_t k = 10'000;
  for (RowPlace place = row.end(); place != row.begin();) {
    place = row.previous(place);
    ASSERT_EQ(row.key(place).coo[1], --k);
    ASSERT_EQ(row.count_before(place), static_cast<std::size_t>(k));
  }
  EXPECT_EQ(k, 0);
}

TEST(Row, SplitsAFullBlockWhereAPointGoesIn) {
  Row row(4);
  RowPoints points;
  for (std::int32_t k = 0; k < 5000; ++k) points[Lk::at(0, 4, 2 * k)] = k + 1;
  for (const auto& [key, q] : points) row.insert(key, q);
  RowKeys keys(9, 0, 0);
  for (int i = 0; i < 3000; ++i) {
    const Lk key = Lk::at(0, 4, static_cast<std::int32_t>(keys.engine()() % 10'000));
    row.set(key, cotyp(7));
    points[key] = 7;
  }
  expect_in_order(row);
  EXPECT_TRUE(row_text(row) == row_text(points));
}

TEST(Row, GoesOverToWholeKeysBeyond64Bits) {
  Row row = RowBuilder(4, KeyBox{Lk::at(0, 4), Lk::at(0, 4)}).finish();
  EXPECT_TRUE(row.packed());
  Lk key = Lk::at(1, 4, lowest_int);
  row.insert(Lk::at(0, 4), 1);
  row.insert(key, 2);
  EXPECT_TRUE(row.packed());
  for (const std::size_t position : {2U, 3U}) key.coo[position] = highest_int;
  row.insert(key, 3);
  EXPECT_FALSE(row.packed());
  EXPECT_EQ(row.count(), 3U);
  EXPECT_TRUE(row.quantity(row.lower_bound(key)) == cotyp(3));
  row.move_to(9);
  EXPECT_EQ(row.key(row.begin()).n(), 9);
  EXPECT_EQ(row.box().min.n(), 9);
}

TEST(Row, BoxIsExactUntilAPointGoes) {
  Row row(4);
  row.insert(Lk::at(2, 4, -7), 1);
  row.insert(Lk::at(0, 4, 5), 1);
  KeyBox box{Lk::at(0, 4, -7), Lk::at(2, 4, 5)};
  EXPECT_EQ(row.box(), box);
  EXPECT_TRUE(row.box_is_exact());
  row.erase(row.begin());
  EXPECT_FALSE(row.box_is_exact());
}

TEST(Row, WithoutMemoryItIsAsItWas) {
  Row before(4);
  for (std::int32_t k = 0; k < static_cast<std::int32_t>(block_capacity); ++k)
    before.insert(Lk::at(0, 4, 2 * k), 1);
  const std::string text = row_text(before);
  Lk far = Lk::at(3, 4, lowest_int);
  far.coo[2] = far.coo[3] = highest_int;
  for (const Lk& key : {Lk::at(0, 4, 1), Lk::at(0, 4, -5), Lk::at(0, 4, 100'000), Lk::at(5, 4), far}) {
    Row after = before;
    after.insert(key, cotyp::floating(1, 1));
    const std::string text_after = row_text(after);
    // What is given back of the reserved memory may fail without a consequence.
    const auto check = [&](const Row& row) {
      expect_in_order(row);
      EXPECT_TRUE(row_text(row) == (row.count() == before.count() ? text : text_after));
    };
    const std::int64_t failures = fail_each_allocation(
        before, [&](Row& row) { row.insert(key, cotyp::floating(1, 1)); }, check);
    EXPECT_GE(failures, 3);
  }
}

}  // namespace
}  // namespace kov
