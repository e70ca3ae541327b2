#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "numbers/vector_dispatch.h"

namespace kov {

// Greatest common divisors of many pairs at once, in loops that run_loop compiles for vectors: where the
// algorithm for one pair waits for its own last step, many pairs take a step together.

/// How often 2 divides x, which is not 0 and below 2^31. It is the exponent of the lowest bit as a float: all
/// vector units can convert, few can count zeros.
KOV_INLINE inline std::uint32_t twos_of(std::uint32_t x) {
  const auto lowest = static_cast<float>(static_cast<std::int32_t>(x & (0U - x)));
  return (std::bit_cast<std::uint32_t>(lowest) >> 23U) - 127U;
}

/// The least |a - q b| for an integer q, exact: it has with b the divisors that a has. For integers 0 <= a <
/// 2^51 and 0 < b < 2^31. The sum with 2^52 rounds a quotient to an integer; one that lies half-way between
/// two may go either way.
KOV_INLINE inline double least_remainder(double a, double b) {
  constexpr double integers_from = 4503599627370496.0;
  const double q = (a / b + integers_from) - integers_from;
  return std::abs(a - q * b);
}

/// Pairs of numbers below 2^31, and room to find their divisors in.
struct GcdBatch {
  static constexpr std::size_t capacity = 128;
  /// Not 0. Their divisors afterwards.
  alignas(64) std::array<std::uint32_t, capacity> x;
  /// May be 0.
  alignas(64) std::array<std::uint32_t, capacity> y;
  alignas(64) std::array<std::uint32_t, capacity> twos;

  /// Sets pair i to integers with the common divisors of a and b: 0 <= a < 2^51, 0 < b < 2^31. Best where a
  /// is not much smaller than b.
  KOV_INLINE void set(std::size_t i, double a, double b) {
    x[i] = static_cast<std::uint32_t>(static_cast<std::int32_t>(b));
    y[i] = static_cast<std::uint32_t>(static_cast<std::int32_t>(least_remainder(a, b)));
  }
};

/// Finds the greatest common divisors of the first count pairs.
///
/// The binary algorithm (J. Stein, Computational problems associated with Racah algebra, Journal of
/// Computational Physics 1 (1967) 397-405; D. E. Knuth, The Art of Computer Programming 2, section 4.5.2,
/// algorithm B): odd numbers are subtracted, and the difference, which is even, loses its twos. All pairs
/// take their steps together until the slowest is done, after as many as its numbers have bits together at
/// most. A remainder should stand in y where numbers may be of unlike size.
KOV_INLINE inline void batch_gcd(GcdBatch& batch, std::size_t count) {
  std::uint32_t left = 0;
  for (std::size_t i = 0; i < count; ++i) left |= batch.y[i];
  if (left == 0) return;
  for (std::size_t i = 0; i < count; ++i) {
    batch.twos[i] = twos_of(batch.x[i] | batch.y[i]);
    batch.x[i] >>= twos_of(batch.x[i]);
    batch.y[i] = batch.y[i] != 0 ? batch.y[i] : batch.x[i];
  }
  while (left != 0) {
    left = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const std::uint32_t x = batch.x[i];
      const std::uint32_t y = batch.y[i] >> twos_of(batch.y[i]);
      const std::uint32_t smaller = std::min(x, y);
      const std::uint32_t difference = std::max(x, y) - smaller;
      batch.x[i] = smaller;
      // Two that have become one stay so.
      batch.y[i] = difference != 0 ? difference : smaller;
      left |= difference;
    }
  }
  for (std::size_t i = 0; i < count; ++i) batch.x[i] <<= batch.twos[i];
}

}  // namespace kov
