#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "config/cphclass.h"
#include "graphs/curve_states.h"
#include "graphs/value_map.h"
#include "interact/messages.h"
#include "pictures/picture.h"

namespace kov {

/// A row of a map that is drawn as a curve along x.
struct MapRow {
  int row = 0;
  std::int32_t y = 0;
};

/// The rows with points that ny asks for, the frontal one first: from y_max on downwards for a positive ny,
/// from y_min on upwards for a negative one. Fewer than |ny| when there are no more.
std::vector<MapRow> stacked_rows(const ValueMap& map, std::int32_t ny);

/// By how many pixels each of these curves is higher than the one before it: max_dypix_per_plot, unless all
/// offsets together would exceed that percentage of the image's height.
double offset_per_curve(std::size_t curves, int image_height, std::int32_t max_dypix_per_plot,
                        std::int32_t max_dypix_percent);

/// A curve of the stack as it is drawn.
struct StackedCurve {
  /// Of the grid.
  int row = 0;
  std::int32_t y = 0;
  CurveState state = curve_unselected;
  /// In pixels of the image, from its upper left corner.
  PictureLine line;
  /// Where the value 0 is, from the image's upper edge.
  double zero = 0;
};

/// Curves along x behind each other, each a little higher than the one before it.
struct CurveStack {
  /// The frontal one first; painted in the reverse order.
  std::vector<StackedCurve> curves;
  /// The values of curve 1 at the lower and at the upper edge of the image.
  double lower_value = 0;
  double upper_value = 0;
};

/// "y = 5".
std::string curve_label(std::int32_t y);

/// Blue, red, and grey for a curve that is not selected; each lighter than the one before, so that they
/// differ in black and white, too.
Colour curve_colour(CurveState state);

/// Draws rows of a map as a stack of curves, as Graph2a_..., Graph_y_border_percent and
/// Graph_BarsEdgesVertical say. The lowest and highest value of all of them and 0 fit into the image together
/// with the offsets. Nothing for a ny (Graph2a_ny) of 0 or beyond 99, either of which is reported.
std::optional<CurveStack> PlotMultiple1DGraphsOnGimage2(const ValueMap& map, const CurveStates& states,
                                                        const cphclass& cph, Messages& messages);

}  // namespace kov
