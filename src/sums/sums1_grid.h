#pragma once

#include <string>

#include "config/cphclass.h"
#include "interact/grid_model.h"
#include "interact/user.h"
#include "sums/sums1_page.h"

namespace kov {

/// Slsums1: the results of the Sums1 page, to be read only. It changes with the page, whose owner then
/// calls give_up_edit.
class Sums1Grid final : public GridModel {
 public:
  /// What is passed in must outlive the grid.
  Sums1Grid(Sums1Page& page, const cphclass& cph, User user) : page_(page), cph_(cph), user_(user) {}

  int column_count() const override;
  int row_count() const override;
  std::string text(GridCell cell) const override { return page_.Slsums1_text(cell.column, cell.row); }
  int default_column_width() const override { return cph_.kmi("Sums_Slsums_DefaultColWidth"); }
  /// Sums up.
  void show() override { page_.sum_up(user_); }
  bool key(const GridKey&) override { return false; }

 private:
  Sums1Page& page_;
  const cphclass& cph_;
  User user_;
};

}  // namespace kov
