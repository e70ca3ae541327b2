#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "graphs/colour_ramp.h"
#include "interact/messages.h"

namespace kov {

/// What two floating values may differ by, relative to their size, before anybody is warned.
inline constexpr double floating_tolerance = 100 * std::numeric_limits<double>::epsilon();

/// A little smaller than q: q - |eps * q|, and -eps for 0.
inline double littlesm(double q) {
  return q == 0 ? -floating_tolerance : q - std::abs(floating_tolerance * q);
}
/// A little greater than q: q + |eps * q|, and eps for 0.
inline double littlegr(double q) {
  return q == 0 ? floating_tolerance : q + std::abs(floating_tolerance * q);
}

inline constexpr int fclimit_count = 961;

/// Which values get which colour: 961 thresholds, ascending but not strictly, spread evenly over a ramp of
/// colours. Between two thresholds the colour changes linearly with the value.
class ColourScale {
 public:
  using Thresholds = std::array<double, fclimit_count>;

  explicit ColourScale(const ColourRamp& ramp) : ramp_(ramp) {}

  /// Every distinct value gets the same share of the ramp, whatever its distance to the next. The values, of
  /// which there is one at least, are finite.
  void Set_equally_distributed_fclimit(std::vector<double> values, Messages& messages);
  /// The ramp is spread evenly from the smallest to the largest value.
  void set_linear_fclimit(double smallest, double largest);

  /// The largest value.
  double top() const { return top_; }
  const Thresholds& fclimit() const { return fclimit_; }
  const ColourRamp& ramp() const { return ramp_; }

  /// The colour of a value. One outside the table gets that of the table's end.
  Colour colour_of(double q) const;
  /// Likewise; warns of a value that lies outside by more than rounding errors, and reports an invalid mode.
  Colour color_from_fcl_table(double q, Messages& messages) const;

  /// The colour of q where fclimit[i] <= q < fclimit[i + 1].
  Colour colour_between(std::size_t i, double q) const;

 private:
  ColourRamp ramp_;
  Thresholds fclimit_{};
  double top_ = 0;
};

/// The index of the last threshold of the k-th value: integer part of k * step. One beyond the table is a
/// program error and taken as the last one.
int threshold_index(double k, double step, Messages& messages);

}  // namespace kov
