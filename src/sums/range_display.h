#pragma once

#include <optional>
#include <string>

#include "sums/range_edits.h"
#include "sums/range_tables.h"

namespace kov {

// The range table's grid Slds1: a heading row, then a row for each key position in the order in which
// keys are listed; a column of names, then the minimum and maximum of Range 1 and of Range 2.

inline constexpr int Slds1_columns = 5;
inline constexpr int Slds1_rows = 1 + MaxDimCount;

/// The text of a cell of the current table. The corner shows the table's index ("3: R->"), column 0
/// the position's name and axis marks, the others bounds as bound_text writes them.
std::string Slds1_text(const RangeTables& tables, int column, int row);

/// The name of a key position and which axes it is: "k1=x1", "k2=x2", or "k1=x1       x2" where axes of
/// both ranges meet.
std::string axis_label(const RangeTable& table, int position);

/// The key position of a row (1 ... 32).
int Slds1_position(int row);
/// The bound that a cell holds; nothing for the headings and the names.
std::optional<BoundPlace> Slds1_bound(int column, int row);
/// The column (1 ... 4) of a bound.
int Slds1_column(const BoundPlace& place);

}  // namespace kov
