#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "lattice/block.h"
#include "lattice/column.h"
#include "numbers/checked_integer.h"
#include "numbers/cotyp.h"
#include "numbers/vector_dispatch.h"

namespace kov {

// Exact integers and floating numbers side by side, when every exact part of factors and quantities is an integer:
// doubles hold them all, and a bit for each part tells whether it is still exact. A double gives the bits of the
// literal reading in both states, since an exact result within 32 bits is a double without rounding, and beyond
// them the literal result is the product or sum of the doubles.

/// The states of both parts: bit 0 is set while the real part is exact, bit 1 while the imaginary part is.
using PartStates = std::uint8_t;
inline constexpr PartStates both_exact = 3;

inline PartStates states_of(const cotyp& q) {
  return static_cast<PartStates>(static_cast<unsigned>(q.re.exact()) |
                                 static_cast<unsigned>(q.im.exact()) << 1U);
}

/// 1 when an integer that a product of exact numbers gives is in the exact range, else 0.
KOV_INLINE inline unsigned within_exact_range(double x) {
  return static_cast<unsigned>(x >= double{nu_min_int}) & static_cast<unsigned>(x <= double{nu_max_int});
}

/// The same for the sum of a and b. A sum with 0 is not tested against the range, which the negative of the
/// smallest number is beyond.
KOV_INLINE inline unsigned sum_within_exact_range(double sum, double a, double b) {
  const unsigned untested = static_cast<unsigned>(sum == double{nu_max_int} + 1.0) &
                            (static_cast<unsigned>(a == 0.0) | static_cast<unsigned>(b == 0.0));
  return within_exact_range(sum) | untested;
}

/// The quantities of a block as doubles with states.
struct CountedBlock {
  std::vector<double> re;
  /// Empty where all imaginary parts are zeros.
  std::vector<double> im;
  std::vector<PartStates> states;
};

CountedBlock counted_real_block(const Block& block);
CountedBlock counted_complex_block(const Block& block);
/// The column of parts whose states have the bit.
Column counted_column(std::span<const double> parts, std::span<const PartStates> states, unsigned bit);

struct CountedRealSum {
  double re = 0.0;
  PartStates states = both_exact;
};

inline bool is_absent(const CountedRealSum& sum) { return sum.re == 0.0; }

/// Where all imaginary parts are zeros, exact or floating.
struct CountedRealArithmetic {
  using Sum = CountedRealSum;
  using Factor = CountedRealSum;
  using Prepared = CountedBlock;
  struct Values {
    const double* re;
    const PartStates* states;
  };

  static Factor factor(const cotyp& p) { return {to_double(p.re), states_of(p)}; }
  static Prepared prepare(const Block& block) { return counted_real_block(block); }
  static Values values(const Prepared& block, std::size_t from) {
    return {block.re.data() + from, block.states.data() + from};
  }

  KOV_INLINE static Sum product(const Factor& p, const Values& q, std::size_t i) {
    const double re = p.re * q.re[i];
    const bool exact = (p.states & q.states[i]) == both_exact;
    const unsigned states = 2U | within_exact_range(re);
    return {re, static_cast<PartStates>(exact ? states : 0U)};
  }
  KOV_INLINE static void add(Sum& sum, const Sum& product) {
    const unsigned before = sum.re == 0.0 ? both_exact : sum.states;
    const double re = sum.re + product.re;
    const unsigned in_range = 2U | sum_within_exact_range(re, sum.re, product.re);
    sum = {re, static_cast<PartStates>(before & product.states & in_range)};
  }
  static std::pair<Column, Column> columns(std::span<const Sum> sums);
};

struct CountedSum {
  double re = 0.0;
  double im = 0.0;
  PartStates states = both_exact;
};

inline bool is_absent(const CountedSum& sum) { return sum.re == 0.0 && sum.im == 0.0; }

struct CountedComplexArithmetic {
  using Sum = CountedSum;
  using Factor = CountedSum;
  using Prepared = CountedBlock;
  struct Values {
    const double* re;
    const double* im;
    const PartStates* states;
  };

  static Factor factor(const cotyp& p) { return {to_double(p.re), to_double(p.im), states_of(p)}; }
  static Prepared prepare(const Block& block) { return counted_complex_block(block); }
  static Values values(const Prepared& block, std::size_t from) {
    return {block.re.data() + from, block.im.data() + from, block.states.data() + from};
  }

  KOV_INLINE static Sum product(const Factor& p, const Values& q, std::size_t i) {
    const double t1 = p.im * q.im[i];
    const double t2 = p.re * q.re[i];
    const double t3 = p.im * q.re[i];
    const double t4 = p.re * q.im[i];
    const double re = t2 - t1;
    const double im = t3 + t4;
    const bool exact = (p.states & q.states[i]) == both_exact;
    const unsigned re_exact =
        within_exact_range(t1) & within_exact_range(t2) & sum_within_exact_range(re, t2, t1);
    const unsigned im_exact = within_exact_range(t3) & within_exact_range(t4) & within_exact_range(im);
    return {re, im, static_cast<PartStates>(exact ? re_exact | im_exact << 1U : 0U)};
  }
  KOV_INLINE static void add(Sum& sum, const Sum& product) {
    const unsigned before = is_absent(sum) ? both_exact : sum.states;
    const double re = sum.re + product.re;
    const double im = sum.im + product.im;
    const unsigned in_range = sum_within_exact_range(re, sum.re, product.re) |
                              sum_within_exact_range(im, sum.im, product.im) << 1U;
    sum = {re, im, static_cast<PartStates>(before & product.states & in_range)};
  }
  static std::pair<Column, Column> columns(std::span<const Sum> sums);
};

}  // namespace kov
