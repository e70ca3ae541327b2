#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "algadd/fraction_sum.h"
#include "numbers/batch_gcd.h"
#include "numbers/checked_integer.h"
#include "numbers/vector_dispatch.h"

namespace kov {

// Products and sums of ratyp for many numbers at once, in loops that run_loop compiles for vectors. The steps
// are those of one number: what some number needs is done for all, and what none needs is left out.

/// Numbers and their forms, each apart.
struct FractionLanes {
  static constexpr std::size_t capacity = GcdBatch::capacity;
  alignas(64) std::array<double, capacity> number;
  alignas(64) std::array<double, capacity> form;

  KOV_INLINE FractionSum operator[](std::size_t i) const { return {number[i], form[i]}; }
  KOV_INLINE void set(std::size_t i, const FractionSum& sum) {
    number[i] = sum.number;
    form[i] = sum.form;
  }
};

/// Products and sums that are made together, and what they are made with.
struct FractionRoom {
  using Numbers = std::array<double, FractionLanes::capacity>;
  FractionLanes source;
  FractionLanes product;
  FractionLanes sum;
  GcdBatch pairs;
  alignas(64) Numbers divisor;
  // The two fractions with the common divisors taken out.
  alignas(64) Numbers a_number;
  alignas(64) Numbers a_divisor;
  alignas(64) Numbers b_number;
  alignas(64) Numbers b_divisor;
};

/// Finds the divisors of the pairs. Whether one of them is not 1.
KOV_INLINE inline bool find_divisors(FractionRoom& room, std::size_t count) {
  batch_gcd(room.pairs, count);
  std::uint32_t others = 0;
  for (std::size_t i = 0; i < count; ++i) {
    others |= room.pairs.x[i] ^ 1U;
    room.divisor[i] = static_cast<double>(static_cast<std::int32_t>(room.pairs.x[i]));
  }
  return others != 0;
}

/// Takes the divisors out of two numbers each, which they divide.
KOV_INLINE inline void divide(FractionRoom& room, FractionRoom::Numbers FractionRoom::*a,
                              FractionRoom::Numbers FractionRoom::*b, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    (room.*a)[i] /= room.divisor[i];
    (room.*b)[i] /= room.divisor[i];
  }
}

/// Floating products by a floating factor.
KOV_INLINE inline void multiply_floating(double p, FractionRoom& room, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    room.product.set(i, {p * room.source[i].value() + 0.0, -FractionSum::floating_form});
  }
}

/// Takes the common divisors out of the factor p, as a, and the sources, as b, across. The numerator of p is
/// not 0.
KOV_INLINE inline void reduce_across(const FractionSum& p, FractionRoom& room, std::size_t count) {
  const FractionLanes& q = room.source;
  for (std::size_t i = 0; i < count; ++i) {
    room.a_number[i] = p.number;
    room.a_divisor[i] = p.divisor();
    room.b_number[i] = q[i].exact() ? q.number[i] : 0.0;
    room.b_divisor[i] = q[i].divisor();
  }
  if (p.divisor() != 1.0) {
    for (std::size_t i = 0; i < count; ++i) {
      room.pairs.set(i, std::abs(room.b_number[i]), p.divisor());
    }
    if (find_divisors(room, count)) divide(room, &FractionRoom::a_divisor, &FractionRoom::b_number, count);
  }
  const double magnitude = std::abs(p.number);
  if (magnitude != 1.0) {
    for (std::size_t i = 0; i < count; ++i) {
      const double smaller = std::min(magnitude, room.b_divisor[i]);
      room.pairs.set(i, std::max(magnitude, room.b_divisor[i]), smaller);
    }
    if (find_divisors(room, count)) divide(room, &FractionRoom::a_number, &FractionRoom::b_divisor, count);
  }
}

/// 1 while a real part is exact, else 0.
KOV_INLINE inline unsigned exact_real(double form) { return static_cast<unsigned>(std::abs(form) >= 1.0); }
/// 1 while both parts are exact, else 0.
KOV_INLINE inline unsigned exact_parts(double form) { return static_cast<unsigned>(form >= 1.0); }

/// 1 when numbers of the exact range have given a fraction that is in the range too, else 0.
KOV_INLINE inline unsigned in_range(double number, double divisor) {
  return within_exact_range(number) & not_above_exact_range(divisor);
}

/// Both parts of a product are floating as soon as one of the four parts that it is made of is. The real part
/// is then still the exact product of two exact real parts, taken as a double.
KOV_INLINE inline void make_floating(const FractionSum& p, FractionRoom& room, std::size_t count) {
  const double value = p.value();
  // Divisions stand in loops of their own: by conditions compilers skip them, and then take no vectors.
  for (std::size_t i = 0; i < count; ++i) {
    room.a_number[i] = room.product.number[i] / room.product.form[i] + 0.0;
    room.b_number[i] = value * room.source[i].value() + 0.0;
  }
  const unsigned exact_factor = exact_parts(p.form);
  for (std::size_t i = 0; i < count; ++i) {
    const double number = room.product.number[i];
    const double divisor = room.product.form[i];
    const unsigned exact = exact_real(room.source.form[i]) & in_range(number, divisor);
    const unsigned from_exact = exact_factor & exact_parts(room.source.form[i]);
    const double floating = exact != 0 ? room.a_number[i] : room.b_number[i];
    const double form = from_exact != 0 ? FractionSum::floating_form : -FractionSum::floating_form;
    room.product.number[i] = (exact & from_exact) != 0 ? number : floating;
    room.product.form[i] = (exact & from_exact) != 0 ? divisor : form;
  }
}

/// The products of p, whose number is not 0, with each of the sources.
KOV_INLINE inline void multiply(const FractionSum& p, FractionRoom& room, std::size_t count) {
  if (!p.exact()) return multiply_floating(p.number, room, count);
  reduce_across(p, room, count);
  unsigned all_exact = exact_parts(p.form);
  for (std::size_t i = 0; i < count; ++i) {
    const double number = room.a_number[i] * room.b_number[i];
    const double divisor = room.a_divisor[i] * room.b_divisor[i];
    all_exact &= exact_parts(room.source.form[i]) & in_range(number, divisor);
    room.product.number[i] = number;
    room.product.form[i] = divisor;
  }
  if (all_exact == 0) make_floating(p, room, count);
}

/// Takes the common divisors out of the denominators of the sums, as a, and of the products, as b; floating
/// numbers and absent points have 1. Whether there is one that is not 1.
KOV_INLINE inline bool reduce_denominators(FractionRoom& room, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const double a_divisor = std::max(room.sum.form[i], 1.0);
    const double b_divisor = std::max(room.product.form[i], 1.0);
    room.pairs.set(i, std::max(a_divisor, b_divisor), std::min(a_divisor, b_divisor));
    room.a_divisor[i] = a_divisor;
    room.b_divisor[i] = b_divisor;
  }
  if (!find_divisors(room, count)) return false;
  divide(room, &FractionRoom::a_divisor, &FractionRoom::b_divisor, count);
  return true;
}

/// The sums that stay exact, as a and the denominators that they have before they are reduced by the divisor;
/// an infinite denominator for the others.
KOV_INLINE inline void add_exactly(FractionRoom& room, std::size_t count) {
  constexpr double beyond_range = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < count; ++i) {
    const double sum_term = room.sum.number[i] * room.b_divisor[i];
    const double product_term = room.product.number[i] * room.a_divisor[i];
    const double number = sum_term + product_term;
    const unsigned exact = exact_parts(room.sum.form[i]) & exact_parts(room.product.form[i]) &
                           within_exact_range(sum_term) & within_exact_range(product_term) &
                           within_exact_range(number);
    room.a_number[i] = exact != 0 ? number : 0.0;
    room.b_number[i] = exact != 0 ? std::max(room.product.form[i], 1.0) : beyond_range;
  }
}

/// Adds the products to the sums. No number of either has an exact real part with a floating imaginary one.
KOV_INLINE inline void add(FractionRoom& room, std::size_t count) {
  const bool common = reduce_denominators(room, count);
  add_exactly(room, count);
  // Only a divisor of both denominators can still divide the numerator.
  if (common) {
    for (std::size_t i = 0; i < count; ++i) {
      room.pairs.set(i, std::abs(room.a_number[i]), room.divisor[i]);
    }
    if (find_divisors(room, count)) divide(room, &FractionRoom::a_number, &FractionRoom::b_number, count);
  }
  unsigned all_exact = 1;
  for (std::size_t i = 0; i < count; ++i) {
    room.a_divisor[i] *= room.b_number[i];
    all_exact &= not_above_exact_range(room.a_divisor[i]);
  }
  if (all_exact != 0) {
    for (std::size_t i = 0; i < count; ++i) room.sum.set(i, {room.a_number[i], room.a_divisor[i]});
    return;
  }
  for (std::size_t i = 0; i < count; ++i) {
    room.b_number[i] = room.sum[i].value() + room.product[i].value() + 0.0;
  }
  for (std::size_t i = 0; i < count; ++i) {
    const bool exact = room.a_divisor[i] <= double{nu_max_int};
    const double imaginary = std::min(room.sum.form[i], room.product.form[i]);
    const double form = imaginary > 0.0 ? FractionSum::floating_form : -FractionSum::floating_form;
    const double number = exact ? room.a_number[i] : room.b_number[i];
    room.sum.number[i] = number;
    // What comes back to zero begins afresh.
    room.sum.form[i] = number == 0.0 ? 1.0 : (exact ? room.a_divisor[i] : form);
  }
}

}  // namespace kov
