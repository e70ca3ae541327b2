#pragma once

#include <cmath>
#include <cstdint>

#include "numbers/cotyp.h"
#include "numbers/vector_dispatch.h"

namespace kov {

/// A real number, a fraction or a double, whose imaginary part is a zero of either state. New: an absent
/// point. All of it is in doubles: they hold integers of 32 bits, and what is beyond the exact range in the
/// numbers is so in their rounded product.
struct FractionSum {
  /// The numerator, or the floating number.
  double number = 0.0;
  /// The denominator, or floating_form; with a minus where the imaginary zero is floating.
  double form = 1.0;

  static constexpr double floating_form = 0.5;

  /// The real part is.
  KOV_INLINE bool exact() const { return std::abs(form) >= 1.0; }
  KOV_INLINE bool exact_imaginary() const { return form > 0.0; }
  KOV_INLINE bool both_exact() const { return form >= 1.0; }
  /// What the number is to be divided by: 1 when it is floating. As a sum, since compilers that see a 1 skip
  /// the division by a branch, which no vector can take.
  KOV_INLINE double divisor() const {
    const double magnitude = std::abs(form);
    return magnitude + (magnitude < 1.0 ? 1.0 - floating_form : 0.0);
  }
  KOV_INLINE double value() const { return number / divisor(); }
  /// While exact().
  std::int32_t numerator() const { return static_cast<std::int32_t>(number); }
  std::int32_t denominator() const { return static_cast<std::int32_t>(divisor()); }
};

KOV_INLINE inline bool is_absent(const FractionSum& sum) { return sum.number == 0.0; }

/// A quantity whose imaginary part is a zero. Its form may tell, as that of no sum does, that the real part
/// is exact and the imaginary one floating.
FractionSum fraction_sum(const cotyp& q);

}  // namespace kov
