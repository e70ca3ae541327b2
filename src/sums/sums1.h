#pragma once

#include <optional>
#include <string>

#include "config/cphclass.h"
#include "interact/user.h"
#include "lattice/lmap.h"
#include "sums/number_display.h"
#include "sums/range_sums.h"
#include "sums/range_table.h"

namespace kov {

/// How a summation ended.
enum class SumOutcome { displayed, store_empty, broken, failed };

/// What the Sums1 page shows: the results of the last summation in the grid Slsums1, and the label that
/// stands where the grid is hidden.
class Sums1 {
 public:
  /// Sums the store up over the ranges of the table and displays the result. An empty store and Break
  /// leave no result on display. Whatever fails passes on, and the display is then as it was.
  SumOutcome sum_up(const Lmap& lmap, const RangeTable& table, const cphclass& cph, Progress& progress);

  /// Likewise; a failure is reported instead: " MathError when creating Sums1: \n" and its text for a
  /// numeric error, else "Error when creating Sums1".
  SumOutcome sum_up_and_report(const Lmap& lmap, const RangeTable& table, const cphclass& cph, User user);

  /// The text behind the grid; empty while the label is hidden.
  const std::string& label() const { return label_; }

  /// The text of a cell of the grid (sums/sums_display.h), headings and labels included. Results are empty
  /// while nothing is displayed, and so are ratios that do not exist.
  std::string Slsums1_text(int column, int row) const;

 private:
  /// Results stay in the form of the moment at which they were summed up.
  struct Display {
    RangeSums sums;
    NumberDisplay numbers;
  };

  std::optional<Display> display_;
  std::string label_;
};

}  // namespace kov
