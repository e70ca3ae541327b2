#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "lattice/key_box.h"
#include "lattice/lmap.h"

namespace kov {

/// A real part that combinations are made of, and the point that it is of.
struct CombElement {
  double re = 0.0;
  double square = 0.0;
  Lk key;
};

/// The points that a combination search chooses from: those of the store inside a range, ordered by real
/// part, the largest first; equal ones in key order. A real part that is not finite is left out, since no
/// sum with it is near anything. To be used before the store changes.
class CombCandidates {
 public:
  CombCandidates(const Lmap& lmap, const KeyBox& range);

  std::size_t count() const { return sorted_.size(); }
  /// The first a of them, a <= count().
  std::vector<CombElement> largest(std::size_t a) const;

 private:
  std::vector<std::pair<double, Lmap::Cursor>> sorted_;
};

}  // namespace kov
