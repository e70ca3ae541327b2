#include "tools/top_walk.h"

#include <bit>

namespace kov {

std::optional<TopWalk::Choice> TopWalk::next() {
  const auto is_feasible = [this](std::uint64_t number) {
    const auto chosen = static_cast<std::uint32_t>(std::popcount(number));
    return chosen <= order_ && order_ - chosen <= begin_;
  };
  while (next_ < end_ && !is_feasible(next_)) ++next_;
  if (next_ == end_) return std::nullopt;
  Choice choice{.members = {}, .number = next_++};
  for (std::uint64_t digits = choice.number; digits != 0; digits &= digits - 1) {
    choice.members.push_back(begin_ + static_cast<std::uint32_t>(std::countr_zero(digits)));
  }
  return choice;
}

}  // namespace kov
