#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "algadd/algadd.h"
#include "bench/scale.h"
#include "lattice/lmap.h"

namespace kov {

/// A table (number 0) and the one row to which it is applied.
struct Workload {
  Algadd algadd;
  Lmap row;

  /// Sum over the points of the row of the entries that match.
  std::int64_t contributions() const;
};

/// Rows of one shape in any size, each with the table that is applied to it.
struct Shape {
  std::string name;
  std::function<Workload(std::int32_t size)> make;
  /// Of the row that the engine is measured on.
  std::int32_t size = 0;
  /// Of the row that the literal reading is measured on, which takes no more than some seconds.
  std::int32_t literal_size = 0;
};

/// What steps are measured on: from rows that fill a plane to rows that are lost in five coordinates, and
/// every kind of quantity.
std::vector<Shape> step_shapes(Scale scale);

/// A square of exact integers, or of floating numbers, with side points along k1 and k2.
Lmap integer_square(std::int32_t side);
Lmap floating_square(std::int32_t side);
/// Likewise with complex numbers.
Lmap complex_integer_square(std::int32_t side);
Lmap complex_floating_square(std::int32_t side);
/// Likewise with fractions that share no small denominator.
Lmap fraction_square(std::int32_t side);

/// Four entries, 1/4 each, which walk in the plane.
Algadd plane_walk_table();
/// A plane filled with integers that stay small, or with floating numbers, so wide that no rows of a short
/// run differ much in their number of points.
Workload run_of_integers(std::int32_t side);
Workload run_of_floating(std::int32_t side);

}  // namespace kov
