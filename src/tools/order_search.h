#pragma once

#include <optional>
#include <span>

#include "tools/order_result.h"
#include "tools/search_plan.h"
#include "tools/searched_elements.h"

namespace kov {

/// How this order is best searched; nothing when that is beyond the memory that a search may use. Takes what
/// can be known of the elements into account.
std::optional<SearchPlan> plan_order(std::span<const CombElement> elements, int order,
                                     const CombRules& rules);

/// Finds, for combinations of one order out of elements, what the enumeration of all of them finds, bit for
/// bit: the sums nearest to 1.0, each taken from its last member to its first. Combinations are settled in
/// the order of the enumeration, without looking at those of which it is proved that they cannot be among
/// the nearest. A search that is stopped has the result of the enumeration that is stopped after as many
/// combinations; some are always settled.
///
/// The result does not depend on the number of threads, at least 1, nor on the plan. The poll is called by
/// the caller's thread alone, and not again after it has given false; what it throws passes on.
/// 1 <= order <= elements, and plan_order must have a plan.
OrderResult search_order(std::span<const CombElement> elements, int order, const CombRules& rules,
                         unsigned threads, const OrderPoll& poll);

/// The same, by a plan that fits: by position with fewer low members than the order has; or, where all sums
/// are finite, by element with no more low and middle elements than distinct_enough leaves.
OrderResult search_order_by(const SearchPlan& plan, std::span<const CombElement> elements, int order,
                            const CombRules& rules, unsigned threads, const OrderPoll& poll);

}  // namespace kov
