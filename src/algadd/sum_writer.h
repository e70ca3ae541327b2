#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "algadd/step_arithmetic.h"
#include "lattice/block.h"

namespace kov {

/// Takes the finished sums of a step in key order and makes blocks of them.
template <class Arithmetic>
class SumWriter {
 public:
  using Sum = typename Arithmetic::Sum;

  SumWriter(const Arithmetic& arithmetic, std::vector<Block>& blocks)
      : arithmetic_(arithmetic), blocks_(blocks) {}

  /// Appends the sum unless it is an absent point.
  void append(std::int64_t key, const Sum& sum) {
    if (is_absent(sum)) return;
    keys_[count_] = static_cast<std::uint64_t>(key);
    sums_[count_++] = sum;
    if (count_ == block_capacity) flush();
  }

  /// Appends the sums of the cells at the ascending indices, none of them absent; cell i has the key first + i.
  void append(std::int64_t first, const Sum* cells, std::span<const std::uint32_t> indices) {
    while (!indices.empty()) {
      const std::size_t some = std::min(indices.size(), block_capacity - count_);
      run_loop([&, keys = keys_.data() + count_, sums = sums_.data() + count_]() KOV_INLINE {
        for (std::size_t i = 0; i < some; ++i) {
          keys[i] = static_cast<std::uint64_t>(first) + indices[i];
          sums[i] = cells[indices[i]];
        }
      });
      count_ += some;
      indices = indices.subspan(some);
      if (count_ == block_capacity) flush();
    }
  }

  /// Makes a block of what is left.
  void flush() {
    if (count_ == 0) return;
    auto [re, im] = arithmetic_.columns(std::span<const Sum>(sums_.data(), count_));
    blocks_.emplace_back(std::span<const std::uint64_t>(keys_.data(), count_), std::move(re), std::move(im));
    count_ = 0;
  }

 private:
  const Arithmetic& arithmetic_;
  std::vector<Block>& blocks_;
  std::size_t count_ = 0;
  std::array<std::uint64_t, block_capacity> keys_;
  std::array<Sum, block_capacity> sums_;
};

}  // namespace kov
