#pragma once

#include <optional>
#include <string>
#include <vector>

#include "config/cphclass.h"
#include "graphs/axis_grid.h"
#include "graphs/colour_scale.h"
#include "graphs/curve_stack.h"
#include "graphs/legend.h"
#include "graphs/value_map.h"
#include "interact/messages.h"
#include "pictures/picture.h"
#include "pictures/text_measure.h"
#include "sums/range_table.h"

namespace kov {

/// What a map was made from, for names and title.
struct Graph2Origin {
  RangeTable table;
  int table_index = 0;
  /// The data file's name; empty without one.
  std::string file_name;
  /// The values are divided by the number of points.
  bool divided = false;
};

/// A map that was calculated, and how it is drawn: as a raster of colours or as a stack of curves.
struct Graph2Drawing {
  Graph2Origin origin;
  ValueMap map;
  ColourScale scale{ColourRamp(0, 0)};
  std::optional<Raster> raster;
  std::optional<CurveStack> stack;
};

/// "SR1: re" and the like.
std::string map_name(const ValueMap& map, bool divided);

/// The 21 fields of the legend, from the lowest: the thresholds at equal distances in the table, each in the
/// colour that its value has in the map. With few distinct values neighbouring fields are alike.
std::vector<ColourField> colour_fields(const ColourScale& scale, int digits);

/// The image, which is the plot without title, axes and legend, in a picture of this size. Depends on
/// parameters alone.
PlotArea graph2_plot_area(const cphclass& cph, int width, int height, const TextMeasure& measure);

/// The whole picture of the page: title, axes, the map with its colour legend or the curves with their
/// labels, as the parameters Graph_... and Graph2_... say. The drawing was made for the image of this size.
Picture graph2_picture(const Graph2Drawing& drawing, const cphclass& cph, int width, int height,
                       const TextMeasure& measure, Messages& messages);

}  // namespace kov
