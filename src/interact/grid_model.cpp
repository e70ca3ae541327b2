#include "interact/grid_model.h"

#include <utility>

namespace kov {

bool GridModel::contains(GridCell cell) const {
  return cell.column >= 0 && cell.column < column_count() && cell.row >= 0 && cell.row < row_count();
}

void GridModel::select(GridCell cell) {
  if (!contains(cell) || cell == selected_) return;
  leave();
  if (!contains(cell)) return;
  selected_ = cell;
  selection_moved();
  changed();
}

void GridModel::move_to(GridCell cell) {
  if (!contains(cell)) return;
  edited_ = false;
  selected_ = cell;
  changed();
}

void GridModel::edit(std::string text) {
  if (!editable(selected_)) return;
  edited_text_ = std::move(text);
  edited_ = true;
}

void GridModel::leave() {
  if (!edited_) return;
  end_edit([this] { take_edit(selected_, edited_text_); });
  changed();
}

void GridModel::end_edit(const std::function<void()>& store) {
  const bool was_edited = edited_;
  const GridCell cell = selected_;
  edited_ = false;
  try {
    store();
  } catch (...) {
    edited_ = was_edited && cell == selected_;
    throw;
  }
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
      select_next(true);
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

bool GridModel::select_next(bool forward) {
  GridCell next = selected_;
  next.column += forward ? 1 : -1;
  if (next.column >= column_count()) next = {fixed_columns(), selected_.row + 1};
  if (next.column < fixed_columns()) next = {column_count() - 1, selected_.row - 1};
  if (!contains(next) || (!forward && next.row < fixed_rows())) return false;
  select(next);
  return true;
}

void GridModel::click(GridClick click, GridCell cell) {
  select(cell);
  clicked(click, cell);
}

}  // namespace kov
