#include "lattice/list_grid.h"

#include <algorithm>
#include <cstddef>

#include "interact/integer_question.h"

namespace kov {
namespace {

constexpr int number_column = 0;
constexpr int quantity_column = 1;
constexpr int first_key_column = 2;

int listed_position(int column) {
  return listed_positions[static_cast<std::size_t>(column - first_key_column)];
}

std::string heading(int column) {
  if (column == number_column) return "nr";
  if (column == quantity_column) return "quantity";
  return coordinate_name(listed_position(column));
}

Lk low_template(std::int32_t n) {
  Lk key = Lk::filled(lowest_int);
  key.coo[0] = n;
  return key;
}

constexpr int number_width = 72;
constexpr int quantity_width = 132;

}  // namespace

SllistGrid::SllistGrid(const Lmap& lmap, Questions& questions) : lmap_(lmap), questions_(questions) {
  build(Recount::yes);
}

int SllistGrid::column_width(int column) const {
  if (column == 0) return number_width;
  return column == 1 ? quantity_width : default_column_width();
}

std::string SllistGrid::text(GridCell cell) const {
  if (cell.row == 0) return heading(cell.column);
  const auto row = static_cast<std::size_t>(cell.row) - 1;
  if (row >= points_.size()) return {};
  const Point& point = points_[row];
  if (cell.column == number_column) return int_text(running_number_ + cell.row - 1);
  if (cell.column == quantity_column) return to_text(point.quantity);
  return int_text(point.key.coo[static_cast<std::size_t>(listed_position(cell.column))]);
}

void SllistGrid::show() { build(Recount::yes); }

void SllistGrid::set_visible_rows(int data_rows) {
  data_rows_ = std::max(data_rows, 1);
  if (selected().row > data_rows_) move_to({selected().column, data_rows_});
  build(Recount::no);
}

bool SllistGrid::key(const GridKey& key) {
  switch (key.name) {
    case GridKey::Name::up:
      scroll(-1);
      return true;
    case GridKey::Name::down:
      scroll(1);
      return true;
    case GridKey::Name::page_up:
      scroll(-(data_rows_ - 1));
      return true;
    case GridKey::Name::page_down:
      scroll(data_rows_ - 1);
      return true;
    case GridKey::Name::first_page:
      list_from(low_template(lowest_int));
      return true;
    case GridKey::Name::last_page:
      list_from(Lk::filled(highest_int));
      return true;
    default:
      return false;
  }
}

void SllistGrid::clicked(GridClick click, GridCell) {
  if (click == GridClick::right) ask_list_start();
}

void SllistGrid::ask_list_start() {
  const std::int32_t listed_n = points_.empty() ? 0 : points_.front().key.n();
  const auto n = ask_integer(questions_, "New list start",
                             "To display lattice listing\nbeginning with n_start = a", listed_n, {}, 'a');
  if (n) list_from(low_template(*n));
}

void SllistGrid::list_from(const Lk& start_key) {
  start_key_ = start_key;
  build(Recount::yes);
}

void SllistGrid::build(Recount recount) {
  Lmap::Cursor start = lmap_.lower_bound(start_key_);
  if (recount == Recount::yes) running_number_ = 1 + static_cast<std::int64_t>(lmap_.count_before(start));
  fill_page(start);
  take_points(start);
  changed();
}

void SllistGrid::scroll(int points) {
  Lmap::Cursor start = lmap_.lower_bound(start_key_);
  for (; points > 0 && start != lmap_.end(); --points, ++running_number_) ++start;
  for (; points < 0 && start != lmap_.begin(); ++points, --running_number_) --start;
  fill_page(start);
  take_points(start);
  changed();
}

void SllistGrid::fill_page(Lmap::Cursor& start) {
  int listed = 0;
  for (Lmap::Cursor point = start; listed < data_rows_ && point != lmap_.end(); ++point) ++listed;
  for (; listed < data_rows_ && start != lmap_.begin(); ++listed, --running_number_) --start;
  if (start == lmap_.begin()) running_number_ = 1;
}

void SllistGrid::take_points(Lmap::Cursor start) {
  points_.clear();
  for (int row = 0; row < data_rows_ && start != lmap_.end(); ++row, ++start) {
    points_.push_back({start.key(), start.quantity()});
  }
  if (!points_.empty()) start_key_ = points_.front().key;
}

}  // namespace kov
