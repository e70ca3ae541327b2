#include "algadd/counted_arithmetic.h"

#include <array>

#include "algadd/finished_columns.h"

namespace kov {

namespace {

template <class Sum>
BitList exact_parts_of(std::span<const Sum> sums, FloatingParts part) {
  return BitList::made(sums.size(), [&](std::size_t i) { return (sums[i].floating & part) == 0; });
}

// The column of value(sum), one part of it, exact where that part is not floating.
template <class Sum, class Function>
Column column_of(std::span<const Sum> sums, FloatingParts part, const Function& value) {
  std::array<double, block_capacity> parts;
  for (std::size_t i = 0; i < sums.size(); ++i) parts[i] = value(sums[i]);
  return finished_column(std::span<const double>(parts.data(), sums.size()), exact_parts_of(sums, part));
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
  Column re = column_of(sums, re_floating, [](const Sum& sum) { return sum.re; });
  return {std::move(re), Column::zeros(exact_parts_of(sums, im_floating))};
}

std::pair<Column, Column> CountedComplexArithmetic::columns(std::span<const Sum> sums) {
  Column re = column_of(sums, re_floating, [](const Sum& sum) { return sum.re; });
  return {std::move(re), column_of(sums, im_floating, [](const Sum& sum) { return sum.im; })};
}

}  // namespace kov
