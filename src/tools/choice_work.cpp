#include "tools/choice_work.h"

#include <algorithm>
#include <utility>

#include "tools/search_plan.h"

namespace kov {

HalvedSums::HalvedSums(std::vector<double> values, std::uint32_t order, std::uint32_t low,
                       std::uint32_t middle, Signs signs, const CombRules& rules, unsigned threads)
    : terms(std::move(values), order, signs, rules),
      halves(terms, low, middle, threads),
      best(rules.nearest, rules.one_per_difference),
      upper(terms) {}

ChoiceWork::ChoiceWork(HalvedKinds kinds, const TopWalk::Choice& choice) {
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    HalvedSums& kind = *kinds[i];
    if (kind.complete()) continue;
    const bool ties_count = kind.best.ties_count(choice.number);
    const std::span<const PartialSum> partials =
        kind.upper.sum_up(choice.members, [&](double sum, double reach) {
          return kind.terms.tolerance().window(kind.best.bound(), ties_count, sum, reach);
        });
    const std::uint32_t rest = kind.terms.order() - static_cast<std::uint32_t>(choice.members.size());
    const auto [fewest, most] = middle_members(rest, kind.halves.low_count(), kind.halves.middle_count());
    for (std::uint32_t m = fewest; m <= most; ++m) {
      const std::size_t each =
          kind.halves.middle(m).sorted().sums.size() + kind.halves.low(rest - m).sorted().sums.size();
      parts_.push_back({.kind = i, .partials = partials, .middle_members = m, .comparisons_each = each});
      size_ += parts_.back().meetings();
      comparisons_ += partials.size() * each;
    }
  }
}

ChoiceWork::Meeting ChoiceWork::operator[](std::size_t i) const {
  auto part = parts_.begin();
  for (; i >= part->meetings(); ++part) i -= part->meetings();
  const std::size_t first = i * MergeSearch::at_once;
  const auto partials =
      part->partials.subspan(first, std::min(MergeSearch::at_once, part->partials.size() - first));
  return {.kind = part->kind,
          .partials = partials,
          .middle_members = part->middle_members,
          .comparisons = partials.size() * part->comparisons_each};
}

}  // namespace kov
