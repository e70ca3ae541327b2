#include "numbers/powers_of_ten.h"

#include <array>
#include <cstddef>

namespace kov {
namespace {

using Powers = std::array<PowerOfTen, std::size_t{2} * largest_power_of_ten + 1>;

constexpr uint128 highest_bit = uint128{1} << 127;

/// Ten times it, cut off. 5/8 or 5/4 of the significand: with q and r its quotient and remainder by 8,
/// nothing leaves the 128 bits.
constexpr PowerOfTen next_power(PowerOfTen power) noexcept {
  const uint128 eighth = power.significand / 8;
  const uint128 rest = power.significand % 8;
  const uint128 five_eighths = 5 * eighth + 5 * rest / 8;
  if (five_eighths >= highest_bit) return {five_eighths, power.exponent + 4};
  return {2 * five_eighths + 5 * rest / 4 % 2, power.exponent + 3};
}

/// A tenth of it, cut off: 8/5 or 4/5 of the significand, its highest bit being set.
constexpr PowerOfTen previous_power(PowerOfTen power) noexcept {
  const uint128 fifth = power.significand / 5;
  const uint128 rest = power.significand % 5;
  const uint128 four_fifths = 4 * fifth + 4 * rest / 5;
  if (four_fifths >= highest_bit) return {four_fifths, power.exponent - 3};
  return {2 * four_fifths + 8 * rest / 5 % 2, power.exponent - 4};
}

// A step multiplies the significand by 5/8, 5/4, 4/5 or 8/5 and cuts off less than 1, which is less than
// 2^-127 of what is left: after p steps less than p * 2^-127 of it is missing in all, 2 * p units at the
// most.
static_assert(std::uint64_t{2} * largest_power_of_ten < power_of_ten_error);

constexpr Powers powers = [] {
  Powers result{};
  constexpr std::size_t one = largest_power_of_ten;
  result[one] = {highest_bit, -127};
  for (std::size_t p = one; p + 1 < result.size(); ++p) result[p + 1] = next_power(result[p]);
  for (std::size_t p = one; p > 0; --p) result[p - 1] = previous_power(result[p]);
  return result;
}();

}  // namespace

PowerOfTen power_of_ten(int p) noexcept { return powers[static_cast<std::size_t>(p) + std::size_t{largest_power_of_ten}]; }

}  // namespace kov
