#pragma once

#include <cstdint>
#include <string>

#include "config/cphclass.h"
#include "lattice/lmap.h"

namespace kov {

/// Two absorbing barriers: the origin of lattice 0 empties into the origin of lattice ldest1, in which
/// the point k1 empties, multiplied, into the point k1add of lattice ldest2.
struct AbsorbingBarrier {
  /// 0: no barrier.
  std::int32_t ldest1 = 0;
  std::int32_t ldest2 = 0;
  std::int32_t k1 = 0;
  std::int32_t k1add = 0;
  /// The exact fraction percent/100.
  cotyp multp;

  static AbsorbingBarrier read(const cphclass& cph);

  /// What the step count's dialog says of the barrier; empty without one.
  std::string text() const;

  /// Moves the absorbed quantities within the row n of the destination store.
  void apply(Lmap& destination, std::int32_t n) const;
};

}  // namespace kov
