#include "sums/sum_progress.h"

#include "text/integers.h"

namespace kov {

std::string sum_progress_text(std::int64_t point, std::int64_t count, std::string_view done) {
  return "lattice point " + int_text(point) + " of " + int_text(count) + " " + std::string(done);
}

bool SumProgress::check() {
  if (point_ == next_display_) display();
  next_check_ = std::min(next_display_, point_ + most_between_checks);
  return !progress_.break_requested();
}

void SumProgress::display() {
  progress_.headline(sum_progress_text(point_, count_, done_));
  box_.at(point_);
  next_display_ += display_step_;
}

}  // namespace kov
