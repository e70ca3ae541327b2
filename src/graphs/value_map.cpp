#include "graphs/value_map.h"

#include <algorithm>
#include <cmath>

#include "graphs/too_few_pixels.h"
#include "numbers/errors.h"
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

std::int32_t coordinate(const Lk& key, const MapAxis& axis) {
  return key.coo[static_cast<std::size_t>(axis.position)];
}

double value_of(const cotyp& q, MapQuantity quantity) {
  switch (quantity) {
    case MapQuantity::re:
      return to_double(q.re);
    case MapQuantity::im:
      return to_double(q.im);
    case MapQuantity::qa:
      return std::hypot(to_double(q.re), to_double(q.im));
    case MapQuantity::qq:
      return to_double(qq(q));
    case MapQuantity::cntAt:
      break;
  }
  return 1;
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
  /// Calls visit(key, quantity) for every point inside the range; false when Break was pressed.
  template <class Visit>
  bool walk(std::string_view done, const Visit& visit) {
    SumProgress progress(user_.progress, static_cast<std::int64_t>(lmap_.count()), points_per_display_, done);
    const auto end = lmap_.end();
    for (auto point = lmap_.begin(); point != end; ++point) {
      const Lk& key = point.key();
      if (box_.contains(key)) visit(key, point);
      if (!progress.advance()) return false;
    }
    return true;
  }

  bool find_extent() {
    const bool complete = walk("checked", [this](const Lk& key, const Lmap::Cursor&) {
      map_.x.include(coordinate(key, map_.x));
      map_.y.include(coordinate(key, map_.y));
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
    return walk("summed up",
                [this](const Lk& key, const Lmap::Cursor& point) { add(key, point.quantity()); });
  }

  void add(const Lk& key, const cotyp& q) {
    ++map_.point_count;
    const std::int32_t x = coordinate(key, map_.x);
    const std::int32_t y = coordinate(key, map_.y);
    const int column = map_.x.pixel(x);
    const int row = map_.y.pixel(y);
    // Coordinates differ just when their places in pixels do.
    std::optional<std::int32_t>& first_x = map_.columns[static_cast<std::size_t>(column)];
    ValueMap::Row& of_row = map_.rows[static_cast<std::size_t>(row)];
    if (!first_x) first_x = x;
    if (!of_row.y) of_row.y = y;
    if (!overlapping_ && (x != *first_x || y != *of_row.y)) return;
    of_row.take_x(x);
    const double sum = map_.grid.add(column, row, value_of(q, map_.choice.quantity));
    if (!std::isfinite(sum)) throw floating_overflow();
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
};

}  // namespace

bool ValueMap::steps_by_two() const {
  const bool odd_step = std::any_of(rows.begin(), rows.end(), [](const Row& row) { return row.odd_step; });
  return !odd_step && std::any_of(rows.begin(), rows.end(), [](const Row& row) { return row.several; });
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
