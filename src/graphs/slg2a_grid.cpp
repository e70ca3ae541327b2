#include "graphs/slg2a_grid.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "interact/integer_question.h"
#include "text/integers.h"

namespace kov {
namespace {

enum RowOfGrid { number_row, y_row, state_row };

constexpr std::array<const char*, 3> headings = {"curve", "y", "plot"};
constexpr std::array<const char*, 3> state_names = {"-", "blue", "red"};

}  // namespace

std::string Slg2aGrid::text(GridCell cell) const {
  if (cell.column == 0) return headings[static_cast<std::size_t>(cell.row)];
  // The selected cell stays where it was when there are fewer curves.
  if (cell.column > curves()) return {};
  switch (cell.row) {
    case number_row:
      return int_text(cell.column);
    case y_row: {
      const auto y = y_of_curve_ ? y_of_curve_(cell.column - 1) : std::nullopt;
      return y ? int_text(*y) : std::string();
    }
    default:
      return state_names[static_cast<std::size_t>(states_[static_cast<std::size_t>(cell.column - 1)])];
  }
}

bool Slg2aGrid::key(const GridKey& key) {
  if (key.name != GridKey::Name::character) return false;
  const int column = selected().column;
  if (key.character < '0' || key.character > '2' || column < 1 || column > curves()) {
    user_.messages.beep();
    return true;
  }
  state_of_column(column) = static_cast<std::int8_t>(key.character - '0');
  states_changed();
  return true;
}

void Slg2aGrid::clicked(GridClick click, GridCell cell) {
  if (click == GridClick::right) return choose_all();
  if (cell.column < 1 || cell.column > curves()) return;
  std::int8_t& state = state_of_column(cell.column);
  if (click == GridClick::double_click) {
    state = curve_red;
  } else {
    state = state == curve_blue ? curve_unselected : curve_blue;
  }
  states_changed();
}

void Slg2aGrid::choose_all() {
  const auto state =
      ask_integer(user_.questions, "select or unselect all",
                  "Choose selection mode i:\ni=0 will unselect all\ni=1 will plot all in blue\n"
                  "i=2 will plot all in red\n\n",
                  1, {curve_unselected, curve_red});
  if (!state) return;
  std::fill_n(states_.begin(), curves(), static_cast<std::int8_t>(*state));
  states_changed();
}

void Slg2aGrid::states_changed() const {
  if (states_changed_) states_changed_();
  changed();
}

}  // namespace kov
