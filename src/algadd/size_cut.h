#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <span>
#include <string>

#include "interact/user.h"
#include "lattice/block_points.h"
#include "lattice/row.h"

namespace kov {

// The size of a point is its squared modulus. Squared moduli compare as the doubles nearest to them: where
// the comparison of two exact sizes does not overflow, they differ by more than the rounding of a double, and
// everywhere else it compares the doubles itself. A sum of two squares of finite numbers is no NaN and no
// -0.0, at most an infinity, the largest.

/// So many are looked at together; a multiple of 8.
inline constexpr std::size_t sizes_at_once = 512;

/// Calls visit(first, sizes) for the points of a block in key order, some at a time.
template <class Visit>
void for_each_size(const Block& block, const Visit& visit) {
  std::array<double, sizes_at_once> room;
  for (std::size_t first = 0; first < block.size(); first += room.size()) {
    const auto sizes = std::span(room).first(std::min(room.size(), block.size() - first));
    decode_squares(block, first, sizes);
    visit(first, std::span<const double>(sizes));
  }
}

/// low <= size <= high
struct SizeInterval {
  double low = 0.0;
  double high = std::numeric_limits<double>::infinity();
};

/// The smallest points of a row: all of a size below this one, and of those that have it the first ones in
/// key order, so many of them or all.
struct SizeCut {
  double size = 0.0;
  std::size_t equal = 0;
};

/// Where the size of the number-th smallest point is likely to be found, by a sample of the points;
/// everything for rows that are not long. Needs no memory.
SizeInterval likely_interval(const Row& row, std::size_t number);

/// The cut below which so many points of the row lie, number <= row.count(). A good guess of where it is
/// saves walks over the row; a bad one costs one. At least one walk, at most seven, the first of which shows
/// its progress below the heading. A selection by digits of the sizes' bits (D. E. Knuth, The Art of Computer
/// Programming 3, section 5.2.5), which needs no memory, begun with the interval that a sample gives (R. W.
/// Floyd, R. L. Rivest, Expected time bounds for selection, CACM 18 (1975) 165-172).
SizeCut find_cut(const Row& row, std::size_t number, SizeInterval guess, Progress& progress,
                 const std::string& heading);

}  // namespace kov
