#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "algadd/overflow_check.h"
#include "numbers/vector_dispatch.h"
#include "lattice/block.h"
#include "lattice/column.h"
#include "numbers/checked_integer.h"
#include "numbers/cotyp.h"

// The ways in which a step computes. Each gives the bits of the literal reading, under a condition that
// choose_arithmetic proves before the step:
//
//   Sum        what gathers in one destination; a new one is an absent point
//   Factor     p of an entry, made ready
//   Values     the quantities of a piece of a source block, to be read by index
//   product    Factor times one of Values
//   add        Sum += product, where a sum that reaches zero is an absent point again
//   columns    the parts of many sums, none of them zero; throws floating_overflow when one is not finite
namespace kov {

/// Room for the quantities of one block in the form that an arithmetic reads.
template <class T>
struct ValueRoom {
  std::array<T, block_capacity> re;
  std::array<T, block_capacity> im;
};

template <class T>
struct RealSum {
  T re{};
  friend bool operator==(const RealSum&, const RealSum&) = default;
};

template <class T>
struct ComplexSum {
  T re{};
  T im{};
  friend bool operator==(const ComplexSum&, const ComplexSum&) = default;
};

/// Numerators over a common denominator, when a bound on the sums proves that nothing leaves the exact range.
/// The parts of a product are numerators over the product of both denominators.
struct IntegerNumbers {
  using Number = std::int32_t;
  std::int32_t source_denominator = 1;
  std::int32_t factor_denominator = 1;

  std::int32_t factor(const ratyp& part) const { return part.nu() * (factor_denominator / part.de()); }
  const std::int32_t* values(const Column& column, std::size_t from, std::size_t count,
                             std::int32_t* room) const;
  Column column(std::span<const std::int32_t> numerators) const;
};

/// Doubles, when every product has both its parts floating, or would give the same double if it were exact.
struct DoubleNumbers {
  using Number = double;

  static double factor(const ratyp& part) { return to_double(part); }
  static const double* values(const Column& column, std::size_t from, std::size_t count, double* room);
  static Column column(std::span<const double> numbers);
};

/// Real factors, real quantities: the imaginary parts of all products are zeros of the one form.
template <class Numbers>
struct RealArithmetic {
  using Number = typename Numbers::Number;
  using Sum = RealSum<Number>;
  using Factor = Number;
  using Values = const Number*;
  using Room = ValueRoom<Number>;

  Numbers numbers;

  Factor factor(const cotyp& p) const { return numbers.factor(p.re); }
  Values values(const Block& block, std::size_t from, std::size_t count, Room& room) const {
    return numbers.values(block.re(), from, count, room.re.data());
  }
  KOV_INLINE static Sum product(Factor p, Values q, std::size_t i) { return {p * q[i]}; }
  KOV_INLINE static void add(Sum& sum, const Sum& product) { sum.re += product.re; }
  std::pair<Column, Column> columns(std::span<const Sum> sums) const {
    static_assert(sizeof(Sum) == sizeof(Number));
    const std::span numbers_of_sums(&sums.data()->re, sums.size());
    if constexpr (std::is_same_v<Numbers, IntegerNumbers>) {
      return {numbers.column(numbers_of_sums), Column::zero(sums.size())};
    } else {
      return {numbers.column(numbers_of_sums), Column::floating_zero(sums.size())};
    }
  }
};

/// Complex factors and quantities, multiplied in the order of cotyp.
template <class Numbers>
struct ComplexArithmetic {
  using Number = typename Numbers::Number;
  using Sum = ComplexSum<Number>;
  using Factor = ComplexSum<Number>;
  struct Values {
    const Number* re;
    const Number* im;
  };
  using Room = ValueRoom<Number>;

  Numbers numbers;

  Factor factor(const cotyp& p) const { return {numbers.factor(p.re), numbers.factor(p.im)}; }
  Values values(const Block& block, std::size_t from, std::size_t count, Room& room) const {
    return {numbers.values(block.re(), from, count, room.re.data()),
            numbers.values(block.im(), from, count, room.im.data())};
  }
  KOV_INLINE static Sum product(const Factor& p, const Values& q, std::size_t i) {
    return {p.re * q.re[i] - p.im * q.im[i], p.im * q.re[i] + p.re * q.im[i]};
  }
  KOV_INLINE static void add(Sum& sum, const Sum& product) {
    sum.re += product.re;
    sum.im += product.im;
  }
  std::pair<Column, Column> columns(std::span<const Sum> sums) const {
    std::array<Number, block_capacity> part;
    const std::span numbers_of_part(part.data(), sums.size());
    for (std::size_t i = 0; i < sums.size(); ++i) part[i] = sums[i].re;
    Column re = numbers.column(numbers_of_part);
    for (std::size_t i = 0; i < sums.size(); ++i) part[i] = sums[i].im;
    return {std::move(re), numbers.column(numbers_of_part)};
  }
};

/// Exact integers and floating numbers side by side, when every exact part of factors and quantities is an
/// integer: doubles hold them all, and two bits tell whether a part is still exact. A double gives the bits of
/// the literal reading in both states, since an exact result within 32 bits is a double without rounding, and
/// beyond them the literal result is the product or sum of the doubles.
struct CountedArithmetic {
  struct Sum {
    double re = 0.0;
    double im = 0.0;
    /// Bit 0: the real part is exact; bit 1: the imaginary part is.
    std::uint8_t exact = both_exact;
  };
  using Factor = Sum;
  struct Values {
    const double* re;
    const double* im;
    const std::uint8_t* re_exact;
    const std::uint8_t* im_exact;
  };
  struct Room {
    ValueRoom<double> numbers;
    ValueRoom<std::uint8_t> exact;
  };
  static constexpr std::uint8_t both_exact = 3;

  Factor factor(const cotyp& p) const;
  Values values(const Block& block, std::size_t from, std::size_t count, Room& room) const;

  /// Whether an integer that a product or a sum of exact numbers gives is in the exact range.
  KOV_INLINE static unsigned within(double x) {
    return static_cast<unsigned>(x >= double{nu_min_int}) & static_cast<unsigned>(x <= double{nu_max_int});
  }
  /// The same for the sum of a and b. A sum with 0 is not tested against the range, which the negative of the
  /// smallest number is beyond.
  KOV_INLINE static unsigned sum_within(double sum, double a, double b) {
    const unsigned untested = static_cast<unsigned>(sum == double{nu_max_int} + 1.0) &
                              (static_cast<unsigned>(a == 0.0) | static_cast<unsigned>(b == 0.0));
    return within(sum) | untested;
  }
  KOV_INLINE static Sum product(const Factor& p, const Values& q, std::size_t i) {
    const unsigned p_re = p.exact & 1U;
    const unsigned p_im = p.exact >> 1U;
    const unsigned q_re = q.re_exact[i];
    const unsigned q_im = q.im_exact[i];
    const double t1 = p.im * q.im[i];
    const double t2 = p.re * q.re[i];
    const double t3 = p.im * q.re[i];
    const double t4 = p.re * q.im[i];
    const double re = t2 - t1;
    const double im = t3 + t4;
    const unsigned all = p_re & p_im & q_re & q_im;
    const unsigned re_exact = all & within(t1) & within(t2) & sum_within(re, t2, t1);
    const unsigned im_exact = all & within(t3) & within(t4) & within(im);
    return {re, im, static_cast<std::uint8_t>(re_exact | im_exact << 1U)};
  }
  KOV_INLINE static void add(Sum& sum, const Sum& product) {
    const bool absent = sum.re == 0.0 && sum.im == 0.0;
    const unsigned before = absent ? both_exact : sum.exact;
    const double re = sum.re + product.re;
    const double im = sum.im + product.im;
    const unsigned in_range =
        sum_within(re, sum.re, product.re) | sum_within(im, sum.im, product.im) << 1U;
    sum.re = re;
    sum.im = im;
    sum.exact = static_cast<std::uint8_t>(before & product.exact & in_range);
  }
  std::pair<Column, Column> columns(std::span<const Sum> sums) const;

  friend bool is_absent(const Sum& sum) { return sum.re == 0.0 && sum.im == 0.0; }
};

/// Any quantities, by the operations of cotyp themselves.
struct QuantityArithmetic {
  using Sum = cotyp;
  using Factor = cotyp;
  using Values = const cotyp*;
  struct Room {
    std::array<cotyp, block_capacity> quantities;
  };

  static Factor factor(const cotyp& p) { return p; }
  static Values values(const Block& block, std::size_t from, std::size_t count, Room& room);
  static Sum product(const Factor& p, Values q, std::size_t i) { return p * q[i]; }
  static void add(Sum& sum, const Sum& product) {
    if (is_zero(sum)) {
      sum = product;
    } else {
      sum += product;
    }
  }
  static std::pair<Column, Column> columns(std::span<const Sum> sums);
};

template <class T>
bool is_absent(const RealSum<T>& sum) {
  return sum.re == T{};
}
template <class T>
bool is_absent(const ComplexSum<T>& sum) {
  return sum.re == T{} && sum.im == T{};
}
inline bool is_absent(const cotyp& sum) { return is_zero(sum); }

}  // namespace kov
