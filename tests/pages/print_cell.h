#pragma once

#include <ostream>

#include "interact/grid_model.h"

namespace kov {

/// How a failed comparison of cells shows them.
inline void PrintTo(const GridCell& cell, std::ostream* out) { *out << cell.column << "," << cell.row; }

}  // namespace kov
