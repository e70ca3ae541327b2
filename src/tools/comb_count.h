#pragma once

#include <cstdint>
#include <string>

namespace kov {

/// C(a, k) * 2^k: in how many ways k of a elements can be chosen, each with a plus or minus sign. Computed
/// factor by factor, so that no intermediate result exceeds twice a * the final one: exact as long as that
/// stays below 2^53, and infinite only where the number itself is beyond the largest double. 0 for k > a.
double pm_combinations(std::int64_t a, int k);

/// The sum of pm_combinations(a, k) for k = 1 ... b.
double pm_combinations_up_to(std::int64_t a, int b);

/// A count as people read it: all its digits below 2^53, else 15 of them.
std::string count_text(double count);

}  // namespace kov
