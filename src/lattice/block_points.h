#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "lattice/block.h"
#include "lattice/row.h"

namespace kov {

// What is read of many points of a block at once, from the point at first on, as many as out takes.

/// The coordinates at one key position; the block is one of the row.
void decode_coordinates(const Row& row, const Block& block, std::size_t position, std::size_t first,
                        std::span<std::int32_t> out) noexcept;

/// to_double(qq(q)) of each quantity.
void decode_squares(const Block& block, std::size_t first, std::span<double> out) noexcept;

/// The hypotenuse of the parts of each quantity as doubles.
void decode_magnitudes(const Block& block, std::size_t first, std::span<double> out) noexcept;

/// True when to_double(qq(q)) of every quantity is the sum of the squares of its parts as doubles. Exact
/// integers have exact squares as long as the exact range holds them, and from there on doubles; but the
/// square of a fraction is rounded once.
bool squares_are_of_doubles(const Block& block) noexcept;

}  // namespace kov
