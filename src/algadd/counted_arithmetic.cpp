#include "algadd/counted_arithmetic.h"

#include <array>

#include "algadd/finished_columns.h"

namespace kov {

namespace {

template <class Sum>
BitList states_of_part(std::span<const Sum> sums, unsigned bit) {
  return BitList::made(sums.size(), [&](std::size_t i) { return (sums[i].states & bit) != 0; });
}

// The column of part(sum), exact where the states have the bit.
template <class Sum, class Function>
Column column_of(std::span<const Sum> sums, unsigned bit, const Function& part) {
  std::array<double, block_capacity> parts;
  for (std::size_t i = 0; i < sums.size(); ++i) parts[i] = part(sums[i]);
  return finished_column(std::span<const double>(parts.data(), sums.size()), states_of_part(sums, bit));
}

}  // namespace

CountedParts::CountedParts(const Column& column) : in_column_(column.doubles()) {
  if (in_column_) return;
  made_.resize(column.size());
  column.decode(0, std::span(made_));
}

CountedBlock counted_real_block(const Block& block) {
  BitList exact = block.re().exact_parts();
  exact &= block.im().exact_parts();
  return {CountedParts(block.re()), {}, std::move(exact)};
}

CountedBlock counted_complex_block(const Block& block) {
  CountedBlock made = counted_real_block(block);
  made.im = CountedParts(block.im());
  return made;
}

std::pair<Column, Column> CountedRealArithmetic::columns(std::span<const Sum> sums) {
  Column re = column_of(sums, 1U, [](const Sum& sum) { return sum.re; });
  return {std::move(re), Column::zeros(states_of_part(sums, 2U))};
}

std::pair<Column, Column> CountedComplexArithmetic::columns(std::span<const Sum> sums) {
  Column re = column_of(sums, 1U, [](const Sum& sum) { return sum.re; });
  return {std::move(re), column_of(sums, 2U, [](const Sum& sum) { return sum.im; })};
}

}  // namespace kov
