#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "algadd/cell_lines.h"
#include "algadd/point_buffer.h"
#include "algadd/present_cells.h"
#include "lattice/block.h"
#include "numbers/vector_dispatch.h"

namespace kov {

#if defined(__x86_64__)

/// Takes the points of one line after the other, their keys as offsets.
template <class Sum, class Full>
class LineTaker {
 public:
  LineTaker(Sum* cells, std::uint64_t first, PointBuffer<Sum>& points, const Full& full)
      : cells_(cells), first_(first), points_(points), full_(full) {
    begin();
  }

  KOV_AVX512 void operator()(std::size_t line) {
    const std::size_t cell = line * cells_of_line;
    const __mmask16 mask = present_of_16(cells_ + cell);
    if (mask == 0) return;
    take_cells(cells_ + cell, mask, sums_ + taken_);
    const __m512i steps = _mm512_set_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
    const __m512i here = _mm512_set1_epi32(static_cast<int>(offset_ + static_cast<std::uint32_t>(cell)));
    _mm512_storeu_si512(offsets_ + taken_, _mm512_maskz_compress_epi32(mask, _mm512_add_epi32(here, steps)));
    taken_ += static_cast<std::size_t>(std::popcount(mask));
    if (taken_ < room_) return;
    finish();
    full_();
    begin();
  }

  void finish() { points_.grow(taken_); }

 private:
  void begin() {
    offsets_ = points_.offsets_end();
    sums_ = points_.sums_end();
    offset_ = static_cast<std::uint32_t>(first_ - points_.base());
    taken_ = 0;
    room_ = block_capacity - points_.count();
  }

  Sum* const cells_;
  const std::uint64_t first_;
  PointBuffer<Sum>& points_;
  const Full& full_;
  std::uint32_t* offsets_ = nullptr;
  Sum* sums_ = nullptr;
  /// Of the first cell.
  std::uint32_t offset_ = 0;
  std::size_t taken_ = 0;
  /// How many more make a block.
  std::size_t room_ = 0;
};

template <class Sum, class Lines, class Full>
KOV_AVX512 void take_lines_avx512(Sum* cells, std::uint64_t first, const Lines& lines,
                                  PointBuffer<Sum>& points, const Full& full) {
  LineTaker<Sum, Full> taker(cells, first, points, full);
  lines(taker);
  taker.finish();
}

#endif

/// Moves the sums of cells that hold a point to the points, and makes the cells absent. lines is an inlined
/// function that calls another for each line to look at, ascending; cell i < cell_count has the key first +
/// i. As soon as there are as many points as a block takes full is called, which takes them away.
template <class Sum, class Lines, class Full>
void take_lines(Sum* cells, std::size_t cell_count, std::uint64_t first, const Lines& lines,
                PointBuffer<Sum>& points, const Full& full) {
#if defined(__x86_64__)
  if constexpr (requires { take_cells(cells, 0, cells); }) {
    if (vector_unit() == VectorUnit::avx512 && points.takes_offsets(first, first + cell_count)) {
      return take_lines_avx512(cells, first, lines, points, full);
    }
  }
#endif
  lines([&](std::size_t line) KOV_INLINE {
    for (std::size_t i = line * cells_of_line; i < (line + 1) * cells_of_line; ++i) {
      if (is_absent(cells[i])) continue;
      points.append(first + i, cells[i]);
      cells[i] = Sum{};
      if (points.count() == block_capacity) full();
    }
  });
}

}  // namespace kov
