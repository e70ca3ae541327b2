#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "lattice/key_box.h"
#include "lattice/row.h"

namespace kov {

/// Which points of a row lie inside a range. For most rows the row's box tells it of all at once; else only
/// the positions that the box leaves open are looked at, and whole keys are not unpacked. To be used before
/// the row changes.
class RowRange {
 public:
  RowRange(const Row& row, const KeyBox& range) noexcept;

  /// No point of the row is inside.
  bool none() const noexcept { return extent_ == Extent::none; }
  /// Every point of the row is inside.
  bool all() const noexcept { return extent_ == Extent::all; }
  /// inside[i] becomes 1 where the point first + i of the block lies inside, else 0.
  void mark(const Block& block, std::size_t first, std::span<std::uint8_t> inside) const noexcept;

 private:
  enum class Extent { none, some, all };

  /// A position to be looked at: inside while its distance from the frame's low bound, less low, is at most
  /// width.
  struct Test {
    std::uint64_t mask;
    std::uint32_t low;
    std::uint32_t width;
    int shift;
  };

  void add_test(const KeyFrame& frame, std::size_t position, std::int32_t min, std::int32_t max) noexcept;

  KeyBox range_;
  Extent extent_ = Extent::all;
  std::array<Test, MaxDimCount> tests_;
  std::size_t test_count_ = 0;
};

}  // namespace kov
