#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "algadd/cell_lines.h"
#include "algadd/point_buffer.h"
#include "algadd/step_plan.h"
#include "algadd/take_lines.h"
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
    points_.append(static_cast<std::uint64_t>(key), sum);
    if (points_.count() == block_capacity) make_block();
  }

  /// Takes the points of the cells; cell i has the key first + i. Cells up to a whole line can be read and
  /// hold no point. All cells are absent then.
  void take(std::int64_t first, Sum* cells, std::size_t cell_count) {
    const std::size_t line_count = (cell_count + cells_of_line - 1) / cells_of_line;
    const auto all = [=](auto&& look) KOV_INLINE {
      for (std::size_t line = 0; line < line_count; ++line) look(line);
    };
    take_lines(cells, cell_count, static_cast<std::uint64_t>(first), all, points_, [this] { make_block(); });
  }

  /// The same where only lines with a mark hold points. Takes the marks away, of which eight at a time are
  /// read.
  void take_marked(std::int64_t first, Sum* cells, std::size_t cell_count, std::uint8_t* marks) {
    const std::size_t line_count = (cell_count / cells_of_line + 8) / 8 * 8;
    const auto marked = [=](auto&& look) KOV_INLINE { for_each_mark(marks, line_count, look); };
    take_lines(cells, cell_count, static_cast<std::uint64_t>(first), marked, points_,
               [this] { make_block(); });
  }

  /// Makes a block of what is left.
  void flush() {
    if (points_.count() != 0) make_block();
  }

 private:
  void make_block() {
    auto [re, im] = arithmetic_.columns(points_.first_sums());
    std::span<const std::uint64_t> keys;
    Block block = points_.take_block(std::move(re), std::move(im), keys);
    blocks_.push_back({std::move(block), plan_.frame.box_of(keys, plan_.n)});
  }

  const StepPlan& plan_;
  const Arithmetic& arithmetic_;
  std::vector<BoundedBlock>& blocks_;
  PointBuffer<Sum> points_;
};

}  // namespace kov
