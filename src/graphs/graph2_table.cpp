#include "graphs/graph2_table.h"

#include <cstddef>
#include <cstdint>

#include "graphs/colour_lookup.h"
#include "numbers/floating_text.h"
#include "text/integers.h"

namespace kov {
namespace {

/// "#3fa0ff" of a pixel.
std::string hexadecimal(std::uint32_t pixel) {
  static constexpr char digits[] = "0123456789abcdef";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += digits[pixel >> static_cast<unsigned>(shift) & 0xfU];
  return text;
}

/// Calls visit(column, row, value) for every pixel with a value.
template <class Visit>
void for_each_value(const ValueMap& map, const Visit& visit) {
  for (int column = 0; column < map.grid.width(); ++column) {
    const auto pixels = map.grid.column(column);
    for (int row = 0; row < map.grid.height(); ++row) {
      const double value = pixels[static_cast<std::size_t>(row)];
      if (ValueGrid::is_value(value)) visit(column, row, value);
    }
  }
}

GraphTable map_table(const Graph2Drawing& drawing) {
  const ValueMap& map = drawing.map;
  GraphTable table{{coordinate_name(map.x.position), coordinate_name(map.y.position),
                    map_name(map, drawing.origin.divided)},
                   {}};
  for_each_value(map, [&](int column, int row, double value) {
    table.rows.push_back({static_cast<double>(*map.columns[static_cast<std::size_t>(column)]),
                          static_cast<double>(*map.rows[static_cast<std::size_t>(row)].y), value});
  });
  return table;
}

GraphTable curve_table(const Graph2Drawing& drawing) {
  const ValueMap& map = drawing.map;
  GraphTable table{{coordinate_name(map.x.position)}, {}};
  for (const StackedCurve& curve : drawing.stack->curves) table.heading.push_back(curve_label(curve.y));
  for (int column = 0; column < map.grid.width(); ++column) {
    const auto x = map.columns[static_cast<std::size_t>(column)];
    if (!x) continue;
    std::vector<double> values{static_cast<double>(*x)};
    for (const StackedCurve& curve : drawing.stack->curves) {
      const double value = map.grid.value(column, curve.row);
      values.push_back(ValueGrid::is_value(value) ? value : 0);
    }
    table.rows.push_back(std::move(values));
  }
  return table;
}

}  // namespace

GraphTable graph2_table(const Graph2Drawing& drawing) {
  return drawing.stack ? curve_table(drawing) : map_table(drawing);
}

void write_map_pixels(const Graph2Drawing& drawing,
                      const std::function<void(const std::string& line)>& write) {
  const ColourLookup colours(drawing.scale);
  for_each_value(drawing.map, [&](int column, int row, double value) {
    write(int_text(column) + "\t" + int_text(row) + "\t" + exact_text(value) + "\t" +
          hexadecimal(colours.pixel(value)) + "\n");
  });
}

}  // namespace kov
