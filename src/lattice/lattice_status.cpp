#include "lattice/lattice_status.h"

#include <algorithm>
#include <cstddef>

#include "text/grouping.h"

namespace kov {

std::string status_line(const Lmap& lmap) {
  if (lmap.empty()) return lattices_are_empty;
  return "nlast = " + int_text(lmap.nlast()) + " (" + kilobyte_text(lmap.estimated_bytes()) +
         " KB = " + int_text(static_cast<std::int64_t>(lmap.count())) + "e)";
}

BoundingBox bounding_box(const Lmap& lmap) noexcept {
  BoundingBox box;
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    for (std::size_t i = 0; i < box.min.coo.size(); ++i) {
      const std::int32_t value = point.key().coo[i];
      box.min.coo[i] = std::min(box.min.coo[i], value);
      box.max.coo[i] = std::max(box.max.coo[i], value);
    }
  }
  return box;
}

}  // namespace kov
