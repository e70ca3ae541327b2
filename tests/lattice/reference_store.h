#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "lattice/lmap.h"
#include "support/points_text.h"
#include "text/integers.h"

namespace kov {

/// A store as plain as can be, to compare Lmap and the row edits with: points in any order, every search
/// from the first to the last.
struct ReferenceStore {
  struct Point {
    Lk key;
    cotyp q;
  };
  std::vector<Point> points;

  std::vector<Point>::iterator find(const Lk& key) {
    return std::find_if(points.begin(), points.end(), [&](const Point& point) { return point.key == key; });
  }
  bool contains(const Lk& key) { return find(key) != points.end(); }
  cotyp get(const Lk& key) { return contains(key) ? find(key)->q : cotyp(0); }

  template <class Predicate>
  void erase_where(const Predicate& predicate) {
    points.erase(std::remove_if(points.begin(), points.end(), predicate), points.end());
  }
  void set(const Lk& key, const cotyp& q) {
    erase_where([&](const Point& point) { return point.key == key; });
    if (!is_zero(q)) points.push_back({key, q});
  }
  /// Erases a <= n <= b; the bounds may lie outside 32 bits.
  void erase_rows(std::int64_t a, std::int64_t b) {
    erase_where([&](const Point& point) { return a <= point.key.n() && point.key.n() <= b; });
  }
  std::int32_t nlast() const {
    std::int32_t last = points.front().key.n();
    for (const Point& point : points) last = std::max(last, point.key.n());
    return last;
  }
  /// As points_text of an Lmap.
  std::string text() const {
    std::vector<Point> sorted = points;
    std::sort(sorted.begin(), sorted.end(), [](const Point& a, const Point& b) {
      return std::lexicographical_compare(a.key.coo.begin(), a.key.coo.end(), b.key.coo.begin(),
                                          b.key.coo.end());
    });
    std::string result;
    for (const Point& point : sorted) result += point_text(point.key, point.q) + "\n";
    return result;
  }
};

/// The 32-bit integer that a value is congruent to modulo 2^32.
inline std::int32_t wrapped(std::int64_t value) {
  constexpr std::int64_t modulus = std::int64_t{1} << 32;
  std::int64_t rest = value % modulus;
  if (rest > highest_int) rest -= modulus;
  if (rest < lowest_int) rest += modulus;
  return static_cast<std::int32_t>(rest);
}

}  // namespace kov
