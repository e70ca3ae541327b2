#pragma once

#include <cstdint>
#include <optional>

namespace kov {

// The conversions of doubles that a data file is made of, by one multiplication with a power of ten known to
// 128 bits. Where what is missing of the power might decide how the result is rounded, which is next to never
// but for exact ties, they give nothing: the library knows then.

/// A positive double as its digits 1 ... 15 behind the point, correctly rounded:
/// significand * 10^(exponent - 14), where 10^14 <= significand < 10^15.
struct Decimal15 {
  std::uint64_t significand;
  int exponent;
};

/// Of a finite value that is not 0, by its magnitude.
std::optional<Decimal15> decimal15(double value) noexcept;

/// The double nearest to significand * 10^exponent.
std::optional<double> nearest_double(std::uint64_t significand, int exponent) noexcept;

}  // namespace kov
