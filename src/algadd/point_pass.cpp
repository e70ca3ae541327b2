#include "algadd/point_pass.h"

#include <algorithm>
#include <cstdint>

#include "text/integers.h"

namespace kov {

void PointPass::advance(std::size_t points) {
  const std::size_t end = done_ + points;
  while (done_ < end) {
    done_ = std::min({end, next_breath_, next_display_});
    if (done_ == next_breath_) breathe();
    if (done_ == next_display_) display();
  }
}

void PointPass::breathe() {
  next_breath_ += points_per_breath;
  progress_.breathe();
}

void PointPass::display() {
  next_display_ += points_per_display;
  if (heading_.empty()) return;
  const auto position = static_cast<std::int64_t>(done_);
  progress_.headline(heading_ + int_text(position) + " of " + int_text(static_cast<std::int64_t>(total_)));
  progress_.at(position);
}

}  // namespace kov
