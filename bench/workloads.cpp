#include "bench/workloads.h"

#include "algadd/kernel.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr int table = 0;

AlgaddEntry move_along(int coordinate, std::int32_t distance, const cotyp& p) {
  AlgaddEntry entry;
  entry.p = p;
  entry.offset.coo[static_cast<std::size_t>(coordinate)] += distance;
  return entry;
}

/// Both directions along the coordinates 1 ... dimensions.
void add_moves(Algadd& algadd, int dimensions, const cotyp& p) {
  for (int coordinate = 1; coordinate <= dimensions; ++coordinate) {
    for (const std::int32_t distance : {-1, 1}) {
      algadd.set_entry(table, algadd.used_length(table), move_along(coordinate, distance, p));
    }
  }
}

/// The row that so many steps make of the quantity 1 at the origin of lattice 0.
Lmap row_after(const Algadd& algadd, int steps) {
  Lmap row;
  row.set(Lk{}, 1);
  for (int step = 0; step < steps; ++step) {
    Lmap next;
    for (auto point = row.begin(); point != row.end(); ++point) {
      AddLpairToLmap_1(algadd, next, point.key(), point.quantity(), algadd.used_length(table), table);
    }
    row.swap(next);
  }
  return row;
}

Workload after_steps(const std::string& name, const Algadd& algadd, int steps) {
  return {.name = name, .algadd = algadd, .row = row_after(algadd, steps)};
}

}  // namespace

std::int64_t Workload::contributions() const {
  std::int64_t count = 0;
  const int used = algadd.used_length(table);
  for (auto point = row.begin(); point != row.end(); ++point) {
    for (int e = 0; e < used; ++e) {
      const AlgaddEntry& entry = algadd.entry(table, e);
      if (!entry.empty() && entry.source_l() == point.key().l()) ++count;
    }
  }
  return count;
}

Workload plane_walk(Scale scale) {
  Algadd algadd;
  add_moves(algadd, 2, cotyp(1, 4, 0, 1));
  return after_steps("plane walk", algadd, scale == Scale::full ? 200 : 10);
}

Workload integer_row(Scale scale) {
  Algadd algadd;
  add_moves(algadd, 1, 1);
  algadd.set_entry(table, 2, move_along(1, 0, 2));
  return {.name = "exact integer row",
          .algadd = algadd,
          .row = integer_line(scale == Scale::full ? 1000000 : 1000)};
}

Workload two_lattices(Scale scale) {
  Algadd algadd;
  const cotyp stay(3, 5, 4, 5);
  const cotyp cross(1, 2, -1, 2);
  for (const std::int32_t l : {0, 1}) {
    for (int coordinate = 1; coordinate <= 3; ++coordinate) {
      for (const std::int32_t distance : {-1, 1}) {
        for (const std::int32_t ldest : {0, 1}) {
          AlgaddEntry entry = move_along(coordinate, distance, l == ldest ? stay : cross);
          entry.offset.coo[l_position] = l;
          entry.ldest = ldest;
          algadd.set_entry(table, algadd.used_length(table), entry);
        }
      }
    }
  }
  return after_steps("3-D, two lattices, complex", algadd, scale == Scale::full ? 30 : 4);
}

Workload branching(Scale scale) {
  Algadd algadd;
  add_moves(algadd, 5, 1);
  return after_steps("5-coordinate branching", algadd, scale == Scale::full ? 11 : 3);
}

std::vector<Workload> step_workloads(Scale scale) {
  return {plane_walk(scale), integer_row(scale), two_lattices(scale), branching(scale)};
}

Lmap integer_line(std::int32_t count) {
  Lmap line;
  for (std::int32_t k1 = 0; k1 < count; ++k1) line.set(Lk::at(0, 0, k1), k1 % 97 + 1);
  return line;
}

}  // namespace kov
