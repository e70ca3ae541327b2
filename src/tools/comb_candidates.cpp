#include "tools/comb_candidates.h"

#include <algorithm>
#include <cmath>

namespace kov {

CombCandidates::CombCandidates(const Lmap& lmap, const KeyBox& range) {
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    if (!range.contains(point.key())) continue;
    const double re = to_double(point.quantity().re);
    if (std::isfinite(re)) sorted_.emplace_back(re, point);
  }
  std::stable_sort(sorted_.begin(), sorted_.end(),
                   [](const auto& a, const auto& b) { return a.first > b.first; });
}

std::vector<CombElement> CombCandidates::largest(std::size_t a) const {
  std::vector<CombElement> elements;
  elements.reserve(a);
  for (std::size_t i = 0; i < a; ++i) {
    const auto& [re, point] = sorted_[i];
    elements.push_back({.re = re, .square = re * re, .key = point.key()});
  }
  return elements;
}

}  // namespace kov
