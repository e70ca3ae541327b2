#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "lattice/block.h"
#include "lattice/key_frame.h"
#include "lattice/row.h"

namespace kov {

/// The coordinates at one key position of the points of a block of the row, from first on.
inline void decode_coordinates(const Row& row, const Block& block, std::size_t position, std::size_t first,
                               std::span<std::int32_t> out) noexcept {
  if (block.wide()) {
    for (std::size_t i = 0; i < out.size(); ++i) out[i] = block.wide_key(first + i).coo[position];
  } else if (position == 0 || row.frame().bits(position) == 0) {
    std::fill(out.begin(), out.end(), row.box().min.coo[position]);
  } else {
    const KeyFrame& frame = row.frame();
    for (std::size_t i = 0; i < out.size(); ++i) out[i] = frame.coordinate(block.key(first + i), position);
  }
}

}  // namespace kov
