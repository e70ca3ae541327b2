#include "tools/order_terms.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kov {
namespace {

std::size_t kept_of_sums(const SumTolerance& tolerance, const CombRules& rules) {
  if (!tolerance.exact()) return NumberedSums::everything;
  return rules.one_per_difference ? 1 : rules.nearest;
}

std::vector<double> largest_from_each(std::span<const double> values) {
  std::vector<double> largest(values.size() + 1, 0.0);
  for (std::size_t t = values.size(); t-- > 0;) largest[t] = std::max(largest[t + 1], std::fabs(values[t]));
  return largest;
}

}  // namespace

OrderTerms::OrderTerms(std::vector<double> values, std::uint32_t order, Signs signs, const CombRules& rules)
    : order_(order),
      values_(std::move(values)),
      signs_(signs),
      largest_from_(largest_from_each(values_)),
      tolerance_(values_, order),
      reach_(values_, order),
      kept_of_equal_(kept_of_sums(tolerance_, rules)) {}

}  // namespace kov
