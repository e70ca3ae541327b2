#include "tools/best_matches.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kov {

bool met_before(const CombMatch& a, const CombMatch& b) {
  const auto differs = std::mismatch(a.members.rbegin(), a.members.rend(), b.members.rbegin());
  return differs.first == a.members.rend() ? a.plus < b.plus : *differs.first < *differs.second;
}

double BestMatches::bound() const {
  return full() ? kept_.back().match.difference : std::numeric_limits<double>::infinity();
}

std::size_t BestMatches::place_of(double difference) const {
  const auto nearer = [](const Kept& kept, double limit) { return kept.match.difference < limit; };
  return static_cast<std::size_t>(std::lower_bound(kept_.begin(), kept_.end(), difference, nearer) -
                                  kept_.begin());
}

bool BestMatches::may_enter(double difference, std::uint64_t group) const {
  if (difference > bound()) return false;
  if (difference == bound() && !ties_count(group)) return false;
  if (!one_per_difference_) return true;
  const std::size_t place = place_of(difference);
  return place == kept_.size() || kept_[place].match.difference != difference || kept_[place].group == group;
}

void BestMatches::offer(CombMatch match, std::uint64_t group) {
  std::size_t place = place_of(match.difference);
  const auto tie = [&] { return place < kept_.size() && kept_[place].match.difference == match.difference; };
  if (one_per_difference_ && tie()) {
    if (met_before(match, kept_[place].match)) kept_[place] = {std::move(match), group};
    return;
  }
  while (tie() && met_before(kept_[place].match, match)) ++place;
  if (place == limit_) return;
  if (full()) kept_.pop_back();
  kept_.insert(kept_.begin() + static_cast<std::ptrdiff_t>(place), {std::move(match), group});
}

bool BestMatches::complete(double step) const {
  const double smallest_ones = one_per_difference_ ? static_cast<double>(limit_ - 1) * step : 0.0;
  return full() && bound() <= smallest_ones;
}

void BestMatches::merge(const BestMatches& other) {
  for (const Kept& kept : other.kept_) offer(kept.match, kept.group);
}

std::vector<CombMatch> BestMatches::matches() const {
  std::vector<CombMatch> all;
  all.reserve(kept_.size());
  for (const Kept& kept : kept_) all.push_back(kept.match);
  return all;
}

}  // namespace kov
