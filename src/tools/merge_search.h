#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "tools/best_matches.h"
#include "tools/element_halves.h"
#include "tools/partial_sums.h"
#include "tools/shared_bound.h"
#include "tools/top_walk.h"

namespace kov {

/// What one thread finds among the combinations of one choice of top members: two sorted lists are walked
/// against each other, the one upwards and the other downwards, so that their sums stay near what is missing
/// to 1. All sums must be finite.
class MergeSearch {
 public:
  /// before is what all choices before have left; it must stay as it is meanwhile.
  MergeSearch(const OrderTerms& terms, const ElementHalves& halves, const CombRules& rules,
              SharedBound& bound, const BestMatches& before)
      : terms_(terms),
        halves_(halves),
        shared_(bound),
        before_(before),
        found_(rules.nearest, rules.one_per_difference) {}

  /// How many sums are best completed at a time: while one waits for its lists, others go on.
  static constexpr std::size_t at_once = 4;

  /// Completes at_once sums at most of the top members of choice by so many members among the middle
  /// elements, and the others among the low ones.
  void search(std::span<const PartialSum> partials, const TopWalk::Choice& choice,
              std::uint32_t middle_members);

  /// What of it may be among the nearest.
  const BestMatches& found() const { return found_; }

 private:
  /// The lists that complete sums of the top members.
  struct Lists {
    const TopWalk::Choice& choice;
    const NumberedSums& middle;
    const NumberedSums& low;
  };
  /// How far one sum of the top members has got: low sums from end on are too large for middle sum i, and
  /// for all behind it.
  struct Walk {
    std::size_t i = 0;
    std::size_t end = 0;
    /// Between which bounds a sum of middle and low members is of interest.
    double lowest = 0.0;
    double highest = 0.0;
    PartialSum partial;
  };

  Walk begin(const PartialSum& partial, const Lists& lists) const;
  void set_bounds(Walk& walk, const Lists& lists) const;
  /// Tests middle sum i with the low sums that lie within the bounds.
  void test_middle_sum(Walk& walk, const Lists& lists);
  /// True when it was kept.
  bool test(const PartialSum& partial, const Lists& lists, std::uint32_t middle_number,
            std::uint32_t low_number);

  const OrderTerms& terms_;
  const ElementHalves& halves_;
  SharedBound& shared_;
  const BestMatches& before_;
  BestMatches found_;
};

}  // namespace kov
