#include "numbers/quick_floating.h"

#include <array>
#include <bit>
#include <cstddef>

#include "numbers/powers_of_ten.h"

namespace kov {
namespace {

constexpr int fraction_bits = 52;
constexpr std::uint64_t hidden_bit = std::uint64_t{1} << fraction_bits;
constexpr int exponent_bias = 1023;
/// So far from the ends of the doubles nothing needs care.
constexpr int safe_binary_exponent = 1000;
constexpr int safe_decimal_exponent = 280;

/// A product lies in [upper, upper + product_error) * 2^exponent when a power of ten is a factor.
constexpr std::uint64_t product_error = power_of_ten_error + 1;

struct Product {
  uint128 upper;
  int exponent;
};

/// The significand has its highest bit set.
Product times_power_of_ten(std::uint64_t significand, int p) noexcept {
  const PowerOfTen power = power_of_ten(p);
  return {upper_product(significand, power.significand), power.exponent + 64};
}

/// What a product becomes without its lowest bits, 64 ... 127 of them, rounded to the nearest integer;
/// nothing when the error decides about that.
std::optional<std::uint64_t> rounded(uint128 upper, int dropped_bits) noexcept {
  const uint128 half = uint128{1} << (dropped_bits - 1);
  const uint128 dropped = upper & (2 * half - 1);
  const auto kept = static_cast<std::uint64_t>(upper >> dropped_bits);
  if (dropped > half) return kept + 1;
  if (dropped + product_error <= half) return kept;
  return std::nullopt;
}

/// The largest k with 10^k <= 2^e, for |e| <= 1100.
constexpr int decimal_exponent(int e) noexcept { return (e * 315653) >> 20; }

constexpr std::uint64_t ten_to_15 = 1'000'000'000'000'000;

/// All powers of ten that are doubles, and so exact factors and divisors.
constexpr std::array exact_powers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                     1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

}  // namespace

std::optional<Decimal15> decimal15(double value) noexcept {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const int e = static_cast<int>((bits >> fraction_bits) & 0x7ff) - exponent_bias;
  if (e < -safe_binary_exponent || e > safe_binary_exponent) return std::nullopt;
  // With its highest bit set: value = significand * 2^(e - 63).
  const std::uint64_t significand = (bits | hidden_bit) << 11;
  // Of two neighbouring exponents the first one that does not give 16 digits.
  for (int k = decimal_exponent(e);; ++k) {
    const Product product = times_power_of_ten(significand, 14 - k);
    const auto digits = rounded(product.upper, -(product.exponent + e - 63));
    if (!digits) return std::nullopt;
    if (*digits < ten_to_15) return Decimal15{*digits, k};
  }
}

std::optional<double> nearest_double(std::uint64_t significand, int exponent) noexcept {
  constexpr int most = static_cast<int>(exact_powers.size()) - 1;
  if (significand <= 2 * hidden_bit && -most <= exponent && exponent <= most) {
    const auto exact = static_cast<double>(significand);
    return exponent < 0 ? exact / exact_powers[static_cast<std::size_t>(-exponent)]
                        : exact * exact_powers[static_cast<std::size_t>(exponent)];
  }
  if (significand == 0) return 0.0;
  if (exponent < -safe_decimal_exponent || exponent > safe_decimal_exponent) return std::nullopt;
  const int unused_bits = std::countl_zero(significand);
  const Product product = times_power_of_ten(significand << unused_bits, exponent);
  // 53 bits are kept; two factors with their highest bits set have a product of 128 bits or one less.
  const int dropped_bits = (product.upper >> 127) != 0 ? 75 : 74;
  const auto kept = rounded(product.upper, dropped_bits);
  if (!kept) return std::nullopt;
  const int e = product.exponent - unused_bits + dropped_bits + fraction_bits;
  // The hidden bit, or twice it after rounding up, adds to the exponent.
  const auto biased = static_cast<std::uint64_t>(e + exponent_bias - 1);
  return std::bit_cast<double>((biased << fraction_bits) + *kept);
}

}  // namespace kov
