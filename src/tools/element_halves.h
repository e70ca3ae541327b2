#pragma once

#include <cstdint>
#include <vector>

#include "tools/numbered_sums.h"
#include "tools/order_terms.h"

namespace kov {

/// The sorted sums of the low elements of a list and of those behind them, for every number of members that
/// combinations of one order can have among them.
class ElementHalves {
 public:
  /// The first low elements and the next middle ones; on two threads both are made at the same time.
  ElementHalves(const OrderTerms& terms, std::uint32_t low, std::uint32_t middle, unsigned threads);

  /// How many elements there are in both.
  std::uint32_t elements() const { return low_count_ + middle_count_; }
  std::uint32_t low_count() const { return low_count_; }
  std::uint32_t middle_count() const { return middle_count_; }

  /// The sums of so many members, which must be possible together with the others of the order.
  const NumberedSums& low(std::uint32_t members) const { return low_[members]; }
  const NumberedSums& middle(std::uint32_t members) const { return middle_[members]; }

 private:
  std::uint32_t low_count_;
  std::uint32_t middle_count_;
  std::vector<NumberedSums> low_;
  std::vector<NumberedSums> middle_;
};

}  // namespace kov
