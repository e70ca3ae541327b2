#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "interact/user.h"
#include "lattice/lmap.h"

namespace kov {

/// How far from u the vector v is read, along k1, k2 and k3.
using CrossOffset = std::array<std::int32_t, 3>;

/// The dialog of the command; nothing when it is cancelled.
std::optional<CrossOffset> ask_for_cross_offset(Questions& questions);

/// What came out of one calculation.
struct CrossResult {
  /// Points of w, none of them zero.
  std::size_t count = 0;
  /// Break was pressed: locations behind the last one treated have no w.
  bool broken = false;

  /// What is reported of it.
  std::string text() const;
};

/// Fills the lattices 6, 7, 8 with w = u × v, where u is in the lattices 0, 1, 2 and v, read at the location
/// plus offset (which wraps, as coordinates do), in 3, 4, 5. The old points of 6, 7, 8 go first. Only
/// locations with a point of u are visited; a product follows the arithmetic of quantities to the letter, so
/// a floating zero makes the sum to which it is added floating.
///
/// After every points_per_display-th point (at least 1) the position is shown; during the calculation Break
/// is asked for then, and ends it behind the location. Throws floating_overflow, math_error or
/// std::bad_alloc; the lattices 6, 7, 8 are then empty and all others as they were. O(count · log count); w
/// alone needs memory.
CrossResult calculate_cross_products(Lmap& lmap, const CrossOffset& offset, std::int64_t points_per_display,
                                     Progress& progress);

}  // namespace kov
