#include "tools/merge_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kov {

void MergeSearch::search(std::span<const PartialSum> partials, const TopWalk::Choice& choice,
                         std::uint32_t middle_members) {
  const auto above = static_cast<std::uint32_t>(choice.members.size());
  const Lists lists{.choice = choice,
                    .middle = halves_.middle(middle_members),
                    .low = halves_.low(terms_.order() - above - middle_members)};
  const std::vector<double>& middle = lists.middle.sorted().sums;
  const std::vector<double>& low = lists.low.sorted().sums;
  const auto at_end = [&](const Walk& walk) { return walk.i == middle.size() || walk.end == 0; };
  std::array<Walk, at_once> walks;
  std::size_t going = 0;
  for (const PartialSum& partial : partials) {
    walks[going] = begin(partial, lists);
    if (!at_end(walks[going])) ++going;
  }
  while (going > 0) {
    for (std::size_t n = 0; n < going;) {
      Walk& walk = walks[n];
      const double sum = middle[walk.i] + low[walk.end - 1];
      const bool too_small = sum < walk.lowest;
      const bool meets = !too_small && sum <= walk.highest;
      if (meets) test_middle_sum(walk, lists);
      // Which list goes on is not to be guessed, so it is computed without a branch.
      const bool next_middle = too_small || meets;
      walk.i += next_middle ? 1 : 0;
      walk.end -= next_middle ? 0 : 1;
      if (at_end(walk)) {
        walk = walks[--going];
      } else {
        ++n;
      }
    }
  }
  shared_.lower_to(found_.bound());
}

MergeSearch::Walk MergeSearch::begin(const PartialSum& partial, const Lists& lists) const {
  const std::vector<double>& middle = lists.middle.sorted().sums;
  const std::vector<double>& low = lists.low.sorted().sums;
  Walk walk{.i = 0, .end = 0, .lowest = 0.0, .highest = 0.0, .partial = partial};
  set_bounds(walk, lists);
  const auto first = std::lower_bound(middle.begin(), middle.end(), walk.lowest - low.back());
  walk.i = static_cast<std::size_t>(first - middle.begin());
  if (first == middle.end()) return walk;
  walk.end =
      static_cast<std::size_t>(std::upper_bound(low.begin(), low.end(), walk.highest - *first) - low.begin());
  return walk;
}

void MergeSearch::set_bounds(Walk& walk, const Lists& lists) const {
  const double bound = std::min(shared_.get(), found_.bound());
  // What is as far away as the last one of a full list from before is met too late.
  const bool ties_count = bound < before_.bound();
  const std::uint32_t members = lists.middle.members() + lists.low.members();
  const double sum = walk.partial.sum;
  const double window =
      terms_.tolerance().window(bound, ties_count, sum, terms_.reach(members, halves_.elements()));
  walk.lowest = (1.0 - sum) - window;
  walk.highest = (1.0 - sum) + window;
}

void MergeSearch::test_middle_sum(Walk& walk, const Lists& lists) {
  const NumberedSums::List& middle = lists.middle.sorted();
  const NumberedSums::List& low = lists.low.sorted();
  // The bounds may be nearer by now.
  set_bounds(walk, lists);
  for (std::size_t end = walk.end; end > 0 && middle.sums[walk.i] + low.sums[end - 1] >= walk.lowest; --end) {
    if (test(walk.partial, lists, middle.numbers[walk.i], low.numbers[end - 1])) set_bounds(walk, lists);
  }
}

bool MergeSearch::test(const PartialSum& partial, const Lists& lists, std::uint32_t middle_number,
                       std::uint32_t low_number) {
  const auto middle = lists.middle.members_of(middle_number);
  const auto low = lists.low.members_of(low_number);
  const std::uint32_t middle_plus = lists.middle.plus_of(middle_number);
  const std::uint32_t low_plus = lists.low.plus_of(low_number);
  const double sum = terms_.continued(terms_.continued(partial.sum, middle, middle_plus), low, low_plus);
  const double difference = std::fabs(sum - 1.0);
  const std::uint64_t group = lists.choice.number;
  if (!before_.may_enter(difference, group) || !found_.may_enter(difference, group)) return false;
  const std::uint64_t plus = partial.plus | std::uint64_t{middle_plus} << low.size() | low_plus;
  CombMatch match{.difference = difference, .members = {low.begin(), low.end()}, .plus = plus};
  match.members.insert(match.members.end(), middle.begin(), middle.end());
  match.members.insert(match.members.end(), lists.choice.members.begin(), lists.choice.members.end());
  found_.offer(std::move(match), group);
  return true;
}

}  // namespace kov
