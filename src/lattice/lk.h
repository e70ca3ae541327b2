#pragma once

#include <array>
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

  std::int32_t n() const { return coo[0]; }
  std::int32_t l() const { return coo[l_position]; }

  /// Every integer the same value: the smallest or largest of all keys, for instance.
  static Lk filled(std::int32_t value);
  /// Lattice l, step n, k1; all others 0.
  static Lk at(std::int32_t l, std::int32_t n, std::int32_t k1 = 0);

  friend bool operator==(const Lk&, const Lk&) = default;
};

/// The order of keys: lexicographic over coo[0] ... coo[30], the lattice index last.
bool Lk1LessLk2(const Lk& a, const Lk& b);

/// Lk1LessLk2 as an ordering type.
struct LkOrder {
  bool operator()(const Lk& a, const Lk& b) const { return Lk1LessLk2(a, b); }
};

/// a + b, which wraps in two's complement where it leaves 32 bits.
constexpr std::int32_t wrapping_add(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

/// Every integer of a plus that of b, lattice index included, wrapping.
Lk wrapping_add(const Lk& a, const Lk& b);

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
