#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "lattice/block.h"
#include "lattice/key_box.h"
#include "lattice/key_frame.h"

namespace kov {

/// A place in a row: a block, and a point in it. Behind the last point it is {block_count(), 0}.
struct RowPlace {
  std::size_t block = 0;
  std::size_t index = 0;

  friend bool operator==(const RowPlace&, const RowPlace&) = default;
};

/// The points of one step in key order, in blocks. Their keys are packed by one frame as long as they vary in
/// no more than 64 bits; else the row is wide and holds whole keys.
class Row {
 public:
  /// A row without points; a wide one without a frame.
  explicit Row(std::int32_t n, const std::optional<KeyFrame>& frame = std::nullopt);

  std::int32_t n() const noexcept { return n_; }
  std::size_t count() const noexcept { return count_; }
  bool empty() const noexcept { return count_ == 0; }
  bool packed() const noexcept { return frame_.has_value(); }
  /// Of a packed row.
  const KeyFrame& frame() const noexcept { return *frame_; }
  /// All points of a row that is not empty lie inside.
  const KeyBox& box() const noexcept { return box_; }
  /// False when points were erased, so that the box may be larger than needed.
  bool box_is_exact() const noexcept { return box_is_exact_; }

  std::size_t block_count() const noexcept { return blocks_.size(); }
  /// None is empty.
  const Block& block(std::size_t i) const noexcept { return blocks_[i]; }

  RowPlace begin() const noexcept { return {}; }
  RowPlace end() const noexcept { return {blocks_.size(), 0}; }
  RowPlace next(RowPlace place) const noexcept;
  RowPlace previous(RowPlace place) const noexcept;
  Lk key(RowPlace place) const noexcept;
  cotyp quantity(RowPlace place) const noexcept { return blocks_[place.block].quantity(place.index); }
  /// Where the key, of this step, is; nothing when it is not here.
  std::optional<RowPlace> find(const Lk& key) const noexcept;
  /// Where a key is, or where it would go.
  struct Spot {
    /// Of the first point whose key is not less; of no use when the frame does not cover the key.
    RowPlace place;
    bool covered = false;
    bool taken = false;
  };
  Spot spot(const Lk& key) const noexcept;
  /// The first point whose key is not less. Steps do not matter here.
  RowPlace lower_bound(const Lk& key) const noexcept;
  /// The number of points before the place.
  std::size_t count_before(RowPlace place) const noexcept;

  /// Changes the step of all points.
  void move_to(std::int32_t n) noexcept;

  // What throws, throws std::bad_alloc and leaves the row as it was.

  /// Stores q, which is not zero, at a key of this step; true when no point was there.
  bool set(const Lk& key, const cotyp& q);
  /// The point at the place gets the quantity, which is not zero.
  void set(RowPlace place, const cotyp& q) { blocks_[place.block].set(place.index, q); }
  /// A key of this step that is not here, and a quantity that is not zero.
  void insert(const Lk& key, const cotyp& q) { insert(spot(key), key, q); }
  /// The same at the key's spot.
  void insert(const Spot& spot, const Lk& key, const cotyp& q);
  /// Gives the place of the next point.
  RowPlace erase(RowPlace place) noexcept;
  /// Of a block keeps the points at the ascending indices only; true when none is left, and the block gone.
  bool keep(std::size_t block, std::span<const std::uint32_t> indices) noexcept;
  /// A block gets other quantities, none of which is zero after keep().
  void set_columns(std::size_t block, Column re, Column im) noexcept {
    blocks_[block].set_columns(std::move(re), std::move(im));
  }

 private:
  friend class RowBuilder;

  /// Puts the block behind the last one; box is that of its points.
  void append(Block&& block, const KeyBox& box);
  /// The same points by a frame, or without one, that takes the key as well.
  Row reframed(const Lk& key) const;
  /// By the form that keys have in the blocks: the place of the first one not less, and an insertion there.
  template <class Key>
  RowPlace first_not_less(const Key& key) const noexcept;
  template <class Key>
  bool holds(RowPlace place, const Key& key) const noexcept;
  /// The same place in its block or, when that is too large to be edited, in a piece of it.
  RowPlace place_for_edit(RowPlace place);
  void widen_box(const Lk& key) noexcept;
  template <class Key>
  void insert_at(RowPlace place, const Key& key, const cotyp& q);
  /// f(the key as it is in the blocks) for a key that the frame covers.
  template <class Function>
  auto as_stored(const Lk& key, const Function& f) const;

  std::int32_t n_;
  bool box_is_exact_ = true;
  std::size_t count_ = 0;
  std::optional<KeyFrame> frame_;
  std::vector<Block> blocks_;
  KeyBox box_;
};

}  // namespace kov
