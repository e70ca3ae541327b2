#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "lattice/row.h"

namespace kov {

/// Makes a row from its points in ascending key order, in full blocks of the smallest forms. Beside the row
/// it keeps one block's points. Throws std::bad_alloc; what was appended is then lost.
class RowBuilder {
 public:
  /// For keys inside the box, of which it is not known how they lie: a frame with room, a wide row when there
  /// is none.
  RowBuilder(std::int32_t n, const KeyBox& box) : RowBuilder(n, KeyFrame::with_room(box)) {}
  /// For keys that the frame covers; without one for all keys.
  RowBuilder(std::int32_t n, const std::optional<KeyFrame>& frame) : row_(n, frame) {}

  /// The quantity is not zero; the key's step does not matter.
  void append(const Lk& key, const cotyp& q);
  /// By the frame.
  void append(std::uint64_t packed, const cotyp& q);
  /// Points by the frame, or of a wide row; in their own block. The box holds the bounds of their keys.
  void append(Block&& block, const KeyBox& box);

  /// The builder is not to be used any more.
  Row finish();

 private:
  void take(const cotyp& q);
  void flush();

  Row row_;
  std::vector<std::uint64_t> packed_;
  std::vector<Lk> wide_;
  std::vector<ratyp> re_;
  std::vector<ratyp> im_;
};

}  // namespace kov
