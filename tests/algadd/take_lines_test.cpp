#include "algadd/take_lines.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <type_traits>
#include <vector>

#include "algadd/counted_arithmetic.h"
#include "algadd/fraction_arithmetic.h"
#include "algadd/quantity_arithmetic.h"
#include "arithmetic_chains.h"

namespace kov {
namespace {

/// A sum that is a point, of the kind that the number chooses.
template <class Sum>
Sum present_sum(unsigned kind);
template <>
RealSum<std::int32_t> present_sum(unsigned kind) {
  return {kind % 2 == 0 ? std::numeric_limits<std::int32_t>::min() : 1};
}
template <>
RealSum<double> present_sum(unsigned kind) {
  constexpr std::array values = {1.0, -5e-324, std::numeric_limits<double>::quiet_NaN(),
                                 -std::numeric_limits<double>::infinity()};
  return {values[kind % 4]};
}
template <>
ComplexSum<std::int32_t> present_sum(unsigned kind) {
  return {kind % 3 == 0 ? 0 : -7, kind % 3 == 1 ? 0 : 256};
}
template <>
ComplexSum<double> present_sum(unsigned kind) {
  const double part = present_sum<RealSum<double>>(kind).re;
  return {kind % 3 == 0 ? 0.0 : part, kind % 3 == 1 ? 0.0 : part};
}
template <>
CountedRealSum present_sum(unsigned kind) {
  return {present_sum<RealSum<double>>(kind).re, FloatingParts{kind % 4}};
}
template <>
CountedSum present_sum(unsigned kind) {
  const ComplexSum<double> parts = present_sum<ComplexSum<double>>(kind);
  return {parts.re, parts.im, FloatingParts{kind % 4}};
}
template <>
FractionSum present_sum(unsigned kind) {
  const cotyp p = kind % 2 == 0 ? cotyp(1, 3, 0, 1) : cotyp::floating(-5e-324, 0.0);
  return FractionArithmetic::factor(p);
}
template <>
cotyp present_sum(unsigned kind) {
  return kind % 2 == 0 ? cotyp(0, 1, -1, 9) : cotyp::floating(0.0, 5e-324);
}

/// Bit for bit, NaN too.
template <class Sum>
bool same_sum(const Sum& a, const Sum& b) {
  if constexpr (std::is_same_v<Sum, cotyp>) {
    return same_bits(a, b);
  } else if constexpr (std::has_unique_object_representations_v<Sum>) {
    return std::memcmp(&a, &b, sizeof a) == 0;
  } else if constexpr (std::is_same_v<Sum, FractionSum>) {
    return same_sum(ComplexSum<double>{a.number, a.form}, ComplexSum<double>{b.number, b.form});
  } else {
    const auto bits = [](double x) { return std::bit_cast<std::uint64_t>(x); };
    bool same = bits(a.re) == bits(b.re);
    if constexpr (requires { a.im; }) same &= bits(a.im) == bits(b.im);
    if constexpr (!std::is_same_v<Sum, RealSum<double>> && !std::is_same_v<Sum, ComplexSum<double>>)
      same &= a.floating == b.floating;
    return same;
  }
}

/// A zero other than the one of an untouched cell: a sum that was cancelled.
template <class Sum>
Sum cancelled_sum() {
  Sum sum{};
  if constexpr (std::is_same_v<Sum, CountedRealSum> || std::is_same_v<Sum, CountedSum>) {
    sum.floating = both_floating;
  }
  if constexpr (std::is_same_v<Sum, cotyp>) sum = cotyp::floating(0.0, 0.0);
  if constexpr (std::is_same_v<Sum, RealSum<double>>) sum.re = -0.0;
  return sum;
}

/// Cells whose points are taken, and what is to come of them.
template <class Sum>
class TakeLinesTest : public ::testing::Test {
 protected:
  /// Fills count cells, each a point once in so many times; what lies behind them is absent.
  void fill(std::size_t count, unsigned once_in) {
    cells.assign((count + 9 * cells_of_line) / cells_of_line * cells_of_line, Sum{});
    expected.clear();
    expected_sums.clear();
    for (std::size_t i = 0; i < count; ++i) {
      if (random() % once_in == 0) {
        cells[i] = present_sum<Sum>(static_cast<unsigned>(random() % 12));
        expected.push_back(i);
        expected_sums.push_back(cells[i]);
      } else if (random() % 4 == 0) {
        cells[i] = cancelled_sum<Sum>();
      }
    }
  }

  /// Takes the points of the lines from keys that begin at first, block by block.
  template <class Lines>
  void take(std::uint64_t first, const Lines& lines) {
    taken.clear();
    taken_sums.clear();
    const auto full = [this] { take_block(); };
    take_lines(cells.data(), cells.size(), first, lines, *points, full);
    while (points->count() != 0) take_block();
    for (const Sum& cell : cells) EXPECT_TRUE(is_absent(cell));
  }
  void take_all(std::uint64_t first) {
    take(first, [this](auto&& look) KOV_INLINE {
      for (std::size_t line = 0; line < cells.size() / cells_of_line; ++line) look(line);
    });
  }

  void take_block() {
    const std::span<const Sum> sums = points->first_sums();
    EXPECT_LE(sums.size(), block_capacity);
    taken_sums.insert(taken_sums.end(), sums.begin(), sums.end());
    std::span<const std::uint64_t> keys;
    const Block block = points->take_block(Column::zero(sums.size()), Column::zero(sums.size()), keys);
    ASSERT_EQ(keys.size(), block.size());
    EXPECT_EQ(block.base(), block.key(0));
    for (std::size_t i = 0; i < keys.size(); ++i) {
      EXPECT_EQ(block.key(i), keys[i]);
      taken.push_back(keys[i]);
    }
  }

  void expect_taken(std::uint64_t first) const {
    ASSERT_EQ(taken.size(), expected.size());
    for (std::size_t i = 0; i < taken.size(); ++i) {
      EXPECT_EQ(taken[i], first + expected[i]);
      EXPECT_TRUE(same_sum(taken_sums[i], expected_sums[i])) << i;
    }
  }

  std::vector<Sum> cells;
  std::vector<std::uint64_t> expected;
  std::vector<Sum> expected_sums;
  std::vector<std::uint64_t> taken;
  std::vector<Sum> taken_sums;
  const std::unique_ptr<PointBuffer<Sum>> points = std::make_unique<PointBuffer<Sum>>();
  std::mt19937_64 random{9};
};

using AllSums = ::testing::Types<RealSum<std::int32_t>, ComplexSum<std::int32_t>, RealSum<double>,
                                 ComplexSum<double>, CountedRealSum, CountedSum, FractionSum, cotyp>;
TYPED_TEST_SUITE(TakeLinesTest, AllSums);

TYPED_TEST(TakeLinesTest, TakesAllPointsInTheirOrder) {
  for (const unsigned once_in : {1U, 2U, 20U, 1000000U}) {
    for (std::size_t count = 0; count <= 100; ++count) {
      this->fill(count, once_in);
      this->take_all(1000);
      this->expect_taken(1000);
    }
  }
}

TYPED_TEST(TakeLinesTest, MakesFullBlocks) {
  for (const unsigned once_in : {1U, 3U}) {
    this->fill(5 * block_capacity + 77, once_in);
    this->take_all(std::uint64_t{1} << 40U);
    this->expect_taken(std::uint64_t{1} << 40U);
  }
}

TYPED_TEST(TakeLinesTest, KeysThatLieFarApartStandWhole) {
  for (const std::uint64_t far :
       {std::uint64_t{0xFFFFFF00}, std::uint64_t{1} << 32U, std::uint64_t{1} << 50U}) {
    this->points->append(7, present_sum<TypeParam>(1));
    this->fill(3000, 2);
    this->take_all(7 + far);
    this->expected.insert(this->expected.begin(), 0 - far);
    this->expected_sums.insert(this->expected_sums.begin(), present_sum<TypeParam>(1));
    this->expect_taken(7 + far);
    ASSERT_EQ(this->taken.front(), 7U);
  }
}

TYPED_TEST(TakeLinesTest, IsNearAgainWhenItHasBeenEmptied) {
  const TypeParam sum = present_sum<TypeParam>(1);
  const std::uint64_t farthest = 7 + std::uint64_t{std::numeric_limits<std::uint32_t>::max()};
  this->points->append(7, sum);
  EXPECT_TRUE(this->points->takes_offsets(8, farthest));
  EXPECT_FALSE(this->points->takes_offsets(8, farthest + 1));
  EXPECT_FALSE(this->points->takes_offsets(8, 9)) << "all stand whole from then on";
  this->take_block();
  EXPECT_EQ(this->taken, (std::vector<std::uint64_t>{7}));
  EXPECT_TRUE(this->points->takes_offsets(farthest + 1, farthest + 2));
}

TYPED_TEST(TakeLinesTest, LooksAtTheLinesThatAreGiven) {
  constexpr std::size_t lines = 64;
  for (const unsigned once_in : {1U, 5U, 200U}) {
    for (int times = 0; times < 50; ++times) {
      this->fill(lines * cells_of_line, once_in);
      std::vector<std::uint8_t> marks(lines);
      for (std::size_t i = 0; i < lines; ++i) marks[i] = this->random() % 3 == 0 ? 1 : 0;
      std::vector<std::uint64_t> kept;
      std::vector<TypeParam> sums;
      for (std::size_t i = 0; i < this->expected.size(); ++i) {
        if (marks[this->expected[i] / cells_of_line] == 0) {
          this->cells[this->expected[i]] = TypeParam{};
          continue;
        }
        kept.push_back(this->expected[i]);
        sums.push_back(this->expected_sums[i]);
      }
      this->expected = kept;
      this->expected_sums = sums;
      this->take(5, [&](auto&& look) KOV_INLINE { for_each_mark(marks.data(), lines, look); });
      this->expect_taken(5);
      EXPECT_EQ(marks, std::vector<std::uint8_t>(lines)) << "the marks are taken away";
    }
  }
}

}  // namespace
}  // namespace kov
