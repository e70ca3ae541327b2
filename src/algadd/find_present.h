#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "algadd/counted_arithmetic.h"
#include "algadd/linear_arithmetic.h"
#include "numbers/vector_dispatch.h"

namespace kov {

/// Cells that are looked at together: a touched cell marks its line.
inline constexpr std::size_t cells_of_line = 16;

/// Writes to found the indices of the cells that hold a point, ascending, and gives their number. found has
/// room for count + cells_of_line; cells beyond count, up to a whole line, can be read and hold no point.
/// Vectors of cells on processors that can compress a vector, one branchless store a cell on others.
template <class Sum>
std::size_t find_present(const Sum* cells, std::size_t count, std::uint32_t* found);

/// The same for cells of which only the lines with a mark hold points. Takes the marks away.
template <class Sum>
std::size_t find_present_in_lines(const Sum* cells, std::uint8_t* marks, std::size_t line_count,
                                  std::uint32_t* found);

template <class Sum>
KOV_INLINE inline std::size_t find_present_from(std::size_t first, const Sum* cells, std::size_t count,
                                                std::uint32_t* found, std::size_t present) {
  for (std::size_t i = first; i < count; ++i) {
    found[present] = static_cast<std::uint32_t>(i);
    present += static_cast<std::size_t>(!is_absent(cells[i]));
  }
  return present;
}

/// f(i) for every marks[i] that is 1, ascending; makes it 0. count is a multiple of 8.
template <class Function>
KOV_INLINE inline void for_each_mark(std::uint8_t* marks, std::size_t count, const Function& f) {
  for (std::size_t i = 0; i < count; i += 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, marks + i, sizeof word);
    if (word == 0) continue;
    std::memset(marks + i, 0, sizeof word);
    if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
    for (; word != 0; word &= word - 1) f(i + static_cast<std::size_t>(std::countr_zero(word)) / 8);
  }
}

#if defined(__x86_64__)

// The mask of the cells that hold a point among the next 16.

__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) inline __mmask16 present_of_16(
    const RealSum<std::int32_t>* cells) {
  const __m512i numbers = _mm512_loadu_si512(cells);
  return _mm512_test_epi32_mask(numbers, numbers);
}

__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) inline __mmask16 present_of_16(
    const RealSum<double>* cells) {
  const __m512d zero = _mm512_setzero_pd();
  const unsigned low = _mm512_cmp_pd_mask(_mm512_loadu_pd(cells), zero, _CMP_NEQ_UQ);
  const unsigned high = _mm512_cmp_pd_mask(_mm512_loadu_pd(cells + 8), zero, _CMP_NEQ_UQ);
  return static_cast<__mmask16>(low | high << 8U);
}

__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) inline __mmask16 present_of_16(
    const ComplexSum<std::int32_t>* cells) {
  const __m512i low = _mm512_loadu_si512(cells);
  const __m512i high = _mm512_loadu_si512(cells + 8);
  const unsigned low_mask = _mm512_test_epi64_mask(low, low);
  const unsigned high_mask = _mm512_test_epi64_mask(high, high);
  return static_cast<__mmask16>(low_mask | high_mask << 8U);
}

// Real and imaginary parts lie beside each other: two bits a cell, of which one is enough.
__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) inline __mmask16 present_of_16(
    const ComplexSum<double>* cells) {
  const __m512d zero = _mm512_setzero_pd();
  unsigned mask = 0;
  for (std::size_t part = 0; part < 4; ++part) {
    const unsigned parts = _mm512_cmp_pd_mask(_mm512_loadu_pd(cells + 4 * part), zero, _CMP_NEQ_UQ);
    unsigned pairs = (parts | parts >> 1U) & 0x55U;
    pairs = (pairs | pairs >> 1U) & 0x33U;
    pairs = (pairs | pairs >> 2U) & 0x0FU;
    mask |= pairs << (4 * part);
  }
  return static_cast<__mmask16>(mask);
}

// A double and its floating parts lie beside each other: of two bits a cell the lower one tells.
__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) inline __mmask16 present_of_16(
    const CountedRealSum* cells) {
  const __m512d zero = _mm512_setzero_pd();
  unsigned mask = 0;
  for (std::size_t part = 0; part < 4; ++part) {
    const unsigned parts = _mm512_cmp_pd_mask(_mm512_loadu_pd(cells + 4 * part), zero, _CMP_NEQ_UQ);
    unsigned pairs = parts & 0x55U;
    pairs = (pairs | pairs >> 1U) & 0x33U;
    pairs = (pairs | pairs >> 2U) & 0x0FU;
    mask |= pairs << (4 * part);
  }
  return static_cast<__mmask16>(mask);
}

template <class Sum>
__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) inline std::size_t find_present_in_line(
    const Sum* cells, std::size_t line, std::uint32_t* found, std::size_t present) {
  const std::size_t first = line * cells_of_line;
  const __mmask16 mask = present_of_16(cells + first);
  const __m512i steps = _mm512_set_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
  const __m512i indices = _mm512_add_epi32(steps, _mm512_set1_epi32(static_cast<int>(first)));
  _mm512_storeu_si512(found + present, _mm512_maskz_compress_epi32(mask, indices));
  return present + static_cast<std::size_t>(__builtin_popcount(mask));
}

template <class Sum>
__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) std::size_t find_present_avx512(
    const Sum* cells, std::size_t count, std::uint32_t* found) {
  std::size_t present = 0;
  for (std::size_t line = 0; line * cells_of_line < count; ++line) {
    present = find_present_in_line(cells, line, found, present);
  }
  return present;
}

template <class Sum>
__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) std::size_t find_marked_avx512(
    const Sum* cells, std::uint8_t* marks, std::size_t line_count, std::uint32_t* found) {
  std::size_t present = 0;
  for_each_mark(marks, line_count, [&](std::size_t line) KOV_INLINE {
    present = find_present_in_line(cells, line, found, present);
  });
  return present;
}

#endif

template <class Sum>
std::size_t find_present(const Sum* cells, std::size_t count, std::uint32_t* found) {
#if defined(__x86_64__)
  if constexpr (requires { present_of_16(cells); }) {
    if (vector_unit() == VectorUnit::avx512) return find_present_avx512(cells, count, found);
  }
#endif
  return find_present_from(0, cells, count, found, 0);
}

template <class Sum>
std::size_t find_present_in_lines(const Sum* cells, std::uint8_t* marks, std::size_t line_count,
                                  std::uint32_t* found) {
#if defined(__x86_64__)
  if constexpr (requires { present_of_16(cells); }) {
    if (vector_unit() == VectorUnit::avx512) return find_marked_avx512(cells, marks, line_count, found);
  }
#endif
  std::size_t present = 0;
  for_each_mark(marks, line_count, [&](std::size_t line) KOV_INLINE {
    const std::size_t first = line * cells_of_line;
    present = find_present_from(first, cells, first + cells_of_line, found, present);
  });
  return present;
}

}  // namespace kov
