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

/// Both parts of a product are floating as soon as one of the four parts that it is made of is. The real part
/// is then still the exact product of two exact real parts, taken as a double.
KOV_INLINE inline FractionSum floating_product(const FractionSum& p, const FractionSum& q, double number,
                                               double divisor, bool exact) {
  const bool all_exact = (p.form >= 1.0) & (q.form >= 1.0);
  const double value = (exact ? number / divisor : p.value() * q.value()) + 0.0;
  const double form = all_exact ? FractionSum::floating_form : -FractionSum::floating_form;
  return {all_exact & exact ? number : value, all_exact & exact ? divisor : form};
}

/// The products of p, whose number is not 0, with each of the sources.
KOV_INLINE inline void multiply(const FractionSum& p, FractionRoom& room, std::size_t count) {
  if (!p.exact()) return multiply_floating(p.number, room, count);
  reduce_across(p, room, count);
  const FractionLanes& q = room.source;
  FractionLanes& product = room.product;
  std::uint64_t floating = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const double number = room.a_number[i] * room.b_number[i];
    const double divisor = room.a_divisor[i] * room.b_divisor[i];
    const bool exact = (q.form[i] >= 1.0) & in_exact_range(number) & (divisor <= double{nu_max_int});
    floating |= exact ? 0U : 1U;
    product.number[i] = number;
    product.form[i] = divisor;
  }
  if (floating == 0 && p.both_exact()) return;
  for (std::size_t i = 0; i < count; ++i) {
    const double number = product.number[i];
    const double divisor = product.form[i];
    const bool exact = q[i].exact() & in_exact_range(number) & (divisor <= double{nu_max_int});
    product.set(i, floating_product(p, q[i], number, divisor, exact));
  }
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

/// Adds the products to the sums. No number of either has an exact real part with a floating imaginary one.
KOV_INLINE inline void add(FractionRoom& room, std::size_t count) {
  constexpr double beyond_range = std::numeric_limits<double>::infinity();
  const FractionLanes& product = room.product;
  FractionLanes& sum = room.sum;
  const bool common = reduce_denominators(room, count);
  for (std::size_t i = 0; i < count; ++i) {
    const double sum_term = sum.number[i] * room.b_divisor[i];
    const double product_term = product.number[i] * room.a_divisor[i];
    const double number = sum_term + product_term;
    const bool exact = (sum.form[i] >= 1.0) & (product.form[i] >= 1.0) & in_exact_range(sum_term) &
                       in_exact_range(product_term) & in_exact_range(number);
    room.a_number[i] = exact ? number : 0.0;
    room.b_number[i] = exact ? std::max(product.form[i], 1.0) : beyond_range;
  }
  // Only a divisor of both denominators can still divide the numerator.
  if (common) {
    for (std::size_t i = 0; i < count; ++i) {
      room.pairs.set(i, std::abs(room.a_number[i]), room.divisor[i]);
    }
    if (find_divisors(room, count)) divide(room, &FractionRoom::a_number, &FractionRoom::b_number, count);
  }
  std::uint64_t floating = 0;
  for (std::size_t i = 0; i < count; ++i) {
    room.a_divisor[i] *= room.b_number[i];
    floating |= room.a_divisor[i] <= double{nu_max_int} ? 0U : 1U;
  }
  if (floating == 0) {
    for (std::size_t i = 0; i < count; ++i) sum.set(i, {room.a_number[i], room.a_divisor[i]});
    return;
  }
  for (std::size_t i = 0; i < count; ++i) {
    const bool exact = room.a_divisor[i] <= double{nu_max_int};
    const double value = sum[i].value() + product[i].value() + 0.0;
    const double form = (sum.form[i] > 0.0) & (product.form[i] > 0.0) ? FractionSum::floating_form
                                                                      : -FractionSum::floating_form;
    const double number = exact ? room.a_number[i] : value;
    sum.set(i, {number, number == 0.0 ? 1.0 : (exact ? room.a_divisor[i] : form)});
  }
}

}  // namespace kov
