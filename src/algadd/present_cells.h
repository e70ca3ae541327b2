#pragma once

#include <bit>
#include <concepts>
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

/// Which of the first, or of the second, doubles of 8 cells of two each are not zero.
KOV_AVX512 inline unsigned doubles_present(const void* cells, __m512i places) {
  const auto* const numbers = static_cast<const double*>(cells);
  const __m512d some = _mm512_permutex2var_pd(_mm512_loadu_pd(numbers), places, _mm512_loadu_pd(numbers + 8));
  return _mm512_cmp_pd_mask(some, _mm512_setzero_pd(), _CMP_NEQ_UQ);
}

KOV_AVX512 inline unsigned first_doubles_present(const void* cells) {
  return doubles_present(cells, _mm512_set_epi64(14, 12, 10, 8, 6, 4, 2, 0));
}

// The first double of a cell tells; the second one is a state.
template <class Sum>
requires std::same_as<Sum, FractionSum> || std::same_as<Sum, CountedRealSum> KOV_AVX512 inline __mmask16
present_of_16(const Sum* cells) {
  return static_cast<__mmask16>(first_doubles_present(cells) | first_doubles_present(cells + 8) << 8U);
}

KOV_AVX512 inline __mmask16 present_of_16(const ComplexSum<double>* cells) {
  const __m512i im = _mm512_set_epi64(15, 13, 11, 9, 7, 5, 3, 1);
  const unsigned low = first_doubles_present(cells) | doubles_present(cells, im);
  const unsigned high = first_doubles_present(cells + 8) | doubles_present(cells + 8, im);
  return static_cast<__mmask16>(low | high << 8U);
}

#endif

}  // namespace kov
