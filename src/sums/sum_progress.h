#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "interact/progress.h"

namespace kov {

/// "lattice point 10000 of 20000 summed up", or what else has been done with the points.
std::string sum_progress_text(std::int64_t point, std::int64_t count, std::string_view done = "summed up");

/// The progress of a walk over all points of the store, which shows the box as long as it lives.
class SumProgress {
 public:
  /// However seldom the walk is shown, Break is asked for after so many points.
  static constexpr std::int64_t most_between_checks = 10'000;

  /// After every points_per_display-th point (at least 1) the walk is shown and Break is asked for.
  /// done, which must outlive the walk, says what is done with the points.
  SumProgress(Progress& progress, std::int64_t count, std::int64_t points_per_display,
              std::string_view done = "summed up")
      : progress_(progress),
        box_(progress, 0, count),
        count_(count),
        done_(done),
        display_step_(std::max<std::int64_t>(points_per_display, 1)),
        next_display_(display_step_),
        next_check_(std::min(display_step_, most_between_checks)) {}

  /// One more point was summed up. False when Break was pressed.
  bool advance() { return ++point_ != next_check_ || check(); }
  /// Likewise for several points at once.
  bool advance(std::int64_t points) {
    const std::int64_t end = point_ + points;
    while (point_ < end) {
      point_ = std::min(end, next_check_);
      if (point_ == next_check_ && !check()) return false;
    }
    return true;
  }
  /// After so many more points, at least 1, Break is asked for.
  std::int64_t until_check() const { return next_check_ - point_; }

 private:
  bool check();
  void display();

  Progress& progress_;
  ProgressBox box_;
  std::int64_t count_;
  std::string_view done_;
  std::int64_t display_step_;
  std::int64_t next_display_;
  /// The next display or sooner.
  std::int64_t next_check_;
  std::int64_t point_ = 0;
};

}  // namespace kov
