#include "graphs/graph2_picture.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include "graphs/curve_labels.h"
#include "graphs/curve_names.h"
#include "graphs/legend.h"
#include "graphs/map_raster.h"
#include "graphs/range_title.h"
#include "numbers/floating_text.h"
#include "text/integers.h"

namespace kov {
namespace {

bool draws_curves(const cphclass& cph) { return cph.kmi("Graph2a_ny") != 0; }

/// Over a map the grid stands out from the map's colours, behind curves it steps back.
GridOptions options_of(const cphclass& cph) {
  return grid_options(cph, draws_curves(cph) ? grid_mode_paper : cph.kmi("Graph2_color_mode"));
}

std::string title_of(const Graph2Drawing& drawing) {
  const Graph2Origin& origin = drawing.origin;
  const std::string file = origin.file_name.empty() ? "" : origin.file_name + ", ";
  return file + "range table " + int_text(origin.table_index) + ", " + map_name(drawing.map, origin.divided) +
         ", " + range_title(origin.table.range[drawing.map.choice.range]);
}

PlotAxis coordinate_axis(const MapAxis& axis) {
  return {static_cast<double>(axis.min), static_cast<double>(axis.max), coordinate_name(axis.position), true};
}

/// Moves what was drawn onto the image to where the image is.
PictureLine moved(PictureLine line, const PlotArea& area) {
  for (PicturePoint& point : line.points) {
    point.x += area.left;
    point.y += area.top;
  }
  return line;
}

void draw_map(Picture& picture, const PlotArea& area, const Graph2Drawing& drawing, const cphclass& cph,
              const TextMeasure& measure, Messages& messages) {
  picture.background = map_background;
  Raster raster = *drawing.raster;
  raster.left = static_cast<int>(area.left);
  raster.top = static_cast<int>(area.top);
  picture.rasters.push_back(std::move(raster));
  DrawGrid(picture, area, coordinate_axis(drawing.map.x), coordinate_axis(drawing.map.y), options_of(cph),
           measure, messages);
  draw_colour_legend(picture, area, colour_fields(drawing.scale, cph.kmi("Graph_num_precision")), measure);
}

void draw_stack(Picture& picture, const PlotArea& area, const Graph2Drawing& drawing, const cphclass& cph,
                const TextMeasure& measure, Messages& messages) {
  const CurveStack& stack = *drawing.stack;
  const PlotAxis values{stack.lower_value, stack.upper_value, map_name(drawing.map, drawing.origin.divided)};
  DrawGrid(picture, area, coordinate_axis(drawing.map.x), values, options_of(cph), measure, messages);
  for (auto curve = stack.curves.rbegin(); curve != stack.curves.rend(); ++curve) {
    picture.lines.push_back(moved(curve->line, area));
  }
  draw_curve_labels(picture, area, stack, coordinate_name(drawing.map.y.position), measure);
}

}  // namespace

std::string map_name(const ValueMap& map, bool divided) {
  static constexpr std::array<const char*, 5> quantities = {"re", "im", "qa", "qq", "cntAt"};
  return curve_group_caption(map.choice.range, divided ? 1 : 0) + " " +
         quantities[static_cast<std::size_t>(map.choice.quantity)];
}

std::vector<ColourField> colour_fields(const ColourScale& scale, int digits) {
  constexpr int steps = colour_field_count - 1;
  static_assert((fclimit_count - 1) % steps == 0, "every label names a threshold");
  std::vector<ColourField> fields;
  for (int label = 0; label <= steps; ++label) {
    const std::size_t threshold =
        static_cast<std::size_t>(label) * static_cast<std::size_t>((fclimit_count - 1) / steps);
    const double value = scale.fclimit()[threshold];
    fields.push_back({scale.colour_of(value), floating_text(value, digits)});
  }
  return fields;
}

PlotArea graph2_plot_area(const cphclass& cph, int width, int height, const TextMeasure& measure) {
  const double right = draws_curves(cph) ? curve_label_room(measure)
                                         : colour_legend_width(cph.kmi("Graph_num_precision"), measure);
  return plot_area(width, height, options_of(cph), measure, {.above = title_height(measure), .right = right});
}

Picture graph2_picture(const Graph2Drawing& drawing, const cphclass& cph, int width, int height,
                       const TextMeasure& measure, Messages& messages) {
  Picture picture;
  picture.width = width;
  picture.height = height;
  PlotArea area = graph2_plot_area(cph, width, height, measure);
  // An image beyond 3000 x 2000 pixels was cut.
  area.width = drawing.map.x.pixels;
  area.height = drawing.map.y.pixels;
  draw_title(picture, area, title_of(drawing), measure);
  if (drawing.stack) {
    draw_stack(picture, area, drawing, cph, measure, messages);
  } else {
    draw_map(picture, area, drawing, cph, measure, messages);
  }
  return picture;
}

}  // namespace kov
