#include "tools/block_search.h"

#include <algorithm>
#include <cmath>

namespace kov {

void SharedBound::lower_to(double bound) {
  double current = get();
  while (bound < current && !bound_.compare_exchange_weak(current, bound, std::memory_order_relaxed)) {
  }
}

void BlockSearch::search(const SuffixWalk::Block& block) {
  group_ = block.before;
  sum_up_upper(block);
  for (std::uint32_t t = block.first; t < block.end && !partials_.empty(); ++t, ++group_) {
    try_low_member(t, block);
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

void BlockSearch::sum_up_upper(const SuffixWalk::Block& block) {
  partials_.assign(1, Partial{});
  const std::uint32_t above_low = terms_.half().members() + 1;
  for (auto i = static_cast<std::uint32_t>(block.upper.size()); i-- > 0;) {
    add_member(block.upper[i], above_low + i);
  }
}

void BlockSearch::add_member(std::uint32_t element, std::uint32_t m) {
  extended_.clear();
  const double value = terms_.value(element);
  const double reach = terms_.reach(m, element);
  const auto keep = [&](const Partial& partial) {
    if (!terms_.out_of_reach(partial.sum, window(partial.sum, reach), m, element))
      extended_.push_back(partial);
  };
  for (const Partial& partial : partials_) {
    if (terms_.with_minus()) keep({partial.sum - value, partial.plus});
    keep({partial.sum + value, partial.plus | std::uint64_t{1} << m});
  }
  partials_.swap(extended_);
}

void BlockSearch::try_low_member(std::uint32_t t, const SuffixWalk::Block& block) {
  const double value = terms_.value(t);
  const std::uint64_t plus_bit = std::uint64_t{1} << terms_.half().members();
  for (const Partial& partial : partials_) {
    if (terms_.with_minus()) complete_by_half_sum({partial.sum - value, partial.plus}, t, block);
    complete_by_half_sum({partial.sum + value, partial.plus | plus_bit}, t, block);
  }
}

void BlockSearch::complete_by_half_sum(const Partial& partial, std::uint32_t t,
                                       const SuffixWalk::Block& block) {
  const HalfSums& half = terms_.half();
  const double wanted = 1.0 - partial.sum;
  const double distance = window(partial.sum, terms_.reach(half.members(), t));
  if (terms_.out_of_reach(partial.sum, distance, half.members(), t)) return;
  const HalfSums::List& list = half.list(t);
  const bool all = !std::isfinite(distance);
  const auto first =
      all ? list.sums.begin() : std::lower_bound(list.sums.begin(), list.sums.end(), wanted - distance);
  const std::uint32_t end = half.count(t);
  for (auto sum = first; sum != list.sums.end() && (all || *sum <= wanted + distance); ++sum) {
    const std::uint32_t number = list.numbers[static_cast<std::size_t>(sum - list.sums.begin())];
    if (number < end) test(partial, number, t, block);
  }
}

void BlockSearch::test(const Partial& partial, std::uint32_t number, std::uint32_t t,
                       const SuffixWalk::Block& block) {
  const auto members = terms_.half().members_of(number);
  const std::uint32_t plus = terms_.half().plus_of(number);
  double sum = partial.sum;
  for (auto i = static_cast<std::uint32_t>(members.size()); i-- > 0;) {
    const double value = terms_.value(members[i]);
    sum += (plus >> i & 1U) != 0 ? value : -value;
  }
  const double difference = std::fabs(sum - 1.0);
  if (!best_.may_enter(difference, group_)) return;
  CombMatch match{
      .difference = difference, .members = {members.begin(), members.end()}, .plus = partial.plus | plus};
  match.members.push_back(t);
  match.members.insert(match.members.end(), block.upper.begin(), block.upper.end());
  best_.offer(std::move(match), group_);
}

}  // namespace kov
