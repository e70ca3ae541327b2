#include "tools/search_plan.h"

#include <algorithm>
#include <cmath>

#include "tools/comb_count.h"

namespace kov {
namespace {

/// They are sorted at once, within a fraction of a second.
constexpr double most_half_sums = 1 << 21;
/// The partial sums of one choice of members, with all signs, are held at once: 2^21.
constexpr int most_signs = 21;
constexpr double most_steps = 1e15;

/// In units of one comparison of a search: a binary search and what is around it for each step, and the
/// sorting, which moves what it compares.
double cost(double steps, double half_sums) {
  constexpr double around_a_search = 8.0;
  constexpr double sorting = 4.0;
  const double comparisons = std::log2(half_sums) + 1.0;
  return steps * (comparisons + around_a_search) + sorting * half_sums * comparisons;
}

}  // namespace

std::optional<SearchPlan> plan_search(std::int64_t elements, int order) {
  std::optional<SearchPlan> best;
  double lowest_cost = 0.0;
  for (int low = std::max(0, order - most_signs); low < order; ++low) {
    const double half_sums = pm_combinations(elements - (order - low), low);
    if (half_sums > most_half_sums) continue;
    const double steps = pm_combinations(elements - low, order - low);
    if (steps > most_steps) continue;
    const double this_cost = cost(steps, half_sums);
    if (best && this_cost >= lowest_cost) continue;
    lowest_cost = this_cost;
    best = SearchPlan{.low = static_cast<std::uint32_t>(low), .steps = steps};
  }
  return best;
}

}  // namespace kov
