#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "tools/half_sums.h"
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
  /// The values of the elements, in their order; the first low members of order are looked up.
  OrderTerms(std::vector<double> values, std::uint32_t order, std::uint32_t low, Signs signs,
             const CombRules& rules);

  std::uint32_t count() const { return static_cast<std::uint32_t>(values_.size()); }
  double value(std::uint32_t element) const { return values_[element]; }
  bool with_minus() const { return signs_ == Signs::plus_and_minus; }
  const HalfSums& half() const { return half_; }
  const SumTolerance& tolerance() const { return tolerance_; }
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

 private:
  std::vector<double> values_;
  Signs signs_;
  std::vector<double> largest_from_;
  SumTolerance tolerance_;
  Reach reach_;
  HalfSums half_;
};

}  // namespace kov
