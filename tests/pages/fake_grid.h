#pragma once

#include <functional>
#include <map>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "interact/grid_model.h"
#include "text/integers.h"

namespace kov {

/// A grid of integers, COLUMN * 100 + ROW where none was typed, that notes what reaches it. Digits and
/// Backspace are the editor's; "P" adds one, "G" goes to the last cell; other characters are swallowed.
/// Column 4 is read-only. A typed "99" is refused. Memory runs out at its stores and texts where a test says
/// so.
class FakeGrid final : public GridModel {
 public:
  int columns = 6;
  int rows = 8;
  int heading_rows = 1;
  bool shows_editor = false;
  int width = 50;
  std::vector<std::string> events;
  mutable std::vector<GridCell> asked;
  std::map<std::pair<int, int>, std::string> typed;
  bool takes_enter = false;
  std::function<void()> during_key;
  bool fails_to_store = false;
  /// So many of the next texts.
  mutable int failing_texts = 0;

  int column_count() const override { return columns; }
  int row_count() const override { return rows; }
  int fixed_rows() const override { return heading_rows; }
  bool always_shows_editor() const override { return shows_editor; }
  bool editable(GridCell cell) const override { return cell.column != 4; }
  int default_column_width() const override { return width; }
  int column_width(int column) const override {
    return column == 5 && 0 < width && width < 1000 ? 2 * width : width;
  }

  std::string text(GridCell cell) const override {
    asked.push_back(cell);
    if (failing_texts > 0 && failing_texts-- > 0) throw std::bad_alloc();
    if (cell.column == 0 && cell.row == 0 && heading_rows > 0) return "corner";
    if (cell.row == 0 && heading_rows > 0) return "c" + int_text(cell.column);
    if (cell.column == 0) return int_text(cell.row);
    const auto place = typed.find({cell.column, cell.row});
    return place == typed.end() ? int_text(cell.column * 100 + cell.row) : place->second;
  }

  bool key(const GridKey& key) override {
    events.push_back("key " + name_of(key));
    if (during_key) during_key();
    if (key.name == GridKey::Name::enter) return takes_enter;
    if (key.name != GridKey::Name::character) return false;
    if (key.character >= '0' && key.character <= '9') return false;
    if (key.character == 'P') {
      typed[{selected().column, selected().row}] = int_text(*parse_int32(text(selected())) + 1);
      changed();
    }
    if (key.character == 'G') move_to({columns - 1, rows - 1});
    return true;
  }

  using GridModel::changed;
  using GridModel::move_to;

 protected:
  void take_edit(GridCell cell, const std::string& text) override {
    if (fails_to_store) throw std::bad_alloc();
    events.push_back("take " + name_of(cell) + " " + text);
    if (text != "99") typed[{cell.column, cell.row}] = text;
  }
  void clicked(GridClick click, GridCell cell) override {
    const char* names[] = {"left ", "right ", "double "};
    events.push_back(names[static_cast<int>(click)] + name_of(cell));
  }

 private:
  static std::string name_of(GridCell cell) { return int_text(cell.column) + "," + int_text(cell.row); }
  static std::string name_of(const GridKey& key) {
    if (key.name == GridKey::Name::character) return std::string(1, key.character);
    const char* names[] = {"",     "Enter",  "Esc",      "Tab",       "Backspace", "Up",
                           "Down", "PageUp", "PageDown", "FirstPage", "LastPage"};
    return names[static_cast<int>(key.name)];
  }
};

}  // namespace kov
