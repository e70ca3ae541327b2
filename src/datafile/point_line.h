#pragma once

#include <string_view>

#include "lattice/lk.h"

namespace kov {

/// The fields of a point's line, as far as they can be read; the texts look into the line.
struct PointFields {
  /// Fields that convert: up to 32 integers, then the quantity's text. 33 when all are there.
  int count = 0;
  Lk key;
  std::string_view quantity;
  /// What stands behind the quantity.
  std::string_view rest;
};

inline constexpr int point_field_count = MaxDimCount + 1;

/// Scans what follows the key of a point's line. An integer is a whole blank-separated token within 32
/// bits; the scan stops at the first field that is missing or none. Most time of reading a file goes
/// here: integers are read by hand.
PointFields scan_point_fields(std::string_view text);

}  // namespace kov
