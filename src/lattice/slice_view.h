#pragma once

#include <cstdint>

#include "config/cphclass.h"
#include "lattice/lk.h"

namespace kov {

/// The two-dimensional slice through the store that the Lattices page shows: the key positions along
/// x and y, never the same, and the key of the slice's first cell.
class SliceView {
 public:
  int xdim() const { return xdim_; }
  int ydim() const { return ydim_; }
  const Lk& offset() const { return offset_; }

  /// Makes position 0 ... 31 the axis. Taking the other axis's position swaps the two.
  void set_xdim(int position);
  void set_ydim(int position);
  void set_offset(const Lk& offset) { offset_ = offset; }
  void set_offset(int position, std::int32_t value) {
    offset_.coo[static_cast<std::size_t>(position)] = value;
  }

  /// The key that stands for "no offset": all zeros. Starting areas take it as their template, too.
  static const Lk& reference_key();

  /// Set Default Offset: axes and their offsets from Slq_xdim_default, Slq_ydim_default,
  /// Slq_xoffset_default and Slq_yoffset_default, all other offsets from the reference key. When both
  /// axes have the same default, y takes the lowest other position.
  void set_default(const cphclass& cph);

 private:
  int xdim_ = 1;
  int ydim_ = 0;
  Lk offset_;
};

}  // namespace kov
