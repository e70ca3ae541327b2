#include "lattice/slq_grid.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "interact/grid_keys.h"
#include "text/integers.h"

namespace kov {
namespace {

// A hand-edited configuration may hold other values.
constexpr int fewest_columns_or_rows = 2;
constexpr int most_columns = 1000;
constexpr int most_rows = 2000;

constexpr std::string_view quantity_characters = "1234567890/I+-E.\t\b";

std::int32_t coordinate(const Lk& key, int position) { return key.coo[static_cast<std::size_t>(position)]; }

}  // namespace

SlqGrid::SlqGrid(const SliceView& view, Lmap& lmap, const cphclass& cph, Messages& messages)
    : view_(view), lmap_(lmap), cph_(cph), messages_(messages) {
  show();
}

void SlqGrid::show() {
  column_count_ = std::clamp(cph_.kmi("Slq_ColCount"), fewest_columns_or_rows, most_columns);
  row_count_ = std::clamp(cph_.kmi("Slq_RowCount"), fewest_columns_or_rows, most_rows);
  default_column_width_ = cph_.kmi("Slq_DefaultColWidth");
  const GridCell inside{std::min(selected().column, column_count_ - 1),
                        std::min(selected().row, row_count_ - 1)};
  move_to(inside);
}

void SlqGrid::redisplay() {
  show();
  if (lattice_changed_) lattice_changed_();
}

Lk SlqGrid::key_at(GridCell cell) const noexcept {
  Lk key = view_.offset();
  const auto move = [&key](int position, int distance) {
    std::int32_t& value = key.coo[static_cast<std::size_t>(position)];
    value = wrapping_add(value, distance);
  };
  move(view_.xdim(), cell.column - 1);
  move(view_.ydim(), cell.row - 1);
  return key;
}

std::string SlqGrid::text(GridCell cell) const {
  return editable(cell) ? to_text(lmap_.get(key_at(cell))) : heading(cell);
}

std::string SlqGrid::heading(GridCell cell) const {
  if (cell == GridCell{0, 0}) {
    return "-y=" + coordinate_name(view_.ydim()) + "  x=" + coordinate_name(view_.xdim());
  }
  const bool above = cell.row == 0;
  const int distance = (above ? cell.column : cell.row) - 1;
  return int_text(wrapping_add(coordinate(view_.offset(), above ? view_.xdim() : view_.ydim()), distance));
}

std::string SlqGrid::hint(GridCell cell) const {
  if (!editable(cell)) return {};
  const Lk key = key_at(cell);
  std::string text;
  for (const int position : listed_positions) {
    const bool always =
        position == l_position || position == 0 || position == view_.xdim() || position == view_.ydim();
    if (!always && coordinate(key, position) == 0) continue;
    if (!text.empty()) text += "  ";
    text += coordinate_name(position) + "=" + int_text(coordinate(key, position));
  }
  return text;
}

bool SlqGrid::key(const GridKey& key) {
  if (passes_to_editor(key, quantity_characters)) return false;
  const int delta = step_of(key);
  const bool in_slice = editable(selected());
  if (key.name != GridKey::Name::enter && (delta == 0 || !in_slice)) messages_.beep();
  if (in_slice) store_selected(delta);
  return true;
}

void SlqGrid::take_edit(GridCell cell, const std::string& text) {
  if (const auto quantity = typed_quantity(cell, text)) {
    store(cell, *quantity);
  } else {
    messages_.beep();
  }
}

// A text that is still, or again, what the cell shows is no other quantity: the stored one may have more
// digits than its text.
std::optional<cotyp> SlqGrid::typed_quantity(GridCell cell, const std::string& text) const {
  const cotyp stored = lmap_.get(key_at(cell));
  if (text == to_text(stored)) return stored;
  cotyp typed;
  if (!from_text(text, typed)) return std::nullopt;
  return typed;
}

void SlqGrid::store_selected(std::int32_t delta) {
  auto quantity = typed_quantity(selected(), editor_text());
  if (!quantity) {
    messages_.beep();
    return;
  }
  quantity->re += delta;
  end_edit([&] { store(selected(), *quantity); });
  changed();
}

void SlqGrid::store(GridCell cell, const cotyp& quantity) {
  lmap_.set(key_at(cell), quantity);
  if (lattice_changed_) lattice_changed_();
}

void SlqGrid::selection_moved() {
  if (lattice_changed_) lattice_changed_();
}

}  // namespace kov
