#include "tools/searched_elements.h"

#include <cmath>

#include "tools/comb_count.h"

namespace kov {

std::vector<std::uint32_t> distinct_enough(std::span<const CombElement> elements, int order,
                                           const CombRules& rules) {
  const std::size_t enough =
      static_cast<std::size_t>(order) + (rules.one_per_difference ? 0 : rules.nearest - 1);
  std::vector<std::uint32_t> kept;
  std::size_t equal = 0;
  for (std::uint32_t i = 0; i < elements.size(); ++i) {
    equal = i > 0 && elements[i].re == elements[i - 1].re ? equal + 1 : 1;
    if (equal <= enough) kept.push_back(i);
  }
  return kept;
}

SearchedElements::SearchedElements(std::span<const CombElement> elements, int order, const CombRules& rules)
    : elements_(elements),
      order_(static_cast<std::uint32_t>(order)),
      places_(distinct_enough(elements, order, rules)) {}

std::vector<double> SearchedElements::values(double CombElement::*value) const {
  std::vector<double> all;
  all.reserve(places_.size());
  for (const std::uint32_t place : places_) all.push_back(elements_[place].*value);
  return all;
}

double SearchedElements::met_before(std::span<const std::uint32_t> upper, std::uint32_t end) const {
  // Those with a smaller member at the highest position where they differ, position by position.
  auto members = static_cast<int>(order_);
  const auto below = [&](std::uint32_t element) {
    const auto place =
        static_cast<std::int64_t>(element < places_.size() ? places_[element] : elements_.size());
    return std::ldexp(pm_combinations(place, members), static_cast<int>(order_) - members);
  };
  double count = 0.0;
  for (std::size_t i = upper.size(); i-- > 0; --members) count += below(upper[i]);
  return count + below(end);
}

double SearchedElements::all() const {
  return pm_combinations(static_cast<std::int64_t>(elements_.size()), static_cast<int>(order_));
}

std::vector<CombMatch> SearchedElements::translated(std::vector<CombMatch> matches) const {
  for (CombMatch& match : matches) {
    for (std::uint32_t& member : match.members) member = places_[member];
  }
  return matches;
}

}  // namespace kov
