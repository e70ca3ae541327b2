#include "graphs/range_title.h"

#include <cstddef>
#include <cstdint>

#include "sums/bound_text.h"

namespace kov {
namespace {

struct Bounds {
  std::int32_t min;
  std::int32_t max;
  friend bool operator==(const Bounds&, const Bounds&) = default;
};

Bounds bounds_at(const KeyBox& range, int icoo) {
  const auto i = static_cast<std::size_t>(icoo);
  return {range.min.coo[i], range.max.coo[i]};
}

std::string bounds_text(const Bounds& bounds) {
  if (bounds.min == bounds.max) return bound_text(bounds.min);
  return bound_text(bounds.min) + "..." + bound_text(bounds.max);
}

}  // namespace

std::string range_title(const KeyBox& range) {
  std::string text =
      "l=" + bounds_text(bounds_at(range, l_position)) + " n=" + bounds_text(bounds_at(range, 0));
  for (int first = 1; first < l_position;) {
    const Bounds bounds = bounds_at(range, first);
    int last = first;
    while (last + 1 < l_position && bounds_at(range, last + 1) == bounds) ++last;
    if (bounds != Bounds{0, 0}) {
      text += " " + coordinate_name(first) + (last > first ? "..." + coordinate_name(last) : "") + "=" +
              bounds_text(bounds);
    }
    first = last + 1;
  }
  return text;
}

}  // namespace kov
