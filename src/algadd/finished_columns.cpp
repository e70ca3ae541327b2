#include "algadd/finished_columns.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "algadd/overflow_check.h"
#include "numbers/vector_dispatch.h"

namespace kov {

namespace {

void require_finite_parts(std::span<const double> parts) {
  bool finite = true;
  run_loop([&]() KOV_INLINE {
    bool all = true;
    for (const double x : parts) all &= std::abs(x) <= std::numeric_limits<double>::max();
    finite = all;
  });
  if (!finite) throw floating_overflow();
}

template <class T>
bool all_zero(std::span<const T> parts) {
  return std::all_of(parts.begin(), parts.end(), [](T x) { return x == T{}; });
}

}  // namespace

Column finished_column(std::span<const double> parts) {
  require_finite_parts(parts);
  return all_zero(parts) ? Column::floating_zero(parts.size()) : Column::doubles(parts);
}

Column finished_column(std::span<const std::int32_t> parts) {
  return all_zero(parts) ? Column::zero(parts.size()) : Column::integers(parts);
}

Column finished_column(std::span<const double> parts, BitList exact) {
  require_finite_parts(parts);
  return Column::integers_and_doubles(parts, std::move(exact));
}

Column finished_column(std::span<const ratyp> parts) {
  if (!std::all_of(parts.begin(), parts.end(), [](const ratyp& part) { return is_finite(part); })) {
    throw floating_overflow();
  }
  return Column::of(parts);
}

}  // namespace kov
