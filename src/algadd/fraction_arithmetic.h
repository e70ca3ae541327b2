#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include "algadd/fraction_block.h"
#include "algadd/fraction_piece.h"
#include "algadd/fraction_sum.h"
#include "lattice/block.h"
#include "lattice/column.h"
#include "numbers/cotyp.h"

namespace kov {

/// Fractions and floating numbers side by side, where all imaginary parts are zeros, exact or floating. The
/// very operations of ratyp with their limits, without the products and sums of a complex multiplication that
/// can only be zero. Products within the limits are taken in 64 bits, so no division asks for the limit; and
/// the points that a term moves into cells are multiplied and added many at once.
struct FractionArithmetic {
  using Sum = FractionSum;
  using Factor = FractionSum;
  using Prepared = FractionBlock;
  using Values = FractionValues;

  static Factor factor(const cotyp& p) { return fraction_sum(p); }
  static Prepared prepare(const Block& block) { return Prepared(block); }
  static Values values(const Prepared& block, std::size_t from) { return block.values(from); }
  static Sum product(const Factor& p, const Values& q, std::size_t i);
  static void add(Sum& sum, const Sum& product);
  /// p times each of the values, to its cell.
  static void add_products(const Factor& p, const Values& q, const CellsOfPoints& places, std::size_t count,
                           Sum* cells) {
    add_fractions(p, q, places, count, cells);
  }
  static std::pair<Column, Column> columns(std::span<const Sum> sums);
};

}  // namespace kov
