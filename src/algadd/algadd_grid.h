#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "algadd/algadd.h"
#include "config/cphclass.h"
#include "interact/grid_model.h"
#include "interact/messages.h"

namespace kov {

/// SlAlgadd: the current Algadd table, a column for each entry; below the entry numbers a row for p, one
/// for ldest, and one for each key position, l first. Q and W turn to the table before and behind.
///
/// An edit is taken by Enter and wherever the selection or the keyboard leaves the cell. A text that is no
/// value of its row is undone with a beep. A value that was not edited is never read back from its text,
/// since the text of a floating p carries 15 digits only.
class AlgaddGrid final : public GridModel {
 public:
  /// The row of the factors, whose texts are the longest of a table.
  static constexpr int p_row = 1;

  /// All three must outlive the grid.
  AlgaddGrid(Algadd& algadd, cphclass& cph, Messages& messages);

  int column_count() const override { return 1 + Algadd_EntryCount; }
  int row_count() const override { return first_key_row + MaxDimCount; }
  std::string text(GridCell cell) const override;
  bool editable(GridCell cell) const override { return cell.column >= 1 && cell.row >= 1; }
  int default_column_width() const override;

  /// Shows every cell anew; an edit that was not taken yet is given up, since the cell may stand for an
  /// entry of another table now.
  void show() override;
  /// show(), and the table menu is hidden: what every change of aanr and every command of the table menu
  /// calls for.
  void refill();
  bool key(const GridKey& key) override;

  /// What the mouse over a cell is told: the rule that its entry stands for; in column 0 the keys.
  std::string hint(GridCell cell) const;

  /// Called when an entry or the current table's index has changed: captions, enabled states and the
  /// summary are to be renewed.
  void set_tables_changed(std::function<void()> tables_changed) {
    tables_changed_ = std::move(tables_changed);
  }
  /// Called with the number of the entry whose column is selected: the current entry of the table menu.
  /// A selected heading column leaves the current entry what it was.
  void set_entry_selected(std::function<void(int entry)> entry_selected) {
    entry_selected_ = std::move(entry_selected);
  }
  /// Called with true when the table menu and its summary are to be shown, with false when they are to be
  /// hidden.
  void set_show_menu(std::function<void(bool shown)> show_menu) { show_menu_ = std::move(show_menu); }

 protected:
  void take_edit(GridCell cell, const std::string& text) override;
  void selection_moved() override;
  void clicked(GridClick click, GridCell cell) override;

 private:
  static constexpr int ldest_row = 2;
  static constexpr int first_key_row = 3;

  static std::string heading(GridCell cell);
  /// The integer that a row from ldest on shows.
  static std::int32_t& integer_in(AlgaddEntry& entry, int row);
  /// Adds delta to a row of the entry; false, with nothing changed, where an integer would leave 32 bits.
  static bool add(AlgaddEntry& entry, int row, int delta);
  /// Puts a typed value into a row of the entry; false, with nothing changed, when it is none.
  static bool take_value(AlgaddEntry& entry, int row, std::string_view typed);

  /// The entry of a column from 1 on.
  const AlgaddEntry& entry_at(int column) const { return algadd_.entry(algadd_.aanr(), column - 1); }
  void store(int column, const AlgaddEntry& entry);
  /// Stores a typed text, unless the cell shows it already; false, with a beep, when it is no value of the
  /// cell's row.
  bool store_text(GridCell cell, const std::string& text);
  /// Stores what is in the selected cell with delta added, or beeps.
  void step_selected(int delta);
  void turn_to_table(int table);

  Algadd& algadd_;
  cphclass& cph_;
  Messages& messages_;
  std::function<void()> tables_changed_;
  std::function<void(int entry)> entry_selected_;
  std::function<void(bool shown)> show_menu_;
};

}  // namespace kov
