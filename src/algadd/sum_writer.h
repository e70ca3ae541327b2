#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "algadd/find_present.h"
#include "algadd/point_buffer.h"
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
    points_.keys[points_.count] = static_cast<std::uint64_t>(key);
    points_.sums[points_.count++] = sum;
    if (points_.count == block_capacity) make_block();
  }

  /// Takes the points of so many lines of cells; cell i has the key first + i. All cells are absent then.
  void take(std::int64_t first, Sum* cells, std::size_t line_count) {
    const auto all = [=](const auto& look) KOV_INLINE {
      for (std::size_t line = 0; line < line_count; ++line) look(line);
    };
    take_lines(cells, first, all, points_, [this] { make_block(); });
  }

  /// The same where only lines with a mark hold points. Takes the marks away; line_count is a multiple of 8.
  void take_marked(std::int64_t first, Sum* cells, std::uint8_t* marks, std::size_t line_count) {
    const auto marked = [=](const auto& look) KOV_INLINE { for_each_mark(marks, line_count, look); };
    take_lines(cells, first, marked, points_, [this] { make_block(); });
  }

  /// Makes a block of what is left.
  void flush() {
    if (points_.count != 0) make_block();
  }

 private:
  // Of the first points, as many as fit into one; others stay.
  void make_block() {
    const std::size_t count = std::min(points_.count, block_capacity);
    auto [re, im] = arithmetic_.columns(std::span<const Sum>(points_.sums.data(), count));
    const std::span<const std::uint64_t> keys(points_.keys.data(), count);
    blocks_.push_back({Block(keys, std::move(re), std::move(im)), plan_.frame.box_of(keys, plan_.n)});
    std::copy_n(points_.keys.begin() + count, points_.count - count, points_.keys.begin());
    std::copy_n(points_.sums.begin() + count, points_.count - count, points_.sums.begin());
    points_.count -= count;
  }

  const StepPlan& plan_;
  const Arithmetic& arithmetic_;
  std::vector<BoundedBlock>& blocks_;
  PointBuffer<Sum> points_;
};

}  // namespace kov
