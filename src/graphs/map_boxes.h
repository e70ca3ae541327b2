#pragma once

#include <cstdint>
#include <vector>

#include "graphs/value_map.h"

namespace kov {

/// Pixels from begin to the one before end.
struct PixelSpan {
  int begin = 0;
  int end = 0;
  int width() const { return end - begin; }
  friend bool operator==(const PixelSpan&, const PixelSpan&) = default;
};

/// The pixels that stand for a coordinate where coordinates follow each other in steps of so many units: up
/// to the middle between its own pixel and those of its neighbours, so that boxes meet without a gap. Its own
/// pixel alone where steps are smaller than a pixel.
PixelSpan box_of(const MapAxis& axis, std::int64_t coordinate, int step);

/// A column or row of the grid with points, and the pixels of the image that show it.
struct Box {
  /// The column or row.
  int index = 0;
  PixelSpan pixels;
};

/// What the boxes of a map are, left to right. Each is two units wide where Graph2_BoxDoubleWidth asks for it
/// and the map steps by two along x.
std::vector<Box> column_boxes(const ValueMap& map, bool double_width_wanted);
/// Likewise, from y_min upwards, one unit high; rows are counted upwards.
std::vector<Box> row_boxes(const ValueMap& map);

}  // namespace kov
