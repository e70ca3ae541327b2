#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "tools/merge_search.h"

namespace kov {

/// One kind of sums, signed or of squares, in a search by element.
struct HalvedSums {
  OrderTerms terms;
  ElementHalves halves;
  SharedBound bound;
  /// What the choices so far have left.
  BestMatches best;
  PartialSums upper;

  HalvedSums(std::vector<double> values, std::uint32_t order, std::uint32_t low, std::uint32_t middle,
             Signs signs, const CombRules& rules, unsigned threads);

  /// True when nothing behind the choices so far can enter.
  bool complete() const { return best.complete(terms.tolerance().step()); }
};

using HalvedKinds = std::span<const std::unique_ptr<HalvedSums>>;

/// What is to be done for one choice of top members: their sums, some at once, meet the two lists, for each
/// number of members that can be among the middle elements. These meetings can be done in any order, at the
/// same time. Refers to the partial sums of the kinds: for one choice at a time.
class ChoiceWork {
 public:
  /// One meeting of two lists.
  struct Meeting {
    std::size_t kind = 0;
    std::span<const PartialSum> partials;
    std::uint32_t middle_members = 0;
    /// How many comparisons it takes.
    std::size_t comparisons = 0;
  };

  /// Kinds that are complete are left out.
  ChoiceWork(HalvedKinds kinds, const TopWalk::Choice& choice);

  /// How many meetings there are, and how many comparisons all of them take.
  std::size_t size() const { return size_; }
  std::size_t comparisons() const { return comparisons_; }
  /// Meeting i < size().
  Meeting operator[](std::size_t i) const;

 private:
  /// All partial sums of one kind with one number of middle members.
  struct Part {
    std::size_t kind;
    std::span<const PartialSum> partials;
    std::uint32_t middle_members;
    std::size_t comparisons_each;

    std::size_t meetings() const {
      return (partials.size() + MergeSearch::at_once - 1) / MergeSearch::at_once;
    }
  };

  std::vector<Part> parts_;
  std::size_t size_ = 0;
  std::size_t comparisons_ = 0;
};

}  // namespace kov
