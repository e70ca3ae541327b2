#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>

#include "numbers/vector_dispatch.h"

namespace kov {

/// The range of every exact integer result, one short of the machine range on both sides and
/// deliberately asymmetric.
inline constexpr std::int32_t nu_max_int = INT32_MAX - 1;
inline constexpr std::int32_t nu_min_int = INT32_MIN + 1;

/// Whether an exact result may have this value.
constexpr bool in_exact_range(std::int64_t value) { return nu_min_int <= value && value <= nu_max_int; }

/// 1 when an integer held by a double is in the exact range, else 0: without a branch, for vectors.
KOV_INLINE inline unsigned within_exact_range(double x) {
  return static_cast<unsigned>(x >= double{nu_min_int}) & static_cast<unsigned>(x <= double{nu_max_int});
}
KOV_INLINE inline unsigned not_above_exact_range(double x) {
  return static_cast<unsigned>(x <= double{nu_max_int});
}

/// Start-up check of the lower limit; throws program_error "nu_min_int<0 necessary" when it is not
/// negative.
void require_negative_minimum(std::int32_t minimum);

/// Set by the checked operations when a result leaves the exact range, and never cleared by them:
/// every exact operation clears it before its checked steps and reads it after them; one flag a
/// thread.
inline constinit thread_local bool ratyp_overflow = false;

/// Records the overflow and gives the placeholder that stands for the lost result.
inline std::int32_t integer_overflow() {
  ratyp_overflow = true;
  return 1;
}

/// a + b, or 1 with ratyp_overflow set. A sum of operands of opposite sign always fits in 32 bits and
/// is not tested against the range; a zero counts as opposite to anything, but for 0 + b with b < 0.
inline std::int32_t add_checked(std::int32_t a, std::int32_t b) {
  if (a > 0 && b > 0) return nu_max_int - b < a ? integer_overflow() : a + b;
  if (a <= 0 && b < 0) return nu_min_int - b > a ? integer_overflow() : a + b;
  return a + b;
}

/// a * b, or 1 with ratyp_overflow set. The quotient of the limit and one operand is what the other
/// operand is compared with, so nothing ever overflows.
inline std::int32_t mul_checked(std::int32_t a, std::int32_t b) {
  bool allowed = false;
  if (a > 0) {
    allowed = b > 0 ? nu_max_int / b >= a : nu_min_int / a <= b;
  } else if (b > 0) {
    allowed = nu_min_int / b <= a;
  } else {
    if (b == 0) return 0;
    allowed = nu_max_int / b <= a;
  }
  return allowed ? a * b : integer_overflow();
}

/// |a|. Unsigned, since the magnitude of the smallest 32-bit integer does not fit in a signed one.
constexpr std::uint32_t magnitude(std::int32_t a) {
  const auto bits = static_cast<std::uint32_t>(a);
  return a < 0 ? 0U - bits : bits;
}

/// The greatest common divisor of |a| and |b|; gcd(a, 0) = |a|. At most 2147483648, and that only when
/// neither has another magnitude than this or 0. One division makes the two alike in size, the rest is
/// subtraction of odd numbers, whose difference loses a bit at least: a step costs a tenth of a division.
constexpr std::uint32_t gcd(std::int32_t a, std::int32_t b) {
  std::uint32_t x = magnitude(a);
  std::uint32_t y = magnitude(b);
  if (y == 0) return x;
  x %= y;
  if (x == 0) return y;
  const int common_twos = std::countr_zero(x | y);
  x >>= std::countr_zero(x);
  y >>= std::countr_zero(y);
  while (x != y) {
    const std::uint32_t difference = x > y ? x - y : y - x;
    y = std::min(x, y);
    x = difference >> std::countr_zero(difference);
  }
  return x << common_twos;
}

/// a / divisor, for a divisor that is not 0 and divides a; signed division cannot take the divisors
/// above the largest signed integer that gcd may give.
constexpr std::int32_t divide_exactly(std::int32_t a, std::uint32_t divisor) {
  if (divisor == 1) return a;  // most often, and the division is what an operation spends its time on
  const std::uint32_t quotient = magnitude(a) / divisor;
  return static_cast<std::int32_t>(a < 0 ? 0U - quotient : quotient);
}

}  // namespace kov
