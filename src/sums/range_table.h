#pragma once

#include <array>
#include <cstdint>

#include "lattice/key_box.h"
#include "text/integers.h"

namespace kov {

/// Two ranges of keys and, for each, the key positions that the graphs draw along x and y.
struct RangeTable {
  /// Range 1 and Range 2; at first as in the default table.
  std::array<KeyBox, 2> range = default_ranges();
  /// x1, x2: the positions along x in Range 1 and 2.
  std::array<std::int32_t, 2> icoo_along_x_in_g = {1, 1};
  /// y1, y2: the positions along y.
  std::array<std::int32_t, 2> icoo_along_y_in_g2 = {0, 0};

  /// Every bound 0 but those of k1: "-" ... "+" in Range 1, "+" ... "+" in Range 2. The asymmetry is
  /// intended.
  static std::array<KeyBox, 2> default_ranges();

  friend bool operator==(const RangeTable&, const RangeTable&) = default;
};

}  // namespace kov
