#pragma once

#include <cstddef>

#include "pictures/picture.h"

namespace kov {

/// How a curve of Graph1 is drawn.
struct CurveStyle {
  Colour colour;
  double width = 1;
  LineStyle style = LineStyle::solid;
};

/// By the curve's index in G1Checks. The ten colours keep apart for eyes that lack one of their three kinds
/// of cones too, and all of them are dark enough for white paper; curves of Range 2 are dashed besides. In
/// black and white each quantity has a line style of its own, and Range 2 the wider lines.
CurveStyle curve_style(std::size_t index, bool black_and_white);

/// The colour, much lighter: for the area below a line.
Colour tinted(const Colour& colour);

}  // namespace kov
