#include "graphs/graph1_view.h"

#include <algorithm>

#include "graphs/curve_names.h"
#include "graphs/range_title.h"
#include "text/integers.h"

namespace kov {
namespace {

std::size_t range_of(std::size_t index) { return index / g1_quantity_count; }
std::size_t quantity_of(std::size_t index) { return index % g1_quantity_count; }

}  // namespace

std::vector<std::size_t> G1View::curves() const {
  std::vector<std::size_t> indices;
  for (std::size_t index = 0; index < checked.size(); ++index) {
    if (checked[index]) indices.push_back(index);
  }
  return indices;
}

bool G1View::draws_range(std::size_t range) const {
  const std::vector<std::size_t> drawn = curves();
  return std::any_of(drawn.begin(), drawn.end(), [&](std::size_t index) { return range_of(index) == range; });
}

std::string G1View::title() const {
  std::string title = origin.file_name.empty() ? "" : origin.file_name + ", ";
  title += "range table " + int_text(origin.table_index);
  for (std::size_t range = 0; range < g1_range_count; ++range) {
    if (!draws_range(range)) continue;
    title += ", SR" + int_text(static_cast<std::int64_t>(range) + 1) + ": " +
             range_title(origin.table.range[range]);
  }
  // The axes of an oplot do not say it.
  if (draws_oplot()) title += ", along " + x_name();
  return title;
}

std::string G1View::x_name() const {
  const auto& [x1, x2] = origin.table.icoo_along_x_in_g;
  if (!draws_range(0)) return coordinate_name(x2);
  if (!draws_range(1) || x1 == x2) return coordinate_name(x1);
  return "SR1: " + coordinate_name(x1) + ", SR2: " + coordinate_name(x2);
}

std::string G1View::y_name() const {
  const std::vector<std::size_t> drawn = curves();
  if (drawn.size() == 1) return name_of(drawn.front());
  const bool alike = std::all_of(drawn.begin(), drawn.end(), [&](std::size_t index) {
    return quantity_of(index) == quantity_of(drawn.front());
  });
  return alike && !drawn.empty() ? quantity_name(quantity_of(drawn.front())) : "sums";
}

std::string G1View::name_of(std::size_t index) const { return curve_name(index, origin.divmode); }

}  // namespace kov
