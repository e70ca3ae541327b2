#pragma once

#include <cstddef>

#include "algadd/cells_of_points.h"
#include "algadd/fraction_block.h"
#include "algadd/fraction_sum.h"

namespace kov {

/// Adds p times each of the values to its cell. No two fall into one.
void add_fractions(const FractionSum& p, const FractionValues& values, const CellsOfPoints& places,
                   std::size_t count, FractionSum* cells);

}  // namespace kov
