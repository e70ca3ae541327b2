#include "lattice/sldim_grid.h"

#include <cstddef>
#include <string_view>

#include "interact/grid_keys.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {
namespace {

constexpr std::string_view offset_characters = "1234567890+-\t\b";

std::optional<std::int32_t> offset_from_text(std::string_view text) { return parse_int32(trimmed(text)); }

}  // namespace

SldimGrid::SldimGrid(SliceView& view, Messages& messages) : view_(view), messages_(messages) {
  move_to({offset_column, 0});
}

int SldimGrid::position_of(GridCell cell) { return listed_positions[static_cast<std::size_t>(cell.row)]; }

void SldimGrid::show() {
  forget_edit();
  changed();
}

void SldimGrid::redisplay() {
  show();
  if (slice_changed_) slice_changed_();
}

std::string SldimGrid::text(GridCell cell) const {
  const int position = position_of(cell);
  if (cell.column == offset_column) {
    return int_text(view_.offset().coo[static_cast<std::size_t>(position)]);
  }
  std::string name = coordinate_name(position);
  if (position == view_.xdim()) name += "=x";
  if (position == view_.ydim()) name += "=-y";
  return name;
}

std::string SldimGrid::hint(GridCell cell) const {
  const std::string name = coordinate_name(position_of(cell));
  return "offset of " + name + " in the slice's first cell\nP: + 1   M: - 1   X: " + name +
         " along x   Y: " + name + " along y";
}

bool SldimGrid::key(const GridKey& key) {
  if (passes_to_editor(key, offset_characters)) return false;
  const int delta = step_of(key);
  const char letter = upper_character(key);
  if (letter == 'X') {
    view_.set_xdim(position_of(selected()));
  } else if (letter == 'Y') {
    view_.set_ydim(position_of(selected()));
  } else if (key.name != GridKey::Name::enter && (delta == 0 || !editable(selected()))) {
    messages_.beep();
  }
  if (editable(selected())) store_selected(delta);
  redisplay();
  return true;
}

void SldimGrid::take_edit(GridCell cell, const std::string& text) {
  if (const auto offset = offset_from_text(text)) {
    view_.set_offset(position_of(cell), *offset);
  } else {
    messages_.beep();
  }
  redisplay();
}

std::optional<std::int32_t> SldimGrid::selected_offset(int delta) const {
  const auto offset = offset_from_text(editor_text());
  if (!offset) return std::nullopt;
  const std::int64_t sum = std::int64_t{*offset} + delta;
  if (sum < lowest_int || sum > highest_int) return std::nullopt;
  return static_cast<std::int32_t>(sum);
}

void SldimGrid::store_selected(int delta) {
  if (const auto offset = selected_offset(delta)) {
    view_.set_offset(position_of(selected()), *offset);
  } else {
    messages_.beep();
  }
}

}  // namespace kov
