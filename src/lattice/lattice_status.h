#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "lattice/lmap.h"
#include "text/integers.h"

namespace kov {

/// "nlast = 5 (176.000 KB = 1000e)", or " Lattices are empty. ".
std::string status_line(const Lmap& lmap);

inline constexpr const char* lattices_are_empty = " Lattices are empty. ";

/// Why an operation stopped whose store has passed the memory limit.
inline constexpr const char* memory_stop_text =
    "\nStop, because more memory used \nthan specified in configuration by MaxAllowedMemOccupationInKB";

/// The smallest and largest value of each of the 32 key integers, and a counter for each, which is 0
/// here and the caller's to use. Of an empty store the minima are the largest and the maxima the smallest
/// 32-bit integer.
struct BoundingBox {
  Lk min = Lk::filled(highest_int);
  Lk max = Lk::filled(lowest_int);
  std::array<std::int32_t, MaxDimCount> counters{};
};

/// One pass over the rows; over the points of those from which points were erased.
BoundingBox bounding_box(const Lmap& lmap) noexcept;

}  // namespace kov
