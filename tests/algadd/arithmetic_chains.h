#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "lattice/block.h"
#include "numbers/cotyp.h"
#include "numbers/errors.h"

namespace kov {

/// Points 0, 1, 2, ... with these quantities, of which there are no more than a block takes.
Block block_of(const std::vector<cotyp>& quantities);

/// What the literal step does with one destination: nothing stands there while it holds no point.
void add_literally(std::optional<cotyp>& cell, const cotyp& p, const cotyp& q);

/// Same states of both parts, same bits.
bool same_bits(const cotyp& a, const cotyp& b);

/// Quantities and factors whose parts are of the given kinds, all pairs of them, none of them zero.
std::vector<cotyp> pairs_of(const std::vector<ratyp>& re, const std::vector<ratyp>& im);

/// Integers around the ends of the exact range, around its square root, and near 0.
const std::vector<ratyp>& edge_integers();
/// Fractions with small, large and prime denominators, numerators up to the ends.
const std::vector<ratyp>& edge_fractions();
/// Floating numbers, small, large and without a short binary form; 0.0 as well.
const std::vector<ratyp>& edge_doubles();
/// The numbers of all the lists.
std::vector<ratyp> joined(const std::vector<std::vector<ratyp>>& lists);

/// The quantities of a block as an arithmetic reads them.
template <class Arithmetic>
class ReadBlock {
 public:
  ReadBlock(const Arithmetic& arithmetic, Block block)
      : block_(std::move(block)), values_(arithmetic.values(block_, 0, block_.size(), room_)) {}
  ReadBlock(const ReadBlock&) = delete;
  ReadBlock& operator=(const ReadBlock&) = delete;
  const auto& values() const { return values_; }

 private:
  Block block_;
  typename Arithmetic::Room room_;
  typename Arithmetic::Values values_;
};

template <class Arithmetic>
requires requires { typename Arithmetic::Prepared; }
class ReadBlock<Arithmetic> {
 public:
  ReadBlock(const Arithmetic&, Block block)
      : block_(std::move(block)),
        prepared_(Arithmetic::prepare(block_)),
        values_(Arithmetic::values(prepared_, 0)) {}
  ReadBlock(const ReadBlock&) = delete;
  ReadBlock& operator=(const ReadBlock&) = delete;
  const auto& values() const { return values_; }

 private:
  Block block_;
  typename Arithmetic::Prepared prepared_;
  typename Arithmetic::Values values_;
};

/// Compares an arithmetic with the operations of cotyp: sums of factors times quantities, contribution by
/// contribution.
template <class Arithmetic>
class ArithmeticChains {
 public:
  ArithmeticChains(const Arithmetic& arithmetic, const std::vector<cotyp>& factors,
                   const std::vector<cotyp>& quantities)
      : arithmetic_(arithmetic), factors_(factors), quantities_(quantities) {
    for (const cotyp& p : factors) made_factors_.push_back(arithmetic.factor(p));
    for (std::size_t from = 0; from < quantities.size(); from += block_capacity) {
      const auto first = quantities.begin() + static_cast<std::ptrdiff_t>(from);
      const std::size_t count = std::min(block_capacity, quantities.size() - from);
      blocks_.push_back(std::make_unique<ReadBlock<Arithmetic>>(
          arithmetic, block_of({first, first + static_cast<std::ptrdiff_t>(count)})));
    }
  }

  /// Every factor times every quantity, alone.
  void expect_products() {
    for (std::size_t p = 0; p < factors_.size(); ++p) {
      for (std::size_t q = 0; q < quantities_.size(); ++q) {
        begin();
        ASSERT_NO_FATAL_FAILURE(add(p, q));
        ASSERT_NO_FATAL_FAILURE(end());
      }
    }
    ASSERT_NO_FATAL_FAILURE(compare());
  }

  /// Random sums, each of up to so many contributions.
  void expect_sums(int count, std::size_t longest) {
    for (int sum = 0; sum < count; ++sum) {
      begin();
      for (std::size_t length = 1 + random_() % longest; length > 0; --length) {
        ASSERT_NO_FATAL_FAILURE(add(random_() % factors_.size(), random_() % quantities_.size()));
      }
      ASSERT_NO_FATAL_FAILURE(end());
    }
    ASSERT_NO_FATAL_FAILURE(compare());
  }

  /// Random sums with each factor once at most, as a step adds them.
  void expect_sums_of_terms(int count) {
    for (int sum = 0; sum < count; ++sum) {
      begin();
      for (std::size_t p = 0; p < factors_.size(); ++p) {
        if (random_() % 4 == 0) continue;
        ASSERT_NO_FATAL_FAILURE(add(p, random_() % quantities_.size()));
      }
      ASSERT_NO_FATAL_FAILURE(end());
    }
    ASSERT_NO_FATAL_FAILURE(compare());
  }

  /// Finished sums that were compared, and those of them that overflowed.
  std::size_t compared() const { return compared_; }
  std::size_t overflows() const { return overflows_; }

 private:
  void begin() {
    cell_.reset();
    sum_ = {};
    text_.clear();
  }

  void add(std::size_t p, std::size_t q) {
    add_literally(cell_, factors_[p], quantities_[q]);
    Arithmetic::add(sum_, Arithmetic::product(made_factors_[p], blocks_[q / block_capacity]->values(),
                                              q % block_capacity));
    text_ += " + (" + to_text(factors_[p]) + ")*(" + to_text(quantities_[q]) + ")";
    ASSERT_EQ(is_absent(sum_), !cell_) << text_;
  }

  void end() {
    if (!cell_) return;
    if (!is_finite(*cell_)) {
      ++overflows_;
      ASSERT_THROW(arithmetic_.columns(std::span<const Sum>(&sum_, 1)), floating_overflow) << text_;
      return;
    }
    sums_.push_back(sum_);
    cells_.push_back(*cell_);
    texts_.push_back(text_);
    if (sums_.size() == block_capacity) compare();
  }

  void compare() {
    const auto [re, im] = arithmetic_.columns(sums_);
    for (std::size_t i = 0; i < sums_.size(); ++i) {
      const cotyp q(re.get(i), im.get(i));
      ASSERT_TRUE(same_bits(q, cells_[i]))
          << to_text(q) << " instead of " << to_text(cells_[i]) << ":" << texts_[i];
      // Columns of many sums take one form; of one sum they show its states alone.
      if (i % 64 != 0) continue;
      const auto [one_re, one_im] = arithmetic_.columns(std::span<const Sum>(&sums_[i], 1));
      ASSERT_TRUE(same_bits({one_re.get(0), one_im.get(0)}, cells_[i])) << texts_[i];
    }
    compared_ += sums_.size();
    sums_.clear();
    cells_.clear();
    texts_.clear();
  }

  using Sum = typename Arithmetic::Sum;

  const Arithmetic arithmetic_;
  const std::vector<cotyp> factors_;
  const std::vector<cotyp> quantities_;
  std::vector<typename Arithmetic::Factor> made_factors_;
  std::vector<std::unique_ptr<ReadBlock<Arithmetic>>> blocks_;
  std::mt19937_64 random_{11};

  std::optional<cotyp> cell_;
  Sum sum_{};
  std::string text_;
  std::vector<Sum> sums_;
  std::vector<cotyp> cells_;
  std::vector<std::string> texts_;
  std::size_t compared_ = 0;
  std::size_t overflows_ = 0;
};

}  // namespace kov
