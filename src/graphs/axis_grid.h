#pragma once

#include <string>

#include "config/cphclass.h"
#include "interact/messages.h"
#include "pictures/picture.h"
#include "pictures/text_measure.h"

namespace kov {

/// Where the plot lies in its picture: edges on whole pixels.
struct PlotArea {
  double left = 0, top = 0, width = 0, height = 0;
  friend bool operator==(const PlotArea&, const PlotArea&) = default;
};

/// One axis of a plot. `from` is the value at its left or lower edge, `to` the one at its right or upper
/// edge, whichever is larger. Where a coordinate fills a unit of pixels that should carry its number in the
/// middle, both are half a unit less.
struct PlotAxis {
  double from = 0;
  double to = 1;
  std::string name;
  /// Only whole numbers mean something on it: the axis of a coordinate.
  bool whole = false;
};

/// Colour modes of DrawGrid beyond those of Graph2_color_mode (0 ... 3), in which the grid stands out
/// from that mode's colours.
inline constexpr int grid_mode_paper = 4;
inline constexpr int grid_mode_black_white = 5;

/// How a grid is drawn.
struct GridOptions {
  /// About so many lines along each axis; 0 for none and no numbers.
  int lines_x = 7;
  int lines_y = 4;
  /// Lines at 1, 2 or 5 times a power of ten, instead of equal divisions from edge to edge.
  bool round_values = true;
  /// Significant digits of the numbers.
  int digits = 4;
  int colour_mode = grid_mode_paper;
};

/// As the parameters Graph_Gridlines_x, _y, _Auto and Graph_num_precision say.
GridOptions grid_options(const cphclass& cph, int colour_mode);

/// Room that something beside the axes takes at the edges of a picture: a title and a legend above, a colour
/// legend to the right.
struct PlotMargins {
  double above = 0;
  double right = 0;
};

/// What is left for the plot in a picture of this size. The room for numbers depends on the number of their
/// digits, not on the values, so the plot is the same whatever is drawn. Where the margins would take more
/// than half of the width or of the height the whole picture is the plot, and DrawGrid leaves out the
/// numbers.
PlotArea plot_area(int width, int height, const GridOptions& options, const TextMeasure& measure,
                   const PlotMargins& margins = {});

/// Draws frame, grid lines, numbers and names of both axes around and over the plot. Numbers keep 6 pixels
/// apart and lie inside the picture; one for which there is no room is left out. No number is further from
/// its line than a twentieth of the distance between lines: where that takes more digits than the options
/// say, it gets them, and coordinates are always written in full. An unknown colour mode is reported and
/// drawn as on paper; an interval that is empty or not finite has a line at most.
///
/// Lines are appended to those that the picture has, so what is appended afterwards covers them.
void DrawGrid(Picture& picture, const PlotArea& area, const PlotAxis& x, const PlotAxis& y,
              const GridOptions& options, const TextMeasure& measure, Messages& messages);

}  // namespace kov
