#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "algadd/step_plan.h"
#include "lattice/block.h"
#include "lattice/key_box.h"

namespace kov {

/// A block of the new row and the bounds of its keys.
struct BoundedBlock {
  Block block;
  KeyBox box;
};

/// Takes the finished sums of a step in key order and makes blocks of them.
template <class Arithmetic>
class SumWriter {
 public:
  using Sum = typename Arithmetic::Sum;

  SumWriter(const StepPlan& plan, const Arithmetic& arithmetic, std::vector<BoundedBlock>& blocks)
      : plan_(plan), arithmetic_(arithmetic), blocks_(blocks) {}

  /// Appends the sum unless it is an absent point.
  void append(std::int64_t key, const Sum& sum) {
    if (is_absent(sum)) return;
    keys_[count_] = static_cast<std::uint64_t>(key);
    sums_[count_++] = sum;
    if (count_ == block_capacity) flush();
  }

  /// Appends the sums of the cells at the ascending indices, none of them absent; cell i has the key first +
  /// i.
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
    const std::span<const std::uint64_t> keys(keys_.data(), count_);
    blocks_.push_back({Block(keys, std::move(re), std::move(im)), plan_.frame.box_of(keys, plan_.n)});
    count_ = 0;
  }

 private:
  const StepPlan& plan_;
  const Arithmetic& arithmetic_;
  std::vector<BoundedBlock>& blocks_;
  std::size_t count_ = 0;
  std::array<std::uint64_t, block_capacity> keys_;
  std::array<Sum, block_capacity> sums_;
};

}  // namespace kov
