#pragma once

#include <cstddef>
#include <vector>

#include "algadd/fraction_sum.h"
#include "lattice/block.h"

namespace kov {

/// Real quantities of a block.
struct FractionValues {
  /// Exact in both parts, in their column; nullptr where they are not all so.
  const Fraction32* fractions;
  const FractionSum* numbers;

  FractionSum operator[](std::size_t i) const {
    if (fractions == nullptr) return numbers[i];
    return {static_cast<double>(fractions[i].nu), static_cast<double>(fractions[i].de)};
  }
};

/// The quantities of a block, whose imaginary parts are zeros, made ready to be multiplied. The block lives
/// as long.
class FractionBlock {
 public:
  FractionBlock() = default;
  explicit FractionBlock(const Block& block);

  FractionValues values(std::size_t from) const {
    return fractions_ != nullptr ? FractionValues{fractions_ + from, nullptr}
                                 : FractionValues{nullptr, numbers_.data() + from};
  }

 private:
  /// Of the block.
  const Fraction32* fractions_ = nullptr;
  std::vector<FractionSum> numbers_;
};

}  // namespace kov
