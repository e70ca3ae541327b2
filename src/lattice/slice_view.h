#pragma once

#include <cstddef>
#include <cstdint>

#include "config/cphclass.h"
#include "lattice/lk.h"

namespace kov {

/// The two-dimensional slice through the store that the Lattices page shows: the key positions along
/// x and y, never the same, and the key of the slice's first cell.
class SliceView {
 public:
  int xdim() const noexcept { return xdim_; }
  int ydim() const noexcept { return ydim_; }
  const Lk& offset() const noexcept { return offset_; }

  /// Makes position the axis; taking the other axis's position swaps the two. False, with nothing
  /// changed, unless 0 <= position <= 31.
  bool set_xdim(int position) noexcept;
  bool set_ydim(int position) noexcept;
  void set_offset(const Lk& offset) noexcept { offset_ = offset; }
  /// position: 0 ... 31.
  void set_offset(int position, std::int32_t value) noexcept {
    offset_.coo[static_cast<std::size_t>(position)] = value;
  }

  /// The key that stands for "no offset": all zeros. Starting areas take it as their template, too.
  static const Lk& reference_key() noexcept;

  /// Set Default Offset: axes and their offsets from Slq_xdim_default, Slq_ydim_default,
  /// Slq_xoffset_default and Slq_yoffset_default, all other offsets from the reference key. When both
  /// axes have the same default, y takes the lowest other position. A default outside 0 ... 31, which
  /// a hand-edited configuration can hold, counts as the first one: x is k1, y is n.
  void set_default(const cphclass& cph);

 private:
  static constexpr int first_xdim = 1;
  static constexpr int first_ydim = 0;

  int xdim_ = first_xdim;
  int ydim_ = first_ydim;
  Lk offset_;
};

}  // namespace kov
