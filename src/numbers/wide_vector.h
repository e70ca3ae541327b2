#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "numbers/vector_dispatch.h"

#if defined(__x86_64__)

#include <immintrin.h>

namespace kov {

// The operations of 512-bit vectors of 32-bit integers and of doubles by the same names, for templates on
// numbers. Integers wrap. Products and sums are never contracted.

template <class Number>
inline constexpr std::size_t wide_lanes = 64 / sizeof(Number);

/// The numbers at p whose bits are set, zeros in the other lanes; only those are read.
KOV_AVX512 inline __m512i load_wide(unsigned lanes, const std::int32_t* p) {
  return _mm512_maskz_loadu_epi32(static_cast<__mmask16>(lanes), p);
}
KOV_AVX512 inline __m512d load_wide(unsigned lanes, const double* p) {
  return _mm512_maskz_loadu_pd(static_cast<__mmask8>(lanes), p);
}
KOV_AVX512 inline __m512i load_wide(const std::int32_t* p) { return _mm512_loadu_si512(p); }
KOV_AVX512 inline __m512d load_wide(const double* p) { return _mm512_loadu_pd(p); }
KOV_AVX512 inline void store_wide(std::int32_t* p, __m512i v) { _mm512_storeu_si512(p, v); }
KOV_AVX512 inline void store_wide(double* p, __m512d v) { _mm512_storeu_pd(p, v); }

KOV_AVX512 inline __m512i wide(std::int32_t x) { return _mm512_set1_epi32(x); }
KOV_AVX512 inline __m512d wide(double x) { return _mm512_set1_pd(x); }

KOV_AVX512 inline __m512i wide_sum(__m512i a, __m512i b) { return _mm512_add_epi32(a, b); }
KOV_AVX512 inline __m512d wide_sum(__m512d a, __m512d b) { return _mm512_add_pd(a, b); }
KOV_AVX512 inline __m512i wide_difference(__m512i a, __m512i b) { return _mm512_sub_epi32(a, b); }
KOV_AVX512 inline __m512d wide_difference(__m512d a, __m512d b) { return _mm512_sub_pd(a, b); }
KOV_AVX512 inline __m512i wide_product(__m512i a, __m512i b) { return _mm512_mullo_epi32(a, b); }
KOV_AVX512 inline __m512d wide_product(__m512d a, __m512d b) { return _mm512_mul_pd(a, b); }

/// Lane i of the result is lane index[i] of a, or of b behind it; zero where the bit of lanes is not set.
KOV_AVX512 inline __m512i wide_picked(unsigned lanes, __m512i a, const std::int32_t* index, __m512i b) {
  return _mm512_maskz_permutex2var_epi32(static_cast<__mmask16>(lanes), a, _mm512_load_si512(index), b);
}
KOV_AVX512 inline __m512d wide_picked(unsigned lanes, __m512d a, const std::int64_t* index, __m512d b) {
  return _mm512_maskz_permutex2var_pd(static_cast<__mmask8>(lanes), a, _mm512_load_si512(index), b);
}

}  // namespace kov

#endif
