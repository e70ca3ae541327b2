#include "tools/sum_tolerance.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kov {
namespace {

constexpr double unit_roundoff = std::numeric_limits<double>::epsilon() / 2;

/// The largest power of two that a finite value other than 0 is a multiple of, as its exponent.
int lowest_bit(double value) {
  int exponent = 0;
  constexpr int digits = std::numeric_limits<double>::digits;
  auto mantissa = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(value), &exponent), digits));
  exponent -= digits;
  for (; mantissa % 2 == 0; mantissa /= 2) ++exponent;
  return exponent;
}

/// The largest power of two of which 1 and all values are multiples; 0 for one that is too small to be of
/// use, or where a value is infinite.
double common_grid(std::span<const double> values) {
  constexpr int finest = -std::numeric_limits<double>::digits;
  int exponent = 0;
  for (const double value : values) {
    if (!std::isfinite(value)) return 0.0;
    if (value != 0.0) exponent = std::min(exponent, lowest_bit(value));
    if (exponent < finest) return 0.0;
  }
  return std::ldexp(1.0, exponent);
}

}  // namespace

SumTolerance::SumTolerance(std::span<const double> values, std::uint32_t members)
    : error_((4.0 * members + 16.0) * unit_roundoff) {
  const double grid = common_grid(values);
  double largest = 0.0;
  for (const double value : values) largest = std::max(largest, std::fabs(value));
  // What is compared is made of up to four such sums: a partial sum, a reach, a bound and 1.
  const double size = 4.0 * (1.0 + members * largest);
  if (size * unit_roundoff <= grid) grid_ = grid;
}

double SumTolerance::step() const { return exact() ? grid_ : unit_roundoff; }

double SumTolerance::window(double bound, bool bound_included, double partial, double reach) const {
  if (exact()) return bound_included ? bound : bound - grid_;
  return bound + error_ * (1.0 + std::fabs(partial) + reach + bound);
}

Reach::Reach(std::span<const double> values, std::uint32_t most)
    : most_(most), table_((values.size() + 1) * (most_ + 1), 0.0) {
  std::vector<double> largest;  // descending
  for (std::size_t t = 1; t <= values.size(); ++t) {
    const double size = std::fabs(values[t - 1]);
    largest.insert(std::upper_bound(largest.begin(), largest.end(), size, std::greater<>()), size);
    if (largest.size() > most_) largest.pop_back();
    double* const row = table_.data() + t * (most_ + 1);
    for (std::size_t m = 1; m <= most_; ++m) {
      row[m] = row[m - 1] + (m <= largest.size() ? largest[m - 1] : 0.0);
    }
  }
}

}  // namespace kov
