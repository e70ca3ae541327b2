#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "algadd/find_present.h"
#include "algadd/linear_arithmetic.h"
#include "lattice/block.h"
#include "numbers/vector_dispatch.h"

namespace kov {

/// The next points of a row, in key order: those of one block, and of one line of cells beyond it.
template <class Sum>
struct PointBuffer {
  std::size_t count = 0;
  std::array<std::uint64_t, block_capacity + cells_of_line> keys;
  std::array<Sum, block_capacity + cells_of_line> sums;
};

template <class Sum>
void take_line(Sum* cells, std::uint64_t key, PointBuffer<Sum>& points) {
  for (std::size_t i = 0; i < cells_of_line; ++i) {
    if (is_absent(cells[i])) continue;
    points.keys[points.count] = key + i;
    points.sums[points.count++] = cells[i];
    cells[i] = Sum{};
  }
}

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

KOV_AVX512 inline void take_cells(ComplexSum<double>* cells, __mmask16 mask, ComplexSum<double>* sums) {
  for (std::size_t i = 0; i < 16; i += 4, cells += 4) {
    const unsigned some = static_cast<unsigned>(mask) >> i & 0xFU;
    // Both numbers of a cell go together: 0b1010 becomes 0b11001100.
    const unsigned apart = (some | some << 2U) & 0x33U;
    const unsigned pairs = ((apart | apart << 1U) & 0x55U) * 3U;
    _mm512_storeu_pd(sums, _mm512_maskz_compress_pd(static_cast<__mmask8>(pairs), _mm512_loadu_pd(cells)));
    _mm512_storeu_pd(cells, _mm512_setzero_pd());
    sums += std::popcount(some);
  }
}

template <class Sum>
KOV_AVX512 inline void take_line_avx512(Sum* cells, std::uint64_t key, PointBuffer<Sum>& points) {
  const __mmask16 mask = present_of_16(cells);
  if (mask == 0) return;
  take_cells(cells, mask, points.sums.data() + points.count);
  const __m512i base = _mm512_set1_epi64(static_cast<long long>(key));
  const __m512i lower = _mm512_add_epi64(base, _mm512_set_epi64(7, 6, 5, 4, 3, 2, 1, 0));
  const __m512i upper = _mm512_add_epi64(base, _mm512_set_epi64(15, 14, 13, 12, 11, 10, 9, 8));
  std::uint64_t* const keys = points.keys.data() + points.count;
  const auto half = static_cast<__mmask8>(mask);
  const auto other = static_cast<__mmask8>(mask >> 8U);
  _mm512_storeu_si512(keys, _mm512_maskz_compress_epi64(half, lower));
  _mm512_storeu_si512(keys + std::popcount(half), _mm512_maskz_compress_epi64(other, upper));
  points.count += static_cast<std::size_t>(std::popcount(mask));
}

/// For each line that lines gives: takes its points, and calls full as soon as they are those of a block.
template <class Sum, class Lines, class Full>
KOV_AVX512 void take_lines_avx512(Sum* cells, std::int64_t first, const Lines& lines,
                                  PointBuffer<Sum>& points, const Full& full) {
  lines([&](std::size_t line) KOV_INLINE {
    const std::size_t cell = line * cells_of_line;
    take_line_avx512(cells + cell, static_cast<std::uint64_t>(first) + cell, points);
    if (points.count >= block_capacity) full();
  });
}

#endif

/// Moves the sums of cells that hold a point to the points, and makes the cells absent. lines is an inlined
/// function that calls another for each line to look at, ascending; cell i has the key first + i. As soon as
/// there are as many points as a block takes full is called, which takes them away.
template <class Sum, class Lines, class Full>
void take_lines(Sum* cells, std::int64_t first, const Lines& lines, PointBuffer<Sum>& points,
                const Full& full) {
#if defined(__x86_64__)
  if constexpr (requires { take_cells(cells, 0, cells); }) {
    if (vector_unit() == VectorUnit::avx512) return take_lines_avx512(cells, first, lines, points, full);
  }
#endif
  lines([&](std::size_t line) KOV_INLINE {
    const std::size_t cell = line * cells_of_line;
    take_line(cells + cell, static_cast<std::uint64_t>(first) + cell, points);
    if (points.count >= block_capacity) full();
  });
}

}  // namespace kov
