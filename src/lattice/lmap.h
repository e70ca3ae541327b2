#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>

#include "lattice/lk.h"
#include "numbers/cotyp.h"

namespace kov {

/// What one stored point is counted as: 32 integers and two parts of a quantity. Memory estimates use
/// this figure whatever the store really takes.
inline constexpr std::uint64_t sizeof_entry = 32 * 4 + 2 * 24;
static_assert(sizeof_entry == sizeof(Lk) + sizeof(cotyp), "a point is its key and its quantity");

/// The smallest and largest step of a store.
struct StepSpan {
  bool empty = true;
  std::int32_t nfirst = 0;
  std::int32_t nlast = 0;

  friend bool operator==(const StepSpan&, const StepSpan&) = default;
};

/// All lattices in one: the quantity of every point that is not zero, in key order. A point that is
/// absent is zero, and no operation leaves a zero behind.
///
/// Nobody holds a reference to what is stored: keys and quantities go in and out by value, so that the
/// storage behind can change. Operations that need memory either succeed or throw std::bad_alloc and
/// leave the store as it was; the others, but for transform, cannot fail. A search costs O(log count), and
/// appending in key order is cheaper still.
class Lmap {
  using Storage = std::map<Lk, cotyp, LkOrder>;

 public:
  /// A place in the walk over the points. Any change of the store other than erase(cursor) ends its
  /// use.
  class Cursor {
   public:
    /// Valid until the cursor moves or goes.
    const Lk& key() const noexcept { return place_->first; }
    cotyp quantity() const noexcept { return place_->second; }
    Cursor& operator++() noexcept {
      ++place_;
      return *this;
    }
    Cursor& operator--() noexcept {
      --place_;
      return *this;
    }
    friend bool operator==(const Cursor&, const Cursor&) = default;

   private:
    friend class Lmap;
    explicit Cursor(Storage::const_iterator place) noexcept : place_(place) {}
    Storage::const_iterator place_;
  };

  bool empty() const noexcept { return points_.empty(); }
  std::size_t count() const noexcept { return points_.size(); }
  /// count() * sizeof_entry.
  std::uint64_t estimated_bytes() const noexcept { return count() * sizeof_entry; }
  /// Defined only for a store that is not empty.
  std::int32_t nlast() const noexcept { return points_.rbegin()->first.n(); }
  /// 0 for an empty store.
  std::int32_t nfirst() const noexcept { return empty() ? 0 : points_.begin()->first.n(); }
  StepSpan steps() const noexcept { return empty() ? StepSpan{} : StepSpan{false, nfirst(), nlast()}; }

  /// The quantity at key, zero when there is no point.
  cotyp get(const Lk& key) const noexcept;
  bool contains(const Lk& key) const noexcept { return points_.contains(key); }
  /// Stores q at key; a zero erases the point.
  void set(const Lk& key, const cotyp& q);
  /// Adds q at key: a sum that is zero erases the point, a zero is never inserted. Gives the sum, so that
  /// who adds can test it without a second search.
  cotyp add(const Lk& key, const cotyp& q);
  /// Stores q at key unless a point is there or q is zero; true when stored.
  bool insert_new(const Lk& key, const cotyp& q);
  /// Erases the point at key; true when there was one.
  bool erase(const Lk& key) noexcept { return points_.erase(key) != 0; }
  void clear() noexcept { points_.clear(); }
  void swap(Lmap& other) noexcept { points_.swap(other.points_); }

  Cursor begin() const noexcept { return Cursor(points_.begin()); }
  Cursor end() const noexcept { return Cursor(points_.end()); }
  /// The first point whose key is not less than key.
  Cursor lower_bound(const Lk& key) const noexcept { return Cursor(points_.lower_bound(key)); }
  /// The first point whose key is greater than key.
  Cursor upper_bound(const Lk& key) const noexcept { return Cursor(points_.upper_bound(key)); }
  /// The first point of row n, or of the next row that there is.
  Cursor row_begin(std::int32_t n) const noexcept;
  /// The first point behind row n.
  Cursor row_end(std::int32_t n) const noexcept;
  /// Erases the point at the cursor and gives the next one.
  Cursor erase(Cursor at) noexcept { return Cursor(points_.erase(at.place_)); }

  /// Erases every point with a <= n <= b; nothing when a > b. Gives the number erased.
  std::size_t erase_rows(std::int32_t a, std::int32_t b) noexcept;
  /// Number of points with a <= n <= b.
  std::size_t count_in_rows(std::int32_t a, std::int32_t b) const noexcept;
  /// A copy of the points with a <= n <= b.
  Lmap copy_rows(std::int32_t a, std::int32_t b) const;
  /// Takes the points with a <= n <= b out of this store.
  Lmap extract_rows(std::int32_t a, std::int32_t b) noexcept;

  /// Takes over every point of other whose key is free here; the points here keep their quantities.
  /// other, which must be another store, is empty afterwards.
  void merge_new(Lmap& other) noexcept;

  /// Moves every point from n to n + delta, where n + delta wraps.
  void shift_steps(std::int32_t delta) noexcept;

  /// Replaces every quantity q by f(q) and erases what becomes zero. f, a cotyp(const cotyp&) whose value
  /// depends on q alone, is called twice a point: what throws, throws in the first pass, which changes
  /// nothing, so the store need not be copied and is as it was.
  template <class Function>
  void transform(const Function& f) {
    for (const auto& point : points_) static_cast<void>(f(point.second));
    for (auto point = points_.begin(); point != points_.end();) {
      point->second = f(point->second);
      point = is_zero(point->second) ? points_.erase(point) : std::next(point);
    }
  }

 private:
  /// Where key is, or where it would go.
  Storage::iterator place_of(const Lk& key) noexcept;
  bool is_at(Storage::const_iterator place, const Lk& key) const noexcept;
  /// Moves the points of other from first up to last here; of those whose key is taken nothing stays.
  void splice(Lmap& other, Storage::const_iterator first, Storage::const_iterator last) noexcept;

  Storage points_;
};

}  // namespace kov
