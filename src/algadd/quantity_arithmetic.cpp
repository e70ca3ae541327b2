#include "algadd/quantity_arithmetic.h"

#include <algorithm>

#include "algadd/finished_columns.h"

namespace kov {

QuantityArithmetic::Prepared QuantityArithmetic::prepare(const Block& block) {
  Prepared prepared(block.size());
  for (std::size_t i = 0; i < prepared.size(); ++i) prepared[i] = block.quantity(i);
  return prepared;
}

std::pair<Column, Column> QuantityArithmetic::columns(std::span<const Sum> sums) {
  std::vector<ratyp> parts(sums.size());
  const auto column = [&](ratyp cotyp::*part) {
    std::transform(sums.begin(), sums.end(), parts.begin(), [&](const cotyp& sum) { return sum.*part; });
    return finished_column(std::span<const ratyp>(parts));
  };
  Column re = column(&cotyp::re);
  return {std::move(re), column(&cotyp::im)};
}

}  // namespace kov
