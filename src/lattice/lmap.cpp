#include "lattice/lmap.h"

#include <iterator>
#include <utility>

#include "text/integers.h"

namespace kov {
namespace {

Lk row_bound(std::int32_t n, std::int32_t other_positions) noexcept {
  Lk key = Lk::filled(other_positions);
  key.coo[0] = n;
  return key;
}

}  // namespace

Lmap::Storage::iterator Lmap::place_of(const Lk& key) noexcept {
  const bool behind_all = !points_.empty() && Lk1LessLk2(points_.rbegin()->first, key);
  return behind_all ? points_.end() : points_.lower_bound(key);
}

bool Lmap::is_at(Storage::const_iterator place, const Lk& key) const noexcept {
  return place != points_.end() && place->first == key;
}

cotyp Lmap::get(const Lk& key) const noexcept {
  const auto place = points_.find(key);
  return place == points_.end() ? cotyp{} : place->second;
}

void Lmap::set(const Lk& key, const cotyp& q) {
  const auto place = place_of(key);
  if (!is_at(place, key)) {
    if (!is_zero(q)) points_.emplace_hint(place, key, q);
  } else if (is_zero(q)) {
    points_.erase(place);
  } else {
    place->second = q;
  }
}

cotyp Lmap::add(const Lk& key, const cotyp& q) {
  const auto place = place_of(key);
  if (!is_at(place, key)) {
    if (!is_zero(q)) points_.emplace_hint(place, key, q);
    return q;
  }
  const cotyp sum = place->second += q;
  if (is_zero(sum)) points_.erase(place);
  return sum;
}

bool Lmap::insert_new(const Lk& key, const cotyp& q) {
  const auto place = place_of(key);
  if (is_zero(q) || is_at(place, key)) return false;
  points_.emplace_hint(place, key, q);
  return true;
}

Lmap::Cursor Lmap::row_begin(std::int32_t n) const noexcept { return lower_bound(row_bound(n, lowest_int)); }

Lmap::Cursor Lmap::row_end(std::int32_t n) const noexcept { return upper_bound(row_bound(n, highest_int)); }

std::size_t Lmap::erase_rows(std::int32_t a, std::int32_t b) noexcept {
  if (a > b) return 0;
  const std::size_t before = count();
  points_.erase(row_begin(a).place_, row_end(b).place_);
  return before - count();
}

std::size_t Lmap::count_in_rows(std::int32_t a, std::int32_t b) const noexcept {
  if (a > b) return 0;
  return static_cast<std::size_t>(std::distance(row_begin(a).place_, row_end(b).place_));
}

Lmap Lmap::copy_rows(std::int32_t a, std::int32_t b) const {
  Lmap rows;
  if (a <= b) rows.points_.insert(row_begin(a).place_, row_end(b).place_);
  return rows;
}

Lmap Lmap::extract_rows(std::int32_t a, std::int32_t b) noexcept {
  Lmap rows;
  if (a <= b) rows.splice(*this, row_begin(a).place_, row_end(b).place_);
  return rows;
}

void Lmap::merge_new(Lmap& other) noexcept {
  if (empty()) {
    swap(other);
    return;
  }
  splice(other, other.points_.begin(), other.points_.end());
}

// Moved nodes keep their memory, and each goes in right behind the one before it wherever the gap there
// takes it: appending a row costs constant time a point.
void Lmap::splice(Lmap& other, Storage::const_iterator first, Storage::const_iterator last) noexcept {
  Storage::const_iterator hint = points_.end();
  while (first != last) {
    const auto next = std::next(first);
    hint = std::next(points_.insert(hint, other.points_.extract(first)));
    first = next;
  }
}

// Keys stay distinct when all move by the same distance modulo 2^32, so every node finds its place. What
// wraps is one run at one end of the rows; the hint fails only where that run begins.
void Lmap::shift_steps(std::int32_t delta) noexcept {
  if (delta == 0) return;
  Storage moved;
  Storage::const_iterator hint = moved.end();
  while (!points_.empty()) {
    auto node = points_.extract(points_.begin());
    node.key().coo[0] = wrapping_add(node.key().n(), delta);
    hint = std::next(moved.insert(hint, std::move(node)));
  }
  points_.swap(moved);
}

}  // namespace kov
