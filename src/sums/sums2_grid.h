#pragma once

#include <string>
#include <vector>

#include "config/cphclass.h"
#include "interact/grid_model.h"
#include "interact/user.h"
#include "lattice/lmap.h"
#include "sums/number_display.h"
#include "sums/sums2.h"

namespace kov {

/// Slsums2: a heading row, then for each selector a row for each quantity; a column of labels, then a column
/// for each lattice of the store. To be read only, and computed anew whenever its page is shown.
class Sums2Grid final : public GridModel {
 public:
  /// What is passed in must outlive the grid.
  Sums2Grid(const Lmap& lmap, const cphclass& cph, User user) : lmap_(lmap), cph_(cph), user_(user) {}

  /// The column of labels alone while there are no sums.
  int column_count() const override;
  int row_count() const override;
  /// Empty for a column that is gone, as that of the selected cell may be.
  std::string text(GridCell cell) const override;
  int default_column_width() const override { return cph_.kmi("Sums_Slsums_DefaultColWidth"); }
  /// Creates the sums.
  void show() override;
  bool key(const GridKey&) override { return false; }

  /// What decides between the grid and the label, and the label's text.
  const Sums2& sums2() const { return sums2_; }

 private:
  std::string row_label(int row) const;
  std::string result(GridCell cell) const;

  const Lmap& lmap_;
  const cphclass& cph_;
  User user_;
  Sums2 sums2_;
  /// The columns of results, so that a cell is found without a walk over the lattices.
  std::vector<S2map::const_iterator> columns_;
  /// Numbers stay in the form of the moment at which they were summed up.
  NumberDisplay numbers_;
};

/// A program error unless all columns were filled: "icol=" + their number + " != " + the grid's count +
/// "=F1->Slsums2->ColCount".
void check_column_count(int icol, int column_count, Messages& messages);

}  // namespace kov
