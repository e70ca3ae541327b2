#include "graphs/colour_lookup.h"

#include <cmath>
#include <limits>

#include "graphs/double_order.h"

namespace kov {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Calls found(q, colour) for the first q, begin <= q <= end, and for each at which the colour changes.
template <class ColourOf, class Found>
void find_changes(double begin, double end, const ColourOf& colour_of, const Found& found) {
  const std::uint32_t last = colour_of(end);
  std::uint64_t first = order_of_double(begin);
  std::uint32_t colour = colour_of(begin);
  found(begin, colour);
  while (colour != last) {
    std::uint64_t same = first;
    std::uint64_t other = order_of_double(end);
    while (other - same > 1) {
      const std::uint64_t middle = same + (other - same) / 2;
      (colour_of(double_of_order(middle)) == colour ? same : other) = middle;
    }
    first = other;
    colour = colour_of(double_of_order(first));
    found(double_of_order(first), colour);
  }
}

}  // namespace

ColourLookup::ColourLookup(const ColourScale& scale) {
  from_.fill(infinity);
  const ColourScale::Thresholds& fclimit = scale.fclimit();
  append(-infinity, raster_pixel(scale.ramp().at(0)));
  for (std::size_t i = 0; i + 1 < fclimit.size(); ++i) {
    if (fclimit[i] == fclimit[i + 1]) continue;
    find_changes(
        fclimit[i], std::nextafter(fclimit[i + 1], -infinity),
        [&](double q) { return raster_pixel(scale.colour_between(i, q)); },
        [this](double from, std::uint32_t colour) { append(from, colour); });
  }
  append(fclimit.back(), raster_pixel(scale.ramp().at(1)));
}

void ColourLookup::append(double from, std::uint32_t colour) {
  if (count_ > 0 && colour_[count_ - 1] == colour) return;
  from_[count_] = from;
  colour_[count_] = colour;
  ++count_;
}

}  // namespace kov
