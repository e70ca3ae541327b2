#pragma once

#include <bit>
#include <cstdint>

#include "numbers/ratyp.h"

namespace kov {

/// The same value in the same form, bit by bit: 2 and 2.0 differ, and so do doubles that print alike.
inline bool same_part(const ratyp& a, const ratyp& b) {
  if (a.exact() != b.exact()) return false;
  if (a.exact()) return a.nu() == b.nu() && a.de() == b.de();
  return std::bit_cast<std::uint64_t>(a.fl()) == std::bit_cast<std::uint64_t>(b.fl());
}

}  // namespace kov
