#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <utility>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "algadd/counted_arithmetic.h"
#include "algadd/fraction_sum.h"
#include "algadd/linear_arithmetic.h"
#include "algadd/present_cells.h"
#include "lattice/block.h"
#include "numbers/vector_dispatch.h"

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

#if defined(__x86_64__)

// Each writes those of 16 cells whose bits are set one behind the other, makes all of them absent, and may
// write anything behind, up to 16 sums.

KOV_AVX512 inline void take_cells(RealSum<std::int32_t>* cells, __mmask16 mask, RealSum<std::int32_t>* sums) {
  _mm512_storeu_si512(sums, _mm512_maskz_compress_epi32(mask, _mm512_loadu_si512(cells)));
  _mm512_storeu_si512(cells, _mm512_setzero_si512());
}

KOV_AVX512 inline void take_cells(RealSum<double>* cells, __mmask16 mask, RealSum<double>* sums) {
  for (std::size_t i = 0; i < 16; i += 8, cells += 8) {
    const auto some = static_cast<__mmask8>(mask >> i);
    _mm512_storeu_pd(sums, _mm512_maskz_compress_pd(some, _mm512_loadu_pd(cells)));
    _mm512_storeu_pd(cells, _mm512_setzero_pd());
    sums += std::popcount(some);
  }
}

KOV_AVX512 inline void take_cells(ComplexSum<std::int32_t>* cells, __mmask16 mask,
                                  ComplexSum<std::int32_t>* sums) {
  for (std::size_t i = 0; i < 16; i += 8, cells += 8) {
    const auto some = static_cast<__mmask8>(mask >> i);
    _mm512_storeu_si512(sums, _mm512_maskz_compress_epi64(some, _mm512_loadu_si512(cells)));
    _mm512_storeu_si512(cells, _mm512_setzero_si512());
    sums += std::popcount(some);
  }
}

/// For each choice of four cells which of their eight numbers go: both of a cell.
inline constexpr auto both_numbers = [] {
  std::array<std::uint8_t, 16> numbers{};
  for (unsigned cells = 0; cells < numbers.size(); ++cells) {
    for (unsigned i = 0; i < 4; ++i) {
      if ((cells >> i & 1U) != 0) numbers[cells] = static_cast<std::uint8_t>(numbers[cells] | 3U << 2 * i);
    }
  }
  return numbers;
}();

/// Sixteen bytes a cell.
template <class Sum>
requires std::same_as<Sum, ComplexSum<double>> || std::same_as<Sum, FractionSum> ||
    std::same_as<Sum, CountedRealSum>
        KOV_AVX512 inline void take_cells(Sum* cells, __mmask16 mask, Sum* sums) {
  const Sum absent{};
  const __m512d absents = _mm512_broadcast_f64x2(_mm_loadu_pd(reinterpret_cast<const double*>(&absent)));
  for (std::size_t i = 0; i < 16; i += 4, cells += 4) {
    const unsigned some = static_cast<unsigned>(mask) >> i & 0xFU;
    _mm512_storeu_pd(sums, _mm512_maskz_compress_pd(both_numbers[some], _mm512_loadu_pd(cells)));
    _mm512_storeu_pd(cells, absents);
    sums += std::popcount(some);
  }
}

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
