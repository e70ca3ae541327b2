#pragma once

#include <cstdint>

#include "tools/order_result.h"
#include "tools/searched_elements.h"

namespace kov {

/// search_order by a plan by position: the first low members are looked up. Needs at least one thread.
OrderResult search_by_position(const SearchedElements& elements, std::uint32_t low, const CombRules& rules,
                               unsigned threads, const OrderPoll& poll);

}  // namespace kov
