#include "algadd/finished_columns.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <utility>

#include "algadd/overflow_check.h"
#include "numbers/vector_dispatch.h"

namespace kov {

namespace {

void require_finite_parts(std::span<const double> parts) {
  // As integers, so that the vectors of every unit can do it.
  constexpr auto infinity = std::bit_cast<std::uint64_t>(std::numeric_limits<double>::infinity());
  std::uint64_t largest = 0;
  run_loop([&]() KOV_INLINE {
    std::uint64_t most = 0;
    for (const double x : parts) most = std::max(most, std::bit_cast<std::uint64_t>(x) << 1U);
    largest = most;
  });
  if (largest >= infinity << 1U) throw floating_overflow();
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
