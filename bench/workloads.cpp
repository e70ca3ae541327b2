#include "bench/workloads.h"

#include <array>
#include <cstdlib>
#include <random>

#include "algadd/row_step.h"
#include "bench/silent_user.h"
#include "lattice/row_builder.h"

namespace kov {
namespace {

constexpr int table = 0;

/// The same numbers in every run and on every machine.
using Random = std::mt19937_64;

/// 1 ... most
std::int32_t number_up_to(Random& random, std::int32_t most) {
  return static_cast<std::int32_t>(random() % static_cast<std::uint64_t>(most)) + 1;
}

AlgaddEntry move_along(int coordinate, std::int32_t distance, const cotyp& p) {
  AlgaddEntry entry;
  entry.p = p;
  entry.offset.coo[static_cast<std::size_t>(coordinate)] += distance;
  return entry;
}

void add_entry(Algadd& algadd, const AlgaddEntry& entry) {
  algadd.set_entry(table, algadd.used_length(table), entry);
}

/// Both directions along the coordinates 1 ... dimensions, each with the next of the factors, which start
/// over when they are used up.
Algadd moves_table(int dimensions, std::initializer_list<cotyp> factors) {
  Algadd algadd;
  const auto* p = factors.begin();
  for (int coordinate = 1; coordinate <= dimensions; ++coordinate) {
    for (const std::int32_t distance : {-1, 1}) {
      add_entry(algadd, move_along(coordinate, distance, *p));
      if (++p == factors.end()) p = factors.begin();
    }
  }
  return algadd;
}

Lk plane_key(std::int32_t k1, std::int32_t k2) {
  Lk key = Lk::at(0, 0, k1);
  key.coo[2] = k2;
  return key;
}

Lmap store_of(RowBuilder& row) {
  Lmap store;
  store.insert_row(row.finish());
  return store;
}

/// A square of points; quantity(random) gives one after the other.
template <class Quantity>
Lmap filled_square(std::int32_t side, const Quantity& quantity) {
  Random random(1);
  RowBuilder row(0, KeyBox{plane_key(0, 0), plane_key(side - 1, side - 1)});
  for (std::int32_t k1 = 0; k1 < side; ++k1) {
    for (std::int32_t k2 = 0; k2 < side; ++k2) row.append(plane_key(k1, k2), quantity(random));
  }
  return store_of(row);
}

/// Of a square one point in a hundred.
Lmap thin_square(std::int32_t side) {
  Random random(2);
  RowBuilder row(0, KeyBox{plane_key(0, 0), plane_key(side - 1, side - 1)});
  for (std::int32_t k1 = 0; k1 < side; ++k1) {
    for (std::int32_t k2 = number_up_to(random, 199) - 1; k2 < side; k2 += number_up_to(random, 199)) {
      row.append(plane_key(k1, k2), number_up_to(random, 97));
    }
  }
  return store_of(row);
}

/// Every other point of a square that stands on its corner, as a walk of so many steps leaves them.
Lmap walked_plane(std::int32_t steps) {
  Random random(3);
  RowBuilder row(0, KeyBox{plane_key(-steps, -steps), plane_key(steps, steps)});
  for (std::int32_t k1 = -steps; k1 <= steps; ++k1) {
    const std::int32_t reach = steps - std::abs(k1);
    for (std::int32_t k2 = -reach; k2 <= reach; k2 += 2) {
      row.append(plane_key(k1, k2), cotyp::floating(1.0 / number_up_to(random, 1000000), 0.0));
    }
  }
  return store_of(row);
}

/// The lattices 0 and 1 in a cube, filled.
template <class Quantity>
Lmap two_cubes(std::int32_t side, const Quantity& quantity) {
  Random random(4);
  Lk last = Lk::at(1, 0, side - 1);
  last.coo[2] = last.coo[3] = side - 1;
  RowBuilder row(0, KeyBox{Lk{}, last});
  Lk key;
  for (key.coo[1] = 0; key.coo[1] < side; ++key.coo[1]) {
    for (key.coo[2] = 0; key.coo[2] < side; ++key.coo[2]) {
      for (key.coo[3] = 0; key.coo[3] < side; ++key.coo[3]) {
        for (key.coo[l_position] = 0; key.coo[l_position] <= 1; ++key.coo[l_position]) {
          row.append(key, quantity(random));
        }
      }
    }
  }
  return store_of(row);
}

/// Twelve entries, of which six match each point: one direction stays in the lattice, the other crosses over.
Algadd two_lattices_table(const cotyp& stay, const cotyp& cross) {
  Algadd algadd;
  for (const std::int32_t l : {0, 1}) {
    for (int coordinate = 1; coordinate <= 3; ++coordinate) {
      for (const std::int32_t distance : {-1, 1}) {
        AlgaddEntry entry = move_along(coordinate, distance, distance < 0 ? stay : cross);
        entry.offset.coo[l_position] = l;
        entry.ldest = distance < 0 ? l : 1 - l;
        add_entry(algadd, entry);
      }
    }
  }
  return algadd;
}

/// The row that so many steps make of the quantity 1 at the origin of lattice 0.
Lmap row_after(const Algadd& algadd, std::int32_t steps) {
  SilentUser user;
  WorkerPool workers(processor_threads());
  const int used_length = algadd.used_length(table);
  Lmap row;
  row.set(Lk{}, 1);
  for (std::int32_t n = 0; n < steps; ++n) {
    row = RowStep(workers).destinations(algadd, table, used_length, row, n, user.progress());
  }
  return row;
}

/// The same points with small integers.
void take_small_integers(Lmap& row) {
  Random random(5);
  row.transform([&random](const cotyp&) { return cotyp(number_up_to(random, 97)); });
}

Workload branching(std::int32_t steps) {
  Algadd algadd = moves_table(5, {1});
  Lmap row = row_after(algadd, steps);
  return {std::move(algadd), std::move(row)};
}

Workload exact_branching(std::int32_t steps) {
  Workload workload = branching(steps);
  take_small_integers(workload.row);
  return workload;
}

Workload floating_branching(std::int32_t steps) {
  Workload workload = branching(steps);
  workload.row.transform([](const cotyp& q) { return to_float(q); });
  return workload;
}

/// Ten offsets at random in five coordinates: after some steps points share hardly any line.
Workload random_offsets(std::int32_t steps) {
  Random random(6);
  Algadd algadd;
  for (int i = 0; i < 10; ++i) {
    AlgaddEntry entry = move_along(1, 0, i % 3 + 1);
    for (std::size_t position = 1; position <= 5; ++position) {
      entry.offset.coo[position] = number_up_to(random, 101) - 51;
    }
    add_entry(algadd, entry);
  }
  Lmap row = row_after(algadd, steps);
  take_small_integers(row);
  return {std::move(algadd), std::move(row)};
}

cotyp integer(Random& random) { return number_up_to(random, 97); }
cotyp complex_integer(Random& random) {
  const std::int32_t re = number_up_to(random, 97);
  return {re, number_up_to(random, 97)};
}
cotyp floating(Random& random) { return cotyp::floating(1.0 / number_up_to(random, 1000000), 0.0); }
cotyp complex_floating(Random& random) {
  const double re = 1.0 / number_up_to(random, 1000000);
  return cotyp::floating(re, 1.0 / number_up_to(random, 1000000));
}
cotyp sixtieth(Random& random) { return cotyp(number_up_to(random, 997), 60, 0, 1); }

/// Four of these denominators still have their product within the exact range, all of them have not.
cotyp fraction_over_prime(Random& random) {
  constexpr std::array<std::int32_t, 29> primes = {61,  67,  71,  73,  79,  83,  89,  97,  101, 103,
                                                   107, 109, 113, 127, 131, 137, 139, 149, 151, 157,
                                                   163, 167, 173, 179, 181, 191, 193, 197, 199};
  const std::int32_t de = primes[random() % primes.size()];
  return {number_up_to(random, 9), de, 0, 1};
}

Workload plane_walk(std::int32_t steps) { return {plane_walk_table(), walked_plane(steps)}; }
Workload integer_plane(std::int32_t side) { return {moves_table(2, {1, 2, 3, 1}), integer_square(side)}; }
Workload thin_plane(std::int32_t side) { return {moves_table(2, {1, 2, 3, 1}), thin_square(side)}; }
Workload complex_integer_cubes(std::int32_t side) {
  return {two_lattices_table({3, 4}, {1, -2}), two_cubes(side, complex_integer)};
}
Workload complex_floating_cubes(std::int32_t side) {
  return {two_lattices_table(cotyp(3, 5, 4, 5), cotyp(1, 2, -1, 2)), two_cubes(side, complex_floating)};
}
Workload common_denominator(std::int32_t side) {
  return {moves_table(2, {cotyp(1, 2, 0, 1), cotyp(1, 3, 0, 1), cotyp(1, 4, 0, 1), cotyp(1, 6, 0, 1)}),
          filled_square(side, sixtieth)};
}
Workload unrelated_denominators(std::int32_t side) {
  return {moves_table(2, {1, 2, 3, 1}), fraction_square(side)};
}

}  // namespace

std::int64_t Workload::contributions() const {
  std::int64_t count = 0;
  const int used = algadd.used_length(table);
  for (auto point = row.begin(); point != row.end(); ++point) {
    const std::int32_t l = point.key().l();
    for (int e = 0; e < used; ++e) {
      const AlgaddEntry& entry = algadd.entry(table, e);
      if (!entry.empty() && entry.source_l() == l) ++count;
    }
  }
  return count;
}

Workload run_of_integers(std::int32_t side) { return {moves_table(2, {1}), integer_square(side)}; }
Workload run_of_floating(std::int32_t side) { return {plane_walk_table(), floating_square(side)}; }

Algadd plane_walk_table() { return moves_table(2, {cotyp(1, 4, 0, 1)}); }

std::vector<Shape> step_shapes(Scale scale) {
  std::vector<Shape> shapes = {{"plane walk, floating", plane_walk, 2000, 1000},
                               {"plane filled, integers", integer_plane, 2000, 1000},
                               {"plane 1 % filled, integers", thin_plane, 30000, 10000},
                               {"3-D, 2 lattices, complex integers", complex_integer_cubes, 110, 70},
                               {"3-D, 2 lattices, complex floating", complex_floating_cubes, 110, 70},
                               {"5 coordinates, integers", exact_branching, 26, 19},
                               {"5 coordinates, mixed", branching, 26, 19},
                               {"5 coordinates, floating", floating_branching, 26, 19},
                               {"5 coordinates, random offsets", random_offsets, 15, 13},
                               {"plane, common denominator", common_denominator, 2000, 1000},
                               {"plane, unrelated denominators", unrelated_denominators, 1000, 1000}};
  if (scale == Scale::quick) {
    for (Shape& shape : shapes) {
      const bool steps = shape.literal_size < 20;
      shape.size = shape.literal_size = steps ? 4 : shape.literal_size / 40 + 2;
    }
  }
  return shapes;
}

Lmap integer_square(std::int32_t side) { return filled_square(side, integer); }
Lmap floating_square(std::int32_t side) { return filled_square(side, floating); }
Lmap complex_integer_square(std::int32_t side) { return filled_square(side, complex_integer); }
Lmap complex_floating_square(std::int32_t side) { return filled_square(side, complex_floating); }
Lmap fraction_square(std::int32_t side) { return filled_square(side, fraction_over_prime); }

}  // namespace kov
