#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "lattice/block.h"
#include "sums/range_sums.h"

namespace kov {

/// Adds points of a block up, some hundred at a time, with the results of PointSum::add for each of them in
/// key order: every bit, and where the sums become floating. It looks at single points only where a sum may
/// leave the exact range, or where parts are fractions.
class BlockSums {
 public:
  static constexpr std::size_t most_points = 1024;

  /// From now on the points first ... first + count - 1 of the block, at most most_points, are meant.
  void take(const Block& block, std::size_t first, std::size_t count) noexcept;
  /// All of them.
  void add_to(PointSum& sum) const noexcept;
  /// Those whose flags, one for each, are not 0.
  void add_to(PointSum& sum, std::span<const std::uint8_t> flags) noexcept;
  /// The i-th of them alone.
  void add_point(PointSum& sum, std::size_t i) const noexcept;

 private:
  /// What is known of all parts of a column, or of all squares: exact integers, none of a larger magnitude,
  /// or floating.
  struct Kind {
    bool exact = true;
    std::uint64_t largest = 0;
  };
  /// By their values.
  struct Values {
    std::array<double, most_points> re;
    std::array<double, most_points> im;
    std::array<double, most_points> squares;
  };

  static Kind kind_of(const Column& column) noexcept;
  bool bulk_serves(const PointSum& sum, std::size_t count) const noexcept;
  void add_values(PointSum& sum, const Values& values, std::size_t count) const noexcept;

  const Block* block_ = nullptr;
  std::size_t first_ = 0;
  std::size_t count_ = 0;
  /// The values are exact integers or floating.
  bool simple_ = false;
  Kind re_;
  Kind im_;
  Kind squares_;
  Values values_;
  Values picked_;
};

}  // namespace kov
