#include "algadd/linear_arithmetic.h"

#include <algorithm>
#include <numeric>

namespace kov {

namespace {

// The largest common divisor of all numerators and the denominator.
std::int32_t common_divisor(std::span<const std::int32_t> numerators, std::int32_t denominator) {
  std::int32_t divisor = denominator;
  for (const std::int32_t numerator : numerators) {
    if (divisor == 1) break;
    if (numerator % divisor != 0) divisor = std::gcd(divisor, numerator);
  }
  return divisor;
}

}  // namespace

const std::int32_t* IntegerNumbers::values(const Column& column, std::size_t from, std::size_t count,
                                           std::int32_t* room) const {
  if (column.form() == PartForm::zero) {
    std::fill_n(room, count, 0);
    return room;
  }
  const std::int32_t* const numerators = column.integers() + from;
  const std::int32_t scale = source_denominator / column.denominator();
  if (scale == 1) return numerators;
  for (std::size_t i = 0; i < count; ++i) room[i] = numerators[i] * scale;
  return room;
}

Column IntegerNumbers::column(std::span<const std::int32_t> numerators) const {
  if (std::all_of(numerators.begin(), numerators.end(), [](std::int32_t x) { return x == 0; })) {
    return Column::zero(numerators.size());
  }
  const std::int32_t denominator = source_denominator * factor_denominator;
  const std::int32_t divisor = common_divisor(numerators, denominator);
  if (divisor == 1) return Column::integers(numerators, denominator);
  std::array<std::int32_t, block_capacity> reduced;
  for (std::size_t i = 0; i < numerators.size(); ++i) reduced[i] = numerators[i] / divisor;
  return Column::integers(std::span(reduced.data(), numerators.size()), denominator / divisor);
}

const double* DoubleNumbers::values(const Column& column, std::size_t from, std::size_t count, double* room) {
  if (column.form() == PartForm::doubles) return column.doubles() + from;
  column.decode(from, std::span(room, count));
  return room;
}

}  // namespace kov
