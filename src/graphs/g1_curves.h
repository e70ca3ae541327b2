#pragma once

#include <cstdint>
#include <optional>

#include "graphs/g1par.h"

namespace kov {

// What is made of the sums of Graph1 once all points are binned, in this order.

/// Graph1_divmode. 1: every curve of a range by the number of the range's points. 2: every curve of Range 1
/// column by column by the same one of Range 2, 0 where the divisor is 0. Else nothing.
void divide_curves(G1Par& par, std::int32_t divmode);

/// Smallest and largest value of every curve over all columns of the image. Throws floating_overflow or
/// math_error when a value is not finite.
void find_y_intervals(G1Par& par);

/// Graph1_BarDbl_Fill0. 1: curves whose bars occupy every second x value only get bars of double width. 2: a
/// column that is zero takes the value of the column to its left. Else nothing.
void treat_second_steps(G1Par& par, std::int32_t mode);

/// Where the values of a curve that are not zero, two at least, stand at every second x value only: whether
/// at xmin and on (0) or from one unit further on (1). Nothing for any other curve, and where several x
/// values share a column.
std::optional<int> second_steps_from(const G1Par& par, const G1Curve& curve);

}  // namespace kov
