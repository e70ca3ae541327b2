#include "tools/suffix_walk.h"

#include <algorithm>
#include <numeric>

namespace kov {

SuffixWalk::SuffixWalk(std::uint32_t elements, std::uint32_t order, std::uint32_t low,
                       std::uint32_t longest_block)
    : elements_(elements), low_(low), longest_block_(longest_block), upper_(order - low - 1), next_(low) {
  std::iota(upper_.begin(), upper_.end(), low + 1);
}

std::optional<SuffixWalk::Block> SuffixWalk::next(const Hopeless& hopeless) {
  if (!at_end_ && next_ == end_of_low()) advance(low_ + 1);
  const bool skipped = next_ != low_ || skip(hopeless);
  if (at_end_) return std::nullopt;
  Block block{.upper = upper_, .first = next_, .end = next_, .before = before_};
  if (skipped) block.end += std::min(longest_block_, end_of_low() - next_);
  next_ = block.end;
  before_ += block.end - block.first;
  return block;
}

void SuffixWalk::advance(std::uint32_t position) {
  for (std::size_t i = position - low_ - 1; i < upper_.size(); ++i) {
    const std::uint32_t limit = i + 1 < upper_.size() ? upper_[i + 1] : elements_;
    if (upper_[i] + 1 == limit) continue;
    ++upper_[i];
    std::iota(upper_.begin(), upper_.begin() + static_cast<std::ptrdiff_t>(i), low_ + 1);
    next_ = low_;
    return;
  }
  at_end_ = true;
}

bool SuffixWalk::skip(const Hopeless& hopeless) {
  constexpr int at_once = 1 << 14;
  for (int i = 0; i < at_once && !at_end_; ++i) {
    const auto position = hopeless(upper_);
    if (!position) return true;
    advance(*position);
  }
  return at_end_;
}

}  // namespace kov
