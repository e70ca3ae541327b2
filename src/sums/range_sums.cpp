#include "sums/range_sums.h"

#include <algorithm>

#include "numbers/checked_integer.h"
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

std::optional<RangeSums> sum_ranges(const Lmap& lmap, const std::array<KeyBox, 2>& ranges,
                                    std::int64_t points_per_display, Progress& progress) {
  SumProgress walk(progress, static_cast<std::int64_t>(lmap.count()), points_per_display);
  Accumulators accumulators;
  const auto end = lmap.end();
  for (auto place = lmap.begin(); place != end; ++place) {
    const cotyp q = place.quantity();
    const ratyp square = qq(q);
    for (const std::size_t range : {sum_range1, sum_range2}) {
      if (ranges[range].contains(place.key())) accumulators[range].add(q, square);
    }
    accumulators[sum_total].add(q, square);
    if (!walk.advance()) return std::nullopt;
  }
  return finished(accumulators);
}

}  // namespace kov
