#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <span>
#include <utility>
#include <vector>

#include "lattice/lk.h"
#include "lattice/row.h"
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
/// Points are held by rows, one for each step that has any. Who treats many points walks over the rows and
/// their blocks; single points go in and out by value. Operations that need memory either succeed or throw
/// std::bad_alloc and leave the store as it was; the others, but for transform, cannot fail. A search costs
/// O(log count), and appending in key order is cheaper still.
class Lmap {
  using Storage = std::map<std::int32_t, Row>;

 public:
  /// A place in the walk over the points. Any change of the store other than erase(cursor) ends its
  /// use.
  class Cursor {
   public:
    Lk key() const noexcept { return row_->second.key(place_); }
    cotyp quantity() const noexcept { return row_->second.quantity(place_); }
    /// The row that it is in, and the place there.
    const Row& row() const noexcept { return row_->second; }
    RowPlace place() const noexcept { return place_; }

    Cursor& operator++() noexcept {
      place_ = row_->second.next(place_);
      if (place_ == row_->second.end()) *this = Cursor(std::next(row_));
      return *this;
    }
    Cursor& operator--() noexcept {
      if (place_ == RowPlace{}) {
        --row_;
        place_ = row_->second.end();
      }
      place_ = row_->second.previous(place_);
      return *this;
    }
    friend bool operator==(const Cursor&, const Cursor&) = default;

   private:
    friend class Lmap;
    explicit Cursor(Storage::const_iterator row, RowPlace place = {}) noexcept : row_(row), place_(place) {}
    Storage::const_iterator row_;
    RowPlace place_;
  };

  /// A walk over rows, none of which is empty.
  class RowCursor {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Row;
    using difference_type = std::ptrdiff_t;
    using pointer = const Row*;
    using reference = const Row&;

    const Row& operator*() const noexcept { return row_->second; }
    const Row* operator->() const noexcept { return &row_->second; }
    RowCursor& operator++() noexcept {
      ++row_;
      return *this;
    }
    friend bool operator==(const RowCursor&, const RowCursor&) = default;

   private:
    friend class Lmap;
    explicit RowCursor(Storage::const_iterator row) noexcept : row_(row) {}
    Storage::const_iterator row_;
  };
  struct Rows {
    RowCursor first;
    RowCursor last;

    RowCursor begin() const noexcept { return first; }
    RowCursor end() const noexcept { return last; }
  };

  Lmap() = default;
  Lmap(const Lmap&) = default;
  Lmap(Lmap&& other) noexcept { swap(other); }
  Lmap& operator=(Lmap other) noexcept {
    swap(other);
    return *this;
  }
  ~Lmap() = default;

  bool empty() const noexcept { return count_ == 0; }
  std::size_t count() const noexcept { return count_; }
  /// count() * sizeof_entry.
  std::uint64_t estimated_bytes() const noexcept { return count() * sizeof_entry; }
  /// Defined only for a store that is not empty.
  std::int32_t nlast() const noexcept { return rows_.rbegin()->first; }
  /// 0 for an empty store.
  std::int32_t nfirst() const noexcept { return empty() ? 0 : rows_.begin()->first; }
  StepSpan steps() const noexcept { return empty() ? StepSpan{} : StepSpan{false, nfirst(), nlast()}; }

  /// The quantity at key, zero when there is no point.
  cotyp get(const Lk& key) const noexcept;
  bool contains(const Lk& key) const noexcept;
  /// Stores q at key; a zero erases the point.
  void set(const Lk& key, const cotyp& q);
  /// Adds q at key: a sum that is zero erases the point, a zero is never inserted. Gives the sum, so that
  /// who adds can test it without a second search.
  cotyp add(const Lk& key, const cotyp& q);
  /// Stores q at key unless a point is there or q is zero; true when stored.
  bool insert_new(const Lk& key, const cotyp& q);
  /// Erases the point at key; true when there was one.
  bool erase(const Lk& key) noexcept;
  void clear() noexcept;
  void swap(Lmap& other) noexcept;

  Cursor begin() const noexcept { return Cursor(rows_.begin()); }
  Cursor end() const noexcept { return Cursor(rows_.end()); }
  /// The first point whose key is not less than key.
  Cursor lower_bound(const Lk& key) const noexcept;
  /// The first point of row n, or of the next row that there is.
  Cursor row_begin(std::int32_t n) const noexcept { return Cursor(rows_.lower_bound(n)); }
  /// The first point behind row n.
  Cursor row_end(std::int32_t n) const noexcept { return Cursor(rows_.upper_bound(n)); }
  /// The number of points before the cursor. Costs as much as a walk over rows, and blocks of one row.
  std::size_t count_before(Cursor at) const noexcept;
  /// Erases the point at the cursor and gives the next one.
  Cursor erase(Cursor at) noexcept;

  /// nullptr when it has no points.
  const Row* row(std::int32_t n) const noexcept;
  /// All rows in ascending order.
  Rows rows() const noexcept { return {RowCursor(rows_.begin()), RowCursor(rows_.end())}; }
  /// Those with a <= n <= b; none when a > b.
  Rows rows(std::int32_t a, std::int32_t b) const noexcept;
  /// Takes over a row of a step that has no points here; nothing when it is empty.
  void insert_row(Row&& row);

  /// Erases every point with a <= n <= b; nothing when a > b. Gives the number erased.
  std::size_t erase_rows(std::int32_t a, std::int32_t b) noexcept;
  /// Number of points with a <= n <= b.
  std::size_t count_in_rows(std::int32_t a, std::int32_t b) const noexcept;
  /// A copy of the points with a <= n <= b.
  Lmap copy_rows(std::int32_t a, std::int32_t b) const;
  /// Takes the points with a <= n <= b out of this store.
  Lmap extract_rows(std::int32_t a, std::int32_t b) noexcept;

  /// Indices of points in a block, as many as there are at most.
  using BlockIndices = std::array<std::uint32_t, block_capacity>;
  /// In the rows a <= n <= b keeps, of every block in key order, the points that choose(row, block, indices)
  /// puts into the indices, ascending, and whose number it gives. Gives the number of points erased. What
  /// choose throws ends it, blocks before being done.
  template <class Choose>
  std::size_t keep_chosen(std::int32_t a, std::int32_t b, const Choose& choose);

  /// Takes over every point of other whose key is free here; the points here keep their quantities.
  /// other, which must be another store, is empty afterwards. Needs memory where rows meet, and only there;
  /// when it throws, other is as it was, too.
  void merge_new(Lmap& other);

  /// Moves every point from n to n + delta, where n + delta wraps.
  void shift_steps(std::int32_t delta) noexcept;

  /// Replaces every quantity q by f(q), called once a point in key order, and erases what becomes zero. The
  /// new quantities stand beside the old ones until all are there: what f throws, and std::bad_alloc, leaves
  /// the store as it was.
  template <class Function>
  void transform(const Function& f);

 private:
  /// The new quantities of a block, and whether any is zero.
  struct Columns {
    Column re;
    Column im;
    bool zeros = false;
  };

  Row* find_row(std::int32_t n) noexcept;
  /// Stores q, which is not zero, at a key that is not here: at its spot in the row, or in a new row.
  void insert(Row* row, const Row::Spot& spot, const Lk& key, const cotyp& q);
  /// Erases the row from the walk when it has no points any more; gives the row behind.
  Storage::iterator drop_empty(Storage::iterator row) noexcept;
  /// In the order of the walk, one for each block.
  void take(std::vector<Columns>&& columns) noexcept;

  Storage rows_;
  std::size_t count_ = 0;
};

template <class Choose>
std::size_t Lmap::keep_chosen(std::int32_t a, std::int32_t b, const Choose& choose) {
  if (a > b) return 0;
  const std::size_t before = count_;
  BlockIndices indices;
  for (auto at = rows_.lower_bound(a); at != rows_.end() && at->first <= b;) {
    Row& row = at->second;
    for (std::size_t block = 0; block < row.block_count();) {
      const std::size_t size = row.block(block).size();
      const std::size_t kept = choose(std::as_const(row), block, indices);
      count_ -= size - kept;
      if (!row.keep(block, std::span(indices).first(kept))) ++block;
    }
    at = drop_empty(at);
  }
  return before - count_;
}

template <class Function>
void Lmap::transform(const Function& f) {
  std::vector<Columns> all;
  std::vector<ratyp> re(block_capacity);
  std::vector<ratyp> im(block_capacity);
  for (const Row& row : rows()) {
    for (std::size_t block = 0; block < row.block_count(); ++block) {
      const std::size_t size = row.block(block).size();
      const std::span<ratyp> re_parts = std::span(re).first(size);
      const std::span<ratyp> im_parts = std::span(im).first(size);
      row.block(block).re().decode(0, re_parts);
      row.block(block).im().decode(0, im_parts);
      bool zeros = false;
      for (std::size_t i = 0; i < size; ++i) {
        const cotyp q = f(cotyp(re[i], im[i]));
        zeros = zeros || is_zero(q);
        re[i] = q.re;
        im[i] = q.im;
      }
      all.push_back({Column::of(re_parts), Column::of(im_parts), zeros});
    }
  }
  take(std::move(all));
}

}  // namespace kov
