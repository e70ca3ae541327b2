#include "lattice/lattice_status.h"

#include <cstddef>

#include "text/grouping.h"

namespace kov {

std::string status_line(const Lmap& lmap) {
  if (lmap.empty()) return lattices_are_empty;
  return "nlast = " + int_text(lmap.nlast()) + " (" + kilobyte_text(lmap.estimated_bytes()) +
         " KB = " + int_text(static_cast<std::int64_t>(lmap.count())) + "e)";
}

namespace {

/// That of the points, where erased ones have left the row's own box too large.
KeyBox box_of_points(const Row& row) noexcept {
  const Lk first = row.key(row.begin());
  KeyBox box{first, first};
  for (RowPlace place = row.begin(); place != row.end(); place = row.next(place)) box.include(row.key(place));
  return box;
}

}  // namespace

BoundingBox bounding_box(const Lmap& lmap) noexcept {
  BoundingBox result;
  KeyBox box{result.min, result.max};
  for (const Row& row : lmap.rows()) box.include(row.box_is_exact() ? row.box() : box_of_points(row));
  result.min = box.min;
  result.max = box.max;
  return result;
}

}  // namespace kov
