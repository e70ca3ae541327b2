#include "algadd/counted_arithmetic.h"

#include <algorithm>
#include <array>

#include "algadd/finished_columns.h"

namespace kov {

namespace {

// Takes bit out of the states of the parts that are floating.
void take_states(const Column& column, unsigned bit, std::vector<PartStates>& states) {
  const auto floating = static_cast<PartStates>(both_exact & ~bit);
  switch (column.form()) {
    case PartForm::zero:
    case PartForm::integers:
    case PartForm::fractions:
      return;
    case PartForm::floating_zero:
    case PartForm::doubles:
      for (PartStates& state : states) state &= floating;
      return;
    case PartForm::mixed:
      break;
  }
  for (std::size_t i = 0; i < states.size(); ++i) {
    if (!column.get(i).exact()) states[i] &= floating;
  }
}

template <class Sum, class Function>
Column column_of(std::span<const Sum> sums, unsigned bit, const Function& part) {
  std::array<double, block_capacity> parts;
  std::array<PartStates, block_capacity> states;
  for (std::size_t i = 0; i < sums.size(); ++i) {
    parts[i] = part(sums[i]);
    states[i] = sums[i].states;
  }
  return counted_column(std::span(parts.data(), sums.size()), std::span(states.data(), sums.size()), bit);
}

}  // namespace

CountedBlock counted_real_block(const Block& block) {
  CountedBlock made{std::vector<double>(block.size()), {}, std::vector<PartStates>(block.size(), both_exact)};
  block.re().decode(0, std::span(made.re));
  take_states(block.re(), 1U, made.states);
  take_states(block.im(), 2U, made.states);
  return made;
}

CountedBlock counted_complex_block(const Block& block) {
  CountedBlock made = counted_real_block(block);
  made.im.resize(block.size());
  block.im().decode(0, std::span(made.im));
  return made;
}

Column counted_column(std::span<const double> parts, std::span<const PartStates> states, unsigned bit) {
  const auto is_exact = [bit](PartStates state) { return (state & bit) != 0; };
  const auto exact = static_cast<std::size_t>(std::count_if(states.begin(), states.end(), is_exact));
  if (exact == 0) return finished_column(parts);
  if (exact == parts.size()) {
    std::array<std::int32_t, block_capacity> integers;
    std::transform(parts.begin(), parts.end(), integers.begin(),
                   [](double part) { return static_cast<std::int32_t>(part); });
    return finished_column(std::span<const std::int32_t>(integers.data(), parts.size()));
  }
  std::array<ratyp, block_capacity> mixed;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    mixed[i] = is_exact(states[i]) ? ratyp(static_cast<std::int32_t>(parts[i])) : ratyp::floating(parts[i]);
  }
  return finished_column(std::span<const ratyp>(mixed.data(), parts.size()));
}

std::pair<Column, Column> CountedRealArithmetic::columns(std::span<const Sum> sums) {
  Column re = column_of(sums, 1U, [](const Sum& sum) { return sum.re; });
  return {std::move(re), column_of(sums, 2U, [](const Sum&) { return 0.0; })};
}

std::pair<Column, Column> CountedComplexArithmetic::columns(std::span<const Sum> sums) {
  Column re = column_of(sums, 1U, [](const Sum& sum) { return sum.re; });
  return {std::move(re), column_of(sums, 2U, [](const Sum& sum) { return sum.im; })};
}

}  // namespace kov
