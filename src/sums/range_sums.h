#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "interact/progress.h"
#include "lattice/key_box.h"
#include "lattice/lmap.h"

namespace kov {

/// The rows of the sums: the points inside Range 1, those inside Range 2, and all points of the store
/// (not the union of the ranges).
enum SumRowIndex : std::size_t { sum_range1, sum_range2, sum_total, sum_row_count };

/// The quantities of a row, in the order in which they are listed.
enum SumQuantity : std::size_t { sum_cnt, sum_q, sum_q_per_cnt, sum_qq, sum_qq_per_cnt, sum_quantity_count };

/// One row of sums.
struct SumRow {
  std::array<cotyp, sum_quantity_count> value;
  /// By divisor row: each quantity divided by the same one of that row. Nothing where the count of
  /// this row or of the divisor row, or the divisor, is zero, or where the quotient is not finite because
  /// the square of the divisor overflows or vanishes.
  std::array<std::array<std::optional<cotyp>, sum_quantity_count>, sum_row_count> ratio;
};

/// Recomputed whenever they are shown, never updated.
using RangeSums = std::array<SumRow, sum_row_count>;

/// A number of points as the quantity that divides exactly: as if 1 had been added so many times, thus
/// floating from 2147483647 on.
cotyp count_quantity(std::int64_t count);

/// What is added up, point by point. The squares stay a real number until the end: their imaginary part is
/// an exact zero throughout.
struct PointSum {
  std::int64_t count = 0;
  cotyp q;
  ratyp squares;

  /// square: qq(point), which several sums share.
  void add(const cotyp& point, const ratyp& square) {
    ++count;
    q += point;
    squares += square;
  }
};

/// The row of a sum, averages included, without ratios. Throws floating_overflow or math_error when an
/// average is not finite, which tells an overflow of the sum as well.
SumRow finished_row(const PointSum& sums);

/// Sums the store up over the two ranges, in one pass in key order with a progress box. After every
/// points_per_display-th point (at least 1) the caption and the position are shown and Break is asked
/// for: nothing when it was pressed. Throws floating_overflow or math_error when a sum or an average is
/// not finite.
std::optional<RangeSums> sum_ranges(const Lmap& lmap, const std::array<KeyBox, 2>& ranges,
                                    std::int64_t points_per_display, Progress& progress);

}  // namespace kov
