#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "algadd/counted_arithmetic.h"
#include "algadd/fraction_sum.h"
#include "algadd/linear_arithmetic.h"
#include "numbers/vector_dispatch.h"

namespace kov {

/// Cells that are looked at together: a touched cell marks its line.
inline constexpr std::size_t cells_of_line = 16;

/// f(i) for every marks[i] that is 1, ascending; makes it 0. count is a multiple of 8.
template <class Function>
KOV_INLINE inline void for_each_mark(std::uint8_t* marks, std::size_t count, Function&& f) {
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

// The mask of the cells that hold a point among the next cells_of_line, for the sums that vectors can be made
// of.

// The first of the two doubles of a cell tells.
KOV_AVX512 inline __mmask16 present_of_16(const FractionSum* cells) {
  const __m512d zero = _mm512_setzero_pd();
  const __m512i first_doubles = _mm512_set_epi64(14, 12, 10, 8, 6, 4, 2, 0);
  unsigned mask = 0;
  for (std::size_t half = 0; half < 2; ++half) {
    const __m512d low = _mm512_loadu_pd(cells + 8 * half);
    const __m512d high = _mm512_loadu_pd(cells + 8 * half + 4);
    const __m512d numbers = _mm512_permutex2var_pd(low, first_doubles, high);
    mask |= static_cast<unsigned>(_mm512_cmp_pd_mask(numbers, zero, _CMP_NEQ_UQ)) << (8 * half);
  }
  return static_cast<__mmask16>(mask);
}

KOV_AVX512 inline __mmask16 present_of_16(const RealSum<std::int32_t>* cells) {
  const __m512i numbers = _mm512_loadu_si512(cells);
  return _mm512_test_epi32_mask(numbers, numbers);
}

KOV_AVX512 inline __mmask16 present_of_16(const RealSum<double>* cells) {
  const __m512d zero = _mm512_setzero_pd();
  const unsigned low = _mm512_cmp_pd_mask(_mm512_loadu_pd(cells), zero, _CMP_NEQ_UQ);
  const unsigned high = _mm512_cmp_pd_mask(_mm512_loadu_pd(cells + 8), zero, _CMP_NEQ_UQ);
  return static_cast<__mmask16>(low | high << 8U);
}

KOV_AVX512 inline __mmask16 present_of_16(const ComplexSum<std::int32_t>* cells) {
  const __m512i low = _mm512_loadu_si512(cells);
  const __m512i high = _mm512_loadu_si512(cells + 8);
  const unsigned low_mask = _mm512_test_epi64_mask(low, low);
  const unsigned high_mask = _mm512_test_epi64_mask(high, high);
  return static_cast<__mmask16>(low_mask | high_mask << 8U);
}

// Real and imaginary parts lie beside each other: two bits a cell, of which one is enough.
KOV_AVX512 inline __mmask16 present_of_16(const ComplexSum<double>* cells) {
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
KOV_AVX512 inline __mmask16 present_of_16(const CountedRealSum* cells) {
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

#endif

}  // namespace kov
