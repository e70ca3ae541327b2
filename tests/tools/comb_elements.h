#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "tools/comb_candidates.h"

namespace kov {

/// Elements with these real parts, the largest first, at the points n = 0, 1, ... in the order given.
inline std::vector<CombElement> comb_elements(const std::vector<double>& real_parts) {
  std::vector<CombElement> elements;
  for (const double re : real_parts) {
    const auto n = static_cast<std::int32_t>(elements.size());
    elements.push_back({.re = re, .square = re * re, .key = Lk::at(0, n)});
  }
  std::stable_sort(elements.begin(), elements.end(),
                   [](const CombElement& a, const CombElement& b) { return a.re > b.re; });
  return elements;
}

}  // namespace kov
