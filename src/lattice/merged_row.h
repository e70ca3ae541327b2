#pragma once

#include "lattice/row.h"

namespace kov {

/// All points of a, and those of b, a row of the same step, whose keys are not in a. Neither is empty.
Row merged_row(const Row& a, const Row& b);

}  // namespace kov
