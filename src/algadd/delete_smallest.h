#pragma once

#include <cstdint>

#include "interact/user.h"
#include "lattice/lmap.h"

namespace kov {

/// Deletes the given percent (taken as 0 when negative and as 100 above 100, the number of points truncated)
/// of the last row: the points of smallest squared modulus, and of equal ones those that come first in key
/// order. Shows progress every 10 000 points, on a grey panel. Nothing on an empty store. O(M) for M points
/// of the row, in three walks over it mostly, in eight at most; the memory that it needs does not grow with
/// M.
void delete_smallest_of_nlast(Lmap& lmap, std::int32_t percent, Progress& progress);

}  // namespace kov
