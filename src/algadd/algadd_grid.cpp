#include "algadd/algadd_grid.h"

#include <cstddef>
#include <string_view>

#include "interact/grid_keys.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {
namespace {

constexpr std::string_view characters_of_p = "0123456789+-/.EI";
constexpr std::string_view characters_of_integers = "0123456789+-";

}  // namespace

AlgaddGrid::AlgaddGrid(Algadd& algadd, cphclass& cph, Messages& messages)
    : algadd_(algadd), cph_(cph), messages_(messages) {}

int AlgaddGrid::default_column_width() const { return cph_.kmi("SlAlgadd_DefaultColWidth"); }

std::string AlgaddGrid::text(GridCell cell) const {
  if (cell == GridCell{0, 0}) return int_text(algadd_.aanr()) + "=aanr";
  if (!editable(cell)) return heading(cell);
  AlgaddEntry entry = entry_at(cell.column);
  return cell.row == p_row ? to_text(entry.p) : int_text(integer_in(entry, cell.row));
}

std::string AlgaddGrid::heading(GridCell cell) {
  if (cell.row == 0) return int_text(cell.column - 1);
  if (cell.row == p_row) return "p";
  if (cell.row == ldest_row) return "ldest";
  return coordinate_name(listed_positions[static_cast<std::size_t>(cell.row - first_key_row)]);
}

std::int32_t& AlgaddGrid::integer_in(AlgaddEntry& entry, int row) {
  if (row == ldest_row) return entry.ldest;
  const int position = listed_positions[static_cast<std::size_t>(row - first_key_row)];
  return entry.offset.coo[static_cast<std::size_t>(position)];
}

std::string AlgaddGrid::hint(GridCell cell) const {
  if (cell.column == 0)
    return "Q: previous table   W: next table\nP: + 1   M: - 1\nright mouse button: table menu";
  const AlgaddEntry& entry = entry_at(cell.column);
  const std::string name = "entry " + int_text(cell.column - 1);
  if (entry.empty()) return name + ": empty";
  std::string rule = name + ": l=" + int_text(entry.source_l()) + " -> l=" + int_text(entry.ldest) +
                     "\np=" + to_text(entry.p) + "\n";
  rule += offset_name(0) + "=" + int_text(entry.offset.n());
  for (int position = 1; position < l_position; ++position) {
    const std::int32_t offset = entry.offset.coo[static_cast<std::size_t>(position)];
    if (offset != 0) rule += "  " + offset_name(position) + "=" + int_text(offset);
  }
  return rule;
}

void AlgaddGrid::show() {
  forget_edit();
  changed();
}

void AlgaddGrid::refill() {
  show();
  if (show_menu_) show_menu_(false);
}

bool AlgaddGrid::key(const GridKey& key) {
  const bool in_table = editable(selected());
  const std::string_view admitted =
      !in_table ? "" : (selected().row == p_row ? characters_of_p : characters_of_integers);
  if (passes_to_editor(key, admitted)) return false;
  const char letter = upper_character(key);
  const int delta = step_of(key);
  if (key.name == GridKey::Name::enter) {
    leave();
  } else if (letter == 'Q') {
    turn_to_table(algadd_.aanr() == 0 ? Algadd_TableCount - 1 : algadd_.aanr() - 1);
  } else if (letter == 'W') {
    turn_to_table((algadd_.aanr() + 1) % Algadd_TableCount);
  } else if (in_table && delta != 0) {
    step_selected(delta);
  } else if (key.name != GridKey::Name::escape) {
    messages_.beep();
  }
  return true;
}

void AlgaddGrid::turn_to_table(int table) {
  leave();
  algadd_.set_aanr(table);
  cph_.setkmi_1("Algadd_DefaultTableIndex", table);
  refill();
  if (tables_changed_) tables_changed_();
}

void AlgaddGrid::step_selected(int delta) {
  const GridCell cell = selected();
  const std::string typed = editor_text();
  end_edit([&] {
    if (!store_text(cell, typed)) return;
    AlgaddEntry entry = entry_at(cell.column);
    if (!add(entry, cell.row, delta)) return messages_.beep();
    store(cell.column, entry);
  });
  changed();
}

bool AlgaddGrid::add(AlgaddEntry& entry, int row, int delta) {
  if (row == p_row) {
    // The largest double plus 1 is itself: no p leaves the finite numbers here.
    entry.p += delta;
    return true;
  }
  std::int32_t& value = integer_in(entry, row);
  if (value == (delta > 0 ? highest_int : lowest_int)) return false;
  value += delta;
  return true;
}

bool AlgaddGrid::take_value(AlgaddEntry& entry, int row, std::string_view typed) {
  if (row == p_row) return from_text(typed, entry.p);
  const auto value = parse_int32(trimmed(typed));
  if (value) integer_in(entry, row) = *value;
  return value.has_value();
}

void AlgaddGrid::store(int column, const AlgaddEntry& entry) {
  algadd_.set_entry(algadd_.aanr(), column - 1, entry);
  if (tables_changed_) tables_changed_();
}

bool AlgaddGrid::store_text(GridCell cell, const std::string& typed) {
  if (typed == text(cell)) return true;
  AlgaddEntry entry = entry_at(cell.column);
  if (!take_value(entry, cell.row, typed)) {
    messages_.beep();
    return false;
  }
  store(cell.column, entry);
  return true;
}

void AlgaddGrid::take_edit(GridCell cell, const std::string& text) { store_text(cell, text); }

void AlgaddGrid::selection_moved() {
  if (selected().column >= 1 && entry_selected_) entry_selected_(selected().column - 1);
}

void AlgaddGrid::clicked(GridClick click, GridCell) {
  if (click == GridClick::right && show_menu_) show_menu_(true);
}

}  // namespace kov
