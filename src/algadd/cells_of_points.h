#pragma once

#include <cstddef>
#include <cstdint>

#include "lattice/block.h"
#include "numbers/vector_dispatch.h"

namespace kov {

/// Where the points of a block from one on, that one term moves, fall among the cells of a tile.
struct CellsOfPoints {
  const std::uint32_t* offsets;
  /// Where there are no offsets.
  const std::uint64_t* keys;
  /// What is added to them.
  std::int64_t distance;

  CellsOfPoints(const Block& block, std::size_t from, std::int64_t shift)
      : offsets(block.offsets()), keys(block.keys()), distance(shift) {
    if (offsets != nullptr) {
      offsets += from;
      distance += static_cast<std::int64_t>(block.base());
    } else {
      keys += from;
    }
  }
  KOV_INLINE std::size_t operator[](std::size_t i) const {
    const std::int64_t key =
        offsets != nullptr ? std::int64_t{offsets[i]} : static_cast<std::int64_t>(keys[i]);
    return static_cast<std::size_t>(key + distance);
  }
};

}  // namespace kov
