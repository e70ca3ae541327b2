#include "sums/sums1_grid.h"

#include "sums/sums_display.h"

namespace kov {

int Sums1Grid::column_count() const { return Slsums1_columns; }

int Sums1Grid::row_count() const { return Slsums1_rows; }

}  // namespace kov
