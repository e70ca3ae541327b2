#pragma once

#include <atomic>
#include <cstdint>
#include <limits>
#include <vector>

#include "tools/best_matches.h"
#include "tools/order_terms.h"
#include "tools/suffix_walk.h"

namespace kov {

/// The largest difference that may still be of interest, for all threads of a search. Only ever sinks.
class SharedBound {
 public:
  double get() const { return bound_.load(std::memory_order_relaxed); }
  void lower_to(double bound);

 private:
  std::atomic<double> bound_ = std::numeric_limits<double>::infinity();
};

/// What one thread finds in the blocks it is given, which must come in the order of the walk.
class BlockSearch {
 public:
  BlockSearch(const OrderTerms& terms, const CombRules& rules, SharedBound& bound)
      : terms_(terms), shared_(bound), best_(rules.nearest, rules.one_per_difference) {}

  void search(const SuffixWalk::Block& block);

  const BestMatches& best() const { return best_; }
  /// True when nothing behind the blocks that were dealt out so far can enter the list.
  bool complete() const { return best_.complete(terms_.tolerance().step()); }

 private:
  /// A sum of the last members of a combination, and their signs.
  struct Partial {
    double sum = 0.0;
    std::uint64_t plus = 0;
  };

  double window(double partial, double reach) const;
  void sum_up_upper(const SuffixWalk::Block& block);
  /// Adds element as the member at position m to every partial sum, with each sign, and keeps what may
  /// still become something.
  void add_member(std::uint32_t element, std::uint32_t m);
  void try_low_member(std::uint32_t t, const SuffixWalk::Block& block);
  void complete_by_half_sum(const Partial& partial, std::uint32_t t, const SuffixWalk::Block& block);
  void test(const Partial& partial, std::uint32_t number, std::uint32_t t, const SuffixWalk::Block& block);

  const OrderTerms& terms_;
  SharedBound& shared_;
  BestMatches best_;
  std::vector<Partial> partials_;
  std::vector<Partial> extended_;
  /// The choice of members in the positions from low on, as a number that ascends with the enumeration.
  std::uint64_t group_ = 0;
};

}  // namespace kov
