#pragma once

#include <cstddef>
#include <vector>

namespace kov {

// What the vectors of a block reserve beyond their size: an eighth and a little, so that a row that grows
// point by point copies each a few times only, and does not hold twice what it needs.

/// Makes sure that one more fits in without memory.
template <class T>
void reserve_one(std::vector<T>& vector) {
  if (vector.size() == vector.capacity()) vector.reserve(vector.size() + 4 + vector.size() / 8);
}

/// Gives memory back where there is much of it and the smaller piece is to be had.
template <class T>
void give_back(std::vector<T>& vector) noexcept {
  if (vector.capacity() > vector.size() + 16 + vector.size() / 4) vector.shrink_to_fit();
}

}  // namespace kov
