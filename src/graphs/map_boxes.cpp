#include "graphs/map_boxes.h"

#include <algorithm>
#include <cmath>

namespace kov {
namespace {

/// The first pixel that is nearer to the later of two neighbours.
int boundary(const MapAxis& axis, std::int64_t earlier, std::int64_t later) {
  const auto pixel = [&](std::int64_t coordinate) {
    return std::floor(static_cast<double>(coordinate - axis.min) * axis.pixels_per_unit);
  };
  const double middle = std::floor((pixel(earlier) + pixel(later) + 1) / 2);
  return static_cast<int>(std::clamp(middle, 0.0, static_cast<double>(axis.pixels)));
}

}  // namespace

PixelSpan box_of(const MapAxis& axis, std::int64_t coordinate, int step) {
  if (step * axis.pixels_per_unit < 1) {
    const int pixel = axis.pixel(coordinate);
    return {pixel, pixel + 1};
  }
  return {boundary(axis, coordinate - step, coordinate), boundary(axis, coordinate, coordinate + step)};
}

std::vector<Box> column_boxes(const ValueMap& map, bool double_width_wanted) {
  const int step = double_width_wanted && map.steps_by_two() ? 2 : 1;
  std::vector<Box> boxes;
  for (int column = 0; column < map.grid.width(); ++column) {
    const auto x = map.columns[static_cast<std::size_t>(column)];
    if (x) boxes.push_back({column, box_of(map.x, *x, step)});
  }
  return boxes;
}

std::vector<Box> row_boxes(const ValueMap& map) {
  std::vector<Box> boxes;
  for (int row = 0; row < map.grid.height(); ++row) {
    const ValueMap::Row& of_row = map.rows[static_cast<std::size_t>(row)];
    if (of_row.x) boxes.push_back({row, box_of(map.y, *of_row.y, 1)});
  }
  return boxes;
}

}  // namespace kov
