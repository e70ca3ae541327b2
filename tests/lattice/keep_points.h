#pragma once

#include <cstddef>
#include <cstdint>

#include "lattice/lmap.h"

namespace kov {

/// Keeps in the rows a <= n <= b the points for which kept(key, quantity) is true; the number of the others.
template <class Predicate>
std::size_t keep_points(Lmap& lmap, std::int32_t a, std::int32_t b, const Predicate& kept) {
  return lmap.keep_chosen(a, b, [&](const Row& row, std::size_t block, Lmap::BlockIndices& indices) {
    std::size_t count = 0;
    for (std::uint32_t i = 0; i < row.block(block).size(); ++i) {
      if (kept(row.key({block, i}), row.quantity({block, i}))) indices[count++] = i;
    }
    return count;
  });
}

}  // namespace kov
