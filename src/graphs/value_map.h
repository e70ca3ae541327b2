#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "config/cphclass.h"
#include "graphs/value_grid.h"
#include "interact/user.h"
#include "lattice/lmap.h"
#include "sums/range_table.h"
#include "text/integers.h"

namespace kov {

/// What a colour map shows of the points that meet in a pixel, in the order of the radio buttons.
enum class MapQuantity { re, im, qa, qq, cntAt };

/// Which of the two ranges, and what of its points.
struct MapChoice {
  std::size_t range = 0;
  MapQuantity quantity = MapQuantity::re;

  static constexpr int count = 10;
  /// By the radio button, 0 ... 9: the five quantities of Range 1, then those of Range 2.
  static constexpr MapChoice of_radio(int index) {
    return {static_cast<std::size_t>(index / 5), static_cast<MapQuantity>(index % 5)};
  }
};

/// One axis of a map: the interval of the coordinate at a key position, and how it falls into pixels.
struct MapAxis {
  int position = 0;
  /// Empty before the first point is included.
  std::int64_t min = highest_int;
  std::int64_t max = lowest_int;
  int pixels = 0;
  double pixels_per_unit = 0;

  void include(std::int32_t value) {
    if (value < min) min = value;
    if (value > max) max = value;
  }
  /// One unit on each side.
  void widen() {
    --min;
    ++max;
  }
  std::int64_t units() const { return max - min; }
  /// The pixel of a coordinate: integer part of its distance from min in pixels.
  int pixel(std::int64_t value) const {
    return static_cast<int>(static_cast<double>(value - min) * pixels_per_unit);
  }
};

/// Width and height of an image in pixels.
struct ImageSize {
  int width = 0;
  int height = 0;
  friend bool operator==(const ImageSize&, const ImageSize&) = default;
};

/// What the points inside a range sum up to, pixel by pixel.
struct ValueMap {
  /// Throws std::bad_alloc.
  ValueMap() = default;

  /// What is known of a row of pixels besides its values.
  struct Row {
    /// The first y that landed here; none without points.
    std::optional<std::int32_t> y;
    /// The first x that was summed here.
    std::optional<std::int32_t> x;
    /// The bits in which some x that was summed here differs from the first.
    std::uint32_t differences = 0;

    void take_x(std::int32_t another) {
      if (!x) x = another;
      differences |= static_cast<std::uint32_t>(another) ^ static_cast<std::uint32_t>(*x);
    }
    /// More than one x was summed here.
    bool several() const { return differences != 0; }
    /// One of them lies at an odd distance from the first.
    bool odd_step() const { return (differences & 1U) != 0; }
  };

  MapChoice choice;
  MapAxis x;
  MapAxis y;
  std::int64_t point_count = 0;
  ValueGrid grid;
  /// For every column of pixels the first x that landed in it.
  std::vector<std::optional<std::int32_t>> columns;
  std::vector<Row> rows;

  /// Whether along x, in every row, only every second coordinate has points, and some row shows it.
  bool steps_by_two() const;
  /// The values of all pixels that have one.
  std::vector<double> values() const;
};

/// What is said where a map is not drawn since Break was pressed.
inline constexpr const char* map_stopped_text = " Graph2 was stopped by Break ";

/// Sums the points inside one range of the table up for an image of this size, as Graph_..., Graph2_... say,
/// in two passes over the store with progress. Reports an image beyond 3000 x 2000, which is cut, and too
/// few pixels. Gives the text to be shown when there is nothing to draw: "No pixel", " no different x",
/// " no different y", or that Break was pressed; empty when the map was filled. Throws floating_overflow
/// when a sum is not finite.
std::string Calc_v_from_lgl(const Lmap& lmap, const RangeTable& table, MapChoice choice, ImageSize image,
                            const cphclass& cph, User user, ValueMap& map);

}  // namespace kov
