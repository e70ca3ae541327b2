#pragma once

#include <string>

#include "config/cphclass.h"
#include "interact/grid_model.h"
#include "interact/user.h"
#include "sums/range_display.h"
#include "sums/range_edits.h"
#include "sums/range_tables.h"
#include "sums/sums1_page.h"

namespace kov {

/// Slds1: the current range table, edited by keys and by typing. A handled key and every other cell that is
/// selected tell the page, which sums up or opens its menu; whoever rewrites the table by other means calls
/// give_up_edit.
class RangeGrid final : public GridModel {
 public:
  /// What is passed in must outlive the grid.
  RangeGrid(RangeTables& tables, Sums1Page& page, cphclass& cph, User user)
      : tables_(tables), page_(page), cph_(cph), user_(user) {}

  int column_count() const override { return Slds1_columns; }
  int row_count() const override { return Slds1_rows; }
  std::string text(GridCell cell) const override { return Slds1_text(tables_, cell.column, cell.row); }
  bool editable(GridCell cell) const override { return Slds1_bound(cell.column, cell.row).has_value(); }
  int default_column_width() const override;
  int column_width(int column) const override;
  /// Sums up.
  void show() override { page_.sum_up(user_); }

  /// Digits, signs, Backspace, Tab and what moves the selection are not the model's; of all others the
  /// letters of the table and Enter act, behind what was typed before them, and any other beeps.
  bool key(const GridKey& key) override;

 protected:
  void take_edit(GridCell cell, const std::string& edited) override;
  void selection_moved() override;
  void clicked(GridClick click, GridCell cell) override;

 private:
  void letter(char letter);
  /// False where the selected cell is a heading that the letter does not apply to.
  bool change_table(char letter);
  bool change_axes(char letter);
  bool change_bound(char letter);
  bool choose_table(char letter);
  /// A move of the cursor is part of the edit: the key or the selection that took the edit tells the page.
  void follow(const BoundEdit& edit);

  RangeTables& tables_;
  Sums1Page& page_;
  cphclass& cph_;
  User user_;
  /// The last edit was no bound.
  bool refused_ = false;
};

}  // namespace kov
