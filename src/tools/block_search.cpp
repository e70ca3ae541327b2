#include "tools/block_search.h"

#include <algorithm>
#include <cmath>

namespace kov {

void BlockSearch::search(const SuffixWalk::Block& block) {
  group_ = block.before;
  const auto& partials =
      upper_.sum_up(block.upper, [this](double sum, double reach) { return window(sum, reach); });
  const std::uint64_t plus_bit = std::uint64_t{1} << half_.members();
  for (std::uint32_t t = block.first; t < block.end && !partials.empty(); ++t, ++group_) {
    const double value = terms_.value(t);
    for (const PartialSum& partial : partials) {
      if (terms_.with_minus()) complete_by_half_sum({partial.sum - value, partial.plus}, t, block);
      complete_by_half_sum({partial.sum + value, partial.plus | plus_bit}, t, block);
    }
  }
  shared_.lower_to(best_.bound());
}

double BlockSearch::window(double partial, double reach) const {
  const double own = best_.bound();
  const double shared = shared_.get();
  // A tie with what another thread has found may be met before it.
  return shared < own ? terms_.tolerance().window(shared, true, partial, reach)
                      : terms_.tolerance().window(own, best_.ties_count(group_), partial, reach);
}

void BlockSearch::complete_by_half_sum(const PartialSum& partial, std::uint32_t t,
                                       const SuffixWalk::Block& block) {
  const double wanted = 1.0 - partial.sum;
  const double distance = window(partial.sum, terms_.reach(half_.members(), t));
  if (terms_.out_of_reach(partial.sum, distance, half_.members(), t)) return;
  const NumberedSums::List& list = half_.list(t);
  const bool all = !std::isfinite(distance);
  const auto first =
      all ? list.sums.begin() : std::lower_bound(list.sums.begin(), list.sums.end(), wanted - distance);
  const std::uint32_t end = half_.count(t);
  for (auto sum = first; sum != list.sums.end() && (all || *sum <= wanted + distance); ++sum) {
    const std::uint32_t number = list.numbers[static_cast<std::size_t>(sum - list.sums.begin())];
    if (number < end) test(partial, number, t, block);
  }
}

void BlockSearch::test(const PartialSum& partial, std::uint32_t number, std::uint32_t t,
                       const SuffixWalk::Block& block) {
  const auto members = half_.members_of(number);
  const std::uint32_t plus = half_.plus_of(number);
  const double sum = terms_.continued(partial.sum, members, plus);
  const double difference = std::fabs(sum - 1.0);
  if (!best_.may_enter(difference, group_)) return;
  CombMatch match{
      .difference = difference, .members = {members.begin(), members.end()}, .plus = partial.plus | plus};
  match.members.push_back(t);
  match.members.insert(match.members.end(), block.upper.begin(), block.upper.end());
  best_.offer(std::move(match), group_);
}

}  // namespace kov
