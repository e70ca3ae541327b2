#pragma once

#include <cstdint>

namespace kov {

/// How a column holds its parts; the first that fits is the smallest.
enum class PartForm : std::uint8_t {
  /// Exact zeros, which take no place.
  zero,
  /// Floating zeros, which take no place either: a floating 0.0 is not an exact 0.
  floating_zero,
  /// Numerators over one denominator that all share, 4 bytes each.
  integers,
  /// Numerator and denominator, 8 bytes.
  fractions,
  /// 8 bytes.
  doubles,
  /// Zeros, some exact and some floating: a bit each.
  mixed_zeros,
  /// Integers and floating numbers: a double, which holds both, and a bit that tells which.
  mixed_integers,
  /// A fraction or a double in 8 bytes, and a bit that tells which.
  mixed
};

/// An exact value, reduced, its denominator positive.
struct Fraction32 {
  std::int32_t nu;
  std::int32_t de;
};

}  // namespace kov
