#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "interact/progress.h"
#include "tools/comb_report.h"

namespace kov {

/// The time that a search goes by, so that tests can let it run as they like.
using CombClock = std::function<std::chrono::steady_clock::time_point()>;

/// How one order is searched: search_order with a number of threads.
using SearchOrder = std::function<OrderResult(std::span<const CombElement> elements, int order,
                                              const CombRules& rules, const OrderPoll& poll)>;

/// search_order on as many threads as the machine runs at a time.
OrderResult search_order_on_all_cores(std::span<const CombElement> elements, int order,
                                      const CombRules& rules, const OrderPoll& poll);

/// Takes the next piece of the file.
using CombSink = std::function<void(std::string_view text)>;

/// Searches order by order and writes the file as it goes. The clock is read whenever the search of an order
/// polls; once a second has passed progress is shown and Break asked for. Break ends the search: the results
/// of the current order so far are written, and that it was broken. What the sink and the search throw passes
/// on. Gives the number of signed combinations that were tested.
double write_comb_search(const CombRequest& request, const CombFileHead& head, const SearchOrder& search,
                         const CombClock& clock, Progress& progress, const CombSink& sink);

}  // namespace kov
