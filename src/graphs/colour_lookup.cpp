#include "graphs/colour_lookup.h"

#include <bit>
#include <cmath>
#include <limits>

namespace kov {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr std::uint64_t sign = std::uint64_t{1} << 63U;

/// An integer for each double, in the same order, so that the doubles between two can be halved.
std::uint64_t key_of(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  return (bits & sign) != 0 ? ~bits : bits | sign;
}

double value_of(std::uint64_t key) { return std::bit_cast<double>((key & sign) != 0 ? key & ~sign : ~key); }

/// Calls found(q, colour) for the first q, begin <= q <= end, and for each at which the colour changes.
template <class ColourOf, class Found>
void find_changes(double begin, double end, const ColourOf& colour_of, const Found& found) {
  const std::uint32_t last = colour_of(end);
  std::uint64_t key = key_of(begin);
  std::uint32_t colour = colour_of(begin);
  found(begin, colour);
  while (colour != last) {
    std::uint64_t same = key;
    std::uint64_t other = key_of(end);
    while (other - same > 1) {
      const std::uint64_t middle = same + (other - same) / 2;
      (colour_of(value_of(middle)) == colour ? same : other) = middle;
    }
    key = other;
    colour = colour_of(value_of(key));
    found(value_of(key), colour);
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
