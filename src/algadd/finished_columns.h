#pragma once

#include <span>

#include "lattice/column.h"
#include "numbers/ratyp.h"

namespace kov {

/// Floating parts of a new row. Throws floating_overflow when one is not finite.
Column finished_column(std::span<const double> parts);
/// Exact integers of a new row where exact has a bit, floating parts elsewhere. Throws floating_overflow when
/// one is not finite.
Column finished_column(std::span<const double> parts, BitList exact);
/// Parts of a new row, each exact or floating. Throws floating_overflow when one is not finite.
Column finished_column(std::span<const ratyp> parts);

}  // namespace kov
