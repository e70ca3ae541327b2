#pragma once

#include <cstdint>
#include <vector>

#include "tools/best_matches.h"
#include "tools/half_sums.h"
#include "tools/partial_sums.h"
#include "tools/shared_bound.h"
#include "tools/suffix_walk.h"

namespace kov {

/// What one thread finds in the blocks it is given, which must come in the order of the walk.
class BlockSearch {
 public:
  /// The first members are looked up in half.
  BlockSearch(const OrderTerms& terms, const HalfSums& half, const CombRules& rules, SharedBound& bound)
      : terms_(terms),
        half_(half),
        shared_(bound),
        best_(rules.nearest, rules.one_per_difference),
        upper_(terms) {}

  void search(const SuffixWalk::Block& block);

  const BestMatches& best() const { return best_; }
  /// True when nothing behind the blocks that were dealt out so far can enter the list.
  bool complete() const { return best_.complete(terms_.tolerance().step()); }

 private:
  double window(double partial, double reach) const;
  void complete_by_half_sum(const PartialSum& partial, std::uint32_t t, const SuffixWalk::Block& block);
  void test(const PartialSum& partial, std::uint32_t number, std::uint32_t t, const SuffixWalk::Block& block);

  const OrderTerms& terms_;
  const HalfSums& half_;
  SharedBound& shared_;
  BestMatches best_;
  PartialSums upper_;
  /// The choice of members in the positions from low on, as a number that ascends with the enumeration.
  std::uint64_t group_ = 0;
};

}  // namespace kov
