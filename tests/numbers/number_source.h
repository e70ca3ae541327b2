#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "numbers/cotyp.h"
#include "numbers/ratyp.h"

namespace kov::test {

/// The values at which rules change: around zero, around the square root of the range, and around the
/// ends of the range and of 32 bits, as integers, numerators and denominators; and as many kinds of
/// floating values. All different, some 250.
std::vector<ratyp> boundary_values();

/// An endless supply of numbers of all kinds, small exact ones most of all, so that results stay exact
/// often enough. The same sequence for the same seed.
class NumberSource {
 public:
  explicit NumberSource(std::uint64_t seed) : engine_(seed), boundaries_(boundary_values()) {}

  ratyp next_ratyp();
  /// Two parts of all kinds, or as often two small fractions, whose products and quotients stay exact.
  cotyp next_cotyp();
  std::int32_t next_integer(std::int32_t from, std::int32_t to);

 private:
  ratyp next_small() { return ratyp(next_integer(-12, 12), next_integer(1, 6)); }
  ratyp next_floating();

  std::mt19937_64 engine_;
  std::vector<ratyp> boundaries_;
};

}  // namespace kov::test
