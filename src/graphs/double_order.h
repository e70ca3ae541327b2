#pragma once

#include <bit>
#include <cstdint>

namespace kov {

/// An integer for each double that is a number, in the same order: for counting doubles, halving the distance
/// between two, and sorting them by their digits. -0.0 comes just before 0.0.
inline std::uint64_t order_of_double(double value) {
  constexpr std::uint64_t sign = std::uint64_t{1} << 63U;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  return (bits & sign) != 0 ? ~bits : bits | sign;
}

/// The double of such an integer.
inline double double_of_order(std::uint64_t order) {
  constexpr std::uint64_t sign = std::uint64_t{1} << 63U;
  return std::bit_cast<double>((order & sign) != 0 ? order & ~sign : ~order);
}

}  // namespace kov
