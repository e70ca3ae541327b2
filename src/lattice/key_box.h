#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

#include "lattice/lk.h"

namespace kov {

/// True when min[i] <= key[i] <= max[i] at every one of the 32 positions. There is no other notion of
/// being inside a range.
constexpr bool inside(const Lk& key, const Lk& min, const Lk& max) noexcept {
  for (std::size_t i = 0; i < key.coo.size(); ++i) {
    if (key.coo[i] < min.coo[i] || key.coo[i] > max.coo[i]) return false;
  }
  return true;
}

/// A range of keys by its two bounds, both inclusive; empty when a minimum exceeds its maximum.
struct KeyBox {
  Lk min;
  Lk max;

  constexpr bool contains(const Lk& key) const noexcept { return inside(key, min, max); }
  /// Grows, where it must, to hold all between the two bounds of another box as well; of neither a minimum
  /// exceeds its maximum.
  constexpr void include(const KeyBox& box) noexcept {
    for (std::size_t i = 0; i < min.coo.size(); ++i) {
      min.coo[i] = std::min(min.coo[i], box.min.coo[i]);
      max.coo[i] = std::max(max.coo[i], box.max.coo[i]);
    }
  }
  constexpr void include(const Lk& key) noexcept { include({key, key}); }
  friend bool operator==(const KeyBox&, const KeyBox&) = default;
};

/// True when key lies inside any of the boxes.
constexpr bool inside_any(const Lk& key, std::span<const KeyBox> boxes) noexcept {
  for (const KeyBox& box : boxes) {
    if (box.contains(key)) return true;
  }
  return false;
}

}  // namespace kov
