#pragma once

#include <cstdint>

#include "tools/order_result.h"
#include "tools/searched_elements.h"

namespace kov {

/// search_order by a plan by element: for each choice of members among the top elements, with all signs, the
/// sorted sums of the low and of the middle elements meet. All sums must be finite. Needs at least one
/// thread.
///
/// The threads share the work of one choice, so that it is either settled as a whole, or not at all; a stop
/// takes effect within some milliseconds once the first choice is settled.
OrderResult search_by_element(const SearchedElements& elements, std::uint32_t low, std::uint32_t middle,
                              const CombRules& rules, unsigned threads, const OrderPoll& poll);

}  // namespace kov
