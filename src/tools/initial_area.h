#pragma once

#include <cstdint>
#include <string>

#include "config/cphclass.h"
#include "interact/progress.h"
#include "lattice/lmap.h"

namespace kov {

/// What the parameters N0iniarea_... say of the block of starting values. A line of a data file may have put
/// any of them outside the catalogue's bounds.
struct InitialArea {
  /// M: largest distance from zero along each coordinate in use.
  std::int32_t maxcoo = 12;
  /// 0: every point of the cube, otherwise those with x² + y² + z² <= M².
  std::int32_t square_round = 0;
  /// 1, 2, 3: x alone, x and y, all three; any other number is 1.
  std::int32_t dimcount = 3;
  /// S: distance between neighbouring points.
  std::int32_t stepdist = 2;
  /// 0 ... 4; any other number is 0.
  std::int32_t sign_alternation = 0;

  static InitialArea read(const cphclass& cph);

  /// The confirmation that the command asks for.
  std::string question() const;
};

/// The quantity at x, y, z by the sign pattern, whether round or not. Mode 4 is -1 where the sum is a
/// multiple of 2·S, the even sums for S = 1.
std::int32_t area_quantity(const InitialArea& area, std::int64_t x, std::int64_t y, std::int64_t z);

enum class AreaEnd {
  complete,
  /// Break was pressed.
  broken,
  /// The store has passed the memory limit; whoever called tells it.
  out_of_bounds
};

/// Where memory and a person bound the filling.
struct AreaLimits {
  /// MaxAllowedMemOccupationInKB · 1000.
  std::int64_t bytes = 0;
  /// Break is asked for after so many visits (at least 1), and the position shown.
  std::int64_t visits_per_display = 1;

  static AreaLimits read(const cphclass& cph);
};

/// Replaces the store by the area around the origin of reference, of which every key has the integers but for
/// k1, k2 and k3. The limit is compared after every visit but each hundredth. What has been written when it
/// is passed, when Break is pressed, or when memory runs out (std::bad_alloc), stays.
///
/// stepdist must be at least 1. Takes time for the points that are stored and their neighbours, not for the
/// stretches of a large area in which nothing is: they are counted without being walked.
AreaEnd fill_initial_area(Lmap& lmap, const InitialArea& area, const Lk& reference, const AreaLimits& limits,
                          Progress& progress);

}  // namespace kov
