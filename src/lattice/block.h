#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <variant>
#include <vector>

#include "lattice/column.h"
#include "lattice/lk.h"
#include "numbers/cotyp.h"

namespace kov {

/// So many points fit into the first-level cache with their keys, and an edit moves no more than that.
inline constexpr std::size_t block_capacity = 4096;

/// Up to block_capacity points of one row in key order: their keys and, in two columns, the parts of their
/// quantities. Keys are packed by the row's frame and stand as 4-byte offsets from the first one; as 8 bytes
/// where they lie wider apart; and as whole keys where the row has no frame.
class Block {
 public:
  /// Packed keys, ascending, at least one. The columns have one part a key each.
  Block(std::span<const std::uint64_t> keys, Column re, Column im);
  /// The same by their distances from the first key, whose distance is 0.
  Block(std::uint64_t base, std::span<const std::uint32_t> offsets, Column re, Column im);
  /// Whole keys of a row without frame.
  Block(std::span<const Lk> keys, Column re, Column im);
  Block(const Block& other);
  Block(Block&&) noexcept = default;
  Block& operator=(Block other) noexcept;
  ~Block() = default;

  std::size_t size() const noexcept { return re_.size(); }
  bool full() const noexcept { return size() >= block_capacity; }
  /// What keys and parts take, without what is reserved.
  std::size_t bytes() const noexcept;

  bool wide() const noexcept { return std::holds_alternative<std::vector<Lk>>(keys_); }
  /// The packed keys of a block that is not wide.
  std::uint64_t key(std::size_t i) const noexcept {
    const std::uint32_t* near = offsets();
    return near ? base_ + near[i] : keys()[i];
  }
  std::uint64_t first_key() const noexcept { return key(0); }
  std::uint64_t last_key() const noexcept { return key(size() - 1); }
  /// The keys of a wide block.
  const Lk& wide_key(std::size_t i) const noexcept { return (*std::get_if<std::vector<Lk>>(&keys_))[i]; }

  /// What the offsets are added to. Not above the first key, nor, in a row, below a key of the block before.
  std::uint64_t base() const noexcept { return base_; }
  /// nullptr unless the keys are stored as offsets.
  const std::uint32_t* offsets() const noexcept { return array<std::uint32_t>(); }
  /// nullptr unless the keys are stored as 8 bytes.
  const std::uint64_t* keys() const noexcept { return array<std::uint64_t>(); }
  /// The packed keys from first on, as many as out takes.
  void decode_keys(std::size_t first, std::span<std::uint64_t> out) const noexcept;

  /// The index of the first key that is not less, size() when all are less.
  std::size_t lower_bound(std::uint64_t key) const noexcept;
  /// The same, looked for from index `near` on in growing steps to either side: log(distance) comparisons,
  /// most of them in lines that are near each other.
  std::size_t lower_bound(std::uint64_t key, std::size_t near) const noexcept;
  std::size_t lower_bound(const Lk& key) const noexcept;

  const Column& re() const noexcept { return re_; }
  const Column& im() const noexcept { return im_; }
  cotyp quantity(std::size_t i) const noexcept { return {re_.get(i), im_.get(i)}; }

  // What throws, throws std::bad_alloc and leaves the block as it was.

  /// The key, which is not here, goes before the one at i or behind all. The block is not full.
  void insert(std::size_t i, std::uint64_t key, const cotyp& q);
  void insert(std::size_t i, const Lk& key, const cotyp& q);
  void set(std::size_t i, const cotyp& q);
  /// The same points get other keys, size() ascending ones: packed ones, or whole ones of a row without
  /// frame.
  void set_keys(std::span<const std::uint64_t> keys);
  void set_keys(std::span<const Lk> keys);
  /// The columns have size() parts.
  void set_columns(Column re, Column im) noexcept;
  void erase(std::size_t i) noexcept { erase(i, 1); }
  void erase(std::size_t first, std::size_t count) noexcept;
  /// Keeps the points at the ascending indices only.
  void keep(std::span<const std::uint32_t> indices) noexcept;
  /// Takes the points from i on out of this block: 0 < i < size().
  Block split(std::size_t i);
  /// Changes the step of whole keys.
  void move_to(std::int32_t n) noexcept;
  /// Gives reserved memory back where there is much of it and that is possible.
  void shrink() noexcept;

 private:
  using Keys = std::variant<std::vector<std::uint32_t>, std::vector<std::uint64_t>, std::vector<Lk>>;

  template <class T>
  const T* array() const noexcept {
    const auto* keys = std::get_if<std::vector<T>>(&keys_);
    return keys ? keys->data() : nullptr;
  }
  /// Makes both columns fit for q, with a place reserved.
  void make_room(const cotyp& q);
  void insert_quantity(std::size_t i, const cotyp& q) noexcept;
  /// Reserves a place among the keys for this one, as an offset while that is possible.
  void make_room(std::uint64_t key);
  void make_far();
  /// To the first key.
  void raise_base() noexcept;

  std::uint64_t base_ = 0;
  Keys keys_;
  Column re_;
  Column im_;
};

}  // namespace kov
