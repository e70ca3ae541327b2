#pragma once

#include <string_view>

#include "lattice/lk.h"
#include "numbers/cotyp.h"

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
/// bits; the scan stops at the first field that is missing or none.
PointFields scan_point_fields(std::string_view text);

/// Reads what follows the key of a point's line as the program writes it, single blanks between the fields,
/// into the key and a quantity that is not zero. False, with both in any state, for every other line:
/// scan_point_fields tells what it is.
bool scan_written_point(std::string_view text, Lk& key, cotyp& quantity);

}  // namespace kov
