#pragma once

#include <span>

#include "tools/order_search.h"

namespace kov {

/// The search of one order in the plainest words: every combination is counted and summed up, every sum is
/// compared. The oracle of search_order, and the measure of its speed. Polls after each index combination.
/// At most 64 members.
OrderResult literal_search_order(std::span<const CombElement> elements, int order, const CombRules& rules,
                                 const OrderPoll& poll);

}  // namespace kov
