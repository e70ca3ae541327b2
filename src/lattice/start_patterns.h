#pragma once

#include "lattice/lmap.h"

namespace kov {

/// The three ways to fill row n = 0 with starting quantities.
enum class StartPattern {
  one,         ///< 1 at the origin of lattice 0
  one_one,     ///< 1 at the origin of lattice 0 and of lattice 1
  test_block,  ///< k1 = 0 ... 9, k2 = 0 ... 5 in lattice 0 with (k1+1)/(k2+1)
};

/// Writes the points of the pattern over what is there; other rows and points stay. Throws
/// std::bad_alloc, with the store as it was, when there is no memory for them.
void fill_start_pattern(Lmap& lmap, StartPattern pattern);

}  // namespace kov
