#include "sums/range_grid.h"

#include <string_view>

#include "interact/grid_keys.h"
#include "sums/range_menu.h"

namespace kov {
namespace {

constexpr std::string_view typed_characters = "0123456789+-";
constexpr std::string_view letters = "ABCDXYPMQW";

// A name with the axis marks of both ranges, and a bound.
constexpr int name_width = 140;
constexpr int bound_width = 84;

}  // namespace

int RangeGrid::default_column_width() const { return bound_width; }

int RangeGrid::column_width(int column) const { return column == 0 ? name_width : bound_width; }

bool RangeGrid::key(const GridKey& pressed) {
  if (passes_to_editor(pressed, typed_characters)) return false;
  if (pressed.name == GridKey::Name::enter) {
    leave();
    page_.sum_up(user_);
  } else if (pressed.name == GridKey::Name::escape) {
    forget_edit();
    user_.messages.beep();
  } else {
    letter(upper_character(pressed));
  }
  changed();
  return true;
}

void RangeGrid::letter(char letter) {
  if (letters.find(letter) == std::string_view::npos) return user_.messages.beep();
  refused_ = false;
  leave();
  if (refused_ && step_of(GridKey::of(letter)) != 0) return;
  if (change_table(letter)) return page_.range_changed(user_);
  user_.messages.beep();
}

bool RangeGrid::change_table(char letter) {
  return choose_table(letter) || change_bound(letter) || change_axes(letter);
}

bool RangeGrid::choose_table(char letter) {
  if (letter == 'Q') {
    choose_previous_range_table(tables_, cph_);
  } else if (letter == 'W') {
    choose_next_range_table(tables_, cph_);
  } else {
    return false;
  }
  return true;
}

bool RangeGrid::change_bound(char letter) {
  const int step = step_of(GridKey::of(letter));
  if (step == 0) return false;
  const auto place = Slds1_bound(selected().column, selected().row);
  if (!place) return false;
  RangeTable& table = tables_.current_table();
  follow(step > 0 ? increase_bound(table, *place) : decrease_bound(table, *place));
  return true;
}

bool RangeGrid::change_axes(char letter) {
  if (selected().row < fixed_rows()) return false;
  RangeTable& table = tables_.current_table();
  const int position = Slds1_position(selected().row);
  switch (letter) {
    case 'A':
      set_axis(table, 0, Axis::x, position);
      return true;
    case 'B':
      set_axis(table, 1, Axis::x, position);
      return true;
    case 'C':
      set_axis(table, 0, Axis::y, position);
      return true;
    case 'D':
      set_axis(table, 1, Axis::y, position);
      return true;
    case 'X':
      set_axis_of_both(table, Axis::x, position);
      return true;
    case 'Y':
      set_axis_of_both(table, Axis::y, position);
      return true;
    default:
      return false;
  }
}

void RangeGrid::take_edit(GridCell cell, const std::string& edited) {
  const auto place = Slds1_bound(cell.column, cell.row);
  if (!place) return;
  const BoundEdit edit = type_bound(tables_.current_table(), *place, std::string_view(edited));
  refused_ = !edit.stored;
  follow(edit);
}

void RangeGrid::follow(const BoundEdit& edit) {
  if (edit.beep) user_.messages.beep();
  const GridCell cell{Slds1_column(edit.cursor), selected().row};
  if (cell != selected()) move_to(cell);
}

void RangeGrid::selection_moved() { page_.range_changed(user_); }

void RangeGrid::clicked(GridClick click, GridCell) {
  if (click == GridClick::right) page_.open_menu();
  if (click != GridClick::double_click) return;
  leave();
  page_.sum_up(user_);
}

}  // namespace kov
