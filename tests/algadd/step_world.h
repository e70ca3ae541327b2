#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>

#include "algadd/algadd.h"
#include "lattice/lmap.h"
#include "support/literal_step.h"

namespace kov {

/// How large a random world is.
struct StepWorldSize {
  /// In each large row.
  std::int32_t most_points = 60;
  std::int32_t fewest_entries = 1;
  std::int32_t most_entries = 8;
  /// The row behind the source row is large, too, and offsets of n by 1 and 2 bring both to one row.
  bool two_rows = false;
};

/// A random store and table 0 for one step. Every seed chooses its own kind of world: how many lattices and
/// varying coordinates, how densely they are filled, which numbers stand there, where in the range of keys.
class StepWorld {
 public:
  StepWorld(std::uint64_t seed, const StepWorldSize& size);

  Lmap lmap;
  Algadd algadd;
  /// The source row.
  std::int32_t n = 0;

  int used_length() const { return algadd.used_length(0); }

 private:
  enum class Numbers {
    small_integers,
    large_integers,
    edge_integers,
    common_fractions,
    unrelated_fractions,
    reals,
    real_parts,
    complex_numbers,
    overflowing,
    anything,
    count
  };

  std::int32_t integer(std::int32_t low, std::int32_t high);
  bool one_in(std::int32_t chances) { return integer(1, chances) == 1; }
  ratyp part(Numbers numbers);
  cotyp quantity(Numbers numbers, bool complex);
  std::int32_t coordinate();
  Lk key(std::int32_t row);
  std::int32_t lattice() { return first_lattice_ + integer(0, lattices_ - 1); }
  AlgaddEntry entry();
  void choose();
  void fill_rows();
  void fill_table();

  std::mt19937_64 random_;
  StepWorldSize size_;
  std::int32_t lattices_ = 1;
  std::int32_t first_lattice_ = 0;
  int varying_ = 0;
  int spacing_ = 1;
  std::int32_t origin_ = 0;
  std::int32_t side_ = 1;
  std::int32_t reach_ = 1;
  bool plain_steps_ = true;
  Numbers quantities_ = Numbers::small_integers;
  Numbers factors_ = Numbers::small_integers;
  bool complex_quantities_ = false;
  bool complex_factors_ = false;
};

LiteralStore literal_copy(const Lmap& lmap);
bool all_finite(const LiteralStore& store);
/// Same keys, same parts, same states, same bits.
::testing::AssertionResult identical(const Lmap& lmap, const LiteralStore& literal);

}  // namespace kov
