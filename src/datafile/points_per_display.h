#pragma once

#include <algorithm>
#include <cstdint>

#include "config/cphclass.h"

namespace kov {

/// How many points are read or saved between two progress texts. At least 1: a line of a data file may
/// have put the parameter outside the catalogue's bounds.
inline std::int64_t points_per_display(const cphclass& cph) {
  return std::max(1, cph.kmi("File_IO_PointCountPerDisplay"));
}

}  // namespace kov
