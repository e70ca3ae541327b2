#include "tools/area_walk.h"

#include <algorithm>

namespace kov {
namespace {

constexpr std::int64_t visits_a_check_is_skipped = 100;

std::int64_t range_of(const InitialArea& area, bool used) { return used ? area.maxcoo : 0; }

/// A number of visits, up to 2^32, as one below 200 that acts alike: the same modulo 100, and as few where
/// there are few. Three of these can be multiplied.
std::int64_t reduced(std::int64_t visits) {
  if (visits < 2 * visits_a_check_is_skipped) return visits;
  return visits % visits_a_check_is_skipped + visits_a_check_is_skipped;
}

}  // namespace

AreaWalk::AreaWalk(Lmap& lmap, const InitialArea& area, const Lk& reference, const AreaLimits& limits,
                   Progress& progress)
    : lmap_(lmap),
      area_(area),
      key_(reference),
      limits_(limits),
      progress_(progress),
      x_(area.maxcoo, area.stepdist),
      y_(range_of(area, area.dimcount == 2 || area.dimcount == 3), area.stepdist),
      z_(range_of(area, area.dimcount == 3), area.stepdist) {
  limits_.visits_per_display = std::max<std::int64_t>(limits_.visits_per_display, 1);
}

AreaEnd AreaWalk::run() {
  if (x_.count() == 0) return end_;
  const ProgressBox box(progress_, x_.value(0), area_.maxcoo);
  const std::int64_t nearest_x = x_.value(x_.middle());
  const std::int64_t nearest_y = y_.value(y_.middle());
  const AreaSpan planes =
      span_around_zero(z_, [&](std::int64_t z) { return inside(nearest_x, nearest_y, z); });
  skip_planes(planes.begin);
  for (std::int64_t i = planes.begin; i < planes.end && is_going(); ++i) {
    if (area_.dimcount == 3) position_ = z_.value(i);
    plane(z_.value(i));
  }
  skip_planes(z_.count() - planes.end);
  return end_;
}

void AreaWalk::plane(std::int64_t z) {
  if (plane_is_zero(z)) return skip_planes(1);
  const std::int64_t nearest_x = x_.value(x_.middle());
  const AreaSpan rows = span_around_zero(y_, [&](std::int64_t y) { return inside(nearest_x, y, z); });
  skip_rows(rows.begin);
  for (std::int64_t i = rows.begin; i < rows.end && is_going(); ++i) {
    if (area_.dimcount == 2) position_ = y_.value(i);
    row(y_.value(i), z);
  }
  skip_rows(y_.count() - rows.end);
}

void AreaWalk::row(std::int64_t y, std::int64_t z) {
  if (row_is_zero(y)) return skip_rows(1);
  const AreaSpan points = span_around_zero(x_, [&](std::int64_t x) { return inside(x, y, z); });
  skip(points.begin);
  for (std::int64_t i = points.begin; i < points.end && is_going(); ++i) point(x_.value(i), y, z);
  skip(x_.count() - points.end);
}

void AreaWalk::point(std::int64_t x, std::int64_t y, std::int64_t z) {
  key_.coo[1] = static_cast<std::int32_t>(x);
  key_.coo[2] = static_cast<std::int32_t>(y);
  key_.coo[3] = static_cast<std::int32_t>(z);
  lmap_.set(key_, area_quantity(area_, x, y, z));
  visits_ = (visits_ + 1) % visits_a_check_is_skipped;
  if (visits_ != 0 && is_too_large()) end_ = AreaEnd::out_of_bounds;
  if (area_.dimcount != 2 && area_.dimcount != 3) position_ = x;
  if (is_going() && ++polled_ % limits_.visits_per_display == 0) show_and_poll();
}

// In floating arithmetic, where squares and sums keep the order of the exact ones: with x, every x nearer to
// zero is inside.
bool AreaWalk::inside(std::int64_t x, std::int64_t y, std::int64_t z) const {
  const auto square = [](std::int64_t value) {
    const auto v = static_cast<double>(value);
    return v * v;
  };
  return area_.square_round == 0 || square(x) + square(y) + square(z) <= square(area_.maxcoo);
}

bool AreaWalk::plane_is_zero(std::int64_t z) const { return area_.sign_alternation == 3 && z == 0; }

bool AreaWalk::row_is_zero(std::int64_t y) const {
  return (area_.sign_alternation == 2 || area_.sign_alternation == 3) && y == 0;
}

// The store stays as it is meanwhile, so one visit that checks it finds what all of them would; of two visits
// that follow one another, at least one checks.
void AreaWalk::skip(std::int64_t visits) {
  if (!is_going() || visits == 0) return;
  const bool checks = visits > 1 || (visits_ + 1) % visits_a_check_is_skipped != 0;
  if (checks && is_too_large()) end_ = AreaEnd::out_of_bounds;
  visits_ = (visits_ + visits) % visits_a_check_is_skipped;
}

void AreaWalk::skip_rows(std::int64_t rows) { skip(reduced(rows) * reduced(x_.count())); }

void AreaWalk::skip_planes(std::int64_t planes) {
  skip(reduced(planes) * reduced(y_.count()) * reduced(x_.count()));
}

void AreaWalk::show_and_poll() {
  progress_.at(position_);
  if (progress_.break_requested()) end_ = AreaEnd::broken;
}

}  // namespace kov
