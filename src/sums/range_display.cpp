#include "sums/range_display.h"

#include <array>

#include "sums/bound_text.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr std::array<const char*, Slds1_columns> range_headings = {": R->", "Min 1", "Max 1", "Min 2",
                                                                   "Max 2"};

// The room that a mark of Range 1 takes, so that the marks of Range 2 stand below one another.
constexpr const char* mark_room = "      ";

std::string marks(const RangeTable& table, int position, std::size_t range, char sign) {
  const std::string number(1, range == 0 ? '1' : '2');
  std::string text;
  if (table.icoo_along_x_in_g[range] == position) text += sign + ("x" + number);
  if (table.icoo_along_y_in_g2[range] == position) text += sign + ("y" + number);
  return text;
}

}  // namespace

std::string axis_label(const RangeTable& table, int position) {
  const std::string first = marks(table, position, 0, '=');
  std::string second = marks(table, position, 1, first.empty() ? '=' : ' ');
  if (!first.empty() && !second.empty()) second.insert(0, mark_room);
  return coordinate_name(position) + first + second;
}

int Slds1_position(int row) { return listed_positions[static_cast<std::size_t>(row - 1)]; }

std::optional<BoundPlace> Slds1_bound(int column, int row) {
  if (column < 1 || column >= Slds1_columns || row < 1 || row >= Slds1_rows) return std::nullopt;
  return BoundPlace{.range = static_cast<std::size_t>((column - 1) / 2),
                    .bound = column % 2 == 1 ? Bound::min : Bound::max,
                    .position = static_cast<std::size_t>(Slds1_position(row))};
}

int Slds1_column(const BoundPlace& place) {
  return static_cast<int>(place.range) * 2 + (place.bound == Bound::min ? 1 : 2);
}

std::string Slds1_text(const RangeTables& tables, int column, int row) {
  if (row == 0) {
    const std::string heading = range_headings[static_cast<std::size_t>(column)];
    return column == 0 ? int_text(tables.current_index()) + heading : heading;
  }
  const RangeTable& table = tables.current_table();
  const std::optional<BoundPlace> place = Slds1_bound(column, row);
  return place ? bound_text(bound_at(table, *place)) : axis_label(table, Slds1_position(row));
}

}  // namespace kov
