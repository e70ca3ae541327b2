#pragma once

#include "interact/grid_keys.h"

namespace kov {

/// What a key adds in Slq and Sldim, the two grids of a slice: 1 for P, -1 for M, else 0.
inline int step_of(const GridKey& key) {
  const char c = upper_character(key);
  return c == 'P' ? 1 : c == 'M' ? -1 : 0;
}

}  // namespace kov
