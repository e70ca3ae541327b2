#pragma once

#include <cstddef>

#include "lattice/lmap.h"

namespace kov {

/// Makes both parts of every quantity floating; there is no way back.
void all_to_float(Lmap& lmap);

/// Replaces every quantity q by 1/q and gives their number. Throws math_error (floating_overflow) when
/// an inverse is not finite; the store is then as it was.
std::size_t invert_all(Lmap& lmap);

}  // namespace kov
