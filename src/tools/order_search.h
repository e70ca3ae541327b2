#pragma once

#include <functional>
#include <span>
#include <vector>

#include "tools/best_matches.h"
#include "tools/comb_candidates.h"
#include "tools/order_terms.h"

namespace kov {

/// The nearest matches of one order.
struct OrderResult {
  std::vector<CombMatch> sums;
  /// All signs are plus.
  std::vector<CombMatch> squares;
  /// The signed combinations that the matches were chosen from; all of the order, unless it was stopped.
  double tested = 0.0;
  bool stopped = false;
};

/// Asked now and then whether to go on; told how many signed combinations of the order are settled so far.
using OrderPoll = std::function<bool(double tested)>;

/// Finds, for combinations of one order out of elements, what the enumeration of all of them finds, bit for
/// bit: the sums nearest to 1.0, each taken from its last member to its first. Combinations are settled in
/// the order of the enumeration, without looking at those of which it is proved that they cannot be among
/// the nearest. A search that is stopped has the result of the enumeration that is stopped after as many
/// combinations.
///
/// The result does not depend on the number of threads, at least 1. The poll is called by the caller's
/// thread alone; what it throws passes on. 1 <= order <= elements, and plan_search must have a plan for the
/// elements that distinct_enough leaves.
OrderResult search_order(std::span<const CombElement> elements, int order, const CombRules& rules,
                         unsigned threads, const OrderPoll& poll);

/// The elements, ascending, that the nearest matches of this order can be made of. Elements are ordered by
/// real part: of many with the same one those behind the first few never enter, since with each of the few
/// the same sum is met before.
std::vector<std::uint32_t> distinct_enough(std::span<const CombElement> elements, int order,
                                           const CombRules& rules);

}  // namespace kov
