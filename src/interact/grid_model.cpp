#include "interact/grid_model.h"

#include <utility>

namespace kov {

bool GridModel::contains(GridCell cell) const {
  return cell.column >= 0 && cell.column < column_count() && cell.row >= 0 && cell.row < row_count();
}

void GridModel::select(GridCell cell) {
  if (!contains(cell) || cell == selected_) return;
  leave();
  move_to(cell);
}

void GridModel::move_to(GridCell cell) {
  if (!contains(cell)) return;
  edited_ = false;
  selected_ = cell;
  selection_moved();
  changed();
}

void GridModel::edit(std::string text) {
  if (!editable(selected_)) return;
  edited_text_ = std::move(text);
  edited_ = true;
}

void GridModel::mark_edited() {
  if (!edited_) edit(editor_text());
}

void GridModel::leave() {
  if (!edited_) return;
  edited_ = false;
  take_edit(selected_, edited_text_);
  changed();
}

void GridModel::press(const GridKey& pressed) {
  if (key(pressed)) return;
  switch (pressed.name) {
    case GridKey::Name::character:
      edit((edited_ ? edited_text_ : std::string()) + pressed.character);
      break;
    case GridKey::Name::backspace:
      edit(editor_text().substr(0, editor_text().empty() ? 0 : editor_text().size() - 1));
      break;
    case GridKey::Name::tab:
      move_by_tab();
      break;
    case GridKey::Name::up:
      if (selected_.row > fixed_rows()) select({selected_.column, selected_.row - 1});
      break;
    case GridKey::Name::down:
      select({selected_.column, selected_.row + 1});
      break;
    default:
      break;
  }
}

void GridModel::move_by_tab() {
  if (selected_.column + 1 < column_count()) {
    select({selected_.column + 1, selected_.row});
  } else {
    select({fixed_columns(), selected_.row + 1});
  }
}

void GridModel::click(GridClick click, GridCell cell) {
  select(cell);
  clicked(click, cell);
}

}  // namespace kov
