#pragma once

#include <cstddef>

#include "lattice/lmap.h"

namespace kov {

/// Makes both parts of every quantity floating; there is no way back. Throws std::bad_alloc; the store is
/// then as it was.
void all_to_float(Lmap& lmap);

/// Replaces every quantity q by the quotient 1/q and gives their number. Throws std::bad_alloc, and
/// math_error when an inverse is not finite, and floating_overflow also when it is zero: no number has a
/// zero inverse, the squared magnitude of q overflowed on the way. The store is then as it was.
std::size_t invert_all(Lmap& lmap);

}  // namespace kov
