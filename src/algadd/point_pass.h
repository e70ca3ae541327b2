#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "interact/user.h"

namespace kov {

/// Feedback of one pass over the points of a row: "n=nlast=5: Sorting entry 10000 of 25000" every 10 000
/// points; without a heading the display only breathes.
class PointPass {
 public:
  PointPass(Progress& progress, std::string heading, std::size_t total)
      : progress_(progress), heading_(std::move(heading)), total_(total) {}

  /// So many more points are done. What the display throws is thrown.
  void advance(std::size_t points);

 private:
  static constexpr std::size_t points_per_display = 10'000;
  static constexpr std::size_t points_per_breath = 1024;

  void breathe();
  void display();

  Progress& progress_;
  std::string heading_;
  std::size_t total_;
  std::size_t done_ = 0;
  std::size_t next_breath_ = points_per_breath;
  std::size_t next_display_ = points_per_display;
};

}  // namespace kov
