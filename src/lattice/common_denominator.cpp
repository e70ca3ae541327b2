#include "lattice/common_denominator.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "numbers/checked_integer.h"
#include "numbers/vector_dispatch.h"

namespace kov {

namespace {

// So many are looked at together, since most often they have no denominator that is new.
constexpr std::size_t parts_of_look = 64;

// A quotient of integers of 31 bits is an integer when it does not change by being rounded to one.
bool all_divide(std::int32_t common, std::span<const Fraction32> parts) noexcept {
  bool divide = true;
  run_loop([&, numerator = static_cast<double>(common)]() KOV_INLINE {
    std::uint32_t others = 0;
    for (const Fraction32& part : parts) {
      const double quotient = numerator / static_cast<double>(part.de);
      others |= static_cast<double>(static_cast<std::int32_t>(quotient)) == quotient ? 0U : 1U;
    }
    divide = others == 0;
  });
  return divide;
}

// The product may be rounded, yet not into the range.
bool all_in_range_over(std::int32_t common, std::span<const Fraction32> parts) noexcept {
  bool in_range = true;
  run_loop([&, denominator = static_cast<double>(common)]() KOV_INLINE {
    std::uint32_t others = 0;
    for (const Fraction32& part : parts) {
      const double numerator = static_cast<double>(part.nu) * (denominator / static_cast<double>(part.de));
      const bool in = (numerator >= double{nu_min_int}) & (numerator <= double{nu_max_int});
      others |= in ? 0U : 1U;
    }
    in_range = others == 0;
  });
  return in_range;
}

}  // namespace

std::optional<std::int32_t> common_denominator(std::span<const Fraction32> parts) noexcept {
  std::int64_t common = 1;
  for (std::size_t first = 0; first < parts.size(); first += parts_of_look) {
    const auto some = parts.subspan(first, std::min(parts_of_look, parts.size() - first));
    if (all_divide(static_cast<std::int32_t>(common), some)) continue;
    for (const Fraction32& part : some) {
      common = std::lcm(common, std::int64_t{part.de});
      if (common > nu_max_int) return std::nullopt;
    }
  }
  const auto denominator = static_cast<std::int32_t>(common);
  if (denominator != 1 && !all_in_range_over(denominator, parts)) return std::nullopt;
  return denominator;
}

}  // namespace kov
