#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kov {

/// How far from 1.0 a sum that was put together from two halves may be when the sum taken in the defined
/// order, from the last member to the first, is to be within a bound.
///
/// Where all values are multiples of a power of two and small enough, sums of any order are exact and
/// equal. Otherwise rounding is accounted for: a sum of k members in whatever order is off by at most
/// k * 2^-53 of the sum of their sizes (N. J. Higham, Accuracy and Stability of Numerical Algorithms, 2nd
/// ed. 2002, section 4.2).
class SumTolerance {
 public:
  /// For sums of so many members of values.
  SumTolerance(std::span<const double> values, std::uint32_t members);

  /// Whether sums are exact.
  bool exact() const { return grid_ != 0.0; }
  /// Any difference from 1.0 below 0.5 is a multiple of this.
  double step() const;

  /// The largest distance from 1.0 at which partial + rest, |rest| <= reach, is still of interest, for
  /// differences up to bound, or below it. Infinite where nothing can be said. Also covers the rounding of
  /// whoever compares with it: a few operations on numbers of this size, and a reach that was summed up.
  double window(double bound, bool bound_included, double partial, double reach) const;

 private:
  double error_;
  double grid_ = 0.0;
};

/// The largest size that a sum of m of the first t values can have.
class Reach {
 public:
  /// For m = 0 ... most members.
  Reach(std::span<const double> values, std::uint32_t most);

  double operator()(std::uint32_t m, std::uint32_t t) const { return table_[t * (most_ + 1) + m]; }

 private:
  std::size_t most_;
  std::vector<double> table_;
};

}  // namespace kov
