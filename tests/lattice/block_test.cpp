#include "lattice/block.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "support/failing_allocation.h"

namespace kov {
namespace {

using PackedPoints = std::map<std::uint64_t, cotyp>;

Block block_of(const PackedPoints& points) {
  std::vector<std::uint64_t> keys;
  std::vector<ratyp> re;
  std::vector<ratyp> im;
  for (const auto& [key, q] : points) {
    keys.push_back(key);
    re.push_back(q.re);
    im.push_back(q.im);
  }
  return {keys, Column::of(re), Column::of(im)};
}

bool same_kind(const cotyp& a, const cotyp& b) {
  return a == b && a.re.exact() == b.re.exact() && a.im.exact() == b.im.exact();
}

void expect_points(const Block& block, const PackedPoints& points, const std::string& what) {
  ASSERT_EQ(block.size(), points.size()) << what;
  std::vector<std::uint64_t> keys(block.size());
  block.decode_keys(0, keys);
  std::size_t i = 0;
  for (const auto& [key, q] : points) {
    EXPECT_EQ(block.key(i), key) << what;
    EXPECT_EQ(keys[i], key) << what;
    EXPECT_EQ(block.lower_bound(key), i) << what;
    EXPECT_TRUE(same_kind(block.quantity(i), q)) << what << ", point " << i;
    ++i;
  }
  EXPECT_EQ(block.first_key(), points.begin()->first) << what;
  EXPECT_EQ(block.last_key(), points.rbegin()->first) << what;
}

constexpr std::uint64_t far_away = std::uint64_t{1} << 40;

TEST(Block, KeysTakeFourBytesWhileTheyLieTogether) {
  const Block near = block_of({{far_away, 1}, {far_away + 0xFFFFFFFF, 2}});
  ASSERT_NE(near.offsets(), nullptr);
  EXPECT_EQ(near.keys(), nullptr);
  EXPECT_EQ(near.base(), far_away);
  EXPECT_EQ(near.bytes(), 16U);
  const Block far = block_of({{far_away, 1}, {far_away + 0x100000000, 2}});
  EXPECT_EQ(far.offsets(), nullptr);
  ASSERT_NE(far.keys(), nullptr);
  EXPECT_EQ(far.bytes(), 24U);
  EXPECT_FALSE(far.wide());
}

TEST(Block, IsMadeOfOffsetsAsTheyAre) {
  const std::vector<std::uint32_t> offsets{0, 5};
  const std::vector<std::int32_t> values{3, 4};
  const Block block(far_away, offsets, Column::integers(values), Column::zero(2));
  expect_points(block, {{far_away, 3}, {far_away + 5, 4}}, "offsets");
}

TEST(Block, LowerBoundIsTheFirstKeyNotLess) {
  for (const std::uint64_t step : {std::uint64_t{10}, far_away}) {
    const Block block = block_of({{step, 1}, {2 * step, 2}, {3 * step, 3}});
    EXPECT_EQ(block.lower_bound(std::uint64_t{0}), 0U);
    EXPECT_EQ(block.lower_bound(step + 1), 1U);
    EXPECT_EQ(block.lower_bound(3 * step), 2U);
    EXPECT_EQ(block.lower_bound(3 * step + 1), 3U);
    EXPECT_EQ(block.lower_bound(~std::uint64_t{0}), 3U);
    for (std::size_t near = 0; near <= 4; ++near) {
      EXPECT_EQ(block.lower_bound(step + 1, near), 1U);
      EXPECT_EQ(block.lower_bound(~std::uint64_t{0}, near), 3U);
    }
  }
}

TEST(Block, HoldsWholeKeysOfARowWithoutFrame) {
  const std::vector<Lk> keys{Lk::at(0, 1, -5), Lk::at(7, 1, 3)};
  Block block(keys, Column::of(std::vector<ratyp>{1, 2}), Column::zero(2));
  EXPECT_TRUE(block.wide());
  EXPECT_EQ(block.wide_key(1), keys[1]);
  EXPECT_EQ(block.lower_bound(Lk::at(0, 1, 0)), 1U);
  block.insert(1, Lk::at(0, 1, 0), 9);
  EXPECT_EQ(block.wide_key(1), Lk::at(0, 1, 0));
  EXPECT_TRUE(block.quantity(1) == cotyp(9));
  block.move_to(-3);
  EXPECT_EQ(block.wide_key(2), Lk::at(7, -3, 3));
}

cotyp block_quantity(std::mt19937& engine) {
  const cotyp q(static_cast<std::int32_t>(engine() % 5) + 1, static_cast<std::int32_t>(engine() % 3) + 1,
                engine() % 4 == 0 ? 1 : 0, 2);
  return engine() % 8 == 0 ? to_float(q) : q;
}

TEST(Block, RandomEditsKeepKeysAndQuantities) {
  std::mt19937_64 keys(1);
  std::mt19937 engine(2);
  for (int run = 0; run < 100; ++run) {
    const std::uint64_t range = run % 2 == 0 ? 1000 : far_away;
    PackedPoints points{{range / 2, 1}};
    Block block = block_of(points);
    for (int i = 0; i < 60; ++i) {
      const std::uint64_t key = keys() % range;
      const cotyp q = block_quantity(engine);
      const std::size_t at = block.lower_bound(key);
      if (!points.contains(key)) {
        block.insert(at, key, q);
        points[key] = q;
      } else if (points.size() > 1 && engine() % 2 == 0) {
        block.erase(at);
        points.erase(key);
      } else {
        block.set(at, q);
        points[key] = q;
      }
    }
    expect_points(block, points, "run " + std::to_string(run));
    if (::testing::Test::HasFailure()) return;
  }
}

TEST(Block, SplitAndKeepDivideThePoints) {
  const PackedPoints points{{3, 1}, {5, cotyp(1, 2, 0, 1)}, {8, 3}, {9, cotyp::floating(1, 0.5)}};
  Block block = block_of(points);
  const std::vector<std::uint32_t> indices{1, 3};
  const PackedPoints some{{5, points.at(5)}, {9, points.at(9)}};
  const Block upper = block.split(1);
  expect_points(block, {{3, 1}}, "lower");
  expect_points(upper, {{5, points.at(5)}, {8, 3}, {9, points.at(9)}}, "upper");
  Block all = block_of(points);
  all.keep(indices);
  all.shrink();
  expect_points(all, some, "kept");
}

TEST(Block, WithoutMemoryItIsAsItWas) {
  const PackedPoints points{{30, 1}, {50, 2}};
  const auto check = [&](const Block& block) { expect_points(block, points, "as it was"); };
  const cotyp floating = cotyp::floating(0.5, 1);
  for (const std::uint64_t key : {std::uint64_t{10}, std::uint64_t{40}, far_away}) {
    const std::int64_t failures = fail_each_allocation(
        block_of(points), [&](Block& block) { block.insert(block.lower_bound(key), key, floating); }, check);
    EXPECT_GE(failures, 3);
  }
  EXPECT_GE(fail_each_allocation(
                block_of(points), [&](Block& block) { block.set(1, floating); }, check),
            2);
  // What is given back of the reserved memory may fail without a consequence.
  const PackedPoints lower{{30, 1}};
  const auto either = [&](const Block& block) {
    expect_points(block, block.size() == 1 ? lower : points, "either");
  };
  EXPECT_GE(fail_each_allocation(
                block_of(points), [](Block& block) { static_cast<void>(block.split(1)); }, either),
            2);
}

TEST(Block, AKeyIsFoundFromWhereverTheSearchBegins) {
  for (const std::uint64_t step : {std::uint64_t{3}, std::uint64_t{1} << 40U}) {
    std::vector<std::uint64_t> keys;
    for (std::uint64_t i = 0; i < 700; ++i) keys.push_back(100 + i * i % 7 + i * step * 7);
    const Block block(keys, Column::zero(keys.size()), Column::zero(keys.size()));
    for (std::size_t near = 0; near <= keys.size() + 100; near += 13) {
      for (std::size_t i = 0; i < keys.size(); i += 7) {
        ASSERT_EQ(block.lower_bound(keys[i], near), i);
        ASSERT_EQ(block.lower_bound(keys[i] + 1, near), i + 1);
        ASSERT_EQ(block.lower_bound(keys[i] - 1, near), i);
      }
      EXPECT_EQ(block.lower_bound(0, near), 0U);
    }
  }
}

}  // namespace
}  // namespace kov
