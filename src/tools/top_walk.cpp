#include "tools/top_walk.h"

#include <bit>

namespace kov {

std::optional<TopWalk::Choice> TopWalk::next() {
  const auto chosen = [this] { return static_cast<std::uint32_t>(std::popcount(next_)); };
  while (next_ < end_) {
    if (chosen() > order_) {
      next_ += next_ & (~next_ + 1);  // up to there the lowest digit stays, others come to it
    } else if (order_ - chosen() > begin_) {
      next_ |= next_ + 1;  // up to there no number has more digits
    } else {
      break;
    }
  }
  if (next_ >= end_) return std::nullopt;
  Choice choice{.members = {}, .number = next_++};
  for (std::uint64_t digits = choice.number; digits != 0; digits &= digits - 1) {
    choice.members.push_back(begin_ + static_cast<std::uint32_t>(std::countr_zero(digits)));
  }
  return choice;
}

}  // namespace kov
