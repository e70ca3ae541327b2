#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "algadd/cell_lines.h"
#include "algadd/counted_arithmetic.h"
#include "algadd/fraction_sum.h"
#include "algadd/linear_arithmetic.h"
#include "numbers/vector_dispatch.h"

namespace kov {

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

#endif

}  // namespace kov
