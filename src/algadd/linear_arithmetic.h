#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>

#include "algadd/finished_columns.h"
#include "lattice/block.h"
#include "lattice/column.h"
#include "numbers/cotyp.h"
#include "numbers/vector_dispatch.h"

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

template <class T>
bool is_absent(const RealSum<T>& sum) {
  return sum.re == T{};
}
template <class T>
bool is_absent(const ComplexSum<T>& sum) {
  return sum.re == T{} && sum.im == T{};
}

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
  static Column column(std::span<const double> numbers) { return finished_column(numbers); }
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
    std::array<Number, block_capacity> part;
    const std::span<const Number> numbers_of_sums(part.data(), sums.size());
    for (std::size_t i = 0; i < sums.size(); ++i) part[i] = sums[i].re;
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

/// Whether products can be made by vectors of numbers, and sums need nothing but an addition.
template <class Arithmetic>
inline constexpr bool is_linear = false;
template <class Numbers>
inline constexpr bool is_linear<RealArithmetic<Numbers>> = true;
template <class Numbers>
inline constexpr bool is_linear<ComplexArithmetic<Numbers>> = true;

}  // namespace kov
