#include "tools/order_search.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "tools/element_search.h"
#include "tools/position_search.h"

namespace kov {
namespace {

/// Whether no sum that is made on the way can overflow.
bool sums_are_finite(std::span<const CombElement> elements, int order, const CombRules& rules) {
  constexpr double far_from_overflow = 1e300;
  double largest = 0.0;
  for (const CombElement& element : elements) {
    largest = std::max({largest, std::fabs(element.re), rules.squares ? element.square : 0.0});
  }
  return largest * order < far_from_overflow;
}

}  // namespace

std::optional<SearchPlan> plan_order(std::span<const CombElement> elements, int order,
                                     const CombRules& rules) {
  const auto count = static_cast<std::int64_t>(distinct_enough(elements, order, rules).size());
  return sums_are_finite(elements, order, rules) ? plan_search(count, order) : plan_by_position(count, order);
}

OrderResult search_order(std::span<const CombElement> elements, int order, const CombRules& rules,
                         unsigned threads, const OrderPoll& poll) {
  const auto plan = plan_order(elements, order, rules);
  if (!plan) throw std::invalid_argument("combination search without a plan");
  return search_order_by(*plan, elements, order, rules, threads, poll);
}

OrderResult search_order_by(const SearchPlan& plan, std::span<const CombElement> elements, int order,
                            const CombRules& rules, unsigned threads, const OrderPoll& poll) {
  const SearchedElements searched(elements, order, rules);
  const unsigned used = std::max(threads, 1U);
  if (plan.by_element()) return search_by_element(searched, plan.low, plan.middle, rules, used, poll);
  return search_by_position(searched, plan.low, rules, used, poll);
}

}  // namespace kov
