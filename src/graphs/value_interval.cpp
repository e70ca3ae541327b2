#include "graphs/value_interval.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kov {
namespace {

double finite(double value) {
  constexpr double largest = std::numeric_limits<double>::max();
  return std::clamp(value, -largest, largest);
}

}  // namespace

ValueInterval ValueInterval::joined(const ValueInterval& other) const {
  return {std::min(min, other.min), std::max(max, other.max)};
}

ValueInterval ValueInterval::zoomed(std::int32_t percent) const {
  const double length = max - min;
  const double single = min == 0 ? 1 : std::abs(min);
  // A line of a data file may widen its own range; an interval must not become empty by it.
  const double border = length > 0 ? finite(length) * std::max(percent, 0) / 100 : single;
  return {finite(min - border), finite(max + border)};
}

double ValueInterval::place_of(double value) const {
  const double length = max - min;
  if (std::isfinite(length)) return (value - min) / length;
  return (value / 2 - min / 2) / (max / 2 - min / 2);
}

}  // namespace kov
