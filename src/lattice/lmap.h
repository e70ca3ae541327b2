#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "lattice/lk.h"
#include "numbers/cotyp.h"

namespace kov {

/// What one stored point is counted as: 32 integers and two parts of a quantity. Memory estimates use
/// this figure whatever the store really takes.
inline constexpr std::uint64_t sizeof_entry = 32 * 4 + 2 * 24;

/// The smallest and largest step of a store.
struct StepSpan {
  bool empty = true;
  std::int32_t nfirst = 0;
  std::int32_t nlast = 0;
};

/// All lattices in one: the quantity of every point that is not zero, in key order. A point that is
/// absent is zero, and no operation leaves a zero behind.
///
/// Nobody holds a reference to what is stored: keys and quantities go in and out by value, so that the
/// storage behind can change. Operations that need memory either succeed or throw std::bad_alloc and
/// leave the store as it was.
class Lmap {
  using Storage = std::map<Lk, cotyp, LkOrder>;

 public:
  /// A place in the walk over the points. Any change of the store other than erase(cursor) ends its
  /// use.
  class Cursor {
   public:
    /// Valid until the cursor moves or goes.
    const Lk& key() const { return place_->first; }
    cotyp quantity() const { return place_->second; }
    Cursor& operator++() {
      ++place_;
      return *this;
    }
    Cursor& operator--() {
      --place_;
      return *this;
    }
    friend bool operator==(const Cursor&, const Cursor&) = default;

   private:
    friend class Lmap;
    explicit Cursor(Storage::const_iterator place) : place_(place) {}
    Storage::const_iterator place_;
  };

  bool empty() const { return points_.empty(); }
  std::size_t count() const { return points_.size(); }
  /// count() * sizeof_entry.
  std::uint64_t estimated_bytes() const { return count() * sizeof_entry; }
  /// Defined only for a store that is not empty.
  std::int32_t nlast() const { return points_.rbegin()->first.n(); }
  /// 0 for an empty store.
  std::int32_t nfirst() const { return empty() ? 0 : points_.begin()->first.n(); }
  StepSpan steps() const { return empty() ? StepSpan{} : StepSpan{false, nfirst(), nlast()}; }

  /// The quantity at key, zero when there is no point.
  cotyp get(const Lk& key) const;
  bool contains(const Lk& key) const { return points_.contains(key); }
  /// Stores q at key; a zero erases the point.
  void set(const Lk& key, const cotyp& q);
  /// Adds q at key: a sum that is zero erases the point, a zero is never inserted. O(log count).
  void add(const Lk& key, const cotyp& q);
  /// Stores q at key unless a point is there or q is zero; true when stored.
  bool insert_new(const Lk& key, const cotyp& q);
  /// Erases the point at key; true when there was one.
  bool erase(const Lk& key) { return points_.erase(key) != 0; }
  void clear() noexcept { points_.clear(); }
  void swap(Lmap& other) noexcept { points_.swap(other.points_); }

  Cursor begin() const { return Cursor(points_.begin()); }
  Cursor end() const { return Cursor(points_.end()); }
  /// The first point whose key is not less than key.
  Cursor lower_bound(const Lk& key) const { return Cursor(points_.lower_bound(key)); }
  /// The first point whose key is greater than key.
  Cursor upper_bound(const Lk& key) const { return Cursor(points_.upper_bound(key)); }
  /// The first point of row n, or of the next row that there is.
  Cursor row_begin(std::int32_t n) const;
  /// The first point behind row n.
  Cursor row_end(std::int32_t n) const;
  /// Erases the point at the cursor and gives the next one.
  Cursor erase(Cursor at) { return Cursor(points_.erase(at.place_)); }

  /// Erases every point with a <= n <= b; nothing when a > b. Gives the number erased.
  std::size_t erase_rows(std::int32_t a, std::int32_t b);
  /// Number of points with a <= n <= b.
  std::size_t count_in_rows(std::int32_t a, std::int32_t b) const;

  /// Takes over every point of other whose key is free here; the points here keep their quantities.
  /// Needs no memory. other is empty afterwards.
  void merge_new(Lmap& other) noexcept;

  /// Moves every point from n to n + delta, where n + delta wraps; needs no memory.
  void shift_steps(std::int32_t delta);

  /// Replaces every quantity q by f(q) and erases what becomes zero. When f throws, the store is as it
  /// was. f: cotyp(const cotyp&).
  template <class Function>
  void transform(const Function& f) {
    Lmap changed;
    for (const auto& [key, q] : points_) {
      const cotyp image = f(q);
      if (!is_zero(image)) changed.points_.emplace_hint(changed.points_.end(), key, image);
    }
    swap(changed);
  }

 private:
  Storage points_;
};

}  // namespace kov
