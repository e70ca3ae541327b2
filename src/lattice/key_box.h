#pragma once

#include <span>

#include "lattice/lk.h"

namespace kov {

/// True when min[i] <= key[i] <= max[i] at every one of the 32 positions. There is no other notion of
/// being inside a range.
bool inside(const Lk& key, const Lk& min, const Lk& max);

/// A range of keys by its two bounds, both inclusive; empty when a minimum exceeds its maximum.
struct KeyBox {
  Lk min;
  Lk max;

  bool contains(const Lk& key) const { return inside(key, min, max); }
  friend bool operator==(const KeyBox&, const KeyBox&) = default;
};

/// True when key lies inside any of the boxes.
bool inside_any(const Lk& key, std::span<const KeyBox> boxes);

}  // namespace kov
