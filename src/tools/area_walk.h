#pragma once

#include <cstdint>

#include "interact/progress.h"
#include "lattice/lmap.h"
#include "tools/area_axis.h"
#include "tools/initial_area.h"

namespace kov {

/// The walk over an initial area, z slowest and x fastest: for one call of run().
class AreaWalk {
 public:
  AreaWalk(Lmap& lmap, const InitialArea& area, const Lk& reference, const AreaLimits& limits,
           Progress& progress);

  AreaEnd run();

 private:
  void plane(std::int64_t z);
  void row(std::int64_t y, std::int64_t z);
  void point(std::int64_t x, std::int64_t y, std::int64_t z);

  bool inside(std::int64_t x, std::int64_t y, std::int64_t z) const;
  bool plane_is_zero(std::int64_t z) const;
  bool row_is_zero(std::int64_t y) const;

  /// Visits that write nothing.
  void skip(std::int64_t visits);
  void skip_rows(std::int64_t rows);
  void skip_planes(std::int64_t planes);
  bool is_going() const { return end_ == AreaEnd::complete; }
  bool is_too_large() const { return static_cast<std::int64_t>(lmap_.estimated_bytes()) > limits_.bytes; }
  void show_and_poll();

  Lmap& lmap_;
  const InitialArea& area_;
  Lk key_;
  AreaLimits limits_;
  Progress& progress_;

  AreaAxis x_;
  AreaAxis y_;
  AreaAxis z_;
  /// Visits modulo 100, which is all that the check of memory asks: their number has no bound that an integer
  /// could hold.
  std::int64_t visits_ = 0;
  std::int64_t polled_ = 0;
  /// The value of the slowest coordinate in use.
  std::int64_t position_ = 0;
  AreaEnd end_ = AreaEnd::complete;
};

}  // namespace kov
