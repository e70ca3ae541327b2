#include "graphs/oplot.h"

#include "text/integers.h"

namespace kov {
namespace {

std::vector<std::size_t> columns_of_x_values(const G1Par& par) {
  std::vector<std::size_t> columns;
  if (par.pix_per_icoo < 1) {
    for (int column = 0; column < par.hpixcount; ++column)
      columns.push_back(static_cast<std::size_t>(column));
  } else {
    for (std::int64_t x = par.xmin; x < par.xmax; ++x) columns.push_back(par.column_of(x));
  }
  return columns;
}

bool is_skipped(const CurvePair& pair, std::int32_t skip_zeros) {
  constexpr std::int32_t two_zeros = 1;
  constexpr std::int32_t any_zero = 2;
  const bool first = pair.first == 0;
  const bool second = pair.second == 0;
  return (skip_zeros == two_zeros && first && second) || (skip_zeros == any_zero && (first || second));
}

}  // namespace

std::vector<CurvePair> oplot_pairs(const G1Par& par, const G1Curve& first, const G1Curve& second,
                                   std::int32_t skip_zeros) {
  std::vector<CurvePair> pairs;
  for (const std::size_t column : columns_of_x_values(par)) {
    const CurvePair pair{first.at[column], second.at[column]};
    if (!is_skipped(pair, skip_zeros)) pairs.push_back(pair);
  }
  return pairs;
}

std::string oplot_complaint(std::size_t valid_curves) {
  return "oplot: not 2 but " + int_text(static_cast<std::int64_t>(valid_curves)) + " valid curves";
}

}  // namespace kov
