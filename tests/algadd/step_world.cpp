#include "step_world.h"

#include <algorithm>
#include <array>

#include "support/points_text.h"
#include "support/same_part.h"
#include "text/integers.h"

namespace kov {

StepWorld::StepWorld(std::uint64_t seed, const StepWorldSize& size) : random_(seed), size_(size) {
  choose();
  fill_rows();
  fill_table();
}

std::int32_t StepWorld::integer(std::int32_t low, std::int32_t high) {
  return std::uniform_int_distribution<std::int32_t>(low, high)(random_);
}

void StepWorld::choose() {
  lattices_ = one_in(10) ? integer(3, 40) : integer(1, 3);
  first_lattice_ = one_in(20) ? integer(-2000000000, 2000000000) : integer(-1, 1);
  varying_ = one_in(10) ? integer(4, 30) : integer(0, 3);
  spacing_ = varying_ <= 6 ? integer(1, 5) : 1;
  constexpr std::array origins = {0, 0, 0, -1000, 123456789};
  origin_ = origins[static_cast<std::size_t>(integer(0, 4))];
  if (one_in(12)) origin_ = one_in(2) ? lowest_int : highest_int - 2;
  constexpr std::array sides = {1, 4, 60, 1000, 200000};
  side_ = sides[static_cast<std::size_t>(integer(0, 4))];
  if (one_in(10)) side_ = 2000000000;
  reach_ = one_in(3) ? std::max(1, side_ / 3) : 1;
  plain_steps_ = !one_in(5) && !size_.two_rows;
  quantities_ = static_cast<Numbers>(integer(0, static_cast<int>(Numbers::count) - 1));
  factors_ = one_in(2) ? Numbers::small_integers
                       : static_cast<Numbers>(integer(0, static_cast<int>(Numbers::count) - 1));
  complex_quantities_ = one_in(3);
  complex_factors_ = one_in(3);
}

ratyp StepWorld::part(Numbers numbers) {
  switch (numbers) {
    case Numbers::small_integers:
      return integer(-3, 3);
    case Numbers::large_integers:
      return one_in(2) ? integer(-3, 3) : integer(-1500000000, 1500000000);
    case Numbers::edge_integers:
      return one_in(2) ? integer(highest_int - 3, highest_int) : integer(lowest_int, lowest_int + 3);
    case Numbers::common_fractions:
      return {integer(-20, 20), one_in(2) ? 12 : 8};
    case Numbers::unrelated_fractions:
      return {integer(-100000, 100000), integer(1, 100000)};
    case Numbers::reals:
      return ratyp::floating(0.25 * integer(-9, 9));
    case Numbers::real_parts:
      return ratyp::floating(0.1 * integer(-9, 9));
    case Numbers::complex_numbers:
      return ratyp::floating(0.7 * integer(-3, 3));
    case Numbers::overflowing:
      return one_in(8) ? ratyp::floating(one_in(2) ? 1e200 : -1e200) : ratyp::floating(1e-200);
    case Numbers::anything:
    case Numbers::count:
      break;
  }
  return part(static_cast<Numbers>(integer(0, static_cast<int>(Numbers::anything) - 2)));
}

cotyp StepWorld::quantity(Numbers numbers, bool complex) {
  const bool floating_zero = numbers == Numbers::reals || numbers == Numbers::overflowing;
  const ratyp re = part(numbers);
  if (complex || numbers == Numbers::complex_numbers) return {re, part(numbers)};
  return {re, floating_zero ? ratyp::floating(0.0) : ratyp()};
}

std::int32_t StepWorld::coordinate() {
  return wrapping_add(origin_, integer(-(side_ / 2), side_ - 1 - side_ / 2));
}

Lk StepWorld::key(std::int32_t row) {
  Lk key = Lk::at(lattice(), row);
  for (int k = 0; k < varying_; ++k) key.coo[static_cast<std::size_t>(1 + k * spacing_)] = coordinate();
  return key;
}

void StepWorld::fill_rows() {
  constexpr std::array rows = {0, 5, -7, highest_int - 1, highest_int, lowest_int};
  n = one_in(8) ? rows[static_cast<std::size_t>(integer(0, size_.two_rows ? 2 : 5))] : 0;
  for (std::int32_t points = integer(1, size_.most_points); points > 0; --points) {
    lmap.set(key(n), quantity(quantities_, complex_quantities_));
  }
  if (n != lowest_int) lmap.set(key(n - 1), 1);
  if (plain_steps_ || n == highest_int) return;
  for (std::int32_t points = integer(0, size_.two_rows ? size_.most_points : 10); points > 0; --points) {
    lmap.set(key(n + 1), quantity(quantities_, complex_quantities_));
  }
}

AlgaddEntry StepWorld::entry() {
  Lk offset = Lk::at(lattice(), plain_steps_ ? 1 : size_.two_rows ? integer(1, 2) : integer(-2, 3));
  for (int k = 0; k < varying_; ++k) {
    offset.coo[static_cast<std::size_t>(1 + k * spacing_)] = integer(-reach_, reach_);
  }
  return {.p = quantity(factors_, complex_factors_), .ldest = lattice(), .offset = offset};
}

void StepWorld::fill_table() {
  const int count = integer(size_.fewest_entries, size_.most_entries);
  // Few entries leave places between them empty.
  const bool many = size_.most_entries > Algadd_EntryCount / 2;
  for (int i = 0; i < (many ? count / 2 : count); ++i) {
    const AlgaddEntry made = entry();
    algadd.set_entry(0, 2 * i, made);
    if (one_in(5)) {
      AlgaddEntry cancelling = made;
      cancelling.p = cotyp(0) - made.p;
      algadd.set_entry(0, 2 * i + 1, cancelling);
    } else if (many) {
      algadd.set_entry(0, 2 * i + 1, entry());
    }
  }
}

LiteralStore literal_copy(const Lmap& lmap) {
  LiteralStore copy;
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    copy.emplace_hint(copy.end(), point.key(), point.quantity());
  }
  return copy;
}

bool all_finite(const LiteralStore& store) {
  return std::all_of(store.begin(), store.end(), [](const auto& point) { return is_finite(point.second); });
}

::testing::AssertionResult identical(const Lmap& lmap, const LiteralStore& literal) {
  if (lmap.count() != literal.size()) {
    return ::testing::AssertionFailure() << lmap.count() << " points instead of " << literal.size();
  }
  auto point = lmap.begin();
  for (const auto& [key, q] : literal) {
    const cotyp stored = point.quantity();
    if (point.key() != key || !same_part(stored.re, q.re) || !same_part(stored.im, q.im)) {
      return ::testing::AssertionFailure()
             << point_text(point.key(), stored) << " instead of " << point_text(key, q);
    }
    ++point;
  }
  return ::testing::AssertionSuccess();
}

}  // namespace kov
