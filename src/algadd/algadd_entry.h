#pragma once

#include <cstdint>

#include "lattice/lk.h"
#include "numbers/cotyp.h"

namespace kov {

/// One rule of an Algadd table: a point of lattice l at coordinates c feeds p times its quantity into
/// lattice ldest at c + offsets.
struct AlgaddEntry {
  /// An entry whose factor is zero is empty and never used.
  cotyp p;
  std::int32_t ldest = 0;
  /// The offset of every coordinate; at the position of the lattice index the source lattice l.
  Lk offset = Lk::at(0, 1);

  bool empty() const { return is_zero(p); }
  std::int32_t source_l() const { return offset.l(); }
};

}  // namespace kov
