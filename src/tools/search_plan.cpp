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
/// All sums of so many elements with all signs, 3^14, are 5 million.
constexpr std::int64_t most_halved_elements = 14;
constexpr std::int64_t most_top_elements = 30;
/// Of one choice of them. The first choice is not to be broken: 2^17 meetings are some seconds.
constexpr std::uint32_t most_top_signs = 17;

double comparisons_of(double half_sums) { return std::log2(half_sums) + 1.0; }

/// Sorting moves what it compares.
double sorting(double half_sums) { return 4.0 * half_sums * comparisons_of(half_sums); }

/// Keeps the cheapest plan that it is shown; costs are in units of one comparison of a search.
class Cheapest {
 public:
  void consider(const SearchPlan& plan, double preparation) {
    const double cost = plan.comparisons + preparation;
    if (best_ && cost >= cost_) return;
    best_ = plan;
    cost_ = cost;
  }
  const std::optional<SearchPlan>& best() const { return best_; }
  double cost() const { return cost_; }

 private:
  std::optional<SearchPlan> best_;
  double cost_ = 0.0;
};

Cheapest cheapest_by_position(std::int64_t elements, int order) {
  // What is around a binary search.
  constexpr double around_a_search = 8.0;
  Cheapest cheapest;
  for (int low = std::max(0, order - most_signs); low < order; ++low) {
    const double half_sums = pm_combinations(elements - (order - low), low);
    if (half_sums > most_half_sums) continue;
    const double searches = pm_combinations(elements - low, order - low);
    cheapest.consider({.low = static_cast<std::uint32_t>(low),
                       .middle = 0,
                       .comparisons = searches * (comparisons_of(half_sums) + around_a_search)},
                      sorting(half_sums));
  }
  return cheapest;
}

/// Lists for every number of members are merged, over and over, out of those for fewer elements.
double merging_of_halves(std::uint32_t elements, std::uint32_t order) {
  constexpr double merging = 9.0;
  double sums = 0.0;
  for (std::uint32_t m = 0; m <= std::min(order, elements); ++m) {
    sums += pm_combinations(elements, static_cast<int>(m));
  }
  return merging * sums;
}

/// How many sums meet when rest members are among low + middle elements, all numbers of them taken together.
double sums_that_meet(std::uint32_t rest, std::uint32_t low, std::uint32_t middle) {
  const auto [fewest, most] = middle_members(rest, low, middle);
  double sums = 0.0;
  for (std::uint32_t m = fewest; m <= most; ++m) {
    sums += pm_combinations(middle, static_cast<int>(m)) + pm_combinations(low, static_cast<int>(rest - m));
  }
  return sums;
}

void consider_halves(std::int64_t elements, std::uint32_t order, std::uint32_t low, std::uint32_t middle,
                     Cheapest& cheapest) {
  const std::int64_t top = elements - low - middle;
  const std::uint32_t fewest = order > low + middle ? order - low - middle : 0;
  const auto most = static_cast<std::uint32_t>(std::min<std::int64_t>(order, top));
  if (top > most_top_elements || most > most_top_signs) return;
  constexpr double around_a_meeting = 500.0;
  double comparisons = 0.0;
  for (std::uint32_t above = fewest; above <= most; ++above) {
    const double meetings = pm_combinations(top, static_cast<int>(above));
    comparisons += meetings * (sums_that_meet(order - above, low, middle) + around_a_meeting);
  }
  cheapest.consider({.low = low, .middle = middle, .comparisons = comparisons},
                    merging_of_halves(low, order) + merging_of_halves(middle, order));
}

Cheapest cheapest_by_element(std::int64_t elements, int order) {
  Cheapest cheapest;
  for (std::int64_t low = 1; low <= std::min(elements / 2, most_halved_elements); ++low) {
    const std::int64_t middle = std::min({elements - low, low + 1, most_halved_elements});
    consider_halves(elements, static_cast<std::uint32_t>(order), static_cast<std::uint32_t>(low),
                    static_cast<std::uint32_t>(middle), cheapest);
  }
  return cheapest;
}

}  // namespace

std::optional<SearchPlan> plan_by_position(std::int64_t elements, int order) {
  return cheapest_by_position(elements, order).best();
}

std::optional<SearchPlan> plan_by_element(std::int64_t elements, int order) {
  return cheapest_by_element(elements, order).best();
}

std::optional<SearchPlan> plan_search(std::int64_t elements, int order) {
  const Cheapest by_position = cheapest_by_position(elements, order);
  const Cheapest by_element = cheapest_by_element(elements, order);
  if (!by_position.best()) return by_element.best();
  const bool halves = by_element.best() && by_element.cost() < by_position.cost();
  return halves ? by_element.best() : by_position.best();
}

}  // namespace kov
