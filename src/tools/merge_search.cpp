#include "tools/merge_search.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kov {

void MergeSearch::search(const PartialSum& partial, const TopWalk::Choice& choice,
                         std::uint32_t middle_members) {
  const auto above = static_cast<std::uint32_t>(choice.members.size());
  const std::uint32_t low_members = terms_.order() - above - middle_members;
  walk({.partial = partial,
        .choice = choice,
        .middle = halves_.middle(middle_members),
        .low = halves_.low(low_members)});
  shared_.lower_to(found_.bound());
}

MergeSearch::Limits MergeSearch::limits(const Meeting& meeting) const {
  const double bound = std::min(shared_.get(), found_.bound());
  // What is as far away as the last one of a full list from before is met too late.
  const bool ties_count = bound < before_.bound();
  const std::uint32_t members = meeting.middle.members() + meeting.low.members();
  const double sum = meeting.partial.sum;
  const double window =
      terms_.tolerance().window(bound, ties_count, sum, terms_.reach(members, halves_.elements()));
  return {.lowest = (1.0 - sum) - window, .highest = (1.0 - sum) + window};
}

void MergeSearch::walk(const Meeting& meeting) {
  Limits within = limits(meeting);
  const std::vector<double>& middle = meeting.middle.sorted().sums;
  const std::vector<double>& low = meeting.low.sorted().sums;
  auto i = static_cast<std::size_t>(
      std::lower_bound(middle.begin(), middle.end(), within.lowest - low.back()) - middle.begin());
  if (i == middle.size()) return;
  auto end = static_cast<std::size_t>(std::upper_bound(low.begin(), low.end(), within.highest - middle[i]) -
                                      low.begin());
  // Low sums from end on are too large for middle sum i, and for all behind it. Which list goes on is not to
  // be guessed, so it is computed without a branch.
  double lowest = within.lowest;
  double highest = within.highest;
  while (i < middle.size() && end > 0) {
    const double sum = middle[i] + low[end - 1];
    const bool too_small = sum < lowest;
    if (!too_small && sum <= highest) {
      test_downwards(meeting, i, end, within);
      lowest = within.lowest;
      highest = within.highest;
      ++i;
      continue;
    }
    i += too_small ? 1 : 0;
    end -= too_small ? 0 : 1;
  }
}

void MergeSearch::test_downwards(const Meeting& meeting, std::size_t i, std::size_t end, Limits& limits) {
  const NumberedSums::List& middle = meeting.middle.sorted();
  const NumberedSums::List& low = meeting.low.sorted();
  while (end > 0 && middle.sums[i] + low.sums[end - 1] >= limits.lowest) {
    --end;
    if (test(meeting, middle.numbers[i], low.numbers[end])) limits = this->limits(meeting);
  }
}

bool MergeSearch::test(const Meeting& meeting, std::uint32_t middle_number, std::uint32_t low_number) {
  const auto middle = meeting.middle.members_of(middle_number);
  const auto low = meeting.low.members_of(low_number);
  const std::uint32_t middle_plus = meeting.middle.plus_of(middle_number);
  const std::uint32_t low_plus = meeting.low.plus_of(low_number);
  const double sum =
      terms_.continued(terms_.continued(meeting.partial.sum, middle, middle_plus), low, low_plus);
  const double difference = std::fabs(sum - 1.0);
  const std::uint64_t group = meeting.choice.number;
  if (!before_.may_enter(difference, group) || !found_.may_enter(difference, group)) return false;
  const std::uint64_t plus = meeting.partial.plus | std::uint64_t{middle_plus} << low.size() | low_plus;
  CombMatch match{.difference = difference, .members = {low.begin(), low.end()}, .plus = plus};
  match.members.insert(match.members.end(), middle.begin(), middle.end());
  match.members.insert(match.members.end(), meeting.choice.members.begin(), meeting.choice.members.end());
  found_.offer(std::move(match), group);
  return true;
}

}  // namespace kov
