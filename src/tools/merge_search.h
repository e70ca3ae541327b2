#pragma once

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

  /// Completes a sum of the top members of choice by so many members among the middle elements, and the
  /// others among the low ones.
  void search(const PartialSum& partial, const TopWalk::Choice& choice, std::uint32_t middle_members);

  /// What of it may be among the nearest.
  const BestMatches& found() const { return found_; }

 private:
  /// Between which bounds a sum of middle and low members is of interest.
  struct Limits {
    double lowest;
    double highest;
  };
  /// One sum of the top members, and the lists that complete it.
  struct Meeting {
    const PartialSum& partial;
    const TopWalk::Choice& choice;
    const NumberedSums& middle;
    const NumberedSums& low;
  };

  Limits limits(const Meeting& meeting) const;
  void walk(const Meeting& meeting);
  /// Tests sum i of the middle members with the low sums below end, the largest first, down to the limits.
  void test_downwards(const Meeting& meeting, std::size_t i, std::size_t end, Limits& limits);
  /// True when it was kept.
  bool test(const Meeting& meeting, std::uint32_t middle_number, std::uint32_t low_number);

  const OrderTerms& terms_;
  const ElementHalves& halves_;
  SharedBound& shared_;
  const BestMatches& before_;
  BestMatches found_;
};

}  // namespace kov
