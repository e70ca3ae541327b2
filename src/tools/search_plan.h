#pragma once

#include <cstdint>
#include <optional>

namespace kov {

/// How one order is searched: the first low members of a combination are looked up among sorted half sums,
/// the others run through all their choices and signs.
struct SearchPlan {
  std::uint32_t low = 0;
  /// How many choices and signs of the others there are.
  double steps = 0.0;
};

/// The plan that takes the least time with the memory that a search may use, for combinations of order out
/// of so many elements, 1 <= order <= elements. Nothing where every plan is beyond that memory, or may take
/// more than 10^15 steps, which are a year.
std::optional<SearchPlan> plan_search(std::int64_t elements, int order);

}  // namespace kov
