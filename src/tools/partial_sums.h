#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tools/order_terms.h"

namespace kov {

/// A sum of the last members of a combination; bit i of plus is the sign of the member at position i.
struct PartialSum {
  double sum = 0.0;
  std::uint64_t plus = 0;
};

/// The sums of the last members of a combination with all their signs, those left out which the members
/// before them cannot bring near enough to 1.
class PartialSums {
 public:
  explicit PartialSums(const OrderTerms& terms) : terms_(terms) {}

  /// The sums of upper, the members at the last positions, ascending. window(sum, reach) tells how near to 1
  /// is near enough for a sum to which the members before can add reach.
  template <class Window>
  const std::vector<PartialSum>& sum_up(std::span<const std::uint32_t> upper, const Window& window) {
    sums_.assign(1, PartialSum{});
    auto position = terms_.order();
    for (std::size_t i = upper.size(); i-- > 0;) add_member(upper[i], --position, window);
    return sums_;
  }

 private:
  /// Adds element as the member at this position to every sum, with each sign.
  template <class Window>
  void add_member(std::uint32_t element, std::uint32_t position, const Window& window) {
    extended_.clear();
    const double value = terms_.value(element);
    const double reach = terms_.reach(position, element);
    const auto keep = [&](const PartialSum& partial) {
      if (!terms_.out_of_reach(partial.sum, window(partial.sum, reach), position, element)) {
        extended_.push_back(partial);
      }
    };
    for (const PartialSum& partial : sums_) {
      if (terms_.with_minus()) keep({partial.sum - value, partial.plus});
      keep({partial.sum + value, partial.plus | std::uint64_t{1} << position});
    }
    sums_.swap(extended_);
  }

  const OrderTerms& terms_;
  std::vector<PartialSum> sums_;
  std::vector<PartialSum> extended_;
};

}  // namespace kov
