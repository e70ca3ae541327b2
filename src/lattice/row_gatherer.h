#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "lattice/row.h"

namespace kov {

/// Makes rows from points in ascending key order of which nobody knows beforehand how far they reach: each
/// block gets the frame that it needs, and the row's when all are there. What is gathered takes as much
/// memory as the row and one block's points beside it. Throws std::bad_alloc; what was appended is then lost.
class RowGatherer {
 public:
  bool empty() const noexcept { return staged_.empty() && keys_.empty(); }
  /// True when the key comes behind all others of the row that is gathered.
  bool behind_all(const Lk& key) const noexcept {
    return !empty() && key.n() == last_.n() && Lk1LessLk2(last_, key);
  }

  /// The key comes behind all others, or is the first; the quantity is not zero.
  void append(const Lk& key, const cotyp& q);
  /// The row of what was appended, one point at least. The gatherer is empty then.
  Row finish();

 private:
  /// A block by a frame of its own; without one when its keys need more bits than there are.
  struct Staged {
    std::optional<KeyFrame> frame;
    KeyBox box;
    Block block;
  };

  void stage();

  Lk last_;
  std::vector<Staged> staged_;
  std::vector<Lk> keys_;
  std::vector<ratyp> re_;
  std::vector<ratyp> im_;
};

}  // namespace kov
