#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "lattice/bit_list.h"
#include "lattice/block.h"
#include "lattice/column.h"
#include "numbers/checked_integer.h"
#include "numbers/cotyp.h"
#include "numbers/vector_dispatch.h"

namespace kov {

// Exact integers and floating numbers side by side, when every exact part of factors and quantities is an
// integer: doubles hold them all, and a bit for each part tells whether it is still exact. A double gives the
// bits of AddLpairToLmap_1 in both states, since an exact result within 32 bits is a double without
// rounding, and beyond them the literal result is the product or sum of the doubles.

/// The floating parts of a sum or a product; none in a new one, which is all zeros.
using FloatingParts = std::uint64_t;
inline constexpr FloatingParts re_floating = 1;
inline constexpr FloatingParts im_floating = 2;
inline constexpr FloatingParts both_floating = 3;

inline FloatingParts floating_parts_of(const cotyp& q) {
  return (q.re.exact() ? 0 : re_floating) | (q.im.exact() ? 0 : im_floating);
}

/// 1 when an integer is beyond the exact range, else 0. The range reaches as far to both sides of -1/2, so
/// one comparison of the distance from there does.
KOV_INLINE inline FloatingParts beyond_exact_range(double x) {
  return static_cast<FloatingParts>(std::abs(x + 0.5) > nu_max_int + 0.5);
}

KOV_INLINE inline FloatingParts above_exact_range(double x) {
  return static_cast<FloatingParts>(x > double{nu_max_int});
}

/// The parts of a column as doubles: where they stand in the column, or made.
class CountedParts {
 public:
  CountedParts() = default;
  /// The column must outlive the parts.
  explicit CountedParts(const Column& column);

  const double* data() const { return made_.empty() ? in_column_ : made_.data(); }

 private:
  const double* in_column_ = nullptr;
  std::vector<double> made_;
};

/// The quantities of a block as doubles with states. As one floating part of a factor makes a product
/// floating in both, it is enough to know which quantities are exact in both parts. The block must outlive
/// this.
struct CountedBlock {
  CountedParts re;
  /// Of no parts where all imaginary parts are zeros.
  CountedParts im;
  BitList exact;
};

/// Of a block whose imaginary parts are zeros.
CountedBlock counted_real_block(const Block& block);
CountedBlock counted_complex_block(const Block& block);

/// f(i, product) for the quantities i < count of a piece; the products are those of
/// Arithmetic::floating_product for stretches of quantities, and for factors, that are not exact, and those
/// of Arithmetic::product elsewhere. Numbers change their state where they grow out of the exact range, so
/// most pieces are all exact or all floating.
template <class Arithmetic, class Function>
KOV_INLINE inline void for_each_counted_product(const typename Arithmetic::Factor& p,
                                                const typename Arithmetic::Values& q, std::size_t count,
                                                const Function& f) {
  constexpr std::size_t shortest_stretch = 8;
  for (std::size_t i = 0; i < count;) {
    const std::size_t exact =
        p.floating == 0 ? q.exact->next_one(q.from + i, q.from + count) - q.from : count;
    if (exact == count || exact - i >= shortest_stretch) {
      for (; i < exact; ++i) f(i, Arithmetic::floating_product(p, q, i));
    }
    const std::size_t end = std::min(count, exact + shortest_stretch);
    for (; i < end; ++i) f(i, Arithmetic::product(p, q, i));
  }
}

/// What tells the floating parts takes as many bytes as a double: sums are written and read in like pieces.
struct CountedRealSum {
  double re = 0.0;
  FloatingParts floating = 0;
};

inline bool is_absent(const CountedRealSum& sum) { return sum.re == 0.0; }

/// Where all imaginary parts are zeros, exact or floating.
struct CountedRealArithmetic {
  using Sum = CountedRealSum;
  using Factor = CountedRealSum;
  using Prepared = CountedBlock;
  struct Values {
    const double* re;
    const BitList* exact;
    std::size_t from;
  };
  /// A product that is floating in both parts.
  struct FloatingProduct {
    double re;
    // NOLINTNEXTLINE(google-explicit-constructor): a floating product is a product
    operator Sum() const { return {re, both_floating}; }
  };

  static Factor factor(const cotyp& p) { return {to_double(p.re), floating_parts_of(p)}; }
  static Prepared prepare(const Block& block) { return counted_real_block(block); }
  static Values values(const Prepared& block, std::size_t from) {
    return {block.re.data() + from, &block.exact, from};
  }

  KOV_INLINE static FloatingProduct floating_product(const Factor& p, const Values& q, std::size_t i) {
    return {p.re * q.re[i]};
  }
  KOV_INLINE static Sum product(const Factor& p, const Values& q, std::size_t i) {
    const double re = p.re * q.re[i];
    const bool exact = p.floating == 0 && (*q.exact)[q.from + i];
    return {re, exact ? beyond_exact_range(re) : both_floating};
  }
  template <class Function>
  KOV_INLINE static void for_each_product(const Factor& p, const Values& q, std::size_t count,
                                          const Function& f) {
    for_each_counted_product<CountedRealArithmetic>(p, q, count, f);
  }
  KOV_INLINE static void add(Sum& sum, const Sum& product) {
    const FloatingParts before = sum.re == 0.0 ? 0 : sum.floating;
    sum.re += product.re;
    sum.floating = before | product.floating | beyond_exact_range(sum.re);
  }
  KOV_INLINE static void add(Sum& sum, const FloatingProduct& product) {
    sum.re += product.re;
    sum.floating = both_floating;
  }
  static std::pair<Column, Column> columns(std::span<const Sum> sums);
};

struct CountedSum {
  double re = 0.0;
  double im = 0.0;
  FloatingParts floating = 0;
};

inline bool is_absent(const CountedSum& sum) { return sum.re == 0.0 && sum.im == 0.0; }

struct CountedComplexArithmetic {
  using Sum = CountedSum;
  using Factor = CountedSum;
  using Prepared = CountedBlock;
  struct Values {
    const double* re;
    const double* im;
    const BitList* exact;
    std::size_t from;
  };
  /// A product that is floating in both parts.
  struct FloatingProduct {
    double re;
    double im;
    // NOLINTNEXTLINE(google-explicit-constructor): a floating product is a product
    operator Sum() const { return {re, im, both_floating}; }
  };

  static Factor factor(const cotyp& p) { return {to_double(p.re), to_double(p.im), floating_parts_of(p)}; }
  static Prepared prepare(const Block& block) { return counted_complex_block(block); }
  static Values values(const Prepared& block, std::size_t from) {
    return {block.re.data() + from, block.im.data() + from, &block.exact, from};
  }

  KOV_INLINE static FloatingProduct floating_product(const Factor& p, const Values& q, std::size_t i) {
    return {p.re * q.re[i] - p.im * q.im[i], p.im * q.re[i] + p.re * q.im[i]};
  }
  KOV_INLINE static Sum product(const Factor& p, const Values& q, std::size_t i) {
    const double t1 = p.im * q.im[i];
    const double t2 = p.re * q.re[i];
    const double t3 = p.im * q.re[i];
    const double t4 = p.re * q.im[i];
    const double re = t2 - t1;
    const double im = t3 + t4;
    const bool exact = p.floating == 0 && (*q.exact)[q.from + i];
    // A difference from 0 is not tested against the range, which the negative of its smallest number is
    // beyond.
    const FloatingParts difference = beyond_exact_range(re) & static_cast<FloatingParts>(t2 != 0.0);
    const FloatingParts re_beyond = beyond_exact_range(t1) | beyond_exact_range(t2) | difference;
    const FloatingParts im_beyond = beyond_exact_range(t3) | beyond_exact_range(t4) | beyond_exact_range(im);
    return {re, im, exact ? re_beyond | im_beyond << 1U : both_floating};
  }
  template <class Function>
  KOV_INLINE static void for_each_product(const Factor& p, const Values& q, std::size_t count,
                                          const Function& f) {
    for_each_counted_product<CountedComplexArithmetic>(p, q, count, f);
  }
  KOV_INLINE static void add(Sum& sum, const Sum& product) {
    const double re = sum.re + product.re;
    const double im = sum.im + product.im;
    // Of the parts of exact products only the real one can be above the range: then no sum with it is exact.
    const FloatingParts re_beyond =
        beyond_exact_range(re) | above_exact_range(sum.re) | above_exact_range(product.re);
    const FloatingParts beyond = re_beyond | beyond_exact_range(im) << 1U;
    const FloatingParts before = is_absent(sum) ? 0 : sum.floating | beyond;
    sum = {re, im, before | product.floating};
  }
  KOV_INLINE static void add(Sum& sum, const FloatingProduct& product) {
    sum.re += product.re;
    sum.im += product.im;
    sum.floating = both_floating;
  }
  static std::pair<Column, Column> columns(std::span<const Sum> sums);
};

}  // namespace kov
