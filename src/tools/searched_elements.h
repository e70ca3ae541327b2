#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tools/best_matches.h"
#include "tools/comb_candidates.h"
#include "tools/order_terms.h"

namespace kov {

/// The elements, ascending, that the nearest matches of this order can be made of. Elements are ordered by
/// real part: of many with the same one those behind the first few never enter, since with each of the few
/// the same sum is met before.
std::vector<std::uint32_t> distinct_enough(std::span<const CombElement> elements, int order,
                                           const CombRules& rules);

/// The elements that a search of one order looks at, by their own indices 0, 1, ..., and what that means for
/// all elements.
class SearchedElements {
 public:
  SearchedElements(std::span<const CombElement> elements, int order, const CombRules& rules);

  std::uint32_t count() const { return static_cast<std::uint32_t>(places_.size()); }
  std::uint32_t order() const { return order_; }
  std::vector<double> values(double CombElement::*value) const;

  /// How many signed combinations of all elements the enumeration has met before the first one whose last
  /// members are upper and the one before them is end, or would be.
  double met_before(std::span<const std::uint32_t> upper, std::uint32_t end) const;
  /// How many there are.
  double all() const;

  /// Matches by the indices of all elements.
  std::vector<CombMatch> translated(std::vector<CombMatch> matches) const;

 private:
  std::span<const CombElement> elements_;
  std::uint32_t order_;
  /// The place of each of them among all elements.
  std::vector<std::uint32_t> places_;
};

}  // namespace kov
