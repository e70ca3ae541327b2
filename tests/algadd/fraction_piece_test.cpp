#include "algadd/fraction_piece.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "algadd/fraction_arithmetic.h"
#include "arithmetic_chains.h"
#include "text/integers.h"

namespace kov {
namespace {

/// Which factors and quantities meet in the cells.
struct PieceNumbers {
  std::string name;
  std::vector<cotyp> factors;
  std::vector<cotyp> quantities;
};

std::vector<ratyp> fractions_up_to(std::size_t count, std::int32_t numerators, std::int32_t denominators) {
  std::mt19937_64 random(8);
  const auto integer = [&](std::int32_t low, std::int32_t high) {
    return std::uniform_int_distribution<std::int32_t>(low, high)(random);
  };
  std::vector<ratyp> fractions;
  while (fractions.size() < count)
    fractions.push_back({integer(-numerators, numerators), integer(1, denominators)});
  return fractions;
}

std::vector<cotyp> with_zeros(const std::vector<ratyp>& re) {
  return pairs_of(re, {ratyp(), ratyp::floating(0.0)});
}

std::vector<PieceNumbers> all_piece_numbers() {
  const std::vector<ratyp> edges = joined({edge_fractions(), edge_integers()});
  const std::vector<ratyp> anything = joined({edges, edge_doubles()});
  const std::vector<ratyp> few_doubles = {ratyp::floating(0.1), ratyp::floating(-1.5)};
  return {
      {"small integers", pairs_of({1, -1, 2, 3}, {0}), pairs_of({1, -1, 2, -2, 3, 4, -6, 12}, {0})},
      {"cancelling fractions", pairs_of({1, -1, {1, 2}, {-1, 2}, 2}, {0}),
       pairs_of({{1, 2}, {-1, 2}, {1, 3}, {-2, 3}, 1, -1}, {0})},
      {"small denominators", pairs_of({{1, 2}, {2, 3}, {-5, 6}, 4}, {0}),
       pairs_of(fractions_up_to(150, 100, 30), {0})},
      {"large denominators", pairs_of({1, {-3, 2}, {7, 12}, 30}, {0}),
       pairs_of(fractions_up_to(300, 60000, 60000), {0})},
      {"numbers of all sizes", pairs_of(fractions_up_to(20, 1000, 1000), {0}),
       pairs_of(fractions_up_to(300, highest_int, highest_int), {0})},
      {"edges", pairs_of(edges, {0}), pairs_of(edges, {0})},
      {"floating factors among others", pairs_of(joined({{1, {2, 3}}, few_doubles}), {0}),
       pairs_of(fractions_up_to(100, 50, 50), {0})},
      {"few floating quantities", pairs_of({1, -1, {1, 2}}, {0}),
       pairs_of(joined({fractions_up_to(100, 50, 50), few_doubles}), {0})},
      {"both zeros", with_zeros({1, {-1, 2}}), with_zeros(fractions_up_to(30, 9, 9))},
      {"anything", with_zeros(anything), with_zeros(anything)},
  };
}

class FractionPieceTest : public ::testing::TestWithParam<PieceNumbers> {
 protected:
  static constexpr std::size_t cell_count = 3000;

  std::size_t up_to(std::size_t most) { return 1 + random_() % most; }
  const cotyp& one_of(const std::vector<cotyp>& numbers) { return numbers[random_() % numbers.size()]; }

  /// Ascending, with gaps up to the spacing; at times as whole keys.
  std::vector<std::uint64_t> keys_of(std::size_t count, std::size_t spacing) {
    std::vector<std::uint64_t> keys{random_() % 50};
    while (keys.size() < count) keys.push_back(keys.back() + up_to(spacing));
    return keys;
  }

  /// One term moves points, and the literal cells take the same.
  void add_piece(std::size_t most_points, std::size_t spacing) {
    std::vector<std::uint64_t> keys = keys_of(up_to(most_points), spacing);
    const std::size_t used = keys.size();
    // A last key far away makes the block store keys of 8 bytes.
    if (random_() % 2 == 0) keys.push_back(keys.back() + (std::uint64_t{1} << 40U));
    std::vector<cotyp> quantities;
    std::vector<ratyp> re;
    std::vector<ratyp> im;
    for (std::size_t i = 0; i < keys.size(); ++i) {
      quantities.push_back(one_of(GetParam().quantities));
      re.push_back(quantities.back().re);
      im.push_back(quantities.back().im);
    }
    const Block block(keys, Column::of(re), Column::of(im));
    const FractionBlock prepared(block);
    const cotyp p = one_of(GetParam().factors);
    const std::size_t from = random_() % std::min<std::size_t>(used, 20);
    const std::int64_t shift = static_cast<std::int64_t>(random_() % 20);
    FractionArithmetic::add_products(FractionArithmetic::factor(p), prepared.values(from),
                                     CellsOfPoints(block, from, shift), used - from, cells_.data());
    for (std::size_t i = from; i < used; ++i) {
      add_literally(literal_[keys[i] + static_cast<std::uint64_t>(shift)], p, quantities[i]);
    }
  }

  void expect_literal_cells() const {
    for (std::size_t i = 0; i < cell_count; ++i) {
      ASSERT_EQ(is_absent(cells_[i]), !literal_[i]) << i;
      if (!literal_[i]) {
        ASSERT_EQ(cells_[i].form, 1.0) << i << ": begins afresh";
        continue;
      }
      if (!is_finite(*literal_[i])) {
        ASSERT_FALSE(std::isfinite(cells_[i].number)) << i;
        continue;
      }
      const auto [re, im] = FractionArithmetic::columns(std::span(&cells_[i], 1));
      const cotyp q(re.get(0), im.get(0));
      ASSERT_TRUE(same_bits(q, *literal_[i]))
          << i << ": " << to_text(q) << " instead of " << to_text(*literal_[i]);
    }
  }

  std::mt19937_64 random_{9};
  std::vector<FractionSum> cells_ = std::vector<FractionSum>(cell_count);
  std::vector<std::optional<cotyp>> literal_ = std::vector<std::optional<cotyp>>(cell_count);
};

TEST_P(FractionPieceTest, NeighboursGiveTheLiteralBits) {
  for (int piece = 0; piece < 60; ++piece) add_piece(1500, 1);
  expect_literal_cells();
}

TEST_P(FractionPieceTest, ScatteredPointsGiveTheLiteralBits) {
  for (int piece = 0; piece < 60; ++piece) add_piece(700, 4);
  expect_literal_cells();
}

TEST_P(FractionPieceTest, FewPointsGiveTheLiteralBits) {
  for (int piece = 0; piece < 600; ++piece) add_piece(40, 3);
  expect_literal_cells();
}

TEST_P(FractionPieceTest, TheFirstSumsGiveTheLiteralBits) {
  // Later on most sums have gone over to floating.
  for (int round = 0; round < 25; ++round) {
    cells_.assign(cell_count, {});
    literal_.assign(cell_count, {});
    for (int piece = 0; piece < 4; ++piece) add_piece(400, 2);
    ASSERT_NO_FATAL_FAILURE(expect_literal_cells());
  }
}

INSTANTIATE_TEST_SUITE_P(Numbers, FractionPieceTest, ::testing::ValuesIn(all_piece_numbers()));

}  // namespace
}  // namespace kov
