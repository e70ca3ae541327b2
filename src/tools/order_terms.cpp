#include "tools/order_terms.h"

#include <utility>

namespace kov {
namespace {

std::size_t kept_of_equal(const SumTolerance& tolerance, const CombRules& rules) {
  if (!tolerance.exact()) return HalfSums::everything;
  return rules.one_per_difference ? 1 : rules.nearest;
}

}  // namespace

OrderTerms::OrderTerms(std::vector<double> values, std::uint32_t order, std::uint32_t low, Signs signs,
                       const CombRules& rules)
    : values_(std::move(values)),
      signs_(signs),
      tolerance_(values_, order),
      reach_(values_, order - 1),
      half_(values_, low, static_cast<std::uint32_t>(values_.size()) - (order - low), signs,
            kept_of_equal(tolerance_, rules)) {}

}  // namespace kov
