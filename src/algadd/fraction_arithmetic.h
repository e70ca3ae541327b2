#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "algadd/counted_arithmetic.h"
#include "lattice/block.h"
#include "lattice/column.h"
#include "numbers/cotyp.h"

namespace kov {

/// A real number, a fraction or a double, whose imaginary part is a zero of either state. New: an absent
/// point.
struct FractionSum {
  /// A double has denominator 0 and its bits here.
  std::int64_t number = 0;
  std::int32_t denominator = 1;
  PartStates states = both_exact;

  bool exact() const { return denominator != 0; }
  double floating() const { return std::bit_cast<double>(number); }
  double value() const {
    return exact() ? static_cast<double>(number) / static_cast<double>(denominator) : floating();
  }
};

inline bool is_absent(const FractionSum& sum) {
  return sum.exact() ? sum.number == 0 : sum.floating() == 0.0;
}

/// Fractions and floating numbers side by side, where all imaginary parts are zeros, exact or floating. The
/// very operations of ratyp with their limits, without the products and sums of a complex multiplication that
/// can only be zero. Products within the limits are taken in 64 bits, so no division asks for the limit.
struct FractionArithmetic {
  using Sum = FractionSum;
  using Factor = FractionSum;
  using Prepared = std::vector<FractionSum>;
  using Values = const FractionSum*;

  static Factor factor(const cotyp& p) { return made(p.re, states_of(p)); }
  static Prepared prepare(const Block& block);
  static Values values(const Prepared& block, std::size_t from) { return block.data() + from; }
  static Sum product(const Factor& p, Values q, std::size_t i);
  static void add(Sum& sum, const Sum& product);
  static std::pair<Column, Column> columns(std::span<const Sum> sums);

 private:
  static FractionSum made(const ratyp& re, PartStates states);
};

}  // namespace kov
