#pragma once

#include <cstdint>

namespace kov {

/// An unsigned integer of 128 bits, which both compilers have though the standard has not.
__extension__ using uint128 = unsigned __int128;

/// 10^p lies in [significand, significand + power_of_ten_error) * 2^exponent; the significand has its highest
/// bit set.
struct PowerOfTen {
  uint128 significand;
  int exponent;
};

inline constexpr int largest_power_of_ten = 340;
inline constexpr std::uint64_t power_of_ten_error = 1024;

/// -largest_power_of_ten <= p <= largest_power_of_ten
PowerOfTen power_of_ten(int p) noexcept;

/// The upper 128 bits of the 192 bits of a product.
constexpr uint128 upper_product(std::uint64_t a, uint128 b) noexcept {
  const uint128 low = uint128{a} * static_cast<std::uint64_t>(b);
  const uint128 high = uint128{a} * static_cast<std::uint64_t>(b >> 64);
  return high + (low >> 64);
}

}  // namespace kov
