#pragma once

#include <vector>

#include "graphs/g1par.h"

namespace kov {

/// One bar of a curve: its edges, on whole pixels, and its middle, in pixels from the left edge of the
/// image.
struct Bar {
  double left = 0;
  double middle = 0;
  double right = 0;
  double value = 0;
};

/// The bars of a curve from left to right, none overlapping the next, zeros included. A bar stands with its
/// middle at its x value and is a unit of x wide, or two for double width; where a unit has less than one
/// pixel, every column is a bar.
std::vector<Bar> bars_of(const G1Par& par, const G1Curve& curve);

/// A value of a curve at a place, in pixels from the left edge of the image.
struct CurvePoint {
  double x = 0;
  double value = 0;
  friend bool operator==(const CurvePoint&, const CurvePoint&) = default;
};

/// The line along the tops of the bars over an image of this width. With vertical edges it is their outline,
/// at zero wherever no bar stands; without, straight lines join the middles of their tops.
std::vector<CurvePoint> line_of_bars(const std::vector<Bar>& bars, double width, bool vertical_edges);

}  // namespace kov
