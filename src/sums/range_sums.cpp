#include "sums/range_sums.h"

#include <algorithm>

#include "lattice/row_range.h"
#include "numbers/checked_integer.h"
#include "sums/block_sums.h"
#include "sums/sum_progress.h"

namespace kov {
namespace {

using Accumulators = std::array<PointSum, sum_row_count>;

// Nothing where the quotient has no finite value. The quotient squares its divisor on the way: a square
// beyond the largest double would make a ratio of large numbers look like zero, one that vanishes gives
// no number.
std::optional<cotyp> finite_quotient(const cotyp& dividend, const cotyp& divisor) {
  if (!is_finite(cotyp(qq(divisor), 0))) return std::nullopt;
  const cotyp quotient = dividend / divisor;
  return is_finite(quotient) ? std::optional(quotient) : std::nullopt;
}

cotyp average(const cotyp& sum, const cotyp& count) {
  const cotyp quotient = sum / count;
  require_finite(quotient);
  return quotient;
}

}  // namespace

// Every point is finite, so a sum that leaves the finite numbers becomes infinite and stays so, and its
// average with it: testing the averages, behind the last point, finds it.
SumRow finished_row(const PointSum& sums) {
  SumRow row;
  row.value[sum_cnt] = count_quantity(sums.count);
  row.value[sum_q] = sums.q;
  row.value[sum_qq] = cotyp(sums.squares, 0);
  if (sums.count != 0) {
    row.value[sum_q_per_cnt] = average(row.value[sum_q], row.value[sum_cnt]);
    row.value[sum_qq_per_cnt] = average(row.value[sum_qq], row.value[sum_cnt]);
  }
  return row;
}

namespace {

void divide_by_row(SumRow& row, const SumRow& divisor, std::size_t divisor_index) {
  if (is_zero(divisor.value[sum_cnt])) return;
  for (std::size_t quantity = 0; quantity < sum_quantity_count; ++quantity) {
    if (is_zero(divisor.value[quantity])) continue;
    row.ratio[divisor_index][quantity] = finite_quotient(row.value[quantity], divisor.value[quantity]);
  }
}

RangeSums finished(const Accumulators& accumulators) {
  RangeSums sums;
  std::transform(accumulators.begin(), accumulators.end(), sums.begin(), finished_row);
  for (SumRow& row : sums) {
    if (is_zero(row.value[sum_cnt])) continue;
    for (std::size_t divisor = 0; divisor < sum_row_count; ++divisor) {
      divide_by_row(row, sums[divisor], divisor);
    }
  }
  return sums;
}

}  // namespace

cotyp count_quantity(std::int64_t count) {
  if (count <= nu_max_int) return static_cast<std::int32_t>(count);
  return {ratyp::floating(static_cast<double>(count)), 0};
}

namespace {

/// One walk over the store, chunk by chunk of its blocks.
class RangeWalk {
 public:
  RangeWalk(const std::array<KeyBox, 2>& ranges, SumProgress& progress)
      : ranges_(ranges), progress_(progress) {}

  /// False when Break was pressed.
  bool add(const Row& row) {
    const std::array<RowRange, 2> inside = {RowRange(row, ranges_[0]), RowRange(row, ranges_[1])};
    for (std::size_t block = 0; block < row.block_count(); ++block) {
      if (!add(row.block(block), inside)) return false;
    }
    return true;
  }
  const Accumulators& sums() const { return accumulators_; }

 private:
  bool add(const Block& block, const std::array<RowRange, 2>& inside) {
    std::size_t first = 0;
    while (first < block.size()) {
      const auto until_check = static_cast<std::size_t>(progress_.until_check());
      const std::size_t count = std::min({block.size() - first, BlockSums::most_points, until_check});
      chunk_.take(block, first, count);
      chunk_.add_to(accumulators_[sum_total]);
      for (const std::size_t range : {sum_range1, sum_range2})
        add_range(block, first, count, inside[range], range);
      first += count;
      if (!progress_.advance(static_cast<std::int64_t>(count))) return false;
    }
    return true;
  }

  // A range that every point so far lies inside has the sums of all points.
  void add_range(const Block& block, std::size_t first, std::size_t count, const RowRange& inside,
                 std::size_t range) {
    if (inside.all() && holds_all_[range]) {
      accumulators_[range] = accumulators_[sum_total];
      return;
    }
    holds_all_[range] = false;
    if (inside.all()) {
      chunk_.add_to(accumulators_[range]);
    } else if (!inside.none()) {
      const auto flags = std::span(flags_).first(count);
      inside.mark(block, first, flags);
      chunk_.add_to(accumulators_[range], flags);
    }
  }

  const std::array<KeyBox, 2>& ranges_;
  SumProgress& progress_;
  Accumulators accumulators_;
  std::array<bool, 2> holds_all_ = {true, true};
  BlockSums chunk_;
  std::array<std::uint8_t, BlockSums::most_points> flags_;
};

}  // namespace

std::optional<RangeSums> sum_ranges(const Lmap& lmap, const std::array<KeyBox, 2>& ranges,
                                    std::int64_t points_per_display, Progress& progress) {
  SumProgress shown(progress, static_cast<std::int64_t>(lmap.count()), points_per_display);
  RangeWalk walk(ranges, shown);
  for (const Row& row : lmap.rows()) {
    if (!walk.add(row)) return std::nullopt;
  }
  return finished(walk.sums());
}

}  // namespace kov
