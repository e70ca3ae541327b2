#pragma once

#include <span>
#include <utility>
#include <vector>

#include "lattice/block.h"
#include "lattice/column.h"
#include "numbers/cotyp.h"

namespace kov {

inline bool is_absent(const cotyp& sum) { return is_zero(sum); }

/// Any quantities, by the operations of cotyp themselves.
struct QuantityArithmetic {
  using Sum = cotyp;
  using Factor = cotyp;
  using Prepared = std::vector<cotyp>;
  using Values = const cotyp*;

  static Factor factor(const cotyp& p) { return p; }
  static Prepared prepare(const Block& block);
  static Values values(const Prepared& block, std::size_t from) { return block.data() + from; }
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

}  // namespace kov
