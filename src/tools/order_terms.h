#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "tools/numbered_sums.h"
#include "tools/sum_tolerance.h"

namespace kov {

/// What a person chose of the matches.
struct CombRules {
  /// How many of the nearest sums are kept, at least 1.
  std::size_t nearest = 4;
  /// Of equally near sums the first met alone.
  bool one_per_difference = true;
  /// Sums of squares are tested besides.
  bool squares = false;
};

/// The numbers whose sums are compared with 1.0 in one order, and what is known of them before the search:
/// shared by all threads, and never changed by them.
class OrderTerms {
 public:
  /// The values of the elements, in their order.
  OrderTerms(std::vector<double> values, std::uint32_t order, Signs signs, const CombRules& rules);

  std::uint32_t order() const { return order_; }
  std::uint32_t count() const { return static_cast<std::uint32_t>(values_.size()); }
  double value(std::uint32_t element) const { return values_[element]; }
  std::span<const double> values() const { return values_; }
  Signs signs() const { return signs_; }
  bool with_minus() const { return signs_ == Signs::plus_and_minus; }
  const SumTolerance& tolerance() const { return tolerance_; }
  /// How many sums of some of the members are to be kept of those with the same value.
  std::size_t kept_of_equal() const { return kept_of_equal_; }
  /// The largest size that the members below position m can add when that at m is element t.
  double reach(std::uint32_t m, std::uint32_t t) const { return reach_(m, t); }

  /// The largest size of element t and those behind it.
  double largest_from(std::uint32_t t) const { return largest_from_[t]; }

  /// Whether partial + rest cannot come as near to 1.0 as window allows, where rest is a sum of m members
  /// before element t.
  bool out_of_reach(double partial, double window, std::uint32_t m, std::uint32_t t) const {
    const double highest = partial + reach(m, t);
    const double lowest = with_minus() ? partial - reach(m, t) : partial;
    return highest < 1.0 - window || lowest > 1.0 + window;
  }

  /// sum with these members added to it, the last one first: bit i of plus is the sign of the i-th.
  double continued(double sum, std::span<const std::uint32_t> members, std::uint32_t plus) const {
    for (auto i = static_cast<std::uint32_t>(members.size()); i-- > 0;) {
      const double value = values_[members[i]];
      sum += (plus >> i & 1U) != 0 ? value : -value;
    }
    return sum;
  }

 private:
  std::uint32_t order_;
  std::vector<double> values_;
  Signs signs_;
  std::vector<double> largest_from_;
  SumTolerance tolerance_;
  Reach reach_;
  std::size_t kept_of_equal_;
};

}  // namespace kov
