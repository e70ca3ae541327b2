#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "algadd/algadd.h"
#include "bench/scale.h"
#include "lattice/lmap.h"

namespace kov {

/// A table (number 0) and the row to which it is applied.
struct Workload {
  std::string name;
  Algadd algadd;
  Lmap row;

  /// Sum over the points of the row of the entries that match.
  std::int64_t contributions() const;
};

/// A random walk in the plane after many steps: few coordinates, floating quantities.
Workload plane_walk(Scale scale);
/// A long line of exact integers and three entries.
Workload integer_row(Scale scale);
/// Two lattices in space that feed each other with complex fractions.
Workload two_lattices(Scale scale);
/// Branching along five coordinates from one point.
Workload branching(Scale scale);

std::vector<Workload> step_workloads(Scale scale);

/// count points with k1 = 0, 1, 2, ... and small exact integers.
Lmap integer_line(std::int32_t count);

}  // namespace kov
