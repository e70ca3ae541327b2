#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "interact/messages.h"

namespace kov {

/// Number of integers of a key, the lattice index included.
inline constexpr int MaxDimCount = 32;
/// Position of the lattice index l in a key; position 0 is the step n, 1 ... 30 are k1 ... k30.
inline constexpr int l_position = 31;

/// The key of a lattice point.
struct Lk {
  std::array<std::int32_t, MaxDimCount> coo{};

  constexpr std::int32_t n() const noexcept { return coo[0]; }
  constexpr std::int32_t l() const noexcept { return coo[l_position]; }

  /// Every integer the same value: the smallest or largest of all keys, for instance.
  static constexpr Lk filled(std::int32_t value) noexcept {
    Lk key;
    for (std::int32_t& coordinate : key.coo) coordinate = value;
    return key;
  }
  /// Lattice l, step n, k1; all others 0.
  static constexpr Lk at(std::int32_t l, std::int32_t n, std::int32_t k1 = 0) noexcept {
    Lk key;
    key.coo[0] = n;
    key.coo[1] = k1;
    key.coo[l_position] = l;
    return key;
  }

  friend bool operator==(const Lk&, const Lk&) = default;
};

/// The order of keys: lexicographic over coo[0] ... coo[30], the lattice index last. Every search in the
/// store spends its time here; keys mostly differ in one of the first integers.
constexpr bool Lk1LessLk2(const Lk& a, const Lk& b) noexcept {
  static_assert(l_position == MaxDimCount - 1, "the last tie-break is also the last integer of a key");
  std::size_t i = 0;
  while (i < l_position && a.coo[i] == b.coo[i]) ++i;
  return a.coo[i] < b.coo[i];
}

/// Lk1LessLk2 as an ordering type.
struct LkOrder {
  constexpr bool operator()(const Lk& a, const Lk& b) const noexcept { return Lk1LessLk2(a, b); }
};

/// a + b, which wraps in two's complement where it leaves 32 bits.
constexpr std::int32_t wrapping_add(std::int32_t a, std::int32_t b) noexcept {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

/// a - b, likewise wrapping.
constexpr std::int32_t wrapping_subtract(std::int32_t a, std::int32_t b) noexcept {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

/// Every integer of a plus that of b, lattice index included, wrapping.
constexpr Lk wrapping_add(const Lk& a, const Lk& b) noexcept {
  Lk sum;
  for (std::size_t i = 0; i < sum.coo.size(); ++i) sum.coo[i] = wrapping_add(a.coo[i], b.coo[i]);
  return sum;
}

/// The row of a key position wherever keys are listed: l first, then n, k1, ... The argument is
/// checked against 0 ... 31: a program error "sl_irow:icoo=" + it is reported and the value still
/// returned.
int sl_irow(int icoo, Messages& messages);
/// The key position of a listed row. Only the result is checked ("sl_icoo:icoo=" + it), so row 32
/// quietly gives 31; that asymmetry is kept.
int sl_icoo(int irow, Messages& messages);

/// The key positions in the order in which keys are listed: 31, 0, 1, ... 30.
inline constexpr std::array<int, MaxDimCount> listed_positions = [] {
  std::array<int, MaxDimCount> positions{};
  positions[0] = l_position;
  for (int row = 1; row < MaxDimCount; ++row) positions[static_cast<std::size_t>(row)] = row - 1;
  return positions;
}();

/// "l" for 31, "n" for 0, "k" and the number otherwise.
std::string coordinate_name(int icoo);
/// "dn", "dk1", ...; "l" for the lattice index.
std::string offset_name(int icoo);

}  // namespace kov
