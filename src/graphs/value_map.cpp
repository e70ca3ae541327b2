#include "graphs/value_map.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "graphs/too_few_pixels.h"
#include "lattice/block_points.h"
#include "lattice/row_range.h"
#include "numbers/errors.h"
#include "numbers/vector_dispatch.h"
#include "sums/sum_progress.h"

namespace kov {
namespace {

constexpr const char* no_pixel = "No pixel";

/// "hpixcount" and the like: its name, what it is now, what it may be.
int cut(const std::string& name, int pixels, int most, Messages& messages) {
  if (pixels <= most) return pixels;
  messages.warning("Calc_v_from_lgl: " + name + "=" + int_text(pixels) + " set to max_" + name + "=" +
                   int_text(most));
  return most;
}

std::size_t position_of(const MapAxis& axis) { return static_cast<std::size_t>(axis.position); }

/// Some of the points of a block that lie inside the range: where they are, and what of them.
struct MapPoints {
  static constexpr std::size_t most = 1024;

  using Pixels = std::array<int, most>;

  std::size_t count = 0;
  std::array<std::int32_t, most> x;
  std::array<std::int32_t, most> y;
  std::array<double, most> value;
};

/// axis.pixel() of each coordinate. Distances have at most 33 bits, and are the same as doubles.
void find_pixels(const MapAxis& axis, std::span<const std::int32_t> coordinates, MapPoints::Pixels& pixels) {
  const auto min = static_cast<double>(axis.min);
  run_loop([&, min, scale = axis.pixels_per_unit]() KOV_INLINE {
    for (std::size_t i = 0; i < coordinates.size(); ++i) {
      pixels[i] = static_cast<int>((static_cast<double>(coordinates[i]) - min) * scale);
    }
  });
}

void decode_values(const Block& block, std::size_t first, MapQuantity quantity, std::span<double> out) {
  switch (quantity) {
    case MapQuantity::re:
      return block.re().decode(first, out);
    case MapQuantity::im:
      return block.im().decode(first, out);
    case MapQuantity::qa:
      return decode_magnitudes(block, first, out);
    case MapQuantity::qq:
      return decode_squares(block, first, out);
    case MapQuantity::cntAt:
      break;
  }
  std::fill(out.begin(), out.end(), 1.0);
}

/// One calculation: its parameters and the map that it fills.
class Calculation {
 public:
  Calculation(const Lmap& lmap, const KeyBox& box, const cphclass& cph, User user, ValueMap& map)
      : lmap_(lmap),
        box_(box),
        cph_(cph),
        user_(user),
        map_(map),
        points_per_display_(cph.kmi("Graph_EntryCountPerDisplay")),
        overlapping_(cph.kmi("Graph2_AvoidOverlappingSum") == 0) {}

  std::string run() {
    if (map_.x.pixels == 0 || map_.y.pixels == 0) return no_pixel;
    if (!find_extent()) return map_stopped_text;
    if (map_.x.units() < 1) return " no different x";
    if (map_.y.units() < 1) return " no different y";
    scale(map_.x, "x in Graph 2");
    scale(map_.y, "y in Graph 2");
    if (!sum_up()) return map_stopped_text;
    if (cph_.kmi("Graph2_divide_y_by_count") != 0) divide_by_count();
    return {};
  }

 private:
  /// Calls visit(points) for the points inside the range, some at a time, with their values if needed, but
  /// not for a row of which visit_row(row, inside) says that it is done; false when Break was pressed.
  template <class VisitRow, class Visit>
  bool walk(std::string_view done, bool values, const VisitRow& visit_row, const Visit& visit) {
    SumProgress progress(user_.progress, static_cast<std::int64_t>(lmap_.count()), points_per_display_, done);
    for (const Row& row : lmap_.rows()) {
      const RowRange inside(row, box_);
      if (inside.none() || visit_row(row, inside)) {
        if (!progress.advance(static_cast<std::int64_t>(row.count()))) return false;
        continue;
      }
      for (std::size_t i = 0; i < row.block_count(); ++i) {
        const Block& block = row.block(i);
        for (std::size_t first = 0; first < block.size();) {
          const auto until_check = static_cast<std::size_t>(progress.until_check());
          const std::size_t count = std::min({block.size() - first, MapPoints::most, until_check});
          read_points(row, block, inside, first, count, values);
          visit(points_);
          first += count;
          if (!progress.advance(static_cast<std::int64_t>(count))) return false;
        }
      }
    }
    return true;
  }

  void read_points(const Row& row, const Block& block, const RowRange& inside, std::size_t first,
                   std::size_t count, bool values) {
    decode_coordinates(row, block, position_of(map_.x), first, std::span(points_.x).first(count));
    decode_coordinates(row, block, position_of(map_.y), first, std::span(points_.y).first(count));
    if (values) decode_values(block, first, map_.choice.quantity, std::span(points_.value).first(count));
    points_.count = count;
    if (inside.all()) return;
    std::array<std::uint8_t, MapPoints::most> flags;
    inside.mark(block, first, std::span(flags).first(count));
    points_.count = 0;
    for (std::size_t i = 0; i < count; ++i) {
      points_.x[points_.count] = points_.x[i];
      points_.y[points_.count] = points_.y[i];
      points_.value[points_.count] = points_.value[i];
      points_.count += flags[i];
    }
  }

  void include(const Lk& key) {
    map_.x.include(key.coo[position_of(map_.x)]);
    map_.y.include(key.coo[position_of(map_.y)]);
  }

  bool find_extent() {
    const auto by_box = [this](const Row& row, const RowRange& inside) {
      if (!inside.all() || !row.box_is_exact()) return false;
      include(row.box().min);
      include(row.box().max);
      return true;
    };
    const bool complete = walk("checked", false, by_box, [this](const MapPoints& points) {
      for (std::size_t i = 0; i < points.count; ++i) {
        map_.x.include(points.x[i]);
        map_.y.include(points.y[i]);
      }
    });
    map_.x.widen();
    map_.y.widen();
    return complete;
  }

  void scale(MapAxis& axis, std::string_view name) const {
    axis.pixels_per_unit = axis.pixels / static_cast<double>(axis.units());
    const std::string_view consequence =
        overlapping_ ? "\nOverlapping summation per pixel is possible.\n" : one_sum_per_pixel;
    warn_of_too_few_pixels(name, axis.pixels_per_unit, consequence, cph_, user_.messages);
  }

  bool sum_up() {
    map_.columns.assign(static_cast<std::size_t>(map_.x.pixels), std::nullopt);
    map_.rows.assign(static_cast<std::size_t>(map_.y.pixels), {});
    map_.grid.clear(map_.x.pixels, map_.y.pixels);
    return walk(
        "summed up", true, [](const Row&, const RowRange&) { return false; },
        [this](const MapPoints& points) {
          map_.point_count += static_cast<std::int64_t>(points.count);
          add(points);
        });
  }

  void add(const MapPoints& points) {
    MapPoints::Pixels columns;
    MapPoints::Pixels rows;
    find_pixels(map_.x, std::span(points.x).first(points.count), columns);
    find_pixels(map_.y, std::span(points.y).first(points.count), rows);
    bool finite = true;
    for (std::size_t i = 0; i < points.count; ++i) {
      const std::int32_t x = points.x[i];
      const std::int32_t y = points.y[i];
      // Coordinates differ just when their places in pixels do.
      std::optional<std::int32_t>& first_x = map_.columns[static_cast<std::size_t>(columns[i])];
      ValueMap::Row& of_row = map_.rows[static_cast<std::size_t>(rows[i])];
      if (!first_x) first_x = x;
      if (!of_row.y) of_row.y = y;
      if (!overlapping_ && (x != *first_x || y != *of_row.y)) continue;
      of_row.take_x(x);
      finite &= std::isfinite(map_.grid.add(columns[i], rows[i], points.value[i]));
    }
    if (!finite) throw floating_overflow();
  }

  void divide_by_count() {
    const auto count = static_cast<double>(map_.point_count);
    for (int column = 0; column < map_.grid.width(); ++column) {
      for (double& value : map_.grid.column(column)) value /= count;
    }
  }

  const Lmap& lmap_;
  const KeyBox& box_;
  const cphclass& cph_;
  User user_;
  ValueMap& map_;
  std::int64_t points_per_display_;
  bool overlapping_;
  MapPoints points_{};
};

}  // namespace

bool ValueMap::steps_by_two() const {
  const bool odd_step = std::any_of(rows.begin(), rows.end(), [](const Row& row) { return row.odd_step(); });
  return !odd_step && std::any_of(rows.begin(), rows.end(), [](const Row& row) { return row.several(); });
}

std::vector<double> ValueMap::values() const {
  std::vector<double> values;
  values.reserve(static_cast<std::size_t>(grid.width()) * static_cast<std::size_t>(grid.height()));
  for (int column = 0; column < grid.width(); ++column) {
    if (!columns[static_cast<std::size_t>(column)]) continue;
    const auto pixels = grid.column(column);
    std::copy_if(pixels.begin(), pixels.end(), std::back_inserter(values), ValueGrid::is_value);
  }
  return values;
}

std::string Calc_v_from_lgl(const Lmap& lmap, const RangeTable& table, MapChoice choice, ImageSize image,
                            const cphclass& cph, User user, ValueMap& map) {
  map.choice = choice;
  map.x = {.position = table.icoo_along_x_in_g[choice.range]};
  map.y = {.position = table.icoo_along_y_in_g2[choice.range]};
  map.x.pixels = cut("hpixcount", image.width, max_hpixcount, user.messages);
  map.y.pixels = cut("vpixcount", image.height, max_vpixcount, user.messages);
  map.point_count = 0;
  return Calculation(lmap, table.range[choice.range], cph, user, map).run();
}

}  // namespace kov
