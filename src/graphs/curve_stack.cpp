#include "graphs/curve_stack.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "graphs/bars.h"
#include "graphs/map_boxes.h"
#include "graphs/value_interval.h"
#include "text/integers.h"

namespace kov {
namespace {

double value_or_zero(const ValueMap& map, int column, int row) {
  const double value = column < map.grid.width() ? map.grid.value(column, row) : 0;
  return ValueGrid::is_value(value) ? value : 0;
}

/// Every pixel of the row.
std::vector<Bar> pixel_bars(const ValueMap& map, int row) {
  std::vector<Bar> bars;
  for (int column = 0; column < map.grid.width(); ++column) {
    const double left = column;
    bars.push_back({left, left + 0.5, left + 1, value_or_zero(map, column, row)});
  }
  return bars;
}

/// Every coordinate that has points, and those between them: each a box of its own, zeros included.
std::vector<Bar> unit_bars(const ValueMap& map, int row, int step) {
  const std::int64_t first_x = *map.rows[static_cast<std::size_t>(row)].x;
  std::vector<Bar> bars;
  for (std::int64_t x = map.x.min + (first_x - map.x.min) % step; x <= map.x.max; x += step) {
    const PixelSpan pixels = box_of(map.x, x, step);
    if (pixels.width() == 0) continue;
    const double middle = static_cast<double>(x - map.x.min) * map.x.pixels_per_unit;
    const double value = value_or_zero(map, map.x.pixel(x), row);
    bars.push_back({static_cast<double>(pixels.begin), middle, static_cast<double>(pixels.end), value});
  }
  return bars;
}

std::vector<Bar> bars_of_row(const ValueMap& map, int row, int step) {
  return step * map.x.pixels_per_unit < 1 ? pixel_bars(map, row) : unit_bars(map, row, step);
}

/// Everything that the curves of a stack have in common.
struct StackGeometry {
  const ValueMap& map;
  ValueInterval values;
  /// Pixels that each curve has for these values.
  double height;
  double offset;
  bool vertical_edges;

  double y(double value, std::size_t curve) const {
    return map.y.pixels - values.place_of(value) * height - static_cast<double>(curve) * offset;
  }
  StackedCurve draw(const std::vector<Bar>& bars, std::size_t curve, const MapRow& row,
                    CurveState state) const {
    StackedCurve drawn{.row = row.row, .y = row.y, .state = state, .line = {}, .zero = y(0, curve)};
    drawn.line.colour = curve_colour(state);
    drawn.line.width = state == curve_unselected ? 1 : 1.5;
    for (const CurvePoint& point : line_of_bars(bars, map.x.pixels, vertical_edges)) {
      drawn.line.points.push_back({point.x, y(point.value, curve)});
    }
    return drawn;
  }
};

CurveStack stack(const ValueMap& map, const CurveStates& states, const cphclass& cph) {
  const std::vector<MapRow> rows = stacked_rows(map, cph.kmi("Graph2a_ny"));
  const int step = cph.kmi("Graph2_BoxDoubleWidth") != 0 && map.steps_by_two() ? 2 : 1;
  ValueInterval values{0, 0};
  std::vector<std::vector<Bar>> bars;
  for (const MapRow& row : rows) {
    bars.push_back(bars_of_row(map, row.row, step));
    for (const Bar& bar : bars.back()) values = values.joined({bar.value, bar.value});
  }
  values = values.zoomed(cph.kmi("Graph_y_border_percent"));
  const double offset = offset_per_curve(rows.size(), map.y.pixels, cph.kmi("Graph2a_max_dypix_per_plot"),
                                         cph.kmi("Graph2a_max_dypix_percent"));
  const double height = map.y.pixels - offset * static_cast<double>(rows.size() - 1);
  const StackGeometry geometry{map, values, height, offset, cph.kmi("Graph_BarsEdgesVertical") != 0};
  CurveStack result;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    result.curves.push_back(geometry.draw(bars[i], i, rows[i], static_cast<CurveState>(states[i])));
  }
  result.lower_value = values.min;
  result.upper_value = std::lerp(values.min, values.max, map.y.pixels / height);
  return result;
}

}  // namespace

std::vector<MapRow> stacked_rows(const ValueMap& map, std::int32_t ny) {
  std::vector<MapRow> rows;
  for (int row = 0; row < map.grid.height(); ++row) {
    const ValueMap::Row& of_row = map.rows[static_cast<std::size_t>(row)];
    if (of_row.x) rows.push_back({row, *of_row.y});
  }
  if (ny > 0) std::reverse(rows.begin(), rows.end());
  rows.resize(std::min(rows.size(), static_cast<std::size_t>(curve_count(ny))));
  return rows;
}

double offset_per_curve(std::size_t curves, int image_height, std::int32_t max_dypix_per_plot,
                        std::int32_t max_dypix_percent) {
  if (curves < 2) return 0;
  // A line of a data file may widen its own range, but something has to be left for the curves themselves.
  const double share = std::clamp(max_dypix_percent, 0, 90) / 100.0;
  const double most = image_height * share / static_cast<double>(curves - 1);
  return std::clamp<double>(max_dypix_per_plot, 0, most);
}

std::string curve_label(std::int32_t y) { return "y = " + int_text(y); }

Colour curve_colour(CurveState state) {
  switch (state) {
    case curve_blue:
      return {0, 40, 170};
    case curve_red:
      return {220, 50, 20};
    case curve_unselected:
      break;
  }
  return {170, 170, 170};
}

std::optional<CurveStack> PlotMultiple1DGraphsOnGimage2(const ValueMap& map, const CurveStates& states,
                                                        const cphclass& cph, Messages& messages) {
  const std::int64_t ny = cph.kmi("Graph2a_ny");
  if (ny == 0) {
    messages.error("PlotMultiple1DGraphsOnGimage2: ny==0");
    return std::nullopt;
  }
  if (std::abs(ny) > nyabs_max) {
    messages.error("PlotMultiple1DGraphsOnGimage2: nyabs>nyabs_max");
    return std::nullopt;
  }
  return stack(map, states, cph);
}

}  // namespace kov
