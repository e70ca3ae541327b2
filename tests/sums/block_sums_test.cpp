#include "sums/block_sums.h"

#include <gtest/gtest.h>

#include <bit>
#include <random>
#include <vector>

#include "lattice/block_points.h"
#include "text/integers.h"

namespace kov {
namespace {

bool alike(const ratyp& a, const ratyp& b) {
  if (a.exact() != b.exact()) return false;
  if (!a.exact()) return std::bit_cast<std::uint64_t>(a.fl()) == std::bit_cast<std::uint64_t>(b.fl());
  return a.nu() == b.nu() && a.de() == b.de();
}

bool alike(const PointSum& a, const PointSum& b) {
  return a.count == b.count && alike(a.q.re, b.q.re) && alike(a.q.im, b.q.im) && alike(a.squares, b.squares);
}

/// Parts of one kind: small, middle, large and extreme integers, fractions, doubles and floating zeros.
class PartSource {
 public:
  PartSource(std::uint32_t seed, unsigned kind) : engine_(seed), kind_(kind) {}

  ratyp operator()() {
    switch (kind_) {
      case 0:
        return 0;
      case 1:
        return integer(-9, 9);
      case 2:
        return integer(-50'000, 50'000);
      case 3:
        return integer(lowest_int, highest_int);
      case 4:
        return {integer(-9, 9), 6};
      case 5:
        return ratyp::floating(integer(-999, 999) * 0.001);
      case 6:
        return ratyp::floating(0.0);
      case 7:
        return {integer(-9, 9), integer(1, 1'000'000)};
      default:
        return integer(0, 1) == 0 ? ratyp(integer(-9, 9)) : ratyp::floating(integer(-9, 9) * 0.3);
    }
  }
  static constexpr unsigned kinds = 9;

 private:
  std::int32_t integer(std::int32_t lowest, std::int32_t highest) {
    return std::uniform_int_distribution<std::int32_t>(lowest, highest)(engine_);
  }

  std::mt19937 engine_;
  unsigned kind_;
};

Block block_of_kinds(std::uint32_t seed, unsigned re_kind, unsigned im_kind, std::size_t size) {
  PartSource re(seed, re_kind);
  PartSource im(seed + 1, im_kind);
  std::vector<std::uint64_t> keys;
  std::vector<ratyp> re_parts;
  std::vector<ratyp> im_parts;
  for (std::size_t i = 0; i < size; ++i) {
    keys.push_back(i);
    re_parts.push_back(re());
    im_parts.push_back(im());
  }
  return {keys, Column::of(re_parts), Column::of(im_parts)};
}

/// Sums go on from block to block of random kinds, so that exact sums meet everything, and floating ones.
TEST(BlockSums, AreThoseOfThePointsOneByOne) {
  std::mt19937 engine(77);
  int bulks = 0;
  BlockSums chunk;
  for (std::uint32_t run = 0; run < 300; ++run) {
    PointSum all;
    PointSum some;
    PointSum expected_all;
    PointSum expected_some;
    for (int i = 0; i < 6; ++i) {
      const auto re_kind = static_cast<unsigned>(engine() % PartSource::kinds);
      const auto im_kind = engine() % 2 == 0 ? 0U : static_cast<unsigned>(engine() % PartSource::kinds);
      const Block block = block_of_kinds(static_cast<std::uint32_t>(engine()), re_kind, im_kind, 300);
      const std::size_t first = engine() % 100;
      const std::size_t count = 1 + engine() % 200;
      std::vector<std::uint8_t> flags(count);
      for (std::uint8_t& flag : flags) flag = engine() % 3 == 0 ? 1 : 0;
      chunk.take(block, first, count);
      chunk.add_to(all);
      chunk.add_to(some, flags);
      bulks += squares_are_of_doubles(block) ? 1 : 0;
      for (std::size_t point = 0; point < count; ++point) {
        const cotyp q = block.quantity(first + point);
        expected_all.add(q, qq(q));
        if (flags[point] != 0) expected_some.add(q, qq(q));
      }
      ASSERT_TRUE(alike(all, expected_all)) << run << ", kinds " << re_kind << " " << im_kind;
      ASSERT_TRUE(alike(some, expected_some)) << run << ", kinds " << re_kind << " " << im_kind;
    }
  }
  EXPECT_GT(bulks, 300);
}

TEST(BlockSums, BecomeFloatingWhereTheSumLeavesTheExactRange) {
  const std::vector<std::uint64_t> keys{1, 2, 3};
  const std::vector<std::int32_t> values{2147483000, 646, 1};
  const Block block(keys, Column::integers(values), Column::zero(3));
  BlockSums chunk;
  for (const std::size_t count : {1U, 2U, 3U}) {
    PointSum sum;
    chunk.take(block, 0, count);
    chunk.add_to(sum);
    EXPECT_EQ(sum.q.re.exact(), count < 3);
    EXPECT_FALSE(sum.squares.exact());
    EXPECT_TRUE(sum.q.im.exact());
  }
}

}  // namespace
}  // namespace kov
