#pragma once

#include <array>
#include <string>

#include "sums/number_display.h"
#include "sums/range_sums.h"

namespace kov {

/// The names by which every grid of sums lists its quantities.
inline constexpr std::array<const char*, sum_quantity_count> sum_quantity_names = {
    "cnt", "Sum  q  ", "Sum  q   / cnt", "Sum| q |^2", "Sum| q |^2/cnt"};

// The grid Slsums1: a heading row, then for each of four forms (the value itself, divided by that of
// Range 1, of Range 2, of the total) a row for each quantity; a column of labels, then the columns of
// Range 1, Range 2 and the total.

inline constexpr int Slsums1_columns = 1 + static_cast<int>(sum_row_count);
inline constexpr int Slsums1_rows = 1 + 4 * static_cast<int>(sum_quantity_count);

/// The text of a heading (row 0) or of a row's label (column 0).
std::string Slsums1_heading(int column);
std::string Slsums1_label(int row);

/// The text of a result (column 1 ... 3, row 1 ... 20); empty for a ratio that does not exist.
std::string Slsums1_result(const RangeSums& sums, const NumberDisplay& numbers, int column, int row);

}  // namespace kov
