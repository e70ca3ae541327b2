#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <utility>

#include "algadd/cell_lines.h"
#include "lattice/block.h"

namespace kov {

/// The next points of a row, in key order: those of one block, and of one line of cells beyond it.
template <class Sum>
class PointBuffer {
 public:
  std::size_t count() const { return count_; }

  /// Whether keys from first to last, which are above all that are here, stand as offsets from base(); when
  /// not, all keys stand whole until the buffer is empty again.
  bool takes_offsets(std::uint64_t first, std::uint64_t last) {
    if (count_ == 0) {
      base_ = first;
      far_ = false;
    }
    if (!far_ && last - base_ > std::numeric_limits<std::uint32_t>::max()) make_far();
    return !far_;
  }
  std::uint64_t base() const { return base_; }

  void append(std::uint64_t key, const Sum& sum) {
    if (takes_offsets(key, key)) {
      offsets_[count_] = static_cast<std::uint32_t>(key - base_);
    } else {
      keys_[count_] = key;
    }
    sums_[count_++] = sum;
  }
  /// Where further offsets and sums can be written, those of a line, of which so many are then here.
  std::uint32_t* offsets_end() { return offsets_.data() + count_; }
  Sum* sums_end() { return sums_.data() + count_; }
  void grow(std::size_t points) { count_ += points; }

  /// At most a block's.
  std::span<const Sum> first_sums() const { return {sums_.data(), std::min(count_, block_capacity)}; }
  /// A block of the points of first_sums(), which has these columns; they are taken away. Leaves their keys
  /// in keys, whole.
  Block take_block(Column re, Column im, std::span<const std::uint64_t>& keys) {
    const std::size_t taken = first_sums().size();
    if (!far_) make_first_key_base();
    Block block =
        far_ ? Block(std::span<const std::uint64_t>(keys_.data(), taken), std::move(re), std::move(im))
             : Block(base_, std::span<const std::uint32_t>(offsets_.data(), taken), std::move(re),
                     std::move(im));
    if (!far_) block.decode_keys(0, std::span(keys_.data(), taken));
    keys = std::span<const std::uint64_t>(keys_.data(), taken);
    // More than a block's are here only as offsets.
    std::copy(offsets_.begin() + taken, offsets_.begin() + count_, offsets_.begin());
    std::copy(sums_.begin() + taken, sums_.begin() + count_, sums_.begin());
    count_ -= taken;
    return block;
  }

 private:
  void make_far() {
    for (std::size_t i = 0; i < count_; ++i) keys_[i] = base_ + offsets_[i];
    far_ = true;
  }
  void make_first_key_base() {
    const std::uint32_t first = offsets_[0];
    if (first == 0) return;
    base_ += first;
    for (std::size_t i = 0; i < count_; ++i) offsets_[i] -= first;
  }

  std::size_t count_ = 0;
  std::uint64_t base_ = 0;
  bool far_ = false;
  std::array<std::uint32_t, block_capacity + cells_of_line> offsets_;
  std::array<std::uint64_t, block_capacity> keys_;
  std::array<Sum, block_capacity + cells_of_line> sums_;
};

}  // namespace kov
