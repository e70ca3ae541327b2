#pragma once

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
  KOV_INLINE void append(std::int64_t key, const Sum& sum) {
    keys_[count_] = static_cast<std::uint64_t>(key);
    sums_[count_] = sum;
    count_ += static_cast<std::size_t>(!is_absent(sum));
    if (count_ == block_capacity) flush();
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
