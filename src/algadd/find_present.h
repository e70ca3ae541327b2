#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "algadd/step_arithmetic.h"
#include "algadd/vector_dispatch.h"

namespace kov {

/// Writes to found the indices, below count, of the cells that hold a point, ascending; gives their number. found
/// has room for count + 16. One branchless store a cell, and vectors of cells on processors that can
/// compress a vector.
template <class Sum>
std::size_t find_present(const Sum* cells, std::size_t count, std::uint32_t* found);

template <class Sum>
KOV_INLINE inline std::size_t find_present_from(std::size_t first, const Sum* cells, std::size_t count,
                                                std::uint32_t* found, std::size_t present) {
  for (std::size_t i = first; i < count; ++i) {
    found[present] = static_cast<std::uint32_t>(i);
    present += static_cast<std::size_t>(!is_absent(cells[i]));
  }
  return present;
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
  for (unsigned part = 0; part < 4; ++part) {
    const unsigned parts = _mm512_cmp_pd_mask(_mm512_loadu_pd(cells + 4 * part), zero, _CMP_NEQ_UQ);
    unsigned pairs = (parts | parts >> 1U) & 0x55U;
    pairs = (pairs | pairs >> 1U) & 0x33U;
    pairs = (pairs | pairs >> 2U) & 0x0FU;
    mask |= pairs << (4 * part);
  }
  return static_cast<__mmask16>(mask);
}

template <class Sum>
__attribute__((target("avx512f,avx512vl,avx512dq,avx512bw"))) std::size_t find_present_avx512(
    const Sum* cells, std::size_t count, std::uint32_t* found) {
  std::size_t present = 0;
  std::size_t i = 0;
  const __m512i steps = _mm512_set_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
  for (; i + 16 <= count; i += 16) {
    const __mmask16 mask = present_of_16(cells + i);
    if (mask == 0) continue;
    const __m512i indices = _mm512_add_epi32(steps, _mm512_set1_epi32(static_cast<int>(i)));
    _mm512_storeu_si512(found + present, _mm512_maskz_compress_epi32(mask, indices));
    present += static_cast<std::size_t>(__builtin_popcount(mask));
  }
  return find_present_from(i, cells, count, found, present);
}

template <class Sum>
std::size_t find_present(const Sum* cells, std::size_t count, std::uint32_t* found) {
  if constexpr (requires { present_of_16(cells); }) {
    if (vector_unit() == VectorUnit::avx512) return find_present_avx512(cells, count, found);
  }
  return find_present_from(0, cells, count, found, 0);
}

#else

template <class Sum>
std::size_t find_present(const Sum* cells, std::size_t count, std::uint32_t* found) {
  return find_present_from(0, cells, count, found, 0);
}

#endif

}  // namespace kov
