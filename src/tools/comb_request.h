#pragma once

#include <optional>

#include "config/cphclass.h"
#include "interact/user.h"
#include "lattice/lmap.h"
#include "sums/range_tables.h"
#include "tools/comb_report.h"

namespace kov {

/// No more real parts are considered, and no higher orders.
inline constexpr std::int32_t most_comb_elements = 70000;
inline constexpr std::int32_t highest_comb_order = 100;

/// Asks how many of the largest real parts inside Range 1 of the current range table are to be combined, and
/// up to which order; chooses the elements. Says what of it is cut down. Nothing when the person cancels or
/// declines, and, after a message, when there is nothing to combine, or more than can be searched.
std::optional<CombRequest> ask_for_comb_search(const Lmap& lmap, const RangeTables& ranges,
                                               const cphclass& cph, User user);

}  // namespace kov
